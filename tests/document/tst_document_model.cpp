#include "document/paint_layer.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

const QByteArray kSvg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="51" height="35">)"
                        R"(<rect width="51" height="35" fill="#ff0000"/></svg>)";

std::unique_ptr<ImageLayer> makeLayer(uint n)
{
    return std::make_unique<ImageLayer>(plainPicture(2, 2, Qt::red), u"Layer %1"_s.arg(n), testId(n));
}

/// Ids #1, #2, ... from the bottom to the top.
void fill(Document &document, uint count)
{
    for (uint n = 1; n <= count; ++n)
        document.insertObject(makeLayer(n));
}

} // namespace

class TestDocumentModel : public QObject
{
    Q_OBJECT

private slots:
    void cleansSizeAndBackground()
    {
        Document document;
        QCOMPARE(document.documentRect(), QRectF(-400, -300, 800, 600));
        DocumentLog log(document);
        QVERIFY(!document.setBackgroundColor(QColor())); // white, as at the start
        QVERIFY(document.setSize(QSizeF(0, -5)) && !document.setSize(QSizeF(qQNaN(), qInf())));
        QVERIFY(document.setBackgroundColor(QColor(0, 0, 255, 128)) && document.setBackgroundColor(QColor()));
        QCOMPARE(log.take(),
                 QStringList({u"sizeChanged 1x1"_s, u"backgroundColorChanged #800000ff"_s,
                              u"backgroundColorChanged #ffffffff"_s}));
    }

    void listChangesAreSignalledOnBothSides()
    {
        Document document;
        fill(document, 2);
        const auto order = [&] {
            QList<uint> ids;
            for (qsizetype i = 0; i < document.objectCount(); ++i)
                ids.append(document.objectAt(i)->id().data1);
            return ids;
        };
        DocumentLog log(document);
        const SceneObject *inserted = document.insertObject(makeLayer(3), 1);
        QCOMPARE(document.object(testId(3)), inserted);
        document.insertObject(makeLayer(4), 3);
        QCOMPARE(order(), QList<uint>({1, 3, 2, 4}));
        QVERIFY(document.moveObject(testId(1), 2) && document.moveObject(testId(4), 0));
        QCOMPARE(order(), QList<uint>({4, 3, 2, 1}));
        QCOMPARE(
            log.take(),
            QStringList({u"objectAboutToBeInserted 1 #3"_s, u"objectInserted 1 #3"_s, u"objectAboutToBeInserted 3 #4"_s,
                         u"objectInserted 3 #4"_s, u"objectAboutToBeMoved 0 2 #1"_s, u"objectMoved 0 2 #1"_s,
                         u"objectAboutToBeMoved 3 0 #4"_s, u"objectMoved 3 0 #4"_s}));

        QVERIFY(document.selectObject(testId(3)) && document.clearSelection() && document.selectObject(testId(2)));
        bool isThereWhenDeselected = false;
        connect(&document, &Document::selectionChanged, this,
                [&] { isThereWhenDeselected = document.object(testId(2)) != nullptr; });
        qsizetype index = -1;
        QCOMPARE(document.takeObject(testId(2), &index)->id(), testId(2));
        QCOMPARE(index, 2);
        QVERIFY(isThereWhenDeselected);
        QCOMPARE(log.take(),
                 QStringList({u"selectionChanged #3"_s, u"selectionChanged #0"_s, u"selectionChanged #2"_s,
                              u"objectAboutToBeRemoved 2 #2"_s, u"selectionChanged #0"_s, u"objectRemoved 2 #2"_s}));
    }

    void refusedListChangesLeaveNoTrace()
    {
        Document document;
        fill(document, 2);
        document.selectObject(testId(2));
        const QString before = describe(document);
        DocumentLog log(document);
        QVERIFY(!document.insertObject(nullptr));
        QVERIFY(!document.insertObject(makeLayer(1)));
        for (const qsizetype index : {3, -2})
            QVERIFY(!document.insertObject(makeLayer(3), index));
        QVERIFY(!document.replaceContents(QSizeF(1, 1), Qt::black, std::vector<std::unique_ptr<SceneObject>>(1)));
        std::vector<std::unique_ptr<SceneObject>> twice(2);
        std::generate(twice.begin(), twice.end(), [] { return makeLayer(5); });
        QVERIFY(!document.replaceContents(QSizeF(1, 1), Qt::black, std::move(twice)));
        QVERIFY(!document.takeObject(QUuid()));
        for (const qsizetype index : {2, -1, 1})
            QVERIFY(!document.moveObject(testId(2), index));
        QVERIFY(!document.moveObject(testId(9), 0));
        for (const uint id : {7, 2})
            QVERIFY(!document.selectObject(testId(id)));
        QCOMPARE(describe(document), before);
        QCOMPARE(document.selectedObjectId(), testId(2));
        QCOMPARE(log.take(), QStringList());
    }

