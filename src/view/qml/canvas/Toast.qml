pragma Singleton

import QtQuick

// Where any part of the interface asks for a toast; the canvas shows it.
QtObject {
    readonly property int defaultDurationMs: 750
    // Options for what went wrong, which takes longer to read.
    readonly property var failure: ({ durationMs: 2500 })

    signal showRequested(string message, string hint, int delayMs, int durationMs, bool persistent, var clickHandler)
    signal hideRequested()

    // In the place of the hint: an object with any of hint, delayMs, durationMs, persistent (stays until hidden or
    // clicked) and clickHandler, a function.
    function show(message, hint, options) {
        const settings = (hint !== null && typeof hint === "object" ? hint : options) ?? {}
        const hintText = typeof hint === "string" ? hint : settings.hint ?? ""
        showRequested(message, hintText, settings.delayMs ?? 0, settings.durationMs ?? defaultDurationMs,
                      settings.persistent ?? false, settings.clickHandler ?? null)
    }

    function hide() {
        hideRequested()
    }
}
