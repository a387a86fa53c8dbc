#include "document/document.h"
#include "scene/scene_presentation_model.h"
#include "support/pictures.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

ObjectTransform at(double x, double y)
{
    ObjectTransform transform;
    transform.setPosition({x, y});
    return transform;
}

/// A square of one colour, 4 units wide, that counts how often its content is drawn.
struct CountingLayer : Layer
{
    CountingLayer(const QColor &color, double x)
        : Layer(u"counting"_s)
        , picture(test::plainPicture(4, 4, color))
    {
        setTransform(at(x, -2.0));
    }
    LayerType layerType() const override { return LayerType::Image; }
    RenderedContent renderContent(const RenderServices *) const override
    {
        ++draws;
        return {picture, QSizeF(picture.size())};
    }
    QImage picture;
    mutable int draws = 0;
};

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
        const QList<std::pair<void (Model::*)(), QString>> signalNames{
            {&Model::documentSizeChanged, u"size"_s},     {&Model::sceneRectChanged, u"sceneRect"_s},
            {&Model::viewportRectChanged, u"viewport"_s}, {&Model::minimumSceneSizeChanged, u"minimum"_s},
            {&Model::renderScaleChanged, u"scale"_s},     {&Model::fixedDocumentBoundsChanged, u"fixed"_s},
            {&Model::selectionChanged, u"selection"_s},   {&Model::documentBoundsVisibleChanged, u"outline"_s},
            {&Model::sceneImageChanged, u"image"_s},      {&Model::suppressedObjectIdChanged, u"suppressed"_s}};
        for (const auto &[signal, name] : signalNames)
            QObject::connect(&model, signal, &model, [this, name = name] { heard += name; });
    }

    QColor shown(double x, double y) const
    {
        return model.sceneImage().pixelColor((QPointF(x, y) - model.sceneRect().topLeft()).toPoint());
    }

    void setPixels(const QImage &image, const ObjectTransform &transform)
    {
        document.setImageLayerSource(blue->id(), RasterImageSource{image}, transform, RasterSurfacePolicy::Fixed);
    }

    template<typename Object, typename... Arguments>
    Object *add(Arguments &&...arguments)
    {
        return static_cast<Object *>(document.insertObject(std::make_unique<Object>(arguments...)));
    }
};

} // namespace

class TestScenePresentationModel : public QObject
{
    Q_OBJECT

private slots:
    void rendersThenSignals()
    {
        const std::pair<QString, void (*)(Stage &)> rows[] = {
            {u"sceneRect image size"_s, [](Stage &s) { s.document.setSize({8, 8}); }},
            {u"image"_s, [](Stage &s) { s.document.setBackgroundColor(Qt::cyan); }},
            {u"image"_s, [](Stage &s) { s.document.insertObject(std::make_unique<SceneObject>(u"new"_s)); }},
            {u"image"_s, [](Stage &s) { s.document.takeObject(s.red->id()); }},
            {u"image"_s, [](Stage &s) { s.document.moveObject(s.red->id(), 1); }},
            {u"image"_s, [](Stage &s) { s.document.setObjectVisible(s.red->id(), false); }},
            {u"image"_s, [](Stage &s) { s.document.setObjectOpacity(s.red->id(), 0.5); }},
            {u"image"_s, [](Stage &s) { s.document.setObjectBlendMode(s.red->id(), u"screen"_s); }},
            {u"image"_s, [](Stage &s) { s.document.setLayerFilters(s.red->id(), {FilterInstance{}}); }},
            {u"image"_s, [](Stage &s) { s.setPixels(test::gradientPicture(3, 3), s.blue->transform()); }},
            {QString(), [](Stage &s) { s.document.setObjectName(s.red->id(), u"other"_s); }},
            {u"image suppressed"_s, [](Stage &s) { s.model.setSuppressedObjectId(s.red->id()); }},
            {u"sceneRect image fixed"_s, [](Stage &s) { s.model.setFixedDocumentBounds(true); }},
            {u"image outline"_s, [](Stage &s) { s.model.setDocumentBoundsVisible(true); }},
            {u"sceneRect image minimum"_s, [](Stage &s) { s.model.setMinimumSceneSize({300, 0}); }},
            {u"image scale"_s, [](Stage &s) { s.model.setRenderScale(0.5); }},
            {u"sceneRect image viewport scale"_s, [](Stage &s) { s.model.setView(QRectF(0, 0, 5, 5), 0.5); }},
        };
        for (size_t i = 0; i < std::size(rows); ++i) {
            const auto &[expected, step] = rows[i];
            Stage stage;
            const quint64 before = stage.model.revision();
            step(stage);
            if (stage.document.objectCount() == 3)
                step(stage); // nothing new
            const QString heard = stage.heard.join(u' ');
            QVERIFY2(heard == expected, qPrintable(u"row %1: %2"_s.arg(i).arg(heard)));
            QCOMPARE(stage.model.revision() - before, quint64(expected.contains(u"image"_s)));
        }
    }

    void showsVectorLayersAnew()
    {
        Stage stage;
        const GeneratorGeometry star{u"star5"_s, {}};
        const QUuid shape = stage.add<ShapeLayer>(star, QSizeF(4, 4), Stroke(), Fill(), u"shape"_s)->id();
        const QUuid text = stage.add<TextLayer>(QList<TextParagraph>(), 0.0, u"text"_s)->id();
        const quint64 before = stage.model.revision();
        stage.document.setShapeFill(shape, QColor(Qt::red));
        stage.document.setShapeStroke(shape, Qt::blue, 1.0);
        stage.document.setShapeGeometry(shape, GeneratorGeometry{u"burst"_s, {}});
        stage.document.setTextLayerState(text, textStateFromPlainText(u"new"_s, defaultTextRun()));
        QCOMPARE(stage.model.revision() - before, 4);
    }

