#include "commands/command_history.h"
#include "commands/crop_image_layer_command.h"
#include "commands/image_crop.h"
#include "commands/shape_commands.h"
#include "commands/text_commands.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

using SelectCommand = SetImageLayerRasterSelectionCommand;

// Values of three kinds of layers: number 0 is what the layers of a Scene begin with.

const std::array<QImage, 3> kPictures{gradientPicture(4, 3), plainPicture(5, 5, QColor(10, 20, 30, 40)),
                                      plainPicture(4, 3, Qt::red)};

ObjectTransform transformOf(int value)
{
    ObjectTransform transform;
    transform.setPosition({5.0 * value, -value / 3.0});
    transform.setRotation(30.0 * value);
    return transform;
}

/// A closed contour of that many nodes in a row, with known ids.
EditablePath pathOf(int nodes)
{
    EditablePathContour contour{{}, true};
    contour.nodes.reserve(nodes);
    for (int i = 0; i < nodes; ++i) {
        const QPointF point(i % 4, i % 3);
        contour.nodes.append({testId(uint(i) + 1), point, point, point});
    }
    return {{contour}, Qt::OddEvenFill};
}

SizedShapeGeometry geometryOf(int value)
{
    GeneratorGeometry star{u"star5"_s, {}};
    star.parameters.set(u"spikes"_s, qint64(6 + value));
    const QSizeF size(100.0, 80.0 + value);
    return value == 1 ? SizedShapeGeometry{pathOf(3), size} : SizedShapeGeometry{star, size};
}

TextLayerState textOf(int value)
{
    TextRun run = defaultTextRun();
    run.underline = value == 1;
    return textStateFromPlainText(u"line\n"_s.repeated(value), run, value * 10.0);
}

/// Two layers of each kind, #1 to #6: images, shapes and texts.
struct Scene
{
    Scene()
    {
        const auto [geometry, size] = geometryOf(0);
        for (uint n = 1; n <= 2; ++n) {
            document.insertObject(std::make_unique<ImageLayer>(kPictures[0], QString(), testId(n)));
            document.setImageLayerRasterSelection(testId(n), pathOf(4));
            document.insertObject(
                std::make_unique<ShapeLayer>(geometry, size, Stroke(), Fill(), QString(), testId(n + 2)));
            document.insertObject(std::make_unique<TextLayer>(textOf(0).blocks, 0.0, QString(), testId(n + 4)));
        }
    }
    int push(QUndoCommand *command)
    {
        history.push(std::unique_ptr<QUndoCommand>(command));
        return history.count();
    }

    Document document;
    CommandHistory history{&document};
};

constexpr qint64 kFourNodes = 32 + 32 + 72 * 4, kThreeNodes = kFourNodes - 72, kStar = 5 * 2 + 128;

struct Edit
{
    template<typename Command, typename... Arguments>
    QUndoCommand *make(const Arguments &...arguments) const
    {
        return new Command(document, id, arguments...);
    }

    Document *document;
    QUuid id;
    int value;
    quint64 key;
    RasterImageSource source{kPictures[value]};
    ObjectTransform transform = transformOf(value);
    SizedShapeGeometry geometry = geometryOf(value);
    TextLayerState text = textOf(value);
};

