#include "appicon.h"
#include "qmlharness.h"
#include "ui/panelplacement.h"
#include "ui/trayicon.h"

#include <QImage>

Q_DECLARE_METATYPE(TrayIcon::Status)

// The tray item's looks and where its panel goes, without a desktop.
class TestTrayIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Trays that recolour get the themed symbol; the others the drawings in a mid tone (whose
    // contrast the icon test measures), never the pale symbolic grey.
    void iconSuitsTheTray_data()
    {
        QTest::addColumn<bool>("statusNotifierItem");
        QTest::addColumn<QString>("desktops");
        QTest::addColumn<bool>("recoloured");
        QTest::newRow("plasma") << true << "KDE" << true;
        QTest::newRow("ubuntu") << true << "ubuntu:GNOME" << true;
        QTest::newRow("xfce") << true << "XFCE" << false;
        QTest::newRow("unknown") << true << "" << false;
        QTest::newRow("xembed on plasma") << false << "KDE" << false;
    }

    void iconSuitsTheTray()
    {
        QFETCH(bool, statusNotifierItem);
        QFETCH(QString, desktops);
        QFETCH(bool, recoloured);
        QCOMPARE(TrayIcon::trayRecoloursSymbolicIcons(statusNotifierItem, desktops), recoloured);
        // Every state looks different from every other, in either kind of tray.
        using State = TrayIcon::State;
        QList<QImage> looks;
        for (const State state :
             { State::NotSetUp, State::Pairing, State::Running, State::Stopped }) {
            const QIcon icon = TrayIcon::icon(state, recoloured);
            if (recoloured && QIcon::hasThemeIcon(TrayIcon::iconName(state)))
                QCOMPARE(icon.name(), TrayIcon::iconName(state));
            else
                QCOMPARE(icon.name(), QString());
            const QImage look = icon.pixmap(22).toImage();
            QVERIFY(!look.isNull());
            QVERIFY2(!looks.contains(look), qPrintable(TrayIcon::iconName(state)));
            looks.append(look);
        }
    }

    void toolTipSaysServerStateAndPairingTime_data()
    {
        QTest::addColumn<TrayIcon::Status>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("failing") << TrayIcon::Status {
            true, false, 2022, "port 2022 is in use by another program"
        } << "QuivraMac\nServer not running: port 2022 is in use by another program";
        QTest::newRow("first run") << TrayIcon::Status { false, false, 2022, {}, -1 }
                                   << "QuivraMac\nServer off\nSetup is not finished yet";
        QTest::newRow("pairing") << TrayIcon::Status { true, true, 2022, {}, 271 }
                                 << "QuivraMac\nServer running on port 2022\nPairing: the code "
                                    "expires in 4:31";
    }

    void toolTipSaysServerStateAndPairingTime()
    {
        QFETCH(TrayIcon::Status, status);
        QFETCH(QString, text);
        QCOMPARE(TrayIcon::toolTip(status), text);
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

    void itemCellLiesAcrossTheBar_data()
    {
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QRect>("cell");
        const QRect underTopBar(0, 27, 1280, 773);
        QTest::newRow("on a top bar") << QPoint(1200, 20) << underTopBar << QRect(1187, 0, 27, 27);
        QTest::newRow("at the bar's end")
            << QPoint(1279, 3) << underTopBar << QRect(1253, 0, 27, 27);
        // A menu entry under the item: the cell goes back up onto the bar.
        QTest::newRow("menu under a top bar")
            << QPoint(1100, 90) << underTopBar << QRect(1087, 0, 27, 27);
        QTest::newRow("left bar") << QPoint(10, 400) << QRect(30, 0, 1250, 800)
                                  << QRect(0, 385, 30, 30);
        QTest::newRow("bottom bar")
            << QPoint(640, 790) << QRect(0, 0, 1280, 776) << QRect(628, 776, 24, 24);
        QTest::newRow("no bar") << QPoint(640, 2) << QRect(0, 0, 1280, 800)
                                << QRect(628, -10, 24, 24);
    }

    void itemCellLiesAcrossTheBar()
    {
        QFETCH(QPoint, pointer);
        QFETCH(QRect, available);
        QFETCH(QRect, cell);
        QCOMPARE(panelplacement::itemCell(pointer, QRect(0, 0, 1280, 800), available, 24), cell);
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
