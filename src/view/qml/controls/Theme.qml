pragma Singleton

import QtQuick

// The one scale of sizes, type and colours. Lengths are device-independent pixels; colours follow the palette of the
// application, so that light and dark need no second set.
QtObject {
    id: root

    readonly property real spaceXS: 2
    readonly property real spaceS: 4
    readonly property real spaceM: 8
    readonly property real spaceL: 12
    readonly property real spaceXL: 16
    readonly property real spaceXXL: 24

    readonly property int fontSmall: Math.max(9, Math.round(fontBody * 0.85))
    readonly property int fontBody: Math.round(metrics.font.pixelSize > 0 ? metrics.font.pixelSize
                                                                          : metrics.font.pointSize * 96 / 72)
    readonly property int fontTitle: Math.round(fontBody * 1.25)
    readonly property int fontDisplay: Math.round(fontBody * 1.75)

    readonly property real controlHeight: 28
    readonly property real toolButtonSize: 32
    readonly property real radius: 5
    readonly property real largeRadius: 9
    readonly property real focusWidth: 2
    readonly property int iconSize: 16
    readonly property int toolIconSize: 24
    readonly property int fadeMs: 90
    readonly property int busyDelayMs: 150       // shorter work shows no ring

    readonly property bool dark: palette.window.hslLightness < 0.5
    readonly property color text: palette.windowText
    readonly property color mutedText: Qt.alpha(palette.windowText, dark ? 0.66 : 0.7)
    readonly property color surface: palette.window
    readonly property color sunken: palette.base
    readonly property color raised: palette.button
    readonly property color raisedHovered: Qt.tint(raised, hoverFill)
    readonly property color raisedPressed: Qt.tint(raised, pressedFill)
    readonly property color hairline: Qt.alpha(palette.windowText, dark ? 0.13 : 0.14)
    readonly property color outline: Qt.alpha(palette.windowText, dark ? 0.22 : 0.26)
    readonly property color strongOutline: Qt.alpha(palette.windowText, 0.4)    // of a field under the pointer
    readonly property color swatchOutline: Qt.alpha(palette.windowText, 0.3)
    readonly property color handle: dark ? "#e8eaed" : "white"
    readonly property color handleOutline: Qt.alpha("black", 0.35)
    readonly property color hoverFill: Qt.alpha(palette.windowText, dark ? 0.08 : 0.06)
    readonly property color pressedFill: Qt.alpha(palette.windowText, dark ? 0.15 : 0.13)
    readonly property color accent: palette.highlight
    readonly property color accentText: palette.highlightedText
    readonly property color accentSoft: Qt.alpha(palette.highlight, dark ? 0.34 : 0.2)
    readonly property color link: dark ? Qt.lighter(palette.highlight, 1.35) : Qt.darker(palette.highlight, 1.15)
    readonly property color danger: dark ? "#ff8a80" : "#b3261e"
    readonly property color shadow: Qt.alpha("black", dark ? 0.5 : 0.22)
    readonly property real disabledOpacity: 0.4

    readonly property SystemPalette palette: SystemPalette {}
    readonly property FontMetrics metrics: FontMetrics { font: Application.font }

    // The keys of a shortcut after a tool tip, in the platform's spelling.
    function withKeys(toolTip, keys) {
        return keys ? qsTr("%1 (%2)").arg(toolTip).arg(keys) : toolTip
    }

    // Some languages write the letter in brackets behind the text.
    function withoutMnemonic(text) {
        return text.replace(/\s*\(&\w\)/, "").replace("&", "")
    }
}