const struct Case
{
    uint layer; // another layer of its kind is the next one
    int mergeId;
    const char *text;
    const char *signalled;
    qint64 cost; // beyond text and base, for value 1; -1 where it depends on how lists grow
    std::function<QUndoCommand *(const Edit &)> make;
} kCases[] = {
    {1, 13, "Paint Image", "imageLayerChanged #1, objectTransformChanged #1", 48 + 100,
     [](const Edit &e) {
         const auto policy = RasterSurfacePolicy(e.value != 0);
         return e.make<PaintImageLayerCommand>(e.source, e.transform, policy, QString(), e.key);
     }},
    {1, 8, "Resize Image", "imageLayerChanged #1, objectTransformChanged #1", 48 + 100,
     [](const Edit &e) { return e.make<ResizeImageLayerCommand>(e.source, e.transform, e.key); }},
    {1, 12, "Select", "imageLayerChanged #1", kFourNodes + kThreeNodes,
     [](const Edit &e) { return e.make<SelectCommand>(pathOf(4 - e.value), u"Select"_s, e.key); }},
    {1, -1, "Crop Image", "imageLayerChanged #1, objectTransformChanged #1, imageLayerChanged #1", 112 + kFourNodes,
     [](const Edit &e) { return e.make<CropImageLayerCommand>(QRectF(e.value ? 1 : 9, 0, 2, 2), 45.0); }}, // 0: beside
    {3, -1, "Convert Shape to Path", "shapeGeometryChanged #3", -1,
     [](const Edit &e) {
         if (e.value == 0)
             e.document->setShapeGeometry(e.id, pathOf(3)); // which cannot be converted
         return e.make<ConvertShapeToPathCommand>();
     }},
    {3, 4, "Bend", "shapeGeometryChanged #3", kStar + kThreeNodes,
     [](const Edit &e) { return e.make<SetShapeGeometryCommand>(e.geometry.geometry, u"Bend"_s, e.key); }},
    {3, 7, "Resize", "shapeGeometryChanged #3, objectTransformChanged #3", 0,
     [](const Edit &e) { return e.make<ResizeShapeLayerCommand>(e.geometry, e.transform, e.key, u"Resize"_s); }},
    {3, 5, "Fill", "shapeLayerChanged #3", 0,
     [](const Edit &e) { return e.make<SetShapeFillCommand>(QColor(e.value, 0, 0), u"Fill"_s, e.key); }},
    {3, 6, "Stroke", "shapeGeometryChanged #3, objectTransformChanged #3, shapeLayerChanged #3", 0,
     [](const Edit &e) {
         const Stroke stroke{Qt::black, e.value * 2.0};
         return e.make<SetShapeStrokeCommand>(stroke, e.geometry, e.transform, u"Stroke"_s, e.key);
     }},
    {5, 2, "Write", "textLayerChanged #5", memoryBytes(textOf(0)) + memoryBytes(textOf(1)),
     [](const Edit &e) { return e.make<SetTextLayerStateCommand>(e.text, u"Write"_s, e.key); }},
    {5, 3, "Resize Text", "textLayerChanged #5, objectTransformChanged #5", 0,
     [](const Edit &e) { return e.make<ResizeTextLayerCommand>(e.text, e.transform, e.key); }},
};

} // namespace

