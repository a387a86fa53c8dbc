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

enum Kind { Paint, SizeImage, Select, Crop, Convert, Bend, SizeShape, Paste, Outline, Write, SizeText };

QUndoCommand *make(Kind kind, Document *d, const QUuid &id, int value, quint64 key)
{
    const RasterImageSource source{kPictures[value]};
    const ObjectTransform transform = transformOf(value);
    const SizedShapeGeometry geometry = geometryOf(value);
    const Stroke stroke{Qt::black, value * 2.0};
    switch (kind) {
    case Paint:
        return new PaintImageLayerCommand(d, id, source, transform, RasterSurfacePolicy(value != 0), {}, key);
    case SizeImage:
        return new ResizeImageLayerCommand(d, id, source, transform, key);
    case Select:
        return new SetImageLayerRasterSelectionCommand(d, id, pathOf(4 - value), u"Select"_s, key);
    case Crop: // 0: beside the picture
        return new CropImageLayerCommand(d, id, QRectF(value ? 1 : 9, 0, 2, 2), 45.0);
    case Convert:
        if (value == 0)
            d->setShapeGeometry(id, pathOf(3)); // which cannot be converted
        return new ConvertShapeToPathCommand(d, id);
    case Bend:
        return new SetShapeGeometryCommand(d, id, geometry.geometry, u"Bend"_s, key);
    case SizeShape:
        return new ResizeShapeLayerCommand(d, id, geometry, transform, key, u"Resize Shape"_s);
    case Paste:
        return new SetShapeFillCommand(d, id, QColor(value, 0, 0), u"Fill"_s, key);
    case Outline:
        return new SetShapeStrokeCommand(d, id, stroke, geometry, transform, u"Stroke"_s, key);
    case Write:
        return new SetTextLayerStateCommand(d, id, textOf(value), u"Write"_s, key);
    case SizeText:
        return new ResizeTextLayerCommand(d, id, textOf(value), transform, key);
    }
    return nullptr;
}

struct Case
{
    Kind kind;
    uint layer; // another layer of its kind is the next one
    int mergeId;
    const char *text;
    const char *signalNames;
    qint64 cost; // beyond text and base, for value 1; -1 where it depends on how lists grow
};

constexpr qint64 kFourNodes = 32 + 32 + 72 * 4;
constexpr qint64 kThreeNodes = 32 + 32 + 72 * 3;
constexpr qint64 kStar = 5 * 2 + 128;

const Case kCases[] = {
    {Paint, 1, 13, "Paint Image", "imageLayerChanged objectTransformChanged", 48 + 100},
    {SizeImage, 1, 8, "Resize Image", "imageLayerChanged objectTransformChanged", 48 + 100},
    {Select, 1, 12, "Select", "imageLayerChanged", kFourNodes + kThreeNodes},
    {Crop, 1, -1, "Crop Image", "imageLayerChanged objectTransformChanged imageLayerChanged",
     48 + 48 + 16 + kFourNodes},
    {Convert, 3, -1, "Convert Shape to Path", "shapeGeometryChanged", -1},
    {Bend, 3, 4, "Bend", "shapeGeometryChanged", kStar + kThreeNodes},
    {SizeShape, 3, 7, "Resize Shape", "shapeGeometryChanged objectTransformChanged", 0},
    {Paste, 3, 5, "Fill", "shapeLayerChanged", 0},
    {Outline, 3, 6, "Stroke", "shapeGeometryChanged objectTransformChanged shapeLayerChanged", 0},
    {Write, 5, 2, "Write", "textLayerChanged", -1},
    {SizeText, 5, 3, "Resize Text", "textLayerChanged objectTransformChanged", 0},
};

} // namespace

