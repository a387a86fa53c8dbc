#include "base/pixel_limits.h"
#include "document/paint_layer.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::unique_ptr<ImageLayer> makeLayer(uint n, const QImage &image = plainPicture(2, 2, Qt::red))
{
    return std::make_unique<ImageLayer>(image, u"Layer %1"_s.arg(n), testId(n));
}

/// Ids #1, #2, ... from the bottom to the top.
void fill(Document &document, uint count)
{
    for (uint n = 1; n <= count; ++n)
        document.insertObject(makeLayer(n));
}

QList<uint> order(const Document &document)
{
    QList<uint> ids;
    for (qsizetype i = 0; i < document.objectCount(); ++i)
        ids.append(document.objectAt(i)->id().data1);
    return ids;
}

EditablePath path(const QList<QPointF> &anchors)
{
    EditablePathContour contour;
    contour.closed = true;
    for (const QPointF &anchor : anchors) {
        EditablePathNode node;
        node.anchor = anchor;
        contour.nodes.append(node);
    }
    return {{contour}, Qt::WindingFill};
}

/// Counts how often its content is drawn, and when it dies.
class CountingLayer : public Layer
{
public:
    explicit CountingLayer(uint n, int *deaths = nullptr)
        : Layer(u"Counting"_s, testId(n))
        , m_deaths(deaths)
    {
    }
    ~CountingLayer() override
    {
        if (m_deaths)
            ++*m_deaths;
    }
    LayerType layerType() const override { return LayerType::Shape; }
    RenderedContent renderContent(const RenderServices *) const override
    {
        ++drawings;
        return {plainPicture(1, 1, Qt::blue), QSizeF(1, 1)};
    }
    void changeContent() { markContentChanged(); }

