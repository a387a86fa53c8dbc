#include "filters/craft/recipe.h"
#include "filters/craft/shape_mask.h"
#include "filters/filter_registry.h"
#include "filters/filter_result_cache.h"
#include "filters/filter_stack.h"
#include "filters/selection_blend.h"
#include "rendering/opengl_texture_renderer.h"
#include "support/pictures.h"
#include "values/editable_path_builder.h"

#include <QPainterPath>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

FilterInstance instance(const QString &filterId, const QList<std::pair<QString, ParameterValue>> &values = {})
{
    FilterInstance result{QUuid::createUuid(), filterId, {}, true, false};
    for (const auto &[key, value] : values)
        result.parameters.set(key, value);
    return result;
}

EditablePath rectanglePath(const QRectF &rect)
{
    QPainterPath path;
    path.addRect(rect);
    return editablePath(path);
}

} // namespace

class TestFilterStack : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (m_renderer.maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
    }

    void renderScaleIsTheSmallerOne()
    {
        QCOMPARE(renderScale({500, 400}, {0, 0, 1000, 1000}), 0.4);
        QCOMPARE(renderScale({1, 1}, {0, 0, 1000, 1000}), 0.01);
        QCOMPARE(renderScale({500, 400}, {}), 1.0);
    }

    void instancesThatCannotRunAreSkipped()
    {
        FilterInstance disabled = instance(u"bevel"_s);
        disabled.enabled = false;
        const QList<FilterInstance> idle{disabled, instance(u"from-a-later-version"_s), instance(QString())};
        const FilterRenderResult result = evaluate(idle);
        QCOMPARE(result.image, m_picture);
        QCOMPARE(result.bounds, QRectF(0, 0, 40, 30));
        QVERIFY(evaluate(idle + QList{instance(u"bevel"_s)}).image != m_picture);
        // Without a GPU, and without a picture, everything passes through.
        QCOMPARE(evaluateFilterStack(m_picture, {40, 30}, {instance(u"bevel"_s)}, nullptr, {}, 1).image, m_picture);
        QVERIFY(evaluateFilterStack({}, {40, 30}, {instance(u"bevel"_s)}, &m_services, {}, 1).image.isNull());
        QVERIFY(evaluateFilterStack(m_picture, {40, 30}, {instance(u"shape-tool"_s)}, nullptr, {}, 1).image
                != m_picture);
    }

    void valuesOfTheWrongKindReadAsDefaults()
    {
        for (const QString &id : {u"bevel"_s, u"vignette"_s, u"relight"_s, u"star-mask"_s, u"fade-image"_s}) {
            FilterInstance odd = instance(id);
            for (const ParameterDefinition &control : FilterRegistry::instance().find(id)->controls())
                odd.parameters.set(parameterHead(control).id, EnabledColor{});
            QVERIFY2(evaluate({odd}).image == evaluate({instance(id)}).image, qPrintable(id));
        }
    }

    /// The room is on the sides that were asked for, and no side outgrows a texture.
    void recipesGrowOutward()
    {
        Recipe frame = RecipePass("rounded-corners").outputSize("u_size");
        QMargins wanted(3, 2, 5, 1);
        frame.growth = [&wanted](const FilterRenderRequest &) { return wanted; };
        const RecipeFilter filter(u"bevel"_s, frame);
        const auto grown = [&] { return renderFilter(filter, m_picture, {10, 10, 80, 60}, {}, &m_services, {}); };
        QCOMPARE(grown().image.size(), QSize(48, 33));
        QCOMPARE(grown().bounds, QRectF(4, 6, 96, 66));
        const int longest = m_renderer.maximumTextureSize();
        wanted = {longest, 0, longest, 0};
        QCOMPARE(grown().image.size(), QSize(longest, 30));
        QVERIFY(std::abs(grown().bounds.center().x() - 50.0) <= 2.0);
        wanted = {-4, 0, -4, 0};
        QCOMPARE(grown().image.size(), m_picture.size());
    }

    void orderMatters()
    {
        const FilterInstance cut = instance(u"shape-tool"_s);
        const FilterInstance bevel = instance(u"bevel"_s, {{u"size"_s, 10.0}});
        QVERIFY(evaluate({cut, bevel}).image != evaluate({cut}).image);
        QCOMPARE(evaluate({cut, bevel}).image, evaluateOne(bevel, evaluate({cut}).image));
    }

    /// What is placed on the layer stays there when an earlier filter has grown the picture.
    void placedValuesFollowTheLayer()
    {
        const FilterInstance shadow = instance(u"shadow"_s, {{u"distance"_s, 100.0}});
        const FilterInstance light = instance(
            u"relight"_s, {{u"baseLight"_s, 20.0}, {u"lights"_s, LightSources{LightSource{.x = 0.3, .radius = 0.3}}}});
        const FilterRenderResult grown = evaluate({shadow, light});
        QVERIFY(grown.image.width() > 40 && grown.bounds.right() > 40.0);
        const QRect layer(-qRound(grown.bounds.left()), -qRound(grown.bounds.top()), 40, 30);
        QCOMPARE_LE(maximumDifference(grown.image.copy(layer), evaluate({light}).image), 1);
    }

    void selectionLimitsScopedInstances()
    {
        FilterInstance vignette =
            instance(u"vignette"_s, {{u"mask.inverted"_s, true}, {u"strength"_s, 100.0}, {u"mask.feather"_s, 0.0}});
        const QImage whole = evaluate({vignette}).image;
        vignette.rasterSelectionScoped = true;
        QCOMPARE(evaluate({vignette}).image, whole); // no selection
        const QImage limited = evaluate({vignette}, rectanglePath({10, 10, 10, 10})).image;
        QCOMPARE(limited.pixel(15, 15), whole.pixel(15, 15));
        QCOMPARE(limited.pixel(25, 15), m_picture.pixel(25, 15));
        QVERIFY(whole.pixel(25, 15) != m_picture.pixel(25, 15));
        // A filter that is not made for it applies to the whole layer.
        FilterInstance bevel = instance(u"bevel"_s);
        const QImage raised = evaluate({bevel}).image;
        bevel.rasterSelectionScoped = true;
        QCOMPARE(evaluate({bevel}, rectanglePath({0, 0, 1, 1})).image, raised);
    }

    void selectionEdgesWeighAlpha()
    {
        const QImage before = plainPicture(2, 1, QColor(100, 40, 0, 255));
        const QImage after = plainPicture(2, 1, QColor(255, 255, 255, 0));
        // The first pixel is half covered: m = 128 of 255.
        const QImage blended = blendedInSelection(before, after, rectanglePath({0, 0, 1, 2}), {0, 0, 4, 2});
        QCOMPARE(blended.pixelColor(0, 0).red(), 100); // the transparent pixel has no say in the colour
        QVERIFY(std::abs(blended.pixelColor(0, 0).alpha() - 127) <= 1);
        QCOMPARE(blended.pixelColor(1, 0), QColor(100, 40, 0, 255));
        // Where neither has any alpha, the colours are mixed plainly.
        QImage clear = before;
        clear.setPixelColor(0, 0, QColor(100, 40, 0, 0));
        const QColor mixed =
            blendedInSelection(clear, after, rectanglePath({0, 0, 1, 2}), {0, 0, 4, 2}).pixelColor(0, 0);
        QVERIFY(std::abs(mixed.red() - 178) <= 1 && mixed.alpha() == 0);
    }

    void shapesCutAndKeepColours()
    {
        const auto cut = [&](const QList<std::pair<QString, ParameterValue>> &values) {
            return evaluate(
                       {instance(
                           u"shape-tool"_s,
                           values + QList<std::pair<QString, ParameterValue>>{{u"mask"_s, ShapeMask{u"ellipse"_s}}})})
                .image;
        };
        const QImage inside = cut({});
        QCOMPARE(inside.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(inside.pixelColor(20, 15), m_picture.pixelColor(20, 15));
        QCOMPARE(inside.constScanLine(0)[0], m_picture.constScanLine(0)[0]); // the colour stays
        const QImage outside = cut({{u"mask.inverted"_s, true}});
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x)
                QVERIFY(std::abs(inside.pixelColor(x, y).alpha() + outside.pixelColor(x, y).alpha() - 255) <= 1);
        }
        const QImage soft = cut({{u"mask.feather"_s, 60.0}});
        QVERIFY(soft.pixelColor(20, 2).alpha() > 0 && soft.pixelColor(20, 2).alpha() < 255);
        const QImage stroked = cut({{u"mask.stroke"_s, Stroke{Qt::magenta, 4.0}}});
        QCOMPARE(stroked.pixelColor(20, 0), QColor(Qt::magenta));
        QCOMPARE(evaluate({instance(u"shape-tool"_s, {{u"mask"_s, ShapeMask{u"no-such-shape"_s}}})}).image, m_picture);

        MaskTransform transform{0.25, 0.5, 0.5, 0.25, 90.0};
        const QRectF bounds = shapeMaskPath(u"ellipse"_s, {}, transform, {100, 60}).boundingRect();
        QVERIFY(QLineF(bounds.center(), {25, 30}).length() < 0.5);
        QVERIFY(std::abs(bounds.width() - 15) < 0.5 && std::abs(bounds.height() - 50) < 0.5);
        QVERIFY(shapeMaskPath(u"no-such-shape"_s, {}, transform, {100, 60}).isEmpty());
    }

    void fadesToNothing()
    {
        const QImage faded = evaluate({instance(u"fade-image"_s, {{u"softness"_s, 1.0}})}).image;
        QCOMPARE(faded.pixelColor(20, 5), m_picture.pixelColor(20, 5));
        QCOMPARE(faded.pixelColor(20, 29).alpha(), 0);
        QCOMPARE(evaluate({instance(u"fade-image"_s, {{u"strength"_s, 0.0}})}).image, m_picture);
        const QImage colored = evaluate({instance(u"fade-image"_s, {{u"fadeColor"_s, QColor(Qt::red)}})}).image;
        QCOMPARE(colored.pixelColor(20, 29), QColor(Qt::red));
    }

    void finishedResultsAreUsedAgain()
    {
        FilterResultCache cache;
        const RenderServices services{nullptr, &m_renderer, &m_renderer, &cache};
        const auto run = [&](const QList<FilterInstance> &stack, const QImage &picture) {
            return evaluateFilterStack(picture, {40, 30}, stack, &services, {}, 1).image;
        };
        QList<FilterInstance> stack{instance(u"bevel"_s), instance(u"vignette"_s), instance(u"shape-tool"_s)};
        const QImage first = run(stack, m_picture);
        QCOMPARE(first, evaluate(stack).image);
        QCOMPARE(run(stack, m_picture).cacheKey(), first.cacheKey()); // the very same picture
        for (FilterInstance &each : stack)
            each.instanceId = QUuid::createUuid();
        QCOMPARE(run(stack, m_picture).cacheKey(), first.cacheKey());

        // A change renders that instance and those after it, and the same picture as without the cache.
        stack[1].parameters.set(u"strength"_s, 90.0);
        QCOMPARE(run(stack, m_picture), evaluate(stack).image);
        QVERIFY(run(stack, m_picture) != first);
        QImage other = m_picture;
        other.setPixelColor(20, 15, Qt::red);
        QCOMPARE(run(stack, other), evaluateFilterStack(other, {40, 30}, stack, &m_services, {}, 1).image);

        // The beginning is found, also of a longer stack; the selection and the size tell stacks apart.
        FilterStackKey key{m_picture.cacheKey(), {40, 30}, {}, {instance(u"a"_s), instance(u"b"_s)}};
        for (FilterInstance &each : key.instances)
            each.instanceId = {};
        FilterResultCache small(m_picture.sizeInBytes() * 2);
        small.insert(key, {m_picture, {}});
        FilterStackKey longer = key;
        longer.instances.append(instance(u"c"_s));
        QCOMPARE(small.longestBeginning(longer).count, 2);
        longer.size = {41, 30};
        QCOMPARE(small.longestBeginning(longer).count, 0);
        // What was longest not asked for goes first.
        small.insert(longer, {m_picture, {}});
        QCOMPARE(small.longestBeginning(key).count, 2);
        FilterStackKey third = key;
        third.sourceKey = 1;
        small.insert(third, {m_picture, {}});
        QCOMPARE(small.longestBeginning(key).count, 2);
        QCOMPARE(small.longestBeginning(longer).count, 0);
        QVERIFY(small.byteCount() <= m_picture.sizeInBytes() * 2);
    }

    /// A renderer that cannot: the input is shown, and what has seen the failure is not kept.
    void failuresShowTheInput()
    {
        const FilterShaderCatalog empty({});
        OpenGLTextureRenderer broken(empty);
        FilterResultCache cache;
        const RenderServices services{nullptr, &broken, &broken, &cache};
        const QList<FilterInstance> stack{instance(u"bevel"_s), instance(u"fade-image"_s)};
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Unknown filter shader"_s));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Unknown filter shader"_s));
        QCOMPARE(evaluateFilterStack(m_picture, {40, 30}, stack, &services, {}, 1).image, m_picture);
        QCOMPARE(broken.failureCount(), 2U);
        QCOMPARE(cache.byteCount(), 0);
    }

private:
    FilterRenderResult evaluate(const QList<FilterInstance> &stack, const std::optional<EditablePath> &selection = {})
    {
        return evaluateFilterStack(m_picture, {40, 30}, stack, &m_services, selection, 1);
    }
    QImage evaluateOne(const FilterInstance &one, const QImage &picture)
    {
        return evaluateFilterStack(picture, {40, 30}, {one}, &m_services, {}, 1).image;
    }

    OpenGLTextureRenderer m_renderer;
    const RenderServices m_services{nullptr, &m_renderer, &m_renderer};
    const QImage m_picture = gradientPicture(40, 30);
};

QTEST_MAIN(TestFilterStack)
#include "tst_filter_stack.moc"