class TestLayerContentCommands : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandGoesForthAndBack()
    {
        for (const Case &row : kCases) {
            Scene scene;
            QStringList signalled;
            for (const QString &name : QString::fromLatin1(row.signalNames).split(u' '))
                signalled.append(u"%1 #%2"_s.arg(name).arg(row.layer));
            const QString start = describe(scene.document);
            DocumentLog log(scene.document);
            QUndoCommand *command = make(row.kind, &scene.document, testId(row.layer), 1, 7);
            QCOMPARE(describe(scene.document), start);
            QCOMPARE(command->id(), row.mergeId);
            scene.push(command);
            QCOMPARE(log.take(), signalled);
            QCOMPARE(scene.history.undoText(), QString::fromLatin1(row.text));
            if (row.cost >= 0)
                QCOMPARE(scene.history.memoryUsed() - 256 - 2 * scene.history.undoText().size(), row.cost);
            const QString end = describe(scene.document);
            scene.history.undo();
            QCOMPARE(describe(scene.document), start);
            QCOMPARE(log.take(), signalled);
            scene.history.redo();
            QCOMPARE(describe(scene.document), end);
            QCOMPARE(scene.history.count(), 1);
        }
    }

    void gesturesMergeByKeyObjectAndClass()
    {
        for (const Case &row : kCases) {
            Scene scene;
            Document *document = &scene.document;
            const QUuid id = testId(row.layer);
            const std::unique_ptr<QUndoCommand> first(make(row.kind, document, id, 1, 7));
            for (const Case &other : kCases) {
                const std::unique_ptr<QUndoCommand> second(make(other.kind, document, id, 2, 7));
                QCOMPARE(first->mergeWith(second.get()), other.kind == row.kind && row.mergeId > 0);
            }
            if (row.mergeId < 0)
                continue;
            const QString start = describe(*document);
            QCOMPARE(scene.push(make(row.kind, document, id, 1, 7)), 1);
            QCOMPARE(scene.push(make(row.kind, document, id, 2, 7)), 1);
            scene.history.undo();
            QCOMPARE(describe(*document), start);
            scene.history.redo();
            QCOMPARE(scene.push(make(row.kind, document, id, 0, 7)), 0);
            QCOMPARE(describe(*document), start);
            QVERIFY(scene.history.isClean());

            QCOMPARE(scene.push(make(row.kind, document, id, 1, 7)), 1);
            QCOMPARE(scene.push(make(row.kind, document, id, 2, 8)), 2);
            QCOMPARE(scene.push(make(row.kind, document, testId(row.layer + 1), 2, 8)), 3);
            QCOMPARE(scene.push(make(row.kind, document, id, 0, 0)), 4);
            QCOMPARE(scene.push(make(row.kind, document, id, 1, 0)), 5); // outside a gesture nothing merges
        }
    }

    void whatChangesNothingOrHasNoLayerIsObsolete()
    {
        for (const Case &row : kCases) {
            const uint otherKind = row.layer == 5 ? 1 : row.layer + 2;
            for (const auto &[layer, value] : {std::pair(row.layer, 0), {99u, 1}, {otherKind, 1}, {otherKind, 2}}) {
                Scene scene;
                std::unique_ptr<QUndoCommand> command(make(row.kind, &scene.document, testId(layer), value, 7));
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
        const ObjectTransform still;
        EditablePath outside = pathOf(4);
        outside.contours.append(EditablePathContour());
        outside.fillRule = Qt::WindingFill;
        outside.contours[0].nodes[0].anchor = {-5.0, -qInf()};
        TextLayerState split = textOf(0);
        split.textWidth = -3.0;
        split.blocks[0].runs.append(defaultTextRun());
        const QImage otherFormat = kPictures[0].convertToFormat(QImage::Format_RGBA64);
        const SvgImageSource hugeSvg{"<svg/>", {1e9, 1e9}};
        const Stroke noWidth{Qt::black, qQNaN()};
        const auto fixed = RasterSurfacePolicy::Fixed;
        using SetSelection = SetImageLayerRasterSelectionCommand;
        const std::pair<const char *, QUndoCommand *> cases[] = {
            {"another format", new ResizeImageLayerCommand(d, testId(1), RasterImageSource{otherFormat}, still)},
            {"no pixels", new PaintImageLayerCommand(d, testId(1), RasterImageSource{}, transformOf(1), fixed, {})},
            {"beyond any raster", new PaintImageLayerCommand(d, testId(1), hugeSvg, transformOf(1), fixed, {})},
            {"clamped to the same selection", new SetSelection(d, testId(1), outside, {})},
            {"selection without nodes", new SetSelection(d, testId(2), EditablePath{{{}, {}}, {}}, {})},
            {"unknown generator", new ConvertShapeToPathCommand(d, testId(4))},
            {"no width", new SetShapeStrokeCommand(d, testId(3), noWidth, geometryOf(0), still, {})},
            {"text that normalises to the same", new SetTextLayerStateCommand(d, testId(5), split, {})},
            {"whole picture without a selection", new CropImageLayerCommand(d, testId(2), {-1, -1, 9, 9}, 0)},
        };
        for (const auto &[name, made] : cases) {
            const std::unique_ptr<QUndoCommand> command(made);
            QVERIFY2(command->isObsolete(), name);
        }
    }

    void stepWhoseLayerIsGoneOrOfAnotherKindIsDropped()
    {
        for (const Case &row : kCases) {
            for (const bool replaced : {false, true}) {
                Scene scene;
                scene.push(make(row.kind, &scene.document, testId(row.layer), 1, 7));
                scene.document.takeObject(testId(row.layer));
                if (replaced && row.layer == 1)
                    scene.document.insertObject(
                        std::make_unique<TextLayer>(textOf(1).blocks, 0.0, QString(), testId(1)));
                else if (replaced)
                    scene.document.insertObject(
                        std::make_unique<ImageLayer>(kPictures[0], QString(), testId(row.layer)));
                const QString state = describe(scene.document);
                scene.history.undo();
                QCOMPARE(scene.history.count(), 0);
                QCOMPARE(describe(scene.document), state);
            }
        }
    }

    void largeSelectionsAreNotCompared()
    {
        for (const auto &[nodes, differs] : {std::pair(2048, false), {2049, true}, {3000, true}}) {
            Scene scene;
            scene.document.setImageLayerRasterSelection(testId(1), pathOf(nodes));
            const auto select = [&](const std::optional<EditablePath> &path) {
                return scene.push(new SetImageLayerRasterSelectionCommand(&scene.document, testId(1), path, {}, 7));
            };
            QCOMPARE(select(pathOf(nodes)), int(differs));
            select(std::nullopt);
            QCOMPARE(select(pathOf(nodes)), int(differs));
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

    void costsFollowCapacities()
    {
        Scene scene;
        EditablePath cut = pathOf(3);
        cut.contours[0].nodes.reserve(50);
        const SetShapeGeometryCommand bend(&scene.document, testId(3), cut, {});
        QCOMPARE(bend.undoMemoryBytes(), kStar + kThreeNodes + 47 * 72);
        const SetTextLayerStateCommand edit(&scene.document, testId(5), textOf(2), {});
        QCOMPARE(edit.undoMemoryBytes(),
                 memoryBytes(normalizedTextState(textOf(0))) + memoryBytes(normalizedTextState(textOf(2))));
    }

    void cropsThatLeaveNothingAreRefused()
    {
        const double inf = qInf(), nan = qQNaN();
        const std::pair<QRectF, double> cases[] = {
            {{100, 0, 10, 10}, 0},       {{-20, -20, 20.5, 50}, 0}, {{5, 5, 0.9, 40}, 0},   {{nan, 0, 10, 10}, 0},
            {{-inf, -inf, inf, inf}, 0}, {{0, 0, 10, 10}, nan},     {{0, 0, 10, 10}, -inf}, {{}, 0},
        };
        for (const auto &[rectangle, rotation] : cases)
            QVERIFY(!imageCrop({100, 100}, rectangle, rotation));
        QVERIFY(!imageCrop({}, {0, 0, 10, 10}, 0));
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
            {{10, 20, 30, 40}, 30, {30, 40}},
            {{90, -5, 50, 7.5}, -200, {10, 3}},
            {{70, 60, -40, -1.5}, 90, {40, 2}}, // a half rounds away from zero
        };
        for (const auto &[rectangle, rotation, size] : crops) {
            for (const ObjectTransform &transform : {ObjectTransform(), transformOf(2), skewed}) {
                Document document;
                document.insertObject(std::make_unique<ImageLayer>(gradientPicture(100, 100), QString(), testId(1)));
                document.setObjectTransform(testId(1), transform);
                CropImageLayerCommand(&document, testId(1), rectangle, rotation).redo();
                const ImageLayer *layer = document.imageLayer(testId(1));
                QCOMPARE(layer->pixelSize(), size);
                QCOMPARE(layer->transform().anchor(), transform.anchor());
                const QRectF cut = rectangle.normalized() & QRectF(0, 0, 100, 100);
                QTransform turn;
                turn.translate(cut.center().x(), cut.center().y());
                turn.rotate(rotation);
                turn.translate(-cut.center().x(), -cut.center().y());
                for (const QPointF &part : {QPointF(0, 0), {1, 0}, {1, 1}, {0.25, 0.5}}) {
                    const auto inBox = [&](const QSizeF &box) {
                        return QPointF(part.x() * box.width(), part.y() * box.height());
                    };
                    const QPointF before =
                        transform.matrix({0, 0, 100, 100}).map(turn.map(cut.topLeft() + inBox(cut.size())));
                    const QPointF after = layer->transform().matrix(QRectF(QPointF(), size)).map(inBox(size));
                    QVERIFY(std::hypot(after.x() - before.x(), after.y() - before.y()) < 1e-9);
                }
            }
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
        const QImage corners = croppedImage(picture, *imageCrop(picture.size(), {0, 0, 40, 30}, 45));
        QCOMPARE(corners.pixelColor(0, 0).alpha(), 0); // outside the picture
        QVERIFY(maximumDifference(corners.copy(20, 15, 1, 1), picture.copy(20, 15, 1, 1)) <= 8);
    }
};

QTEST_MAIN(TestLayerContentCommands)
#include "tst_layer_content_commands.moc"
