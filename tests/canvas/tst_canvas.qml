import QtQuick
import QtQuick.Controls
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

    Menu {
        id: menu

        property point openedAt

        onAboutToShow: openedAt = canvasTest.canvas.contextDocumentPoint
        MenuItem { text: "Entry" }
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
        id: canvasTest

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

        function look(zoom, x, y) {
            canvas.setZoom(zoom)
            canvas.boardCenter = Qt.point(x, y)
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

        function drag(button, toX, toY) {
            mousePress(canvas, 100, 100, button)
            mouseMove(canvas, toX, toY, -1, button)
            mouseRelease(canvas, toX, toY, button)
        }

        function test_wheelZoomsByOneStepWithinLimits() {
            look(2, 10, 20)
            const all = Qt.ControlModifier | Qt.ShiftModifier | Qt.AltModifier | Qt.MetaModifier
            mouseWheel(canvas, 30, 40, 0, 960, Qt.NoButton, all) // many notches at once
            fuzzyCompare(canvas.zoom, 2.2, 1e-9)
            mouseWheel(canvas, 30, 40, 0, -1) // a touchpad's hair
            fuzzyCompare(canvas.zoom, 2, 1e-9)
            scene.turnWheelSideways(canvas, 120, Qt.AltModifier)
            fuzzyCompare(canvas.zoom, 2.2, 1e-9)
            comparePoint(canvas.boardCenter, 10, 20)

            canvas.setZoom(1000)
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
            look(2, 100, -50)
            compareRect(canvas.visibleDocumentRect, -100, -200, 400, 300)
            compareRect(scene.model.viewportRect, -100, -200, 400, 300)
            fuzzyCompare(scene.model.renderScale, 2 * Screen.devicePixelRatio, 1e-9)
            host.width = 600
            compareRect(canvas.visibleDocumentRect, -50, -200, 300, 300)
            host.width = 800
        }

        function test_dragsPan() {
            canvas.setZoom(2)
            drag(Qt.MiddleButton, 130, 80)
            comparePoint(canvas.boardCenter, -15, 10)
            mouseMove(canvas, 300, 300)
            comparePoint(canvas.boardCenter, -15, 10)

            look(1, 0, 0)
            mousePress(canvas, 100, 100)
            mouseMove(canvas, 102, 101, -1, Qt.LeftButton)
            comparePoint(canvas.boardCenter, 0, 0) // the left button begins at three pixels
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
            drag(Qt.LeftButton, 101, 100)
            comparePoint(canvas.boardCenter, -10, 0)
        }

        function test_panRefusesWhatIsNotANumberAndKeepsItsAxes() {
            look(1, 5, 6)
            canvas.panBoardFromViewportDelta(Qt.point(0, 0), NaN, 1, true, true)
            canvas.panBoardFromViewportDelta(Qt.point(0, 0), 1, Infinity, true, true)
            comparePoint(canvas.boardCenter, 5, 6)
            canvas.panBoardFromViewportDelta(Qt.point(1, 2), 10, 20, true, false)
            comparePoint(canvas.boardCenter, -9, 6)
            canvas.panBoardFromViewportDelta(Qt.point(1, 2), 10, 20, false, true)
            comparePoint(canvas.boardCenter, -9, -18)
        }

        function test_fixedBoundsHoldTheView() {
            look(1, 33, 44)
            canvas.resetFixedDocumentView() // does nothing on the unlimited canvas
            comparePoint(canvas.boardCenter, 33, 44)
            canvas.fixedDocumentBounds = true
            comparePoint(canvas.boardCenter, 0, 0)
            drag(Qt.MiddleButton, 400, 300)
            compareRect(canvas.documentViewportRect(), -400, -300, 800, 600)

            look(4, 1000, -1000) // 200 x 150 of 400 x 300 units
            compareRect(canvas.visibleDocumentRect, 0, -150, 200, 150)
            // A drag starts from what is seen, not from the centre beyond the edge.
            drag(Qt.MiddleButton, 140, 100)
            compareRect(canvas.visibleDocumentRect, -10, -150, 200, 150)
        }

        function test_fitShowsTheWholeRectangle_data() {
            return [
                { tag: "wide", bounds: Qt.rect(100, 200, 1520, 100), zoom: 0.5, x: 860, y: 250 },
                { tag: "tall", bounds: Qt.rect(-50, -1400, 100, 2800), zoom: 0.2, x: 0, y: 0 },
                { tag: "tiny is not enlarged", bounds: Qt.rect(10, 10, 2, 2), zoom: 1, x: 11, y: 11 }
            ]
        }

        function test_fitShowsTheWholeRectangle(row) {
            canvas.setZoom(3)
            for (const bounds of [undefined, null, Qt.rect(NaN, 0, 1, 1), Qt.rect(0, 0, Infinity, 1)]) {
                verify(!canvas.fitDocumentRect(bounds))
                verify(!canvas.ensureDocumentRectVisible(bounds))
            }
            canvas.handleSceneObjectAdded(row.bounds, false)
            compare(canvas.zoom, 3)
            canvas.handleSceneObjectAdded(row.bounds, true)
            fuzzyCompare(canvas.zoom, row.zoom, 1e-9)
            comparePoint(canvas.boardCenter, row.x, row.y)
            verify(canvas.activeFocus)
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

        function test_pictureIsDrawnWhereThePointsAre_data() {
            return [
                { tag: "enlarged and between pixels", zoom: 10.3, x: 0.37 },
                { tag: "beyond the scale of tiles", zoom: 48, x: 0 }
            ]
        }

        function test_pictureIsDrawnWhereThePointsAre(row) {
            scene.addChecker(8, 6)
            look(row.zoom, row.x, -row.x)
            const image = grabImage(canvas)
            for (let line = 0; line < 6; ++line) {
                for (let column = 0; column < 8; ++column) {
                    const point = canvas.documentToView(Qt.point(column - 3.5, line - 2.5))
                    comparePoint(canvas.viewToDocument(point), column - 3.5, line - 2.5)
                    compare(image.pixel(Math.floor(point.x), Math.floor(point.y)),
                            Qt.color((column + line) % 2 === 0 ? "red" : "blue"), column + ", " + line)
                }
            }
            const middle = canvas.viewToDocument(Qt.point(400, 300))
            fuzzyCompare(middle.x, row.x, 0.5 / row.zoom + 1e-9) // the view lies on whole pixels
            fuzzyCompare(middle.y, -row.x, 0.5 / row.zoom + 1e-9)
        }

        function test_enlargedPixelsHaveHardEdges() {
            scene.addChecker(2, 2)
            look(8, 0.3, 0.3)
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

        function test_rulersFrameTheViewAndDragIt_data() {
            return [
                { tag: "top and left", bottomRight: false, viewX: 24, cornerX: 12, cornerY: 12 },
                { tag: "bottom and right", bottomRight: true, viewX: 0, cornerX: 788, cornerY: 588 }
            ]
        }

        function test_rulersFrameTheViewAndDragIt(row) {
            canvas.rulersAtBottomRight = row.bottomRight
            canvas.rulersVisible = true
            compareRect(canvas.visibleDocumentRect, -388, -288, 776, 576)
            const drag = (x, y) => {
                look(2, 0, 0)
                mousePress(canvas, x, y)
                mouseMove(canvas, x + 20, y - 10, -1, Qt.LeftButton)
                mouseRelease(canvas, x + 20, y - 10)
                return canvas.boardCenter
            }
            comparePoint(drag(300, row.cornerY), -10, 0)
            comparePoint(drag(row.cornerX, 300), 0, 5)
            comparePoint(drag(row.cornerX, row.cornerY), -10, 5)
            verify(canvas.activeFocus)

            // The zero of the rulers and of the document meet: a layer's edge lies below the tick of its coordinate.
            look(1, 0, 0)
            scene.addChecker(2, 2)
            const image = grabImage(canvas)
            const zeroX = row.viewX + 388
            const tickY = row.bottomRight ? 576 + 12 : 11
            verify(!Qt.colorEqual(image.pixel(zeroX, tickY), image.pixel(zeroX + 1, tickY)))
            compare(image.pixel(zeroX - 1, row.viewX + 288), Qt.color("blue"))
            compare(image.pixel(zeroX, row.viewX + 288), Qt.color("red"))
            canvas.rulersVisible = false
            compareRect(canvas.visibleDocumentRect, -400, -300, 800, 600)
        }

        function test_contextMenuKnowsItsPoint() {
            canvas.contextMenu = menu
            look(2, 0, 0)
            mouseClick(canvas, 500, 260, Qt.RightButton)
            tryCompare(menu, "opened", true)
            comparePoint(menu.openedAt, 50, -20)
            compare(menu.parent.mapToItem(canvas, menu.x, menu.y), Qt.point(500, 260))
            menu.close()
            for (const key of [[Qt.Key_Menu, Qt.NoModifier], [Qt.Key_F10, Qt.ShiftModifier]]) {
                look(1, 30, 40)
                canvas.forceCanvasFocus()
                keyClick(key[0], key[1])
                tryCompare(menu, "opened", true)
                comparePoint(menu.openedAt, 30, 40)
                keyClick(Qt.Key_Escape)
                tryCompare(menu, "visible", false)
            }
        }

        function test_fittedDocumentStaysInViewUntilItIsMoved() {
            scene.reset(2000, 1000)
            canvas.fitDocument()
            const fitted = canvas.zoom
            verify(fitted < 1)
            host.width = 500
            tryVerify(() => canvas.zoom < fitted)
            host.width = 800
            tryCompare(canvas, "zoom", fitted)
            canvas.panBoardFromViewportDelta(canvas.boardCenter, 10, 0, true, true)
            host.width = 500
            wait(20)
            compare(canvas.zoom, fitted)
            host.width = 800
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
