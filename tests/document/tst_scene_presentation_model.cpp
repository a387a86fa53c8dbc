#include "document/document.h"
#include "document/scene_presentation_model.h"
#include "support/pictures.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// A square of one colour, 4 units wide, that counts how often its content is drawn.
class CountingLayer : public Layer
{
public:
    CountingLayer(const QColor &color, double x)
        : Layer(u"counting"_s)
        , m_image(test::plainPicture(4, 4, color))
    {
        ObjectTransform placed;
        placed.setPosition({x, -2.0});
        setTransform(placed);
    }
    LayerType layerType() const override { return LayerType::Image; }
    RenderedContent renderContent(const RenderServices *) const override
    {
        ++draws;
        return {m_image, QSizeF(m_image.size())};
    }
    mutable int draws = 0;

private:
    QImage m_image;
};

ObjectTransform at(double x, double y)
{
    ObjectTransform transform;
    transform.setPosition({x, y});
    return transform;
}

/// A document of 16 x 16 with red on the left, green on the right and an image layer over the middle; its model; and
/// every signal of the model in order.
struct Stage
{
    Document document;
    CountingLayer *red = add<CountingLayer>(QColor(Qt::red), -6.0);
    CountingLayer *green = add<CountingLayer>(QColor(Qt::green), 2.0);
    ImageLayer *blue = add<ImageLayer>(test::plainPicture(2, 2, Qt::blue), u"blue"_s);
    ScenePresentationModel model{&document};
    QStringList heard;

    Stage()
    {
        document.setSize({16.0, 16.0});
        using Model = ScenePresentationModel;
        hear(&Model::documentSizeChanged, u"documentSize"_s);
        hear(&Model::sceneRectChanged, u"sceneRect"_s);
        hear(&Model::minimumSceneSizeChanged, u"minimumSceneSize"_s);
        hear(&Model::viewportRectChanged, u"viewportRect"_s);
        hear(&Model::renderScaleChanged, u"renderScale"_s);
        hear(&Model::fixedDocumentBoundsChanged, u"fixedDocumentBounds"_s);
        hear(&Model::documentBoundsVisibleChanged, u"documentBoundsVisible"_s);
        hear(&Model::selectionChanged, u"selection"_s);
        hear(&Model::sceneImageChanged, u"image"_s);
        hear(&Model::suppressedObjectIdChanged, u"suppressedObjectId"_s);
    }

    /// The colour shown at a point of the document.
    QColor shown(double x, double y) const
    {
        return model.sceneImage().pixelColor((QPointF(x, y) - model.sceneRect().topLeft()).toPoint());
    }

private:
    template<typename Object, typename... Arguments>
    Object *add(Arguments &&...arguments)
    {
        return static_cast<Object *>(document.insertObject(std::make_unique<Object>(arguments...)));
    }
    void hear(void (ScenePresentationModel::*signal)(), const QString &name)
    {
        QObject::connect(&model, signal, &model, [this, name] { heard += name; });
    }
};

using Step = void (*)(Stage &);

} // namespace

class TestScenePresentationModel : public QObject
{
    Q_OBJECT

private slots:
    void rendersThenSignals_data();
    void rendersThenSignals();
    void showsVisibleLayersBottomFirst();
    void cleansNumbers();
    void choosesTheSceneRect();
    void keepsNoSingleImageOfSeveralTiles();
    void composesOncePerInterval();
    void neverDrawsContentForViewOrPlacement();
    void leavesOutTheSuppressedLayer();
    void followsTheSelection();
};