    void replacesAllContentsInOneCall()
    {
        Document document;
        fill(document, 2);
        document.selectObject(testId(1));
        DocumentLog log(document);
        std::vector<std::unique_ptr<SceneObject>> objects;
        objects.push_back(makeLayer(5));
        objects.push_back(makeLayer(1)); // an id of the old contents may return
        QVERIFY(document.replaceContents(QSizeF(10, 20), Qt::black, std::move(objects)));
        QCOMPARE(document.objectAt(1)->id(), testId(1));
        QCOMPARE(log.take(),
                 QStringList({u"selectionChanged #0"_s, u"objectAboutToBeRemoved 0 #1"_s, u"objectRemoved 0 #1"_s,
                              u"objectAboutToBeRemoved 0 #2"_s, u"objectRemoved 0 #2"_s, u"sizeChanged 10x20"_s,
                              u"backgroundColorChanged #ff000000"_s, u"objectAboutToBeInserted 0 #5"_s,
                              u"objectInserted 0 #5"_s, u"objectAboutToBeInserted 1 #1"_s, u"objectInserted 1 #1"_s}));
    }

    void settersSignalOnceAndRaiseTheRevision()
    {
        Document document;
        fill(document, 1);
        const ImageLayer *layer = document.imageLayer(testId(1));
        const QUuid id = testId(1);
        ObjectTransform moved;
        moved.setPosition({3, 4});
        const FilterInstance filter{testId(50), u"sepia"_s, {}, true, false};
        const EditablePath area{{EditablePathContour{QList<EditablePathNode>(1), true}}, Qt::WindingFill};
        const std::pair<QString, std::function<bool(QUuid)>> setters[] = {
            {u"objectNameChanged #1"_s, [&](QUuid to) { return document.setObjectName(to, u"x"_s); }},
            {u"objectVisibilityChanged #1"_s, [&](QUuid to) { return document.setObjectVisible(to, false); }},
            {u"objectOpacityChanged #1"_s, [&](QUuid to) { return document.setObjectOpacity(to, -1.0); }},
            {u"objectBlendModeChanged #1"_s, [&](QUuid to) { return document.setObjectBlendMode(to, u"x"_s); }},
            {u"objectTransformChanged #1"_s, [&](QUuid to) { return document.setObjectTransform(to, moved); }},
            {u"layerFiltersChanged #1"_s, [&](QUuid to) { return document.setLayerFilters(to, {filter}); }},
            {u"imageLayerChanged #1"_s, [&](QUuid to) { return document.setImageLayerRasterSelection(to, area); }},
        };
        DocumentLog log(document);
        for (const auto &[signal, set] : setters) {
            const quint64 revision = layer->revision();
            QVERIFY2(set(id), qPrintable(signal));
            QCOMPARE(log.take(), QStringList(signal));
            QCOMPARE(layer->revision(), revision + 1);
            QVERIFY2(!set(id) && !set(testId(9)), qPrintable(signal));
            QCOMPARE(log.take(), QStringList());
        }
        QCOMPARE(layer->contentRevision(), 0u);
        QCOMPARE(layer->opacity(), 0.0);
        QVERIFY(document.setObjectOpacity(id, 1.5) && !document.setObjectOpacity(id, qQNaN()));
        QCOMPARE(layer->opacity(), 1.0);
        QVERIFY(document.setObjectBlendMode(id, QString()));
        QCOMPARE(layer->blendMode(), u"source-over"_s);

        document.insertObject(std::make_unique<SceneObject>(u"Plain"_s, testId(2)));
        QVERIFY(!document.setImageLayerRasterSelection(testId(2), area));
        QVERIFY(!document.setImageLayerSource(testId(2), RasterImageSource{}, {}, RasterSurfacePolicy::Expanding));
        QVERIFY(!document.setLayerFilters(testId(2), {filter}));
    }

