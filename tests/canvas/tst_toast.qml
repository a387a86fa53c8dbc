import QtQuick
import QtTest
import ZelmoraAtelier

Item {
    id: host

    width: 400
    height: 200

    ToastOverlay {
        id: overlay

        maximumWidth: 200
        anchors.horizontalCenter: parent.horizontalCenter
    }

    SignalSpy {
        id: showSpy
        target: Toast
        signalName: "showRequested"
    }

    TestCase {
        name: "Toast"
        when: windowShown

        function cleanup() {
            Toast.hide()
            tryCompare(overlay, "visible", false)
        }

        function click() {
            tryCompare(overlay, "opacity", 1)
            mouseClick(overlay)
        }

        function test_optionsMayTakeThePlaceOfTheHint() {
            const handler = () => {}
            showSpy.clear()
            Toast.show("a", "b")
            Toast.show("a", { hint: "c", delayMs: 5, durationMs: 6, persistent: true, clickHandler: handler })
            Toast.show("a", null, { durationMs: 7 })
            compare(Array.from(showSpy.signalArguments[0]), ["a", "b", 0, Toast.defaultDurationMs, false, null])
            compare(Array.from(showSpy.signalArguments[1]), ["a", "c", 5, 6, true, handler])
            compare(Array.from(showSpy.signalArguments[2]), ["a", "", 0, 7, false, null])
        }

        function test_showsForItsDuration() {
            Toast.show("Saved", "hint", { durationMs: 150 })
            verify(overlay.shown)
            compare(overlay.message, "Saved")
            compare(overlay.hint, "hint")
            tryCompare(overlay, "shown", false)
        }

        function test_waitsForItsDelay() {
            Toast.show("Replaced", { delayMs: 60 })
            Toast.show("Later", { delayMs: 120, durationMs: 5000 })
            verify(!overlay.shown)
            tryCompare(overlay, "shown", true)
            compare(overlay.message, "Later")
        }

        function test_persistentStaysUntilClicked() {
            Toast.show("Busy", { durationMs: 1, persistent: true })
            wait(60)
            verify(overlay.shown)
            click()
            verify(!overlay.shown)
        }

        function test_clickCallsTheHandlerOnce() {
            let clicks = 0
            Toast.show("Exported", { durationMs: 5000, clickHandler: () => ++clicks })
            click()
            compare(clicks, 1)
            verify(!overlay.shown)
            mouseClick(overlay)
            compare(clicks, 1)
        }
    }
}