void TestScenePresentationModel::rendersThenSignals_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, Step step, const QStringList &expected) {
        QTest::newRow(name) << step << expected;
    };
    const QStringList image{u"image"_s};
    row("document size", [](Stage &s) { s.document.setSize({8, 8}); },
        {u"sceneRect"_s, u"image"_s, u"documentSize"_s});
    row("background", [](Stage &s) { s.document.setBackgroundColor(Qt::cyan); }, image);
    row("insert", [](Stage &s) { s.document.insertObject(std::make_unique<SceneObject>(u"new"_s)); }, image);
    row("remove", [](Stage &s) { s.document.takeObject(s.red->id()); }, image);
    row("order", [](Stage &s) { s.document.moveObject(s.red->id(), 1); }, image);
    row("visibility", [](Stage &s) { s.document.setObjectVisible(s.red->id(), false); }, image);
    row("opacity", [](Stage &s) { s.document.setObjectOpacity(s.red->id(), 0.5); }, image);
    row("blend mode", [](Stage &s) { s.document.setObjectBlendMode(s.red->id(), u"screen"_s); }, image);
    row("filters", [](Stage &s) { s.document.setLayerFilters(s.red->id(), {FilterInstance{}}); }, image);
    row("pixels",
        [](Stage &s) {
            s.document.setImageLayerSource(s.blue->id(), RasterImageSource{test::gradientPicture(3, 3)},
                                           s.blue->transform(), RasterSurfacePolicy::Fixed);
        },
        image);
    row("name", [](Stage &s) { s.document.setObjectName(s.red->id(), u"other"_s); }, {});
    row("suppress", [](Stage &s) { s.model.setSuppressedObjectId(s.red->id()); },
        {u"image"_s, u"suppressedObjectId"_s});
    row("clip", [](Stage &s) { s.model.setFixedDocumentBounds(true); },
        {u"sceneRect"_s, u"image"_s, u"fixedDocumentBounds"_s});
    row("outline", [](Stage &s) { s.model.setDocumentBoundsVisible(true); },
        {u"image"_s, u"documentBoundsVisible"_s});
    row("least scene", [](Stage &s) { s.model.setMinimumSceneSize({300, 0}); },
        {u"sceneRect"_s, u"image"_s, u"minimumSceneSize"_s});
    row("zoom", [](Stage &s) { s.model.setRenderScale(0.5); }, {u"image"_s, u"renderScale"_s});
    row("view and zoom at once", [](Stage &s) { s.model.setView(QRectF(0, 0, 5, 5), 0.5); },
        {u"sceneRect"_s, u"image"_s, u"viewportRect"_s, u"renderScale"_s});
    row("pan", [](Stage &s) { s.model.setViewportRect({0, 0, 9, 9}); },
        {u"sceneRect"_s, u"image"_s, u"viewportRect"_s});
    row("services", [](Stage &s) { s.model.setRenderServices(nullptr); }, {});
}

void TestScenePresentationModel::rendersThenSignals()
{
    QFETCH(Step, step);
    QFETCH(QStringList, expected);
    Stage stage;
    const quint64 before = stage.model.revision();
    step(stage);
    QCOMPARE(stage.heard, expected);
    QCOMPARE(stage.model.revision() - before, quint64(expected.count(u"image"_s)));
    if (stage.document.objectCount() == 3) {
        step(stage); // nothing new
        QCOMPARE(stage.heard, expected);
    }
}

void TestScenePresentationModel::showsVisibleLayersBottomFirst()
{
    Stage stage;
    QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::red));
    QCOMPARE(stage.shown(3.0, 0.0), QColor(Qt::green));
    QCOMPARE(stage.shown(-7.0, 0.0), QColor(Qt::white));
    QCOMPARE(stage.model.snapshot().items.constFirst().objectId, stage.red->id());
    stage.document.setObjectTransform(stage.red->id(), stage.green->transform());
    stage.document.moveObject(stage.red->id(), 2);
    QCOMPARE(stage.shown(3.0, 0.0), QColor(Qt::red));
    stage.document.setObjectVisible(stage.red->id(), false);
    QCOMPARE(stage.shown(3.0, 0.0), QColor(Qt::green));

    Document hidden;
    auto layer = std::make_unique<CountingLayer>(Qt::red, 0.0);
    layer->setVisible(false);
    const CountingLayer *never = layer.get();
    hidden.insertObject(std::move(layer));
    QCOMPARE(buildSceneSnapshot(hidden, {}, nullptr).items.size(), 0);
    QCOMPARE(never->draws, 0);
}

void TestScenePresentationModel::cleansNumbers()
{
    Stage stage;
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto &[given, stored] : {std::pair(100.0, 32.0), {0.0, 0.01}, {-3.0, 0.01}, {nan, 1.0}, {2.0, 2.0}}) {
        stage.model.setViewportRect({0, 0, 2, 2});
        stage.model.setRenderScale(given);
        QCOMPARE(stage.model.renderScale(), stored);
    }
    stage.model.setViewportRect({3, 4, -2, -2});
    QCOMPARE(stage.model.viewportRect(), QRectF(1, 2, 2, 2));
    for (const QRectF &none : {QRectF(0, 0, 0.9, 50), QRectF(0, 0, 50, 0.9), QRectF(0, nan, 5, 5)}) {
        stage.model.setViewportRect({0, 0, 2, 2});
        stage.model.setViewportRect(none);
        QVERIFY(stage.model.viewportRect().isEmpty());
    }
    stage.model.setMinimumSceneSize({-5.0, 7.0});
    QCOMPARE(stage.model.minimumSceneSize(), QSizeF(0.0, 7.0));
}