    void sourceTransformAndPolicyChangeInOneStep()
    {
        Document document;
        fill(document, 1);
        const ImageLayer *layer = document.imageLayer(testId(1));
        const RasterImageSource other{plainPicture(2, 2, Qt::green)};
        ObjectTransform moved;
        moved.setPosition({3, 4});
        DocumentLog log(document);
        QImage seenByTransformListener;
        connect(&document, &Document::objectTransformChanged, this,
                [&] { seenByTransformListener = layer->rasterImage(); });

        using enum RasterSurfacePolicy;
        const auto signalsOf = [&](const ImageLayerSource &pixels, const ObjectTransform &placed, auto policy) {
            document.setImageLayerSource(testId(1), pixels, placed, policy);
            return log.take().join(u", "_s);
        };
        QCOMPARE(signalsOf(layer->source(), {}, Fixed), QString());
        QCOMPARE(signalsOf(other, moved, Fixed), u"imageLayerChanged #1, objectTransformChanged #1"_s);
        QCOMPARE(seenByTransformListener, other.image);
        const quint64 content = layer->contentRevision();
        QCOMPARE(signalsOf(other, moved, Expanding), u"imageLayerChanged #1"_s);
        QCOMPARE(signalsOf(other, {}, Expanding), u"objectTransformChanged #1"_s);
        QCOMPARE(layer->contentRevision(), content);
    }

    void transformsAreCleanedAndComparedFuzzilyButForTheRotation()
    {
        ObjectTransform transform;
        transform.setScale({0.0, -0.0});
        QCOMPARE(transform.scale(), QPointF(0.001, -0.001));
        transform.setScale({qQNaN(), -0.5});
        QCOMPARE(transform.scale(), QPointF(1.0, -0.5));
        transform.setShear({90.0, -qInf()});
        QCOMPARE(transform.shear(), QPointF(89.0, 0.0));
        transform.setAnchor({-1.0, qQNaN()});
        QCOMPARE(transform.anchor(), QPointF(0.0, 0.5));
        transform.setPosition({qInf(), 100.0});
        QCOMPARE(transform.position(), QPointF(0.0, 100.0));
        transform.setRotation(qQNaN());
        QCOMPARE(transform.rotation(), 0.0);
        transform.setRotation(725.0);
        QCOMPARE(transform.rotation(), 725.0);

        ObjectTransform other = transform;
        other.setPosition({5e-13, 100.0 + 5e-11});
        QVERIFY(other == transform);
        other.setRotation(725.0 + 1e-12);
        QVERIFY(!(other == transform));
    }

    void matrixMapsPointsAsByHand()
    {
        const auto map = [](QPointF scale, QPointF shear, QPointF anchor, double rotation, QPointF point) {
            ObjectTransform transform;
            transform.setPosition({10, 20});
            transform.setScale(scale);
            transform.setShear(shear);
            transform.setAnchor(anchor);
            transform.setRotation(rotation);
            // In hundredths, to be free of rounding.
            return (transform.matrix(QRectF(0, 0, 10, 20)).map(point) * 100).toPoint();
        };
        // The centre is at (5, 10). (0, 0) - (5, 10) = (-5, -10), scaled (-10, -30), + (5, 10), placed (5, 0).
        QCOMPARE(map({2, 3}, {}, {0.5, 0.5}, 0, {0, 0}), QPoint(500, 0));
        // Clockwise on a y-down canvas: (5, 0) turns to (0, 5).
        QCOMPARE(map({1, 1}, {}, {0.5, 0.5}, 90, {10, 10}), QPoint(1500, 3500));
        // tan 45 = 1: y grows by x.
        QCOMPARE(map({1, 1}, {0, 45}, {}, 0, {1, 2}), QPoint(1100, 2300));
        // (1, 2) scaled (2, 2), sheared (4, 2), turned (-2, 4), placed (8, 24).
        QCOMPARE(map({2, 1}, {45, 0}, {}, 90, {1, 2}), QPoint(800, 2400));
    }

