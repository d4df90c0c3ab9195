#include "appicon.h"
#include "testsupport.h"

#include <QDir>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// Relative luminance as WCAG defines it: sRGB channels linearised, then 0.2126 R + 0.7152 G +
// 0.0722 B, from 0 (black) to 1 (white).
double luminance(QRgb rgb)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(rgb)) + 0.7152 * linear(qGreen(rgb)) + 0.0722 * linear(qBlue(rgb));
}

// The WCAG contrast ratio, from 1:1 to 21:1, of every pixel the icon covers more than half
// against the panel it is drawn on.
QList<double> contrastOver(const QImage &icon, QColor panel)
{
    QImage composite(icon.size(), QImage::Format_RGB32);
    composite.fill(panel);
    QPainter(&composite).drawImage(0, 0, icon);
    QList<double> ratios;
    const double background = luminance(panel.rgb());
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            if (qAlpha(icon.pixel(x, y)) <= 128)
                continue;
            const double ink = luminance(composite.pixel(x, y));
            ratios.append((std::max(ink, background) + 0.05) / (std::min(ink, background) + 0.05));
        }
    }
    return ratios;
}

} // namespace

class TestAppIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Panels that show icons as they are may be light or dark: at 22 px, at least 60% of what
    // every tray drawing covers stands at 3:1 or more against both.
    void trayDrawingsStandOutOnLightAndDarkPanels()
    {
        QStringList drawings = QDir(QStringLiteral(":/QuivraMac/Icons"))
                                   .entryList({ QStringLiteral("*tray*.svg") }, QDir::Files);
        QVERIFY2(drawings.size() >= 2, qPrintable(drawings.join(' ')));
        for (const QString &name : std::as_const(drawings)) {
            const QImage icon = appicon::render(":/QuivraMac/Icons/" + name, 22);
            QVERIFY2(!icon.isNull(), qPrintable(name));
            for (const QColor panel : { QColor(0xf6f5f4), QColor(0x2b2b2b) }) {
                const QList<double> ratios = contrastOver(icon, panel);
                const auto strong = std::count_if(ratios.begin(), ratios.end(),
                                                  [](double ratio) { return ratio >= 3.0; });
                const QString figures = QStringLiteral("%1 over %2: %3 of %4 pixels at 3:1")
                                            .arg(name, panel.name())
                                            .arg(strong)
                                            .arg(ratios.size());
                qInfo("%s", qPrintable(figures));
                QVERIFY2(ratios.size() >= 22 * 22 / 8, qPrintable(figures));
                QVERIFY2(strong * 10 >= ratios.size() * 6, qPrintable(figures));
            }
        }
    }

    // At 16 px the icon is a filled square with a prompt that still shows: plenty of dark
    // background pixels and a clear group of light ones.
    void appIconReadsAtSixteenPixels()
    {
        const QImage icon = appicon::render(appicon::application(), 16);
        QVERIFY(!icon.isNull());
        int covered = 0, dark = 0, light = 0;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const QRgb pixel = icon.pixel(x, y);
                if (qAlpha(pixel) < 200)
                    continue;
                ++covered;
                const double l = luminance(pixel);
                dark += l < 0.3;
                light += l > 0.7;
            }
        }
        QVERIFY2(covered >= 16 * 16 / 2, qPrintable(QString::number(covered)));
        QVERIFY2(dark >= covered / 2, qPrintable(QString::number(dark)));
        QVERIFY2(light >= 12, qPrintable(QString::number(light)));
    }

    // Desktops recolour a symbolic icon by replacing its one colour, so a second colour would
    // survive the tint; the prompt is cut out of the square rather than drawn on it.
    void symbolicIconIsOneGreyWithThePromptCutOut()
    {
        const QImage icon =
            appicon::render(appicon::symbolic(), 16).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!icon.isNull());
        const auto grey = [](QRgb c) {
            return std::max({ std::abs(qRed(c) - 0xbe), std::abs(qGreen(c) - 0xbe),
                              std::abs(qBlue(c) - 0xbe) })
                <= 2; // what premultiplying leaves of #bebebe
        };
        int holes = 0;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const QRgb pixel = icon.pixel(x, y);
                if (qAlpha(pixel) >= 64)
                    QVERIFY2(grey(pixel), qPrintable(QColor(pixel).name()));
                else
                    holes += x >= 2 && x < 14 && y >= 2 && y < 14;
            }
        }
        QVERIFY2(holes >= 16, qPrintable(QString::number(holes)));
    }

    void themeBitmapsAreBuiltAtEverySize()
    {
        for (const int side : { 16, 24, 32, 48, 64, 128, 256 }) {
            const QString path =
                QStringLiteral(QUIVRA_HICOLOR_DIR "/%1x%1/apps/quivramac.png").arg(side);
            const QImage bitmap(path);
            QVERIFY2(!bitmap.isNull(), qPrintable(path));
            QCOMPARE(bitmap.size(), QSize(side, side));
            QVERIFY2(qAlpha(bitmap.pixel(side / 2, side / 2)) == 255, qPrintable(path));
            QCOMPARE(qAlpha(bitmap.pixel(0, 0)), 0);
        }
    }
};

QUIVRA_TEST_MAIN(TestAppIcon)
#include "tst_appicon.moc"
