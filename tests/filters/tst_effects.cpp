#include "filters/description/filter_catalog.h"
#include "filters/filter_registry.h"
#include "filters/filter_stack.h"
#include "generators/bundled_texture_loader.h"
#include "rendering/opengl_texture_renderer.h"
#include "support/pictures.h"
#include "support/textures.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

constexpr QSize kSize(320, 240);

/// A scene with what effects look for: a smooth sky with a sun that is burnt out, hard and soft edges, skin, saturated
/// colours, deep shadow with points of light, fine texture.
QImage scene(const QSize &size)
{
    QImage picture(size, QImage::Format_RGBA8888);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 320.0, size.height() / 240.0);
    painter.setPen(Qt::NoPen);
    QLinearGradient sky(0, 0, 0, 150);
    sky.setColorAt(0.0, QColor(40, 80, 160));
    sky.setColorAt(1.0, QColor(250, 190, 140));
    painter.fillRect(0, 0, 320, 150, sky);
    painter.setBrush(QColor(255, 255, 240));
    painter.drawEllipse(QPointF(230, 60), 22, 22);
    painter.setBrush(QColor(70, 60, 90));
    painter.drawPolygon(QPolygonF({{0, 150}, {60, 80}, {120, 150}}));
    painter.setBrush(QColor(40, 110, 50));
    painter.drawRect(0, 145, 320, 95);
    QRandomGenerator random(3);
    for (int i = 0; i < 1200; ++i) {
        painter.setBrush(QColor(30 + random.bounded(60), 90 + random.bounded(90), 40, 200));
        painter.drawEllipse(QPointF(random.bounded(320), 150 + random.bounded(90)), 1.5, 2.5);
    }
    painter.setBrush(QColor(225, 30, 30));
    painter.drawEllipse(QPointF(130, 110), 30, 36);
    QRadialGradient skin(205, 165, 45);
    skin.setColorAt(0.0, QColor(240, 200, 175));
    skin.setColorAt(1.0, QColor(170, 110, 90));
    painter.setBrush(skin);
    painter.drawEllipse(QPointF(210, 170), 32, 42);
    painter.setBrush(QColor(12, 12, 18));
    painter.drawRect(262, 100, 50, 120);
    for (int i = 0; i < 12; ++i) {
        painter.setBrush(QColor(255, 220, 120));
        painter.drawRect(268 + i % 3 * 14, 108 + i / 3 * 24, 7, 9);
    }
    painter.setBrush(QColor(30, 60, 230));
    painter.drawRect(20, 170, 50, 40);
    return picture;
}

/// The scene cut out: opaque inside, soft at the rim, transparent with colour beyond.
QImage cutOutScene()
{
    QImage picture = scene(kSize);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const double distance = std::hypot((x - 160.0) / 150.0, (y - 120.0) / 110.0);
            picture.scanLine(y)[x * 4 + 3] = uchar(std::clamp((1.05 - distance) * 800.0, 0.0, 255.0));
        }
    }
    return picture;
}

QImage alphaOf(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_Alpha8);
}

/// Of the colours where they can be seen, in levels of 255.
double meanDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256.0;
    const QImage first = a.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    const QImage second = b.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < a.width() * 4; ++i)
            sum += std::abs(int(first.constScanLine(y)[i]) - int(second.constScanLine(y)[i]));
    }
    return sum / (4.0 * a.width() * a.height());
}

