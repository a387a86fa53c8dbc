import QtQuick
import QtTest
import ZelmoraAtelier

Item {
    id: host

    width: 800
    height: 600

    Component {
        id: canvasComponent

        Canvas {
            anchors.fill: parent
            sceneModel: scene.model
        }
    }

    SignalSpy {
        id: dropSpy
        signalName: "filesDropped"
    }

    SignalSpy {
        id: imageSpy
        target: scene.model
        signalName: "sceneImageChanged"
    }

    TestCase {
        name: "Canvas"
        when: windowShown

        property Canvas canvas

        function initTestCase() {
            if (!glAvailable)
                skip("No OpenGL context can be created here.")
        }

        function init() {
            scene.reset(400, 300)
            canvas = createTemporaryObject(canvasComponent, host)
        }

        function comparePoint(actual, x, y) {
            fuzzyCompare(actual.x, x, 1e-9)
            fuzzyCompare(actual.y, y, 1e-9)
        }

        function compareRect(actual, x, y, width, height) {
            comparePoint(actual, x, y)
            fuzzyCompare(actual.width, width, 1e-9)
            fuzzyCompare(actual.height, height, 1e-9)
        }

        function drag(button, fromX, fromY, toX, toY) {
            mousePress(canvas, fromX, fromY, button)
            mouseMove(canvas, toX, toY, -1, button)
            mouseRelease(canvas, toX, toY, button)
        }

        function test_wheelZoomsByOneStep_data() {
            const all = Qt.ControlModifier | Qt.ShiftModifier | Qt.AltModifier | Qt.MetaModifier
            return [
                { tag: "one notch down", delta: -120, modifiers: Qt.NoModifier, zoom: 2 / 1.1 },
                { tag: "many notches at once", delta: 960, modifiers: Qt.NoModifier, zoom: 2.2 },
                { tag: "a touchpad's hair", delta: -1, modifiers: Qt.NoModifier, zoom: 2 / 1.1 },
                { tag: "with Control", delta: 120, modifiers: Qt.ControlModifier, zoom: 2.2 },
                { tag: "with all", delta: 120, modifiers: all, zoom: 2.2 }
            ]
        }

        function test_wheelZoomsByOneStep(row) {
            canvas.setZoom(2)
            canvas.boardCenter = Qt.point(10, 20)
            mouseWheel(canvas, 30, 40, 0, row.delta, Qt.NoButton, row.modifiers)
            fuzzyCompare(canvas.zoom, row.zoom, 1e-9)
            comparePoint(canvas.boardCenter, 10, 20)
        }

        function test_wheelTurnedSidewaysByAltStillZooms() {
            scene.turnWheelSideways(canvas, 120, Qt.AltModifier)
            fuzzyCompare(canvas.zoom, 1.1, 1e-9)
            scene.turnWheelSideways(canvas, -120, Qt.AltModifier)
            fuzzyCompare(canvas.zoom, 1, 1e-9)
        }

        function test_zoomStaysWithinItsLimits() {
            canvas.setZoom(1000)
            compare(canvas.zoom, 48)
            mouseWheel(canvas, 400, 300, 0, 120)
            compare(canvas.zoom, 48)
            compare(scene.model.renderScale, 32)
            canvas.setZoom(0)
            mouseWheel(canvas, 400, 300, 0, -120)
            compare(canvas.zoom, 0.05)
            canvas.setZoom(NaN)
            compare(canvas.zoom, 0.05)
        }

        function test_viewIsAWindowAroundTheCentre() {
            canvas.setZoom(2)
            canvas.boardCenter = Qt.point(100, -50)
            compareRect(canvas.visibleDocumentRect, -100, -200, 400, 300)
            compareRect(scene.model.viewportRect, -100, -200, 400, 300)
            fuzzyCompare(scene.model.renderScale, 2 * Screen.devicePixelRatio, 1e-9)
            host.width = 600
            compareRect(canvas.visibleDocumentRect, -50, -200, 300, 300)
            host.width = 800
        }

        function test_middleButtonPans() {
            canvas.setZoom(2)
            drag(Qt.MiddleButton, 100, 100, 130, 80)
            comparePoint(canvas.boardCenter, -15, 10)
            mouseMove(canvas, 300, 300)
            comparePoint(canvas.boardCenter, -15, 10)
        }

        function test_leftButtonPansFromThreePixels() {
            mousePress(canvas, 100, 100)
            mouseMove(canvas, 102, 101, -1, Qt.LeftButton)
            comparePoint(canvas.boardCenter, 0, 0)
            mouseMove(canvas, 103, 100, -1, Qt.LeftButton)
            comparePoint(canvas.boardCenter, -3, 0)
            mouseMove(canvas, 101, 100, -1, Qt.LeftButton)
            comparePoint(canvas.boardCenter, -1, 0)
            mouseRelease(canvas, 101, 100)
            verify(canvas.activeFocus)
        }

        function test_spaceDragPansFromTheFirstPixel() {
            canvas.forceCanvasFocus()
            keyPress(Qt.Key_Space)
            mousePress(canvas, 100, 100)
            mouseMove(canvas, 101, 100, -1, Qt.LeftButton)
            comparePoint(canvas.boardCenter, -1, 0)
            keyRelease(Qt.Key_Space)
            mouseMove(canvas, 110, 100, -1, Qt.LeftButton)
            mouseRelease(canvas, 110, 100)
            drag(Qt.LeftButton, 100, 100, 101, 100)
            comparePoint(canvas.boardCenter, -10, 0)
        }

        function test_panRefusesWhatIsNotANumberAndKeepsItsAxes() {
            canvas.boardCenter = Qt.point(5, 6)
            canvas.panBoardFromViewportDelta(Qt.point(0, 0), NaN, 1, true, true)
            canvas.panBoardFromViewportDelta(Qt.point(0, 0), 1, Infinity, true, true)
            comparePoint(canvas.boardCenter, 5, 6)
            canvas.panBoardFromViewportDelta(Qt.point(1, 2), 10, 20, true, false)
            comparePoint(canvas.boardCenter, -9, 6)
            canvas.panBoardFromViewportDelta(Qt.point(1, 2), 10, 20, false, true)
            comparePoint(canvas.boardCenter, -9, -18)
        }

        function test_fixedBoundsHoldTheView() {
            canvas.boardCenter = Qt.point(33, 44)
            canvas.resetFixedDocumentView() // does nothing on the unlimited canvas
            comparePoint(canvas.boardCenter, 33, 44)
            canvas.fixedDocumentBounds = true
            comparePoint(canvas.boardCenter, 0, 0)
            drag(Qt.MiddleButton, 100, 100, 400, 300)
            compareRect(canvas.documentViewportRect(), -400, -300, 800, 600)

            canvas.setZoom(4) // 200 x 150 of 400 x 300 units
            canvas.boardCenter = Qt.point(1000, -1000)
            compareRect(canvas.visibleDocumentRect, 0, -150, 200, 150)
            // A drag starts from what is seen, not from the centre beyond the edge.
            drag(Qt.MiddleButton, 100, 100, 140, 100)
            compareRect(canvas.visibleDocumentRect, -10, -150, 200, 150)
        }

        function test_fitShowsTheWholeRectangle_data() {
            return [
                { tag: "wide", bounds: Qt.rect(100, 200, 1520, 100), zoom: 0.5, x: 860, y: 250 },
                { tag: "tall", bounds: Qt.rect(-50, -1400, 100, 2800), zoom: 0.2, x: 0, y: 0 },
                { tag: "tiny is not enlarged", bounds: Qt.rect(10, 10, 2, 2), zoom: 1, x: 11, y: 11 },
                { tag: "huge", bounds: Qt.rect(0, 0, 1e6, 1e6), zoom: 0.05, x: 5e5, y: 5e5 }
            ]
        }

        function test_fitShowsTheWholeRectangle(row) {
            canvas.setZoom(3)
            verify(canvas.fitDocumentRect(row.bounds))
            fuzzyCompare(canvas.zoom, row.zoom, 1e-9)
            comparePoint(canvas.boardCenter, row.x, row.y)
        }

        function test_missingOrUnendingBoundsAreRefused() {
            canvas.setZoom(3)
            for (const bounds of [undefined, null, Qt.rect(NaN, 0, 1, 1), Qt.rect(0, 0, Infinity, 1)]) {
                verify(!canvas.fitDocumentRect(bounds))
                verify(!canvas.ensureDocumentRectVisible(bounds))
            }
            compare(canvas.zoom, 3)
        }

        function test_ensureVisibleMovesOnlyForWhatIsOutside() {
            verify(!canvas.ensureDocumentRectVisible(Qt.rect(-380, -280, 760, 560)))
            verify(canvas.ensureDocumentRectVisible(Qt.rect(-381, -280, 760, 560)))
            comparePoint(canvas.boardCenter, -1, 0)
            compare(canvas.zoom, 1)
            verify(canvas.ensureDocumentRectVisible(Qt.rect(1000, 0, 1520, 100)))
            compare(canvas.zoom, 0.5)
            canvas.setZoom(0.1)
            verify(canvas.ensureDocumentRectVisible(Qt.rect(90000, 0, 10, 10)))
            compare(canvas.zoom, 0.1)
        }

        function test_paddedRectShrinksButNeverVanishes() {
            compareRect(canvas.addLayerViewportRect, -380, -280, 760, 560)
            compareRect(canvas.paddedVisibleDocumentRect(-5), -400, -300, 800, 600)
            canvas.setZoom(2)
            compareRect(canvas.paddedVisibleDocumentRect(100), -175, -125, 350, 250)
            compareRect(canvas.paddedVisibleDocumentRect(1e9), -0.5, -0.5, 1, 1)
        }

        function test_addedObjectMayBeFittedAndGivesFocus() {
            canvas.handleSceneObjectAdded(Qt.rect(0, 0, 1520, 10), false)
            compare(canvas.zoom, 1)
            canvas.handleSceneObjectAdded(Qt.rect(0, 0, 1520, 10), true)
            compare(canvas.zoom, 0.5)
            verify(canvas.activeFocus)
        }

        function test_viewAndDocumentPointsAreInverse() {
            canvas.setZoom(3.3)
            canvas.boardCenter = Qt.point(12.34, -56.78)
            comparePoint(canvas.viewToDocument(canvas.documentToView(Qt.point(100.5, -20.25))), 100.5, -20.25)
            const middle = canvas.viewToDocument(Qt.point(400, 300))
            fuzzyCompare(middle.x, 12.34, 0.5 / 3.3 + 1e-9) // the view lies on whole pixels
            fuzzyCompare(middle.y, -56.78, 0.5 / 3.3 + 1e-9)
        }

        function test_pictureIsDrawnWhereThePointsAre_data() {
            return [
                { tag: "at 100 %", zoom: 1, x: 0 },
                { tag: "enlarged and between pixels", zoom: 10.3, x: 0.37 },
                { tag: "beyond the scale of tiles", zoom: 48, x: 0 }
            ]
        }

        function test_pictureIsDrawnWhereThePointsAre(row) {
            scene.addChecker(8, 6)
            canvas.setZoom(row.zoom)
            canvas.boardCenter = Qt.point(row.x, -row.x)
            const image = grabImage(canvas)
            for (let line = 0; line < 6; ++line) {
                for (let column = 0; column < 8; ++column) {
                    const point = canvas.documentToView(Qt.point(column - 3.5, line - 2.5))
                    compare(image.pixel(Math.floor(point.x), Math.floor(point.y)),
                            Qt.color((column + line) % 2 === 0 ? "red" : "blue"), column + ", " + line)
                }
            }
        }

        function test_enlargedPixelsHaveHardEdges() {
            scene.addChecker(2, 2)
            canvas.setZoom(8)
            canvas.boardCenter = Qt.point(0.3, 0.3)
            const image = grabImage(canvas)
            const corner = canvas.documentToView(Qt.point(-1, -1))
            for (let x = -1; x <= 16; ++x) {
                const expected = x < 0 || x > 15 ? "white" : x < 8 ? "red" : "blue"
                compare(image.pixel(Math.round(corner.x) + x, Math.round(corner.y) + 4), Qt.color(expected), "x " + x)
            }
        }

        function test_backgroundFollowsTheMode() {
            scene.setBackground("#00ff00")
            compare(grabImage(canvas).pixel(5, 5), Qt.color("#00ff00"))
            canvas.fixedDocumentBounds = true
            const image = grabImage(canvas)
            compare(image.pixel(5, 5), Qt.color("#30343b"))
            compare(image.pixel(400, 300), Qt.color("#00ff00"))
            canvas.documentBoundsVisible = true
            verify(scene.model.documentBoundsVisible)
        }

        // 48 to 0.05 with the rectangle set before the scale would compose 512,000 x 384,000 pixels.
        function test_zoomJumpsComposeNoMoreThanTheView() {
            for (const zoom of [48, 0.05, 48])
                canvas.setZoom(zoom)
            imageSpy.clear()
            canvas.fitDocumentRect(Qt.rect(0, 0, 10000, 10000))
            canvas.fitDocumentRect(Qt.rect(0, 0, 10000, 10000))
            compare(imageSpy.count, 1) // and not again for the same view
            verify(scene.largestComposition <= 1.1 * 800 * 600 * Math.pow(Screen.devicePixelRatio, 2),
                   scene.largestComposition + " pixels")
        }

        function test_drops_data() {
            const one = ["file:///tmp/a.png"]
            return [
                { tag: "files to copy or move", urls: one.concat("file:///tmp/b.png"),
                  actions: Qt.CopyAction | Qt.MoveAction, accepted: true },
                { tag: "files to move only", urls: one, actions: Qt.MoveAction, accepted: false },
                { tag: "files to link only", urls: one, actions: Qt.LinkAction, accepted: false },
                { tag: "no files", urls: [], actions: Qt.CopyAction, accepted: false }
            ]
        }

        function test_drops(row) {
            dropSpy.target = canvas
            dropSpy.clear()
            const answer = scene.dragAndDrop(canvas, row.urls, row.actions)
            compare(answer.entered, row.accepted)
            compare(answer.dropped, row.accepted)
            compare(dropSpy.count, row.accepted ? 1 : 0)
            if (row.accepted) {
                compare(answer.action, Qt.CopyAction)
                compare(dropSpy.signalArguments[0][0].map(url => url.toString()), row.urls)
            }
        }
    }
}
