import QtQuick
import QtQuick.Controls
import QuivraMac.Ui

// The setup window's root: one screen per step, each moving in from the trailing edge while
// fading in and out to the leading edge. Its controls take the scheme's palette.
ThemedSurface {
    id: view
    implicitWidth: 600
    implicitHeight: 500

    readonly property var screens: [welcome, explanation, check, pairing, success]
    Component { id: welcome; WelcomeStep { onContinueClicked: Onboarding.welcomeContinue() } }
    Component { id: explanation; ExplanationStep { onContinueClicked: Onboarding.explanationContinue(); onBackClicked: Onboarding.explanationBack() } }
    Component { id: check; SystemCheckStep { onAllPassedContinue: Onboarding.startPairing(); onBackClicked: Onboarding.systemCheckBack() } }
    Component { id: pairing; PairingStep { onBackClicked: Onboarding.pairingBack(); onRetry: Onboarding.renewCode() } }
    Component { id: success; SuccessStep { onDone: Onboarding.finish() } }

    StackView {
        id: stack
        objectName: "onboardingStack"
        anchors.fill: parent
        initialItem: view.screens[Onboarding.step]
        replaceEnter: Transition {
            ParallelAnimation {
                NumberAnimation { property: "x"; from: stack.width * 0.3; to: 0; duration: 300; easing.type: Easing.InOutQuad }
                NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 300; easing.type: Easing.InOutQuad }
            }
        }
        replaceExit: Transition {
            ParallelAnimation {
                NumberAnimation { property: "x"; from: 0; to: -stack.width * 0.3; duration: 300; easing.type: Easing.InOutQuad }
                NumberAnimation { property: "opacity"; from: 1; to: 0; duration: 300; easing.type: Easing.InOutQuad }
            }
        }
    }
    // The keyboard starts on each screen's default button, so that Space and Return act there
    // and nowhere else (not on a control of the window around it).
    // Untyped: each screen is a type of its own, all with a defaultButton.
    readonly property var screen: stack.currentItem
    function focusDefault() {
        const button = screen ? screen.defaultButton : null
        if (button && Ui.canMoveFocus)
            button.forceActiveFocus()
    }
    // Once the new screen is in place.
    Timer {
        id: focusLater
        interval: 0
        onTriggered: view.focusDefault()
    }
    Connections {
        target: stack
        function onCurrentItemChanged() { focusLater.restart() }
    }
    Connections {
        target: stack.currentItem
        ignoreUnknownSignals: true
        function onDefaultButtonChanged() { view.focusDefault() }
    }
    // Each showing of the window starts again at the first screen, at once.
    function restart() {
        resetting = true
        Onboarding.appear()
        resetting = false
    }
    property bool resetting: false
    Connections {
        target: Onboarding
        // Keyed on every step set, so a new code also brings a fresh screen.
        function onStepChanged() {
            stack.replace(null, view.screens[Onboarding.step],
                          view.resetting ? StackView.Immediate : StackView.Transition)
        }
    }
}