QColor meanColor(const QImage &picture)
{
    return picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

/// Other values that a control can take: the ends of its range, every other option, something unlike its default.
QList<ParameterValue> otherValues(const ParameterDefinition &definition)
{
    const std::optional<ParameterValue> byDefault = defaultValue(definition);
    QList<ParameterValue> values;
    if (const auto *range = std::get_if<RealRangeParameter>(&definition))
        values = {range->minimum, range->maximum};
    else if (const auto *choice = std::get_if<ChoiceParameter>(&definition))
        for (const ParameterOption &option : choice->options)
            values.append(option.value);
    else if (const auto *textures = std::get_if<TexturePickerParameter>(&definition))
        for (const ParameterOption &option : textures->options)
            values.append(option.value);
    else if (const auto *flag = std::get_if<BooleanParameter>(&definition))
        values = {!flag->defaultValue};
    else if (std::holds_alternative<ColorParameter>(definition))
        values = {QColor(20, 230, 120)};
    else if (std::holds_alternative<EnabledColorParameter>(definition))
        values = {EnabledColor{true, QColor(20, 230, 120)}};
    else if (std::holds_alternative<StrokeParameter>(definition))
        values = {Stroke{QColor(20, 230, 120), 7.0}};
    else if (std::holds_alternative<GradientPositionParameter>(definition))
        values = {GradientPosition{0.15, 0.3, 0.6, 0.45}};
    else if (std::holds_alternative<MaskTransformParameter>(definition))
        values = {MaskTransform{0.4, 0.6, 0.5, 0.4, 30.0}};
    else if (std::holds_alternative<ShapeParameter>(definition))
        values = {ShapeMask{u"star"_s}};
    else if (std::holds_alternative<LightSourcesParameter>(definition))
        values = {LightSources{LightSource{QUuid::createUuid(), 0.7, 0.6}}};
    values.removeIf([&](const ParameterValue &value) { return byDefault == value; });
    return values;
}

/// What has to be set before some controls can show their work.
ParameterValues prerequisites(const QString &effect, const QString &control)
{
    struct Row
    {
        QLatin1StringView effect;
        QLatin1StringView control;
        QLatin1StringView key;
        ParameterValue value;
    };
    static const QList<Row> rows = {
        {"grayscale"_L1, "thresholdPoint"_L1, "thresholdAmount"_L1, 100.0},
        {"grayscale"_L1, "thresholdSoftness"_L1, "thresholdAmount"_L1, 100.0},
        {"low-poly-effect"_L1, "edgeColor"_L1, "edgeWidth"_L1, 3.0},
    };
    ParameterValues values;
    for (const Row &row : rows) {
        if (row.effect == effect && row.control == control)
            values.set(row.key, row.value);
    }
    return values;
}

} // namespace

