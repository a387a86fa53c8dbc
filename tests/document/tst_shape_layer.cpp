#include "generators/shape_generator_registry.h"
#include "scene/scene_renderer.h"
#include "scene/scene_snapshot.h"
#include "support/document_log.h"
#include "support/pictures.h"
#include "values/editable_path_builder.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

GeneratorGeometry generated(const QString &id)
{
    return {id, {}};
}

EditablePath rectanglePath(const QRectF &rect)
{
    QPainterPath outline;
    outline.addRect(rect);
    return editablePath(outline);
}

std::unique_ptr<ShapeLayer> layer(uint n, const ShapeGeometry &geometry = generated(u"rounded-rect"_s),
                                  const QSizeF &size = {100, 100}, const Stroke &stroke = {},
                                  const Fill &fill = QColor(Qt::red))
{
    return std::make_unique<ShapeLayer>(geometry, size, stroke, fill, u"Shape"_s, testId(n));
}

QList<QUuid> nodeIds(const ShapeLayer &shape)
{
    QList<QUuid> ids;
    for (const EditablePathContour &contour : shape.generatedPath().contours) {
        for (const EditablePathNode &node : contour.nodes)
            ids.append(node.id);
    }
    return ids;
}

} // namespace

class TestShapeLayer : public QObject
{
    Q_OBJECT

private slots:
    void strokesMakeRoomInTheBox_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<double>("width");
        QTest::addColumn<QRectF>("outline");
        QTest::newRow("no stroke") << QSizeF(100, 60) << 0.0 << QRectF(0, 0, 100, 60);
        QTest::newRow("stroke of 8") << QSizeF(100, 100) << 8.0 << QRectF(10, 10, 80, 80);
        QTest::newRow("stroke as wide as the box") << QSizeF(100, 100) << 100.0 << QRectF(125, 125, 1, 1);
        QTest::newRow("negative stroke") << QSizeF(100, 100) << -8.0 << QRectF(0, 0, 100, 100);
        QTest::newRow("stroke that is no number") << QSizeF(100, 100) << kNaN << QRectF(0, 0, 100, 100);
        QTest::newRow("thin box") << QSizeF(0.2, 500) << 0.0 << QRectF(0, 0, 1, 500);
        QTest::newRow("box of no numbers") << QSizeF(kNaN, kInfinity) << 0.0 << QRectF(0, 0, 1, 1);
    }
    void strokesMakeRoomInTheBox()
    {
        QFETCH(QSizeF, size);
        QFETCH(double, width);
        const auto shape = layer(1, generated(u"rounded-rect"_s), size, {Qt::black, width});
        QTEST(shape->painterPath().boundingRect(), "outline");
        QCOMPARE(painterPath(shape->generatedPath()), shape->painterPath());
    }

    void pathsStayWhereTheyAre()
    {
        const auto shape = layer(1, rectanglePath({10, 10, 50, 50}), {100, 100}, {Qt::black, 8.0});
        const QList<QUuid> ids = nodeIds(*shape);
        QVERIFY(shape->setStroke({Qt::black, 20.0}));
        QCOMPARE(nodeIds(*shape), ids);
        QCOMPARE(shape->painterPath().boundingRect(), QRectF(10, 10, 50, 50));
    }

    void outlinesAreDerivedOnlyWhenTheyChange()
    {
        const auto shape = layer(1, generated(u"star5"_s), {100, 100}, {Qt::black, 4.0});
        QList<QUuid> ids = nodeIds(*shape);
        const auto wasDerived = [&] { return std::exchange(ids, nodeIds(*shape)) != ids; };
        QVERIFY(shape->setFill(QColor(Qt::blue)) && !wasDerived());
        QVERIFY(shape->setStroke({Qt::red, 4.0}) && !wasDerived());
        QVERIFY(shape->setStroke({Qt::red, 5.0}) && wasDerived());
        QVERIFY(shape->setSizedGeometry({shape->geometry(), {120, 100}}) && wasDerived());
        const quint64 revision = shape->contentRevision();
        QVERIFY(!shape->setGeometry(generated(u"star5"_s)));
        QVERIFY(!shape->setSizedGeometry({shape->geometry(), {120, 100}}));
        QVERIFY(!shape->setStroke({Qt::red, 5.0}));
        QVERIFY(!shape->setFill(QColor(Qt::blue)));
        QCOMPARE(shape->contentRevision(), revision);
        QVERIFY(shape->setGeometry(generated(u"burst"_s)));
        QVERIFY(shape->contentRevision() > revision);
    }

    void strokesAreCleaned()
    {
        const auto shape = layer(1);
        QVERIFY(shape->setStroke({QColor(), 2.0}));
        QCOMPARE(shape->stroke(), (Stroke{Qt::black, 2.0}));
        QVERIFY(shape->setStroke({QColor(), kNaN}));
        QCOMPARE(shape->stroke(), (Stroke{QColor(), 0.0}));
    }

    void pathsAreCleaned()
    {
        const EditablePath sound = rectanglePath({0, 0, 10, 10});
        const auto shared = layer(1, sound);
        QVERIFY(std::get<EditablePath>(shared->geometry()).contours[0].nodes.isSharedWith(sound.contours[0].nodes));
        EditablePath path = rectanglePath({0, 0, 10, 10});
        path.contours[0].nodes[1].id = path.contours[0].nodes[0].id;
        path.contours[0].nodes[2].id = {};
        path.contours[0].nodes[3].inControl = {kInfinity, 0.0};
        const auto shape = layer(1, path);
        const QList<QUuid> ids = nodeIds(*shape);
        QCOMPARE(ids.size(), 3);
        QCOMPARE(QSet<QUuid>(ids.begin(), ids.end()).size(), 3);
        QCOMPARE(ids[0], path.contours[0].nodes[0].id);
        QVERIFY(!ids.contains(QUuid()));
    }

    void aBoxHasNoMorePixelsThanARaster()
    {
        QCOMPARE(layer(1, generated(u"rounded-rect"_s), {1e7, 1e6})->layerSize(), QSizeF(10'000, 10'000));
        QCOMPARE(layer(1, generated(u"rounded-rect"_s), {1e6, 100})->layerSize(), QSizeF(1e6, 100));
        const QSizeF narrow = layer(1, generated(u"rounded-rect"_s), {1e6, 123.4})->layerSize();
        QVERIFY(narrow.width() * narrow.height() <= 1e8);
        QVERIFY(std::abs(narrow.width() / narrow.height() - 1e6 / 123.4) < 100.0);
    }

    void drawsFillAndStroke()
    {
        const RenderedContent plain =
            layer(1, generated(u"rounded-rect"_s), {20.5, 10}, {Qt::blue, 2.0}, QColor(0, 255, 0, 128))
                ->renderedContent(nullptr);
        QCOMPARE(plain.size, QSizeF(20.5, 10));
        QCOMPARE(plain.image.size(), QSize(21, 10));
        QCOMPARE(plain.image.format(), QImage::Format_RGBA8888);
        // The outline keeps 2.5 from the box; half the stroke lies to either side of it.
        QCOMPARE(plain.image.pixelColor(10, 5), QColor(0, 255, 0, 128));
        QCOMPARE(plain.image.pixelColor(10, 0).alpha(), 0);
        QCOMPARE(plain.image.pixelColor(10, 2), QColor(Qt::blue));

        const RenderedContent unknown = layer(1, generated(u"no-such-shape"_s), {8, 8})->renderedContent(nullptr);
        QCOMPARE(maximumDifference(unknown.image, plainPicture(8, 8, Qt::transparent)), 0);
        const EditablePath odd = rectanglePath({0, 0, 1e300, -1e300});
        QVERIFY(!layer(1, odd, {8, 8}, {Qt::black, 1e300})->renderedContent(nullptr).image.isNull());
    }

    void texturesStandInLogicalUnits()
    {
        QImage texture(2, 1, QImage::Format_RGBA8888);
        texture.setPixelColor(0, 0, Qt::red);
        texture.setPixelColor(1, 0, Qt::blue);
        const TextureFill fill{u"dots"_s, {}, texture, {}, 0};
        const QImage drawn = layer(1, generated(u"rounded-rect"_s), {8, 2}, {}, fill)->renderedContent(nullptr).image;
        for (int x = 0; x < 8; ++x)
            QCOMPARE(drawn.pixelColor(x, 1), QColor(x % 2 == 0 ? Qt::red : Qt::blue));
        const TextureFill unmade{u"dots"_s, {}, {}, {}, 0};
        const auto shape = layer(1, generated(u"rounded-rect"_s), {8, 2}, {}, unmade);
        QCOMPARE(maximumDifference(shape->renderedContent(nullptr).image, plainPicture(8, 2, Qt::transparent)), 0);
        QVERIFY(shape->setFill(fill));
        QCOMPARE(maximumDifference(shape->renderedContent(nullptr).image, drawn), 0);
    }

    void documentSignalsWhatChanged()
    {
        Document document;
        document.insertObject(layer(1));
        document.insertObject(std::make_unique<TextLayer>(QList<TextParagraph>(), 0.0, u"Text"_s, testId(2)));
        DocumentLog log(document);
        ObjectTransform moved;
        moved.setPosition({5, 6});
        const SizedShapeGeometry wide{generated(u"star5"_s), {300, 100}};

        QVERIFY(document.setShapeFill(testId(1), QColor(Qt::green)));
        QVERIFY(document.setShapeStroke(testId(1), Qt::blue, 3.0));
        QVERIFY(document.setShapeGeometry(testId(1), generated(u"burst"_s)));
        QVERIFY(document.setShapeGeometryAndTransform(testId(1), wide, moved));
        QVERIFY(document.setTextLayerState(testId(2), textStateFromPlainText(u"new"_s, defaultTextRun())));
        QCOMPARE(log.take(),
                 (QStringList{u"shapeLayerChanged #1"_s, u"shapeLayerChanged #1"_s, u"shapeGeometryChanged #1"_s,
                              u"shapeGeometryChanged #1"_s, u"objectTransformChanged #1"_s, u"textLayerChanged #2"_s}));

        QVERIFY(!document.setShapeFill(testId(1), QColor(Qt::green)));
        QVERIFY(!document.setShapeStroke(testId(1), Qt::blue, 3.0));
        QVERIFY(!document.setShapeGeometryAndTransform(testId(1), wide, moved));
        QVERIFY(!document.setShapeFill(testId(2), QColor(Qt::green)));
        QVERIFY(!document.setShapeGeometry(testId(2), wide.geometry));
        QVERIFY(!document.setShapeGeometryAndTransform(testId(2), wide, {}));
        QVERIFY(!document.setTextLayerState(testId(1), {}));
        QVERIFY(!document.setTextLayerState(testId(2), textStateFromPlainText(u"new"_s, defaultTextRun())));
        QCOMPARE(log.take(), QStringList());
    }

    void vectorLayersAreComposedLikeTheirPixels()
    {
        Document vectors;
        Document pixels;
        const auto add = [&](std::unique_ptr<Layer> vector, const QString &mode, double rotation) {
            ObjectTransform transform;
            transform.setPosition({-20, -15});
            transform.setRotation(rotation);
            vector->setTransform(transform);
            vector->setBlendMode(mode);
            vector->setOpacity(0.8);
            auto raster = std::make_unique<ImageLayer>(vector->renderedContent(nullptr).image, u"pixels"_s);
            raster->setTransform(transform);
            raster->setBlendMode(mode);
            raster->setOpacity(0.8);
            pixels.insertObject(std::move(raster));
            vectors.insertObject(std::move(vector));
        };
        vectors.setSize({60, 40});
        pixels.setSize({60, 40});
        TextRun run = defaultTextRun();
        run.font.setPixelSize(20);
        add(std::make_unique<ImageLayer>(gradientPicture(60, 40), u"picture"_s), u"source-over"_s, 0.0);
        add(layer(1, generated(u"star5"_s), {40, 30}, {Qt::yellow, 3.0}), u"multiply"_s, 20.0);
        add(std::make_unique<TextLayer>(textStateFromPlainText(u"Aé"_s, run).blocks, 0.0, u"text"_s), u"difference"_s,
            -10.0);
        add(layer(2, generated(u"rounded-rect"_s), {10, 10}), u"screen"_s, 0.0);
        const auto flattened = [](const Document &document) {
            return renderSceneTile(buildSceneSnapshot(document, {}, nullptr), document.documentRect(), true, 1.0, true,
                                   false);
        };
        const QImage picture = flattened(vectors);
        QCOMPARE(maximumDifference(picture, flattened(pixels)), 0);
        // Screen of red at 0.8 over whatever lies below: at least 204 of red.
        QVERIFY(picture.pixelColor(12, 7).red() >= 203);
    }

    void memoryIsCounted()
    {
        EditablePath path = rectanglePath({0, 0, 10, 10});
        path.contours[0].nodes.reserve(64);
        const qint64 capacity = path.contours[0].nodes.capacity();
        QCOMPARE(memoryBytes(ShapeGeometry(path)), 32 + 32 + 72 * capacity);
        GeneratorGeometry star = generated(u"star5"_s);
        QCOMPARE(memoryBytes(ShapeGeometry(star)), 10 + 32);
        star.parameters.set(u"spikes"_s, qint64(7));
        QCOMPARE(memoryBytes(ShapeGeometry(star)), 10 + 128);
        QCOMPARE(layer(1, star)->memoryBytes(), 10 + 512 + 10 + 128);
    }
};

QTEST_MAIN(TestShapeLayer)
#include "tst_shape_layer.moc"