    void contentIsDrawnOnceForEachRevisionAndServices()
    {
        ImageLayer layer(*svgSourceFromData(kSvg), u"a"_s);
        const int marker = 0;
        const auto *services = reinterpret_cast<const RenderServices *>(&marker);
        const QImage first = layer.renderedContent(nullptr).image;
        QVERIFY(layer.setName(u"y"_s) && layer.setFilters({FilterInstance()}) && layer.setOpacity(0.5));
        QCOMPARE(layer.renderedContent(nullptr).image.constBits(), first.constBits());
        const QImage second = layer.renderedContent(services).image;
        QVERIFY(second.constBits() != first.constBits());
        QCOMPARE(layer.renderedContent(services).image.constBits(), second.constBits());
        QVERIFY(layer.setSource(SvgImageSource{kSvg, QSizeF(9, 9)}));
        QCOMPARE(layer.renderedContent(services).image.size(), QSize(9, 9));
    }

    void picturesAreStoredAsStraightRgba()
    {
        QImage deep(2, 1, QImage::Format_RGBA64);
        deep.fill(QColor::fromRgba64(0x8080, 0x4040, 0, 0xffff));
        QImage premultiplied(2, 1, QImage::Format_ARGB32_Premultiplied);
        premultiplied.fill(QColor(255, 0, 0, 128));
        premultiplied.setDevicePixelRatio(2.0); // as a reader may
        const std::pair<QImage, QRgb> cases[] = {{deep, qRgba(0x80, 0x40, 0, 255)},
                                                 {premultiplied, qRgba(255, 0, 0, 128)}};
        for (const auto &[image, expected] : cases) {
            ImageLayer layer(QImage(), u"a"_s);
            QVERIFY(layer.setRasterImage(image));
            for (const QImage &stored : {layer.rasterImage(), ImageLayer(image, u"b"_s).rasterImage()}) {
                QCOMPARE(stored.format(), QImage::Format_RGBA8888);
                QCOMPARE(stored.pixel(1, 0), expected);
                QCOMPARE(stored.devicePixelRatio(), 1.0);
            }
            QCOMPARE(layer.renderedContent(nullptr).size, QSizeF(2, 1));
            QVERIFY(!layer.setRasterImage(image));
        }
        const QImage shared = gradientPicture(8, 8);
        QCOMPARE(ImageLayer(shared, u"a"_s).renderedContent(nullptr).image.constBits(), shared.constBits());
    }

    void svgDefaultSizes()
    {
        const QByteArray rectangle = R"(<rect x="2" width="7" height="5"/></svg>)";
        const std::pair<QByteArray, QSizeF> cases[] = {
            {R"( width="30" height="20" viewBox="0 0 3 2">)" + rectangle, {30, 20}},
            {R"( viewBox="0 0 12 7"></svg>)", {12, 7}},
            {">" + rectangle, {7, 5}}, // what is drawn
            {"></svg>", {}},
            {"", {}},
        };
        for (const auto &[text, size] : cases) {
            const QByteArray data = R"(<svg xmlns="http://www.w3.org/2000/svg")" + text;
            QCOMPARE(svgDefaultSize(data).value_or(QSizeF()), size);
            QCOMPARE(svgSourceFromData(data, QSizeF(5, 5)).has_value(), size.isValid());
        }
    }

    void svgKeepsItsFractionalSizeAndRendersToWholePixels()
    {
        ImageLayer layer(*svgSourceFromData(kSvg, QSizeF(10.2, 3.5)), u"a"_s);
        QCOMPARE(layer.pixelSize(), QSize(11, 4));
        const RenderedContent content = layer.renderedContent(nullptr);
        QCOMPARE(content.image.size(), QSize(11, 4));
        QCOMPARE(content.image.format(), QImage::Format_RGBA8888);
        QCOMPARE(content.size, QSizeF(10.2, 3.5));
        QCOMPARE(content.image.pixel(5, 1), qRgba(255, 0, 0, 255));
        // A fifth of the last column is covered, half of the last row.
        QVERIFY(std::abs(qAlpha(content.image.pixel(10, 1)) - 51) <= 2);
        QVERIFY(std::abs(qAlpha(content.image.pixel(5, 3)) - 128) <= 2);
        QCOMPARE(layer.rasterImage().constBits(), content.image.constBits());

        QVERIFY(!layer.setSource(SvgImageSource{kSvg, QSizeF(10.2 + 1e-13, 3.5)}));
        QVERIFY(layer.setSource(SvgImageSource{kSvg, QSizeF(0.25, qQNaN())}));
        QCOMPARE(layer.layerSize(), QSizeF(1, 1));
        QVERIFY(layer.setSource(SvgImageSource{kSvg, QSizeF(1e12, 1e12)}));
        QVERIFY(layer.renderedContent(nullptr).image.isNull());
        QVERIFY(layer.setSource(SvgImageSource{"no picture", QSizeF(2, 2)}));
        QCOMPARE(layer.rasterImage(), plainPicture(2, 2, Qt::transparent));
        QCOMPARE(layer.memoryBytes(), 1 * 2 + 512 + 10);
    }

