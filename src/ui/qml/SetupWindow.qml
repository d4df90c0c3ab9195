import QtQuick
import QtQuick.Window
import QuivraMac.Ui

Window {
    id: window
    title: "Setup"
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    width: 600
    height: 500
    minimumWidth: 600
    maximumWidth: 600
    minimumHeight: 500
    maximumHeight: 500
    color: Theme.background
    // Each showing starts at the welcome screen.
    onVisibleChanged: if (visible) Onboarding.appear()
    Connections {
        target: Onboarding
        function onDismiss() { window.close() }
    }
    OnboardingView { anchors.fill: parent }
}