void TestScenePresentationModel::choosesTheSceneRect()
{
    Stage stage;
    QCOMPARE(stage.model.sceneRect(), QRectF(-72, -72, 144, 144));
    stage.model.setMinimumSceneSize({200.0, 100.0});
    QCOMPARE(stage.model.sceneRect(), QRectF(-100, -72, 200, 144));
    stage.model.setFixedDocumentBounds(true);
    QCOMPARE(stage.model.sceneRect(), QRectF(-8, -8, 16, 16));
    stage.model.setViewportRect({1, 2, 30, 40});
    QCOMPARE(stage.model.sceneRect(), QRectF(1, 2, 30, 40));
}

void TestScenePresentationModel::keepsNoSingleImageOfSeveralTiles()
{
    Stage stage;
    QCOMPARE(stage.model.sceneImage(), stage.model.tiles().constFirst().image);
    stage.model.setViewportRect({0, 0, 9000, 10});
    QCOMPARE(stage.model.tiles().size(), 2);
    QVERIFY(stage.model.sceneImage().isNull());
}

void TestScenePresentationModel::composesOncePerInterval()
{
    Stage stage;
    stage.document.selectObject(stage.red->id());
    stage.heard.clear();
    for (double x : {1.0, 2.0, 3.0, 40.0})
        stage.document.setObjectTransform(stage.red->id(), at(x, 5.0));
    QCOMPARE(stage.heard, QStringList(4, u"selection"_s));
    QCOMPARE(stage.model.selectionRect(), QRectF(40.0, 5.0, 4.0, 4.0));
    QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::red));
    QTRY_COMPARE(stage.heard.size(), 5);
    QCOMPARE(stage.heard.constLast(), u"image"_s);
    QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::white));
    QCOMPARE(stage.shown(42.0, 7.0), QColor(Qt::red));

    // A picture that is made anew for another reason carries the move along.
    stage.document.setObjectTransform(stage.red->id(), at(-6.0, -2.0));
    stage.document.setObjectOpacity(stage.green->id(), 0.5);
    QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::red));
    const quint64 revision = stage.model.revision();
    QTest::qWait(3 * ScenePresentationModel::kComposeIntervalMs);
    QCOMPARE(stage.model.revision(), revision);
}

void TestScenePresentationModel::neverDrawsContentForViewOrPlacement()
{
    Stage stage;
    QCOMPARE(stage.red->draws, 1);
    for (int i = 1; i < 5; ++i) {
        stage.model.setViewportRect(QRectF(i, i, 20, 20));
        stage.model.setRenderScale(0.5 * i);
        stage.document.setObjectTransform(stage.red->id(), at(i, i));
        stage.document.setObjectOpacity(stage.red->id(), 0.1 * i);
        QTest::qWait(ScenePresentationModel::kComposeIntervalMs);
    }
    QCOMPARE(stage.red->draws, 1);
}

void TestScenePresentationModel::leavesOutTheSuppressedLayer()
{
    Stage stage;
    stage.document.selectObject(stage.blue->id());
    stage.model.setSuppressedObjectId(stage.blue->id());
    QCOMPARE(stage.shown(0.5, 0.5), QColor(Qt::white));
    QVERIFY(!stage.model.hasSelection());
    stage.heard.clear();
    stage.document.setImageLayerSource(stage.blue->id(), RasterImageSource{test::plainPicture(2, 2, Qt::black)},
                                       at(0.0, 1.0), RasterSurfacePolicy::Fixed);
    stage.document.setLayerFilters(stage.blue->id(), {FilterInstance{}});
    QTest::qWait(3 * ScenePresentationModel::kComposeIntervalMs);
    QCOMPARE(stage.heard, QStringList());
    stage.model.setSuppressedObjectId({});
    QCOMPARE(stage.shown(0.0, 1.0), QColor(Qt::black));
    QVERIFY(stage.model.hasSelection());
}

void TestScenePresentationModel::followsTheSelection()
{
    Stage stage;
    QVERIFY(!stage.model.hasSelection());
    QVERIFY(!stage.model.selectedLayerPixelSize().isValid());
    stage.document.selectObject(stage.blue->id());
    QCOMPARE(stage.heard, QStringList{u"selection"_s});
    QVERIFY(stage.model.hasSelection());
    QCOMPARE(stage.model.selectionRect(), QRectF(0, 0, 2, 2));
    QCOMPARE(stage.model.selectedLayerPixelSize(), QSize(2, 2));
    stage.document.takeObject(stage.blue->id());
    QVERIFY(!stage.model.hasSelection());
    QCOMPARE(stage.model.selectionRect(), QRectF());
}

QTEST_GUILESS_MAIN(TestScenePresentationModel)
#include "tst_scene_presentation_model.moc"
