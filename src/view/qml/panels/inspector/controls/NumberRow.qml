import QtQuick
import QtQuick.Layouts

// A labelled number. Shows `value` and asks for another through `edited`.
InspectorRow {
    id: root

    // For screen readers, where the label alone could be another row's.
    property string accessibleName: label
    property alias value: field.value
    property alias subject: field.subject
    property alias from: field.from
    property alias to: field.to
    property alias step: field.step
    property alias decimals: field.decimals
    property alias unit: field.unit
    property alias unitToolTip: field.unitToolTip

    signal edited(real value)
    signal editStarted()
    signal editFinished()
    signal unitClicked()

    NumericInput {
        id: field

        Layout.fillWidth: true
        Accessible.name: root.accessibleName
        onEdited: value => root.edited(value)
        onEditStarted: root.editStarted()
        onEditFinished: root.editFinished()
        onUnitClicked: {
            commit()    // what was typed counts in the old unit
            root.unitClicked()
        }
    }
}
