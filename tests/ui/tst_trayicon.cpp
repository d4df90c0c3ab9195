#include "appicon.h"
#include "qmlharness.h"
#include "ui/panelplacement.h"
#include "ui/trayicon.h"

#include <QImage>

// The tray item's looks and where its panel goes, without a desktop.
class TestTrayIcon : public QObject
{
    Q_OBJECT

    static double luminance(QRgb rgb)
    {
        const auto linear = [](int channel) {
            const double c = channel / 255.0;
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(qRed(rgb)) + 0.7152 * linear(qGreen(rgb))
            + 0.0722 * linear(qBlue(rgb));
    }

private Q_SLOTS:
    void iconReadsOnLightAndDarkBars_data()
    {
        QTest::addColumn<QImage>("image");
        QTest::addColumn<QColor>("bar");
        const QList<std::pair<const char *, QImage>> drawings {
            { "done", TrayIcon::icon(true).pixmap(64).toImage() },
            { "setup", TrayIcon::icon(false).pixmap(64).toImage() },
            // As the theme ships them, for panels that show symbolic icons without recolouring.
            { "themed done", appicon::render(appicon::symbolic(), 64) },
            { "themed setup", appicon::render(appicon::setupSymbolic(), 64) },
        };
        for (const auto &[name, image] : drawings) {
            QTest::addRow("%s on black", name) << image << QColor(Qt::black);
            QTest::addRow("%s on white", name) << image << QColor(Qt::white);
        }
    }

    void iconReadsOnLightAndDarkBars()
    {
        QFETCH(QImage, image);
        QFETCH(QColor, bar);
        const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(pixels.size(), QSize(64, 64));
        int opaque = 0;
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                const QRgb pixel = pixels.pixel(x, y);
                // Fainter edge pixels carry only rounding noise as colour.
                if (qAlpha(pixel) < 32)
                    continue;
                opaque += qAlpha(pixel) == 255;
                const double difference = std::abs(luminance(pixel) - luminance(bar.rgb()));
                QVERIFY2(difference >= 0.4,
                         qPrintable(QStringLiteral("(%1,%2) %3 differs by %4")
                                        .arg(x)
                                        .arg(y)
                                        .arg(QColor(pixel).name())
                                        .arg(difference)));
            }
        }
        // Something is drawn: at least a tenth of the square in full ink.
        QVERIFY2(opaque >= 64 * 64 / 10, qPrintable(QString::number(opaque)));
    }

    void iconHasThemeNamesTheDesktopRecolours()
    {
        QCOMPARE(TrayIcon::iconName(true), "quivramac-symbolic");
        QCOMPARE(TrayIcon::iconName(false), "quivramac-setup-symbolic");
        QVERIFY(TrayIcon::icon(true).pixmap(22).toImage()
                != TrayIcon::icon(false).pixmap(22).toImage());
    }

    void toolTipSaysServerStateAndPairingTime_data()
    {
        QTest::addColumn<bool>("running");
        QTest::addColumn<int>("secondsLeft");
        QTest::addColumn<QString>("text");
        QTest::newRow("off") << false << -1 << "QuivraMac\nServer off";
        QTest::newRow("running") << true << -1 << "QuivraMac\nServer running on port 2022";
        QTest::newRow("pairing") << true << 271
                                 << "QuivraMac\nServer running on port 2022\nPairing: the code "
                                    "expires in 4:31";
        QTest::newRow("last second") << true << 0
                                     << "QuivraMac\nServer running on port 2022\nPairing: the "
                                        "code expires in 0:00";
    }

    void toolTipSaysServerStateAndPairingTime()
    {
        QFETCH(bool, running);
        QFETCH(int, secondsLeft);
        QFETCH(QString, text);
        QCOMPARE(TrayIcon::toolTip(running, 2022, secondsLeft), text);
    }

    void panelSitsBesideWhatWasClicked_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QPoint>("position");
        const QRect screen(0, 0, 1280, 800);
        const QRect underTopBar(0, 24, 1280, 776);
        // Activation points at the corners: the panel's nearest corner at the point.
        QTest::newRow("point top left") << QRect(5, 12, 1, 1) << screen << QPoint(5, 17);
        QTest::newRow("point top right") << QRect(1268, 12, 1, 1) << screen << QPoint(969, 17);
        QTest::newRow("point bottom left") << QRect(5, 790, 1, 1) << screen << QPoint(5, 486);
        QTest::newRow("point bottom right") << QRect(1268, 790, 1, 1) << screen << QPoint(969, 486);
        // The bar is outside the available area: the panel stays below it.
        QTest::newRow("point in a top bar")
            << QRect(1268, 12, 1, 1) << underTopBar << QPoint(969, 24);
        QTest::newRow("point off screen") << QRect(1400, 900, 1, 1) << screen << QPoint(980, 500);
        // A tray icon's geometry: centred under or over it, held inside the screen.
        QTest::newRow("icon top") << QRect(600, 0, 24, 24) << screen << QPoint(461, 28);
        QTest::newRow("icon bottom") << QRect(600, 776, 24, 24) << screen << QPoint(461, 472);
        QTest::newRow("icon top right") << QRect(1256, 0, 24, 24) << screen << QPoint(980, 28);
    }

    void panelSitsBesideWhatWasClicked()
    {
        QFETCH(QRect, anchor);
        QFETCH(QRect, available);
        QFETCH(QPoint, position);
        QCOMPARE(panelplacement::beside(anchor, QSize(300, 300), available), position);
    }

    void windowPanelSitsBesideTheFirstRunWindow_data()
    {
        QTest::addColumn<QRect>("setup");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("room on the right") << QRect(340, 100, 600, 500) << QPoint(956, 100);
        QTest::newRow("room only on the left") << QRect(600, 100, 600, 500) << QPoint(284, 100);
        QTest::newRow("no room: inside the screen") << QRect(100, 100, 1100, 500) << QPoint(0, 100);
    }

    void windowPanelSitsBesideTheFirstRunWindow()
    {
        QFETCH(QRect, setup);
        QFETCH(QPoint, position);
        QCOMPARE(panelplacement::besideWindow(setup, QSize(300, 300), QRect(0, 0, 1280, 800)),
                 position);
    }
};

QUIVRA_QUICK_TEST_MAIN(TestTrayIcon)
#include "tst_trayicon.moc"