    void showsVisibleLayersBottomFirst()
    {
        Stage stage;
        stage.document.setObjectTransform(stage.red->id(), stage.green->transform());
        stage.document.moveObject(stage.red->id(), 2);
        QCOMPARE(stage.shown(3.0, 0.0), QColor(Qt::red));
        stage.document.setObjectVisible(stage.red->id(), false);
        QCOMPARE(stage.shown(3.0, 0.0), QColor(Qt::green));
        const int draws = stage.red->draws;
        QCOMPARE(buildSceneSnapshot(stage.document, {}, nullptr).items.size(), 2);
        QCOMPARE(stage.red->draws, draws);
    }

    void cleansNumbersAndChoosesTheSceneRect()
    {
        Stage stage;
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        for (const auto &[given, stored] : {std::pair(100.0, 32.0), {-3.0, 0.01}, {2.0, 2.0}, {nan, 1.0}}) {
            stage.model.setView({0, 0, 2, 2}, given);
            QCOMPARE(stage.model.renderScale(), stored);
        }
        for (const QRectF &none : {QRectF(0, 0, 0.9, 50), QRectF(0, 0, 50, 0.9), QRectF(0, nan, 5, 5)}) {
            stage.model.setViewportRect({3, 4, -2, -2});
            QCOMPARE(stage.model.viewportRect(), QRectF(1, 2, 2, 2));
            stage.model.setViewportRect(none);
            QVERIFY(stage.model.viewportRect().isEmpty());
        }
        stage.model.setMinimumSceneSize({-5.0, 7.0});
        QCOMPARE(stage.model.minimumSceneSize(), QSizeF(0.0, 7.0));
        QCOMPARE(stage.model.sceneRect(), QRectF(-72, -72, 144, 144));
        stage.model.setMinimumSceneSize({200.0, 100.0});
        QCOMPARE(stage.model.sceneRect(), QRectF(-100, -72, 200, 144));
        stage.model.setFixedDocumentBounds(true);
        QCOMPARE(stage.model.sceneRect(), QRectF(-8, -8, 16, 16));
        stage.model.setViewportRect({1, 2, 9000, 40});
        QCOMPARE(stage.model.sceneRect(), QRectF(1, 2, 9000, 40));
        QCOMPARE(stage.model.tiles().size(), 2);
        QVERIFY(stage.model.sceneImage().isNull());
    }

    void composesOncePerInterval()
    {
        Stage stage;
        stage.document.selectObject(stage.red->id());
        stage.heard.clear();
        for (double x : {1.0, 2.0, 3.0, 40.0})
            stage.document.setObjectTransform(stage.red->id(), at(x, 5.0));
        const QStringList selections(4, u"selection"_s);
        QCOMPARE(stage.heard, selections);
        QCOMPARE(stage.model.selectionRect(), QRectF(40.0, 5.0, 4.0, 4.0));
        QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::red));
        QTRY_COMPARE(stage.heard, selections + QStringList(u"image"_s));
        QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::white));
        QCOMPARE(stage.shown(42.0, 7.0), QColor(Qt::red));

        // A picture that is made anew for another reason carries the move along.
        stage.document.setObjectTransform(stage.red->id(), at(-6.0, -2.0));
        stage.document.setObjectOpacity(stage.green->id(), 0.5);
        QCOMPARE(stage.shown(-5.0, 0.0), QColor(Qt::red));
        const quint64 revision = stage.model.revision();
        QTest::qWait(3 * ScenePresentationModel::kComposeIntervalMs);
        QCOMPARE(stage.model.revision(), revision);

        // Neither placement nor opacity nor the view draws a layer's content again.
        stage.document.setObjectOpacity(stage.red->id(), 0.1);
        stage.model.setView({1, 1, 20, 20}, 0.5);
        QCOMPARE(stage.red->draws, 1);
    }

    void followsTheSelectionButLeavesOutTheSuppressedLayer()
    {
        Stage stage;
        QVERIFY(!stage.model.selectedLayerPixelSize().isValid());
        stage.document.selectObject(stage.blue->id());
        QCOMPARE(stage.heard, QStringList{u"selection"_s});
        QCOMPARE(stage.model.selectionRect(), QRectF(0, 0, 2, 2));
        QCOMPARE(stage.model.selectedLayerPixelSize(), QSize(2, 2));

        stage.model.setSuppressedObjectId(stage.blue->id());
        stage.heard.clear();
        QCOMPARE(stage.shown(0.5, 0.5), QColor(Qt::white));
        QVERIFY(!stage.model.hasSelection());
        stage.setPixels(test::plainPicture(2, 2, Qt::black), at(0.0, 1.0));
        stage.document.setLayerFilters(stage.blue->id(), {FilterInstance{}});
        QTest::qWait(3 * ScenePresentationModel::kComposeIntervalMs);
        QCOMPARE(stage.heard, QStringList());

        stage.model.setSuppressedObjectId({});
        QCOMPARE(stage.shown(0.0, 1.0), QColor(Qt::black));
        QVERIFY(stage.model.hasSelection());
        stage.document.takeObject(stage.blue->id());
        QVERIFY(!stage.model.hasSelection());
    }
};

QTEST_MAIN(TestScenePresentationModel)
#include "tst_scene_presentation_model.moc"