class TestLayerContentCommands : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandGoesForthAndBackUntilItsLayerIsReplaced()
    {
        for (const Case &row : kCases) {
            Scene scene;
            Document &document = scene.document;
            const QString start = describe(document);
            DocumentLog log(document);
            QUndoCommand *command = row.make({&document, testId(row.layer), 1, 7});
            QCOMPARE(describe(document), start);
            QCOMPARE(command->id(), row.mergeId);
            scene.push(command);
            QCOMPARE(log.take().join(u", "), QLatin1StringView(row.signalled));
            QCOMPARE(scene.history.undoText(), QLatin1StringView(row.text));
            if (row.cost >= 0)
                QCOMPARE(scene.history.memoryUsed() - 256 - 2 * scene.history.undoText().size(), row.cost);
            const QString end = describe(document);
            scene.history.undo();
            QCOMPARE(describe(document), start);
            QCOMPARE(log.take().join(u", "), QLatin1StringView(row.signalled));
            scene.history.redo();
            QCOMPARE(describe(document), end);

            document.takeObject(testId(row.layer));
            if (row.layer == 1)
                document.insertObject(std::make_unique<TextLayer>(textOf(1).blocks, 0.0, QString(), testId(1)));
            else
                document.insertObject(std::make_unique<ImageLayer>(kPictures[0], QString(), testId(row.layer)));
            const QString replaced = describe(document);
            scene.history.undo();
            QCOMPARE(scene.history.count(), 0);
            QCOMPARE(describe(document), replaced);
        }
    }

    void gesturesMergeByKeyObjectAndClass()
    {
        for (const Case &row : kCases) {
            Scene scene;
            Document *document = &scene.document;
            const std::unique_ptr<QUndoCommand> first(row.make({document, testId(row.layer), 1, 7}));
            for (const Case &other : kCases) {
                const std::unique_ptr<QUndoCommand> second(other.make({document, testId(row.layer), 2, 7}));
                QCOMPARE(first->mergeWith(second.get()), &other == &row && row.mergeId > 0);
            }
            if (row.mergeId < 0)
                continue;
            const QString start = describe(*document);
            const std::tuple<int, quint64, uint, int> edits[] = {
                {1, 7, 0, 1}, {0, 7, 0, 0}, {1, 7, 0, 1}, {2, 7, 0, 1},
                {1, 8, 0, 2}, {2, 8, 1, 3}, {0, 0, 0, 4}, {1, 0, 0, 5}, // outside a gesture nothing merges
            };
            for (const auto &[value, key, next, count] : edits) {
                QCOMPARE(scene.push(row.make({document, testId(row.layer + next), value, key})), count);
                const QString state = describe(*document);
                scene.history.undo();
                scene.history.redo();
                QCOMPARE(describe(*document), state);
            }
            while (scene.history.canUndo())
                scene.history.undo();
            QCOMPARE(describe(*document), start);
        }
    }

    void whatChangesNothingOrHasNoLayerIsObsolete()
    {
        for (const Case &row : kCases) {
            const uint otherKind = row.layer == 5 ? 1 : row.layer + 2;
            for (const auto &[layer, value] : {std::pair(row.layer, 0), {99u, 1}, {otherKind, 1}}) {
                Scene scene;
                const std::unique_ptr<QUndoCommand> command(row.make({&scene.document, testId(layer), value, 7}));
                const QString start = describe(scene.document);
                QVERIFY2(command->isObsolete(), row.text);
                command->redo(); // as a child of a composite it runs all the same
                command->undo();
                QCOMPARE(describe(scene.document), start);
            }
        }
        Scene scene;
        Document *d = &scene.document;
        d->setImageLayerRasterSelection(testId(2), std::nullopt);
        d->setShapeGeometry(testId(4), GeneratorGeometry{u"no such shape"_s, {}});
        EditablePath outside = pathOf(4);
        outside.contours.append(EditablePathContour());
        outside.fillRule = Qt::WindingFill;
        outside.contours[0].nodes[0].anchor = {-5.0, -qInf()};
        TextLayerState split = textOf(0);
        split.textWidth = -3.0;
        split.blocks[0].runs.append(defaultTextRun());
        const RasterImageSource otherFormat{kPictures[0].convertToFormat(QImage::Format_RGBA64)};
        const SvgImageSource hugeSvg{"<svg/>", {1e9, 1e9}};
        const Stroke noWidth{Qt::black, qQNaN()};
        using Paint = PaintImageLayerCommand;
        const std::pair<const char *, QUndoCommand *> cases[] = {
            {"another format", new ResizeImageLayerCommand(d, testId(1), otherFormat, {})},
            {"no pixels", new Paint(d, testId(1), RasterImageSource{}, transformOf(1), {}, {})},
            {"beyond any raster", new Paint(d, testId(1), hugeSvg, transformOf(1), {}, {})},
            {"clamped to the same selection", new SelectCommand(d, testId(1), outside, {})},
            {"selection without nodes", new SelectCommand(d, testId(2), EditablePath{{{}, {}}, {}}, {})},
            {"unknown generator", new ConvertShapeToPathCommand(d, testId(4))},
            {"no width", new SetShapeStrokeCommand(d, testId(3), noWidth, geometryOf(0), {}, {})},
            {"text that normalises to the same", new SetTextLayerStateCommand(d, testId(5), split, {})},
            {"whole picture without a selection", new CropImageLayerCommand(d, testId(2), {-1, -1, 9, 9}, 0)},
        };
        for (const auto &[name, made] : cases)
            QVERIFY2(std::unique_ptr<QUndoCommand>(made)->isObsolete(), name);
        for (const int nodes : {2048, 2049}) { // larger selections are not compared
            d->setImageLayerRasterSelection(testId(2), pathOf(nodes));
            QCOMPARE(SelectCommand(d, testId(2), pathOf(nodes), {}).isObsolete(), nodes == 2048);
        }
    }

    void strokeThatComesBackTakesTheBoxAndPlaceBack()
    {
        Scene scene;
        const QString start = describe(scene.document);
        for (const double width : {1.0, 0.0})
            scene.push(new SetShapeStrokeCommand(&scene.document, testId(3), {Qt::black, width}, geometryOf(1),
                                                 transformOf(2), {}, 7));
        QCOMPARE(scene.history.count(), 0);
        QCOMPARE(describe(scene.document), start);
    }

    void resizeKeepsThePolicyOfTheDay()
    {
        Scene scene;
        const ImageLayer *layer = scene.document.imageLayer(testId(1));
        scene.push(new ResizeImageLayerCommand(&scene.document, testId(1), RasterImageSource{kPictures[1]}, {}));
        scene.document.setImageLayerSource(testId(1), layer->source(), {}, RasterSurfacePolicy::Expanding);
        scene.history.undo();
        QCOMPARE(layer->rasterImage(), kPictures[0]);
        QCOMPARE(layer->rasterSurfacePolicy(), RasterSurfacePolicy::Expanding);
    }

    void cropsAreRoundedAndThoseThatLeaveNothingRefused()
    {
        const double inf = qInf(), nan = qQNaN();
        const std::pair<QRectF, double> cases[] = {
            {{100, 0, 10, 10}, 0},       {{-20, -20, 20.5, 50}, 0}, {{5, 5, 40, 0.9}, 0},   {{nan, 0, 10, 10}, 0},
            {{-inf, -inf, inf, inf}, 0}, {{0, 0, 10, 10}, nan},     {{0, 0, 10, 10}, -inf}, {{}, 0},
        };
        for (const auto &[rectangle, rotation] : cases)
            QVERIFY(!imageCrop({100, 100}, rectangle, rotation));
        QVERIFY(!imageCrop({20'000, 20'000}, {0, 0, 20'000, 20'000}, 0));
        QCOMPARE(imageCrop({100, 100}, {30, 40, -20.5, -1.49}, 0)->size, QSize(21, 1));
        QCOMPARE(imageCrop({100, 100}, {-1e300, -1e300, 2e300, 2e300}, 1e9)->size, QSize(100, 100));
    }

    void cropStaysInItsPlace()
    {
        ObjectTransform skewed;
        skewed.setPosition({-37.5, 12.25});
        skewed.setScale({-1.7, 0.4});
        skewed.setShear({25, -40});
        skewed.setAnchor({0.1, 0.8});
        skewed.setRotation(200);
        const std::tuple<QRectF, double, QSize> crops[] = {
            {{10.5, 10.5, 20.2, 20.2}, 0, {20, 20}},
            {{0, 0, 20, 20}, 0, {20, 20}}, // no pixel moves in the picture, but the anchor does
            {{10, 20, 30, 40}, 30, {30, 40}},
            {{90, -5, 50, 7.5}, -200, {10, 3}},
            {{70, 60, -40, -1.5}, 90, {40, 2}}, // a half rounds away from zero
        };
        for (const auto &[rectangle, rotation, size] : crops) {
            Document document;
            document.insertObject(std::make_unique<ImageLayer>(gradientPicture(100, 100), QString(), testId(1)));
            document.setObjectTransform(testId(1), skewed);
            CropImageLayerCommand(&document, testId(1), rectangle, rotation).redo();
            const ImageLayer *layer = document.imageLayer(testId(1));
            QCOMPARE(layer->pixelSize(), size);
            QCOMPARE(layer->transform().anchor(), skewed.anchor());
            const QRectF box({}, size);
            const QRectF cut = rectangle.normalized() & QRectF(0, 0, 100, 100);
            QTransform turn = QTransform::fromTranslate(cut.center().x(), cut.center().y());
            turn.rotate(rotation).translate(-cut.center().x(), -cut.center().y());
            const QPolygonF before = (turn * skewed.matrix({0, 0, 100, 100})).map(QPolygonF(cut));
            const QPolygonF after = layer->transform().matrix(box).map(QPolygonF(box));
            for (int corner = 0; corner < 4; ++corner)
                QVERIFY(QLineF(before[corner], after[corner]).length() < 1e-9);
        }
    }

    void cropOfAnSvgGoesForthAndBack()
    {
        const QByteArray svg = "<svg width='10' height='8'><rect x='4' width='6' height='8' fill='red'/></svg>";
        Scene scene;
        scene.document.setImageLayerSource(testId(1), *svgSourceFromData(svg), {}, {});
        const QString start = describe(scene.document);
        auto *crop = new CropImageLayerCommand(&scene.document, testId(1), {4, 0, 6, 5}, 0.0);
        QCOMPARE(crop->undoMemoryBytes(), svg.size() + 10 * 8 * 4 + 6 * 5 * 4 + kFourNodes);
        scene.push(crop);
        QCOMPARE(scene.document.imageLayer(testId(1))->rasterImage(), plainPicture(6, 5, Qt::red));
        QVERIFY(scene.document.imageLayer(testId(1))->isRaster());
        scene.history.undo();
        QCOMPARE(describe(scene.document), start);
    }

    void cropTakesThePixelsUnderIt()
    {
        const QImage picture = gradientPicture(40, 30);
        QCOMPARE(croppedImage(picture, *imageCrop(picture.size(), {5, 6, 20, 10}, 0)), picture.copy(5, 6, 20, 10));
        const QImage turned = croppedImage(picture, *imageCrop(picture.size(), {10, 5, 20, 20}, 90));
        QImage expected = picture.copy(10, 5, 20, 20).transformed(QTransform().rotate(-90));
        QVERIFY(maximumDifference(turned, expected) <= 1); // one rounding
        const QImage corner = croppedImage(picture, *imageCrop(picture.size(), {0, 0, 40, 30}, 45)).copy(0, 0, 1, 1);
        QCOMPARE(corner.pixelColor(0, 0).alpha(), 0); // outside the picture
    }
};

QTEST_MAIN(TestLayerContentCommands)
#include "tst_layer_content_commands.moc"
