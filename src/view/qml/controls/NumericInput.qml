pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

// A number that is typed or stepped by the arrow keys (ten steps with Shift) and the wheel. Shows `value`; asks for
// another through `edited`. Steps in a row are one edit, which `editStarted` and `editFinished` bracket. What few fields
// ever need is made when one of them does.
ZmTextField {
    id: root

    property real value: 0
    property real from: -Infinity
    property real to: Infinity
    property real step: 1
    property int decimals: 0
    property string unit
    // Changes with what the number is of. What is typed for one is dropped when another takes its place.
    property int subject: 0
    // What a click on the unit does; empty where it cannot be switched.
    property string unitToolTip

    property string shownText           // of the value
    property bool complete: false
    property T.AbstractButton unitButton: null
    property Timer pause: null          // ends a row of steps

    signal edited(real value)
    signal editStarted()
    signal editFinished()
    signal unitClicked()

    // Typed and not yet taken over.
    function isTyped(): bool {
        return text !== shownText
    }

    function isStepping(): bool {
        return pause?.running ?? false
    }

    // NaN for a text that is no number.
    function typedNumber(): real {
        return Math.min(Math.max(NumberSpelling.read(text), from), to)
    }

    function showValue() {
        shownText = NumberSpelling.spelled(value, decimals)
        text = shownText
    }

    function commit() {
        const number = typedNumber()
        if (isTyped() && !isNaN(number) && NumberSpelling.spelled(number, decimals)
                !== NumberSpelling.spelled(value, decimals))
            edited(number)
        showValue()
    }

    function stepBy(steps: real) {
        if (!isStepping())
            editStarted()
        pause.restart()
        const typed = typedNumber()
        const number = isNaN(typed) ? value : typed
        edited(Math.min(Math.max(Math.round(number / step + steps) * step, from), to))
        showValue()
        selectAll()
    }

    function finishStepping() {
        if (!isStepping())
            return
        pause.stop()
        editFinished()
    }

    inputMethodHints: Qt.ImhFormattedNumbersOnly
    rightPadding: unit ? unitLabel.implicitWidth + Theme.spaceM + 2 * Theme.spaceS : Theme.spaceM
    Accessible.role: Accessible.SpinBox
    Accessible.description: unit

    onValueChanged: {
        if (!complete || (isTyped() && activeFocus && !isStepping()))
            return
        showValue()
        if (activeFocus)
            selectAll()
    }
    onSubjectChanged: {
        if (complete)
            showValue()
    }
    // Nothing half typed comes back later, and keys find no field that is not seen. To commit is no way out: what hides
    // the field may be a step of the history.
    onVisibleChanged: {
        if (visible || !complete)
            return
        showValue()
        focus = false
    }
    onDecimalsChanged: {
        if (complete)
            showValue()
    }
    onUnitToolTipChanged: {
        if (unitToolTip && !unitButton)
            unitButton = unitButtonComponent.createObject(root) as T.AbstractButton
    }
    Component.onCompleted: {
        showValue()
        complete = true
    }
    onAccepted: {
        commit()
        selectAll()
    }
    onActiveFocusChanged: {
        if (activeFocus) {
            if (!pause) {
                pause = pauseComponent.createObject(root) as Timer
                wheelComponent.createObject(root)
            }
            selectAll()
        } else {
            finishStepping()
            commit()
        }
    }
    Keys.onUpPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? 10 : 1)
    Keys.onDownPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? -10 : -1)
    Keys.onEscapePressed: event => {
        event.accepted = text !== NumberSpelling.spelled(value, decimals)
        showValue()
        selectAll()
    }

    Text {
        id: unitLabel

        x: root.width - width - Theme.spaceM
        height: root.height
        verticalAlignment: Text.AlignVCenter
        textFormat: Text.PlainText
        text: root.unit
        color: root.unitButton?.hovered ? Theme.text : Theme.mutedText
        font.pixelSize: Theme.fontSmall
        font.underline: root.unitButton?.hovered ?? false
    }

    Component {
        id: pauseComponent

        Timer {
            interval: 800
            onTriggered: root.editFinished()
        }
    }

    Component {
        id: wheelComponent

        WheelHandler {
            enabled: root.activeFocus
            onWheel: event => root.stepBy(event.angleDelta.y > 0 ? 1 : -1)
        }
    }

    // Lies over the unit where that can be switched.
    Component {
        id: unitButtonComponent

        T.AbstractButton {
            id: button

            function tellToolTip() {
                ToolTips.ask(button, hovered ? root.unitToolTip : "", false)
            }

            x: root.width - width
            width: unitLabel.width + Theme.spaceM + Theme.spaceS
            height: root.height
            visible: root.unit && root.unitToolTip
            focusPolicy: Qt.TabFocus
            hoverEnabled: true
            Accessible.name: root.unitToolTip
            onClicked: root.unitClicked()
            onHoveredChanged: tellToolTip()
            onPressed: ToolTips.end(button)

            background: FocusFrame { control: button }

            HoverHandler {
                cursorShape: Qt.PointingHandCursor
            }
        }
    }
}