    void selectionsAreClampedIntoTheLayerAndCountAsMemory()
    {
        ImageLayer layer(plainPicture(10, 20, Qt::red), u"abc"_s);
        const qint64 bytes = 3 * 2 + 512 + 10 * 20 * 4;
        QCOMPARE(layer.memoryBytes(), bytes);
        QList<EditablePathNode> given(3);
        given[0].anchor = {-5, 5};
        given[1].anchor = {12, 25};
        given[2].hasInControl = true;
        given[2].inControl = {99, 4};
        given[2].outControl = {99, 4}; // not in use, so it stays
        const EditablePath outside{{EditablePathContour{given, true}, EditablePathContour{{}, true}}, Qt::WindingFill};
        QVERIFY(layer.setRasterSelection(outside));
        QCOMPARE(layer.contentRevision(), 0u);
        const EditablePath &stored = *layer.rasterSelection();
        QCOMPARE(stored.fillRule, Qt::OddEvenFill);
        QCOMPARE(stored.contours.size(), 1);
        const QList<EditablePathNode> &nodes = stored.contours[0].nodes;
        QCOMPARE(layer.memoryBytes(), bytes + 32 + 32 + 72 * nodes.capacity());
        QCOMPARE(nodes[0].anchor, QPointF(0, 5));
        QCOMPARE(nodes[1].anchor, QPointF(10, 20));
        QCOMPARE(nodes[2].inControl, QPointF(10, 4));
        QCOMPARE(nodes[2].outControl, QPointF(99, 4));

        QVERIFY(!layer.setRasterSelection(outside));
        // No file takes a node twice.
        const EditablePathContour twice{{given[0], given[0]}, true};
        QVERIFY(layer.setRasterSelection(EditablePath{{twice}}));
        const QList<EditablePathNode> &parted = layer.rasterSelection()->contours[0].nodes;
        QVERIFY(parted.size() == 2 && parted[0].id == given[0].id && parted[1].id != parted[0].id);
        QVERIFY(layer.setRasterSelection(EditablePath{{EditablePathContour()}, Qt::OddEvenFill}));
        QVERIFY(!layer.setRasterSelection(std::nullopt));
        QVERIFY(!ImageLayer(QImage(), u"b"_s).setRasterSelection(outside));
    }

    void paintLayersBeginWithRoomAroundTheView()
    {
        const QRectF page(-50, -25, 100, 50);
        const QRectF around(-178, -153, 356, 306);
        QCOMPARE(initialPaintSurface(QRectF(), page), around);
        QCOMPARE(initialPaintSurface(QRectF(0, 0, 5, 5), page), around);
        QCOMPARE(initialPaintSurface(QRectF(100.5, 0, 10, 10), page), QRectF(-28, -128, 267, 266)); // beside it
        for (const QRectF &view : {QRectF(100, 100, 0.5, 50), QRectF(qQNaN(), 0, 9, 9), QRectF(0, 0, qInf(), 9)})
            QVERIFY(!initialPaintSurface(view, page));

        const std::unique_ptr<ImageLayer> layer = makePaintLayer(around);
        QCOMPARE(layer->rasterImage(), plainPicture(356, 306, Qt::transparent));
        QCOMPARE(layer->transform().position(), around.topLeft());
        QCOMPARE(layer->rasterSurfacePolicy(), RasterSurfacePolicy::Expanding);
        QVERIFY(!makePaintLayer(QRectF(0, 0, 10'001, 10'000)) && !makePaintLayer(QRectF(0, 0, 1e12, 1e12)));
    }
};

QTEST_GUILESS_MAIN(TestDocumentModel)
#include "tst_document_model.moc"
