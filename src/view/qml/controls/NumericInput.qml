import QtQuick
import QtQuick.Controls

// A number that is typed or stepped by the arrow keys (ten steps with Shift) and the wheel. Shows `value`; asks for
// another through `edited`. Steps in a row are one edit, which `editStarted` and `editFinished` bracket.
ZmTextField {
    id: root

    property real value: 0
    property real from: -Infinity
    property real to: Infinity
    property real step: 1
    property int decimals: 0
    property string unit
    property string unitToolTip
    property string shownText                           // of the value
    readonly property bool typing: text !== shownText   // and not yet taken over

    signal edited(real value)
    signal editStarted()
    signal editFinished()
    signal unitClicked()

    function shown(number) {
        const locale = Qt.locale()
        const text = Number(number).toLocaleString(locale, "f", decimals)
        // Zeros after the point say nothing, and thousands need no mark here.
        const plain = text.split(locale.groupSeparator).join("")
        return decimals > 0 && plain.includes(locale.decimalPoint)
                ? plain.replace(new RegExp("\\" + locale.decimalPoint + "?0+$"), "") : plain
    }

    // Undefined for a text that is no number. Takes the locale's decimal point and the plain one.
    function parsed(text) {
        // Some languages write a minus of their own.
        const cleaned = text.trim().replace(Qt.locale().negativeSign, "-").replace(Qt.locale().decimalPoint, ".")
        const number = Number(cleaned)
        return cleaned && isFinite(number) ? Math.min(Math.max(number, from), to) : undefined
    }

    function showValue() {
        shownText = shown(value)
        text = shownText
    }

    function commit() {
        const number = parsed(text)
        if (typing && number !== undefined && shown(number) !== shown(value))
            edited(number)
        showValue()
    }

    function stepBy(steps) {
        if (!stepping.running)
            editStarted()
        stepping.restart()
        const number = parsed(text) ?? value
        edited(Math.min(Math.max(Math.round(number / step + steps) * step, from), to))
        showValue()
        selectAll()
    }

    function finishStepping() {
        if (!stepping.running)
            return
        stepping.stop()
        editFinished()
    }

    horizontalAlignment: TextInput.AlignLeft
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    rightPadding: root.unit ? unitButton.width + Theme.spaceS : Theme.spaceM
    Accessible.role: Accessible.SpinBox
    Accessible.description: unit

    onValueChanged: {
        if (typing && activeFocus && !stepping.running)
            return
        showValue()
        if (activeFocus)
            selectAll()
    }
    onDecimalsChanged: showValue()
    Component.onCompleted: showValue()
    onAccepted: {
        commit()
        selectAll()
    }
    onActiveFocusChanged: {
        if (activeFocus) {
            selectAll()
        } else {
            finishStepping()
            commit()
        }
    }
    Keys.onUpPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? 10 : 1)
    Keys.onDownPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? -10 : -1)
    Keys.onEscapePressed: event => {
        event.accepted = shown(value) !== text
        showValue()
        selectAll()
    }

    Timer {
        id: stepping

        interval: 800
        onTriggered: root.editFinished()
    }

    WheelHandler {
        enabled: root.activeFocus
        onWheel: event => root.stepBy(event.angleDelta.y > 0 ? 1 : -1)
    }

    // A button where the unit can be switched.
    AbstractButton {
        id: unitButton

        anchors.right: parent.right
        height: parent.height
        visible: root.unit
        enabled: root.unitToolTip
        focusPolicy: Qt.TabFocus
        hoverEnabled: true
        leftPadding: Theme.spaceS
        rightPadding: Theme.spaceM
        Accessible.name: root.unitToolTip || root.unit
        Accessible.ignored: !enabled
        onClicked: root.unitClicked()

        contentItem: Text {
            verticalAlignment: Text.AlignVCenter
            text: root.unit
            color: unitButton.enabled && unitButton.hovered ? Theme.text : Theme.mutedText
            font.pixelSize: Theme.fontSmall
            font.underline: unitButton.enabled && unitButton.hovered
        }

        background: FocusFrame { control: unitButton }

        HoverHandler {
            enabled: unitButton.enabled
            cursorShape: Qt.PointingHandCursor
        }

        ZmToolTip {
            visible: unitButton.hovered && text
            text: root.unitToolTip
        }
    }
}