/// What holds for every effect, whatever it draws.
class TestEffects : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (m_renderer.maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
    }

    void cleanup() { QCOMPARE(m_renderer.failureCount(), 0U); }

    void descriptionsAreWhole_data() { addEffects(); }
    void descriptionsAreWhole()
    {
        const Filter &filter = effect();
        QVERIFY(!filter.label().isEmpty());
        QVERIFY(filter.pickerKeywords().size() >= 3);
        const auto groups = FilterCatalog::imageGroups() + FilterCatalog::textGroups();
        QVERIFY(std::any_of(groups.begin(), groups.end(),
                            [&](const FilterCategoryGroup &group) { return group.filterIds.contains(filter.id()); }));
        QStringList keys;
        const QList<ParameterDefinition> controls = filter.controls();
        for (const ParameterDefinition &control : controls) {
            const ParameterHead &head = parameterHead(control);
            QVERIFY2(!head.label.isEmpty(), qPrintable(head.id));
            QVERIFY2(!keys.contains(head.id), qPrintable(head.id));
            keys.append(head.id);
            if (const auto *range = std::get_if<RealRangeParameter>(&control))
                QVERIFY2(range->minimum < range->maximum && range->maximum < 1000000.0, qPrintable(head.id));
            if (const auto *choice = std::get_if<ChoiceParameter>(&control))
                QVERIFY2(choice->options.size() > 1, qPrintable(head.id));
        }
    }

    void changesThePicture_data() { addEffects(); }
    void changesThePicture()
    {
        const QString id = effect().id();
        const FilterRenderResult first = rendered(id, {}, m_scene);
        QCOMPARE(rendered(id, {}, m_scene).image, first.image);
        if (id == "color-adjust"_L1) // comes neutral, to be set
            QCOMPARE_LE(maximumDifference(first.image, m_scene), 1);
        else
            QVERIFY(first.image != m_scene);
        const QSizeF bounds = first.bounds.size();
        QVERIFY(std::abs(bounds.width() / bounds.height() * first.image.height() / first.image.width() - 1.0) < 0.02);
        if (!effect().flags().testFlag(FilterFlag::ExtendsBeyondBounds))
            QCOMPARE(first.image.size(), kSize);
    }

    void keepsAlpha_data() { addEffects(); }
    void keepsAlpha()
    {
        // Blocks of a cut-out picture take the mean of its alpha.
        if (!effect().flags().testFlag(FilterFlag::SupportsRasterSelection) || effect().id() == "pixelate"_L1)
            return;
        const QImage picture = cutOutScene();
        QCOMPARE(alphaOf(rendered(effect().id(), {}, picture).image), alphaOf(picture));
    }

    void everyControlMatters_data() { addEffects(); }
    void everyControlMatters()
    {
        const QString id = effect().id();
        const QList<ParameterDefinition> controls = effect().controls();
        // Their finest strokes and lines differ only where there are pixels for them.
        const bool needsPixels = id == "painting"_L1 || id == "blueprint"_L1;
        const QImage picture = needsPixels ? scene(kSize * 2) : m_scene;
        for (const ParameterDefinition &control : controls) {
            const QString key = parameterHead(control).id;
            const ParameterValues before = prerequisites(id, key);
            const QImage usual = rendered(id, before, picture).image;
            const QList<ParameterValue> values = otherValues(control);
            for (qsizetype i = 0; i < values.size(); ++i) {
                ParameterValues changed = before;
                changed.set(key, values[i]);
                const QImage other = rendered(id, changed, picture).image;
                QVERIFY2(other != usual, qPrintable(u"%1, other value %2"_s.arg(key).arg(i)));
                if (key == "seed"_L1)
                    QVERIFY2(isSameColor(meanColor(other), meanColor(usual)), "the seed changes the colours");
            }
        }
    }

    /// A preview is the picture scaled down.
    void looksAlikeAtEveryScale_data() { addEffects(); }
    void looksAlikeAtEveryScale()
    {
        const QSize large = kSize * 3;
        const QImage full = scene(large);
        const QImage half = full.scaled(large / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                .convertToFormat(QImage::Format_RGBA8888);
        const FilterRenderResult fromFull = rendered(effect().id(), {}, full, large);
        const FilterRenderResult fromHalf = rendered(effect().id(), {}, half, large);
        QCOMPARE_LE(std::abs(fromFull.bounds.width() - fromHalf.bounds.width()), 4.0);
        const auto small = [](const QImage &picture) {
            return picture.scaled(kSize / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        const double difference = meanDifference(small(fromFull.image), small(fromHalf.image));
        // Dots and threads that a pixel can hardly hold differ in grain, by a few levels.
        QVERIFY2(difference < 8.0, qPrintable(QString::number(difference)));
    }

    void survivesOddPictures_data() { addEffects(); }
    void survivesOddPictures()
    {
        const QString id = effect().id();
        const int longest = m_renderer.maximumTextureSize();
        for (const QSize size : {QSize(1, 1), QSize(2, 2), QSize(1, 5000), QSize(longest, 1)}) {
            const bool grows = effect().flags().testFlag(FilterFlag::ExtendsBeyondBounds);
            if (grows && size.width() == longest)
                continue;
            const QImage result =
                rendered(id, {}, plainPicture(size.width(), size.height(), QColor(200, 120, 60)), size).image;
            QVERIFY(grows ? !result.isNull() : result.size() == size);
        }
        QImage nothing(kSize, QImage::Format_RGBA8888);
        nothing.fill(Qt::transparent);
        const QImage result = rendered(id, {}, nothing).image;
        if (effect().flags().testFlag(FilterFlag::SupportsRasterSelection))
            QCOMPARE(alphaOf(result), alphaOf(nothing));
        QVERIFY(!result.isNull());
    }

private:
    static void addEffects()
    {
        QTest::addColumn<QString>("id");
        for (const auto &filter : FilterRegistry::instance().filters())
            QTest::addRow("%s", qPrintable(filter->id())) << filter->id();
    }

    static const Filter &effect()
    {
        QFETCH(QString, id);
        return *FilterRegistry::instance().find(id);
    }

    static bool isSameColor(const QColor &a, const QColor &b)
    {
        constexpr int tolerance = 10;
        return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
            && std::abs(a.blue() - b.blue()) <= tolerance;
    }

    FilterRenderResult rendered(const QString &id, const ParameterValues &parameters, const QImage &picture,
                                const QSizeF &size = {})
    {
        const QSizeF logical = size.isEmpty() ? QSizeF(picture.size()) : size;
        return evaluateFilterStack(picture, logical, {{{}, id, parameters, true, false}}, &m_services, {}, 1);
    }

    BundledTextureLoader m_textures{{textureFolder()}, {}};
    OpenGLTextureRenderer m_renderer;
    const RenderServices m_services{&m_textures, &m_renderer, &m_renderer};
    const QImage m_scene = scene(kSize);
};

QTEST_MAIN(TestEffects)
#include "tst_effects.moc"