    mutable int drawings = 0;

private:
    int *m_deaths;
};

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
        QVERIFY(document.setSize(QSizeF(0, -5)));
        QVERIFY(!document.setSize(QSizeF(kNaN, kInfinity)));
        QVERIFY(document.setBackgroundColor(QColor(0, 0, 255, 128)));
        QVERIFY(document.setBackgroundColor(QColor()));
        QCOMPARE(log.take(),
                 QStringList({u"sizeChanged 1x1"_s, u"backgroundColorChanged #800000ff"_s,
                              u"backgroundColorChanged #ffffffff"_s}));
    }

    void listChangesAreSignalledOnBothSides()
    {
        Document document;
        fill(document, 2);
        DocumentLog log(document);
        const SceneObject *inserted = document.insertObject(makeLayer(3), 1);
        QCOMPARE(document.object(testId(3)), inserted);
        document.insertObject(makeLayer(4), 3);
        QCOMPARE(log.take(),
                 QStringList({u"objectAboutToBeInserted 1 #3"_s, u"objectInserted 1 #3"_s,
                              u"objectAboutToBeInserted 3 #4"_s, u"objectInserted 3 #4"_s}));
        QCOMPARE(order(document), QList<uint>({1, 3, 2, 4}));
        QVERIFY(document.moveObject(testId(1), 2));
        QCOMPARE(order(document), QList<uint>({3, 2, 1, 4}));
        QVERIFY(document.moveObject(testId(4), 0));
        QCOMPARE(order(document), QList<uint>({4, 3, 2, 1}));
        QCOMPARE(log.take(),
                 QStringList({u"objectAboutToBeMoved 0 2 #1"_s, u"objectMoved 0 2 #1"_s,
                              u"objectAboutToBeMoved 3 0 #4"_s, u"objectMoved 3 0 #4"_s}));

        QVERIFY(document.selectObject(testId(3)));
        QVERIFY(document.clearSelection());
        QVERIFY(document.selectObject(testId(2)));
        QCOMPARE(log.take(),
                 QStringList({u"selectionChanged #3"_s, u"selectionChanged #0"_s, u"selectionChanged #2"_s}));
        bool isThereWhenDeselected = false;
        connect(&document, &Document::selectionChanged, this,
                [&] { isThereWhenDeselected = document.object(testId(2)) != nullptr; });
        qsizetype index = -1;
        QCOMPARE(document.takeObject(testId(2), &index)->id(), testId(2));
        QCOMPARE(index, 2);
        QVERIFY(isThereWhenDeselected);
        QCOMPARE(log.take(),
                 QStringList({u"objectAboutToBeRemoved 2 #2"_s, u"selectionChanged #0"_s, u"objectRemoved 2 #2"_s}));
    }

    void refusedListChangesLeaveNoTrace()
    {
        Document document;
        fill(document, 2);
        document.selectObject(testId(2));
        const QString before = describe(document);
        DocumentLog log(document);
        int deaths = 0;
        const auto dying = [&](uint n) { return std::make_unique<CountingLayer>(n, &deaths); };
        QVERIFY(!document.insertObject(nullptr));
        QVERIFY(!document.insertObject(dying(1)));
        QVERIFY(!document.insertObject(dying(3), 3));
        QVERIFY(!document.insertObject(dying(3), -2));
        std::vector<std::unique_ptr<SceneObject>> twice;
        twice.push_back(dying(5));
        twice.push_back(dying(5));
        QVERIFY(!document.replaceContents(QSizeF(1, 1), Qt::black, std::move(twice)));
        QCOMPARE(deaths, 5);
        QVERIFY(!document.replaceContents(QSizeF(1, 1), Qt::black, std::vector<std::unique_ptr<SceneObject>>(1)));
        QVERIFY(!document.takeObject(QUuid()));
        QVERIFY(!document.moveObject(testId(2), 2));
        QVERIFY(!document.moveObject(testId(2), -1));
        QVERIFY(!document.moveObject(testId(2), 1));
        QVERIFY(!document.moveObject(testId(9), 0));
        QVERIFY(!document.selectObject(testId(7)));
        QVERIFY(!document.selectObject(testId(2)));
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
        QCOMPARE(order(document), QList<uint>({5, 1}));
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
        const QUuid id = layer->id();
        ObjectTransform moved;
        moved.setPosition({3, 4});
        const FilterInstance filter{testId(50), u"sepia"_s, {}, true, false};
        const EditablePath selection = path({{1, 1}});
        using Setter = std::function<bool(const QUuid &)>;
        const std::pair<QString, Setter> setters[] = {
            {u"objectNameChanged #1"_s, [&](const QUuid &to) { return document.setObjectName(to, u"x"_s); }},
            {u"objectVisibilityChanged #1"_s, [&](const QUuid &to) { return document.setObjectVisible(to, false); }},
            {u"objectOpacityChanged #1"_s, [&](const QUuid &to) { return document.setObjectOpacity(to, -1.0); }},
            {u"objectBlendModeChanged #1"_s, [&](const QUuid &to) { return document.setObjectBlendMode(to, u"x"_s); }},
            {u"objectTransformChanged #1"_s, [&](const QUuid &to) { return document.setObjectTransform(to, moved); }},
            {u"layerFiltersChanged #1"_s, [&](const QUuid &to) { return document.setLayerFilters(to, {filter}); }},
            {u"imageLayerChanged #1"_s,
             [&](const QUuid &to) { return document.setImageLayerRasterSelection(to, selection); }},
        };
        DocumentLog log(document);
        for (const auto &[signal, set] : setters) {
            const quint64 revision = layer->revision();
            QVERIFY2(set(id), qPrintable(signal));
            QCOMPARE(log.take(), QStringList(signal));
            QCOMPARE(layer->revision(), revision + 1);
            QVERIFY2(!set(id), qPrintable(signal));
            QVERIFY2(!set(testId(9)), qPrintable(signal));
            QCOMPARE(log.take(), QStringList());
        }
        QCOMPARE(layer->contentRevision(), 0u);
        QCOMPARE(layer->opacity(), 0.0);
        QVERIFY(document.setObjectOpacity(id, 1.5));
        QCOMPARE(layer->opacity(), 1.0);
        QVERIFY(!document.setObjectOpacity(id, kNaN));
        QVERIFY(document.setObjectBlendMode(id, QString()));
        QCOMPARE(layer->blendMode(), u"source-over"_s);

        document.insertObject(std::make_unique<CountingLayer>(2)); // a layer, but not of pixels
        document.insertObject(std::make_unique<SceneObject>(u"Plain"_s, testId(3)));
        QVERIFY(!document.setImageLayerRasterSelection(testId(2), selection));
        QVERIFY(!document.setImageLayerSource(testId(2), RasterImageSource{}, {}, RasterSurfacePolicy::Expanding));
        QVERIFY(!document.setLayerFilters(testId(3), {filter}));
    }

    void filtersAreComparedFieldByField()
    {
        const FilterInstance plain{testId(50), u"sepia"_s, {}, true, false};
        QList<FilterInstance> variants(5, plain);
        variants[0].instanceId = testId(51);
        variants[1].filterId = u"grain"_s;
        variants[2].parameters.set(u"strength"_s, 1.0);
        variants[3].enabled = false;
        variants[4].rasterSelectionScoped = true;
        Document document;
        fill(document, 1);
        for (const FilterInstance &variant : variants) {
            document.setLayerFilters(testId(1), {plain});
            QVERIFY(document.setLayerFilters(testId(1), {variant}));
        }
    }

    void sourceTransformAndPolicyChangeInOneStep()
    {
        Document document;
        fill(document, 1);
        const ImageLayer *layer = document.imageLayer(testId(1));
        const ImageLayerSource source = layer->source();
        const RasterImageSource other{plainPicture(2, 2, Qt::green)};
        ObjectTransform moved;
        moved.setPosition({3, 4});
        DocumentLog log(document);
        QImage seenByTransformListener;
        connect(&document, &Document::objectTransformChanged, this,
                [&] { seenByTransformListener = layer->rasterImage(); });

        const auto set = [&](const ImageLayerSource &pixels, const ObjectTransform &transform,
                             RasterSurfacePolicy policy) {
            document.setImageLayerSource(testId(1), pixels, transform, policy);
            return log.take();
        };
        QCOMPARE(set(source, {}, RasterSurfacePolicy::Fixed), QStringList());
        QCOMPARE(set(other, moved, RasterSurfacePolicy::Fixed),
                 QStringList({u"imageLayerChanged #1"_s, u"objectTransformChanged #1"_s}));
        QCOMPARE(seenByTransformListener, other.image);
        const quint64 content = layer->contentRevision();
        QCOMPARE(set(other, moved, RasterSurfacePolicy::Expanding), QStringList(u"imageLayerChanged #1"_s));
        QCOMPARE(set(other, {}, RasterSurfacePolicy::Expanding), QStringList(u"objectTransformChanged #1"_s));
        QCOMPARE(layer->contentRevision(), content);
    }

    void transformSettersClean()
    {
        ObjectTransform transform;
        transform.setScale({0.0, -0.0});
        QCOMPARE(transform.scale(), QPointF(0.001, -0.001));
        transform.setScale({kNaN, -0.5});
        QCOMPARE(transform.scale(), QPointF(1.0, -0.5));
        transform.setShear({90.0, -kInfinity});
        QCOMPARE(transform.shear(), QPointF(89.0, 0.0));
        transform.setAnchor({-1.0, kNaN});
        QCOMPARE(transform.anchor(), QPointF(0.0, 0.5));
        transform.setPosition({kInfinity, 7.0});
        QCOMPARE(transform.position(), QPointF(0.0, 7.0));
        transform.setRotation(kNaN);
        QCOMPARE(transform.rotation(), 0.0);
        transform.setRotation(725.0);
        QCOMPARE(transform.rotation(), 725.0);
    }

    void transformsCompareFuzzilyButForTheRotation()
    {
        ObjectTransform a;
        a.setPosition({100.0, 0.0});
        ObjectTransform b = a;
        b.setPosition({100.0 + 5e-11, 5e-13});
        QVERIFY(a == b);
        b.setRotation(1e-15);
        QVERIFY(!(a == b));
    }

    void matrixMapsPointsAsByHand()
    {
        const auto map = [](const QPointF &scale, const QPointF &shear, const QPointF &anchor, double rotation,
                            const QPointF &point) {
            ObjectTransform transform;
            transform.setPosition({10, 20});
            transform.setScale(scale);
            transform.setShear(shear);
            transform.setAnchor(anchor);
            transform.setRotation(rotation);
            // In hundredths, to be free of rounding.
            return (transform.matrix(QRectF(0, 0, 10, 20)).map(point) * 100).toPoint();
        };
        const QPointF one(1, 1);
        const QPointF centre(0.5, 0.5); // at (5, 10)
        // (0, 0) - (5, 10) = (-5, -10), scaled (-10, -30), + (5, 10), placed (5, 0).
        QCOMPARE(map({2, 3}, {}, centre, 0, {0, 0}), QPoint(500, 0));
        // Clockwise on a y-down canvas: (5, 0) turns to (0, 5).
        QCOMPARE(map(one, {}, centre, 90, {10, 10}), QPoint(1500, 3500));
        // tan 45 = 1: y grows by x.
        QCOMPARE(map(one, {0, 45}, {}, 0, {1, 2}), QPoint(1100, 2300));
        // (1, 2) scaled (2, 2), sheared (4, 2), turned (-2, 4), placed (8, 24).
        QCOMPARE(map({2, 1}, {45, 0}, {}, 90, {1, 2}), QPoint(800, 2400));
    }

    void contentIsDrawnOnceForEachRevisionAndServices()
    {
        CountingLayer layer(1);
        const int marker = 0;
        const auto *services = reinterpret_cast<const RenderServices *>(&marker);
        layer.renderedContent(nullptr);
        layer.renderedContent(nullptr);
        layer.setName(u"y"_s);
        layer.setFilters({FilterInstance()});
        layer.setOpacity(0.5);
        layer.renderedContent(nullptr);
        QCOMPARE(layer.drawings, 1);
        layer.renderedContent(services);
        layer.renderedContent(services);
        QCOMPARE(layer.drawings, 2);
        layer.changeContent();
        layer.renderedContent(services);
        QCOMPARE(layer.drawings, 3);
    }

    void picturesAreStoredAsStraightRgba()
    {
        QImage deep(2, 1, QImage::Format_RGBA64);
        deep.fill(QColor::fromRgba64(0x8080, 0x4040, 0, 0xffff));
        QImage indexed(2, 1, QImage::Format_Indexed8);
        indexed.setColorTable({qRgba(1, 2, 3, 255), qRgba(200, 100, 50, 128)});
        indexed.fill(1);
        QImage premultiplied(2, 1, QImage::Format_ARGB32_Premultiplied);
        premultiplied.fill(QColor(255, 0, 0, 128));
        QImage doubled = plainPicture(2, 1, Qt::green);
        doubled.setDevicePixelRatio(2.0); // as a reader may
        const std::pair<QImage, QRgb> cases[] = {{deep, qRgba(0x80, 0x40, 0, 255)},
                                                 {indexed, qRgba(200, 100, 50, 128)},
                                                 {premultiplied, qRgba(255, 0, 0, 128)},
                                                 {doubled, qRgba(0, 255, 0, 255)}};
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
        const QByteArray data = R"(<svg xmlns="http://www.w3.org/2000/svg" width="51" height="35">)"
                                R"(<rect width="51" height="35" fill="#ff0000"/></svg>)";
        ImageLayer layer(*svgSourceFromData(data, QSizeF(10.2, 3.5)), u"a"_s);
        QCOMPARE(layer.layerSize(), QSizeF(10.2, 3.5));
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

        QVERIFY(!layer.setSource(SvgImageSource{data, QSizeF(10.2 + 1e-13, 3.5)}));
        QVERIFY(layer.setSource(SvgImageSource{data, QSizeF(0.25, kNaN)}));
        QCOMPARE(layer.layerSize(), QSizeF(1, 1));
        QVERIFY(layer.setSource(SvgImageSource{data, QSizeF(1e12, 1e12)}));
        QVERIFY(layer.renderedContent(nullptr).image.isNull());
        QVERIFY(layer.setSource(SvgImageSource{"no picture", QSizeF(2, 2)}));
        QCOMPARE(layer.rasterImage(), plainPicture(2, 2, Qt::transparent));
    }

    void selectionsAreClampedIntoTheLayer()
    {
        ImageLayer layer(plainPicture(10, 20, Qt::red), u"a"_s);
        EditablePath outside = path({{-5, 5}, {12, 25}, {3, 4}});
        EditablePathNode &node = outside.contours[0].nodes[2];
        node.hasInControl = true;
        node.inControl = {99, 4};
        node.outControl = {99, 4}; // not in use, so it stays
        outside.contours.append(EditablePathContour{{}, true});
        const quint64 revision = layer.revision();
        QVERIFY(layer.setRasterSelection(outside));
        QCOMPARE(layer.revision(), revision + 1);
        QCOMPARE(layer.contentRevision(), 0u);
        const EditablePath &stored = *layer.rasterSelection();
        QCOMPARE(stored.fillRule, Qt::OddEvenFill);
        QCOMPARE(stored.contours.size(), 1);
        const QList<EditablePathNode> &nodes = stored.contours[0].nodes;
        QCOMPARE(nodes[0].anchor, QPointF(0, 5));
        QCOMPARE(nodes[1].anchor, QPointF(10, 20));
        QCOMPARE(nodes[2].inControl, QPointF(10, 4));
        QCOMPARE(nodes[2].outControl, QPointF(99, 4));

        QVERIFY(!layer.setRasterSelection(outside));
        QVERIFY(layer.setRasterSelection(EditablePath{{EditablePathContour()}, Qt::OddEvenFill}));
        QVERIFY(!layer.hasRasterSelection());
        QVERIFY(!layer.setRasterSelection(std::nullopt));
        ImageLayer empty(QImage(), u"b"_s);
        QVERIFY(!empty.setRasterSelection(outside));
    }

    void paintLayersBeginWithRoomAroundTheView()
    {
        const QRectF page(-50, -25, 100, 50);
        const QRectF around(-178, -153, 356, 306);
        QCOMPARE(initialPaintSurface(QRectF(), page), around);
        QCOMPARE(initialPaintSurface(QRectF(0, 0, 5, 5), page), around);
        QCOMPARE(initialPaintSurface(QRectF(100.5, 0, 10, 10), page), QRectF(-28, -128, 267, 266)); // beside it
        QVERIFY(!initialPaintSurface(QRectF(100, 100, 0.5, 50), page));
        QVERIFY(!initialPaintSurface(QRectF(kNaN, 0, 10, 10), page));
        QVERIFY(!initialPaintSurface(QRectF(0, 0, kInfinity, 10), page));

        const std::unique_ptr<ImageLayer> layer = makePaintLayer(around);
        QCOMPARE(layer->rasterImage(), plainPicture(356, 306, Qt::transparent));
        QCOMPARE(layer->transform().position(), around.topLeft());
        QCOMPARE(layer->rasterSurfacePolicy(), RasterSurfacePolicy::Expanding);
        QCOMPARE(layer->name(), u"Paint"_s);
        QVERIFY(!makePaintLayer(QRectF(0, 0, 10'001, 10'000)));
        QVERIFY(!makePaintLayer(QRectF(0, 0, 1e12, 1e12)));
    }

    void memoryFollowsContentAndSelection()
    {
        ImageLayer layer(plainPicture(10, 20, Qt::red), u"abc"_s);
        QCOMPARE(layer.memoryBytes(), 3 * 2 + 512 + 10 * 20 * 4);
        layer.setRasterSelection(path({{1, 1}, {2, 2}}));
        const qint64 capacity = layer.rasterSelection()->contours[0].nodes.capacity();
        QCOMPARE(layer.memoryBytes(), 3 * 2 + 512 + 10 * 20 * 4 + 32 + 32 + 72 * capacity);
        const ImageLayer svg(SvgImageSource{"12345", QSizeF(9, 9)}, QString());
        QCOMPARE(svg.memoryBytes(), 512 + 5);
    }
};

QTEST_GUILESS_MAIN(TestDocumentModel)
#include "tst_document_model.moc"
