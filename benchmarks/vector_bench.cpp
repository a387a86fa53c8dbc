#include "vector_bench.h"

#include "document/document.h"
#include "generators/shape_generator_registry.h"
#include "scene/scene_renderer.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kShapes = 200;
constexpr int kTexts = 50;
constexpr QSizeF kView(1600.0, 1000.0);
constexpr int kRuns = 15;

int drawings = 0;

template<typename Base>
class Counted : public Base
{
public:
    using Base::Base;
    RenderedContent renderContent(const RenderServices *services) const override
    {
        ++drawings;
        return Base::renderContent(services);
    }
};

ObjectTransform somewhere(QRandomGenerator &random)
{
    ObjectTransform transform;
    transform.setPosition(
        {random.bounded(kView.width()) - kView.width() / 2.0, random.bounded(kView.height()) - kView.height() / 2.0});
    transform.setRotation(random.bounded(4) * 15.0);
    return transform;
}

std::unique_ptr<Layer> shape(int i, QRandomGenerator &random)
{
    const auto &generators = ShapeGeneratorRegistry::instance().generators();
    const QString id = generators[size_t(i) % generators.size()]->id();
    Fill fill = QColor::fromHsv(random.bounded(360), 200, 220);
    if (i % 3 == 0)
        fill = gradientFrom(fill, i % 2 == 0 ? GradientType::Linear : GradientType::Radial);
    return std::make_unique<Counted<ShapeLayer>>(GeneratorGeometry{id, {}},
                                                 QSizeF(80.0 + random.bounded(120.0), 80.0 + random.bounded(120.0)),
                                                 Stroke{Qt::black, 3.0}, fill, u"shape"_s);
}

std::unique_ptr<Layer> text(QRandomGenerator &random)
{
    TextRun run = defaultTextRun();
    run.font = QFont(u"DejaVu Sans"_s);
    run.font.setPixelSize(16 + random.bounded(8));
    const TextLayerState state = textStateFromPlainText(u"mixed run "_s.repeated(30), run);
    return std::make_unique<Counted<TextLayer>>(state.blocks, 400.0, u"text"_s);
}

/// The same pictures in the same places, as image layers.
void copyAsImages(const Document &from, Document &to)
{
    for (qsizetype i = 0; i < from.objectCount(); ++i) {
        const auto &layer = dynamic_cast<const Layer &>(*from.objectAt(i));
        auto image = std::make_unique<ImageLayer>(layer.renderedContent(nullptr).image.copy(), u"image"_s);
        image->setTransform(layer.transform());
        to.insertObject(std::move(image));
    }
}

double composeMilliseconds(const Document &document)
{
    const QRectF view(QPointF(-kView.width() / 2.0, -kView.height() / 2.0), kView);
    return medianMilliseconds(kRuns, [&] {
        renderSceneTiles(buildSceneSnapshot(document, {}, nullptr), view, true, 1.0, kMaximumTileSide, false);
    });
}

} // namespace

QList<BenchRow> benchVectors()
{
    QRandomGenerator random(7);
    Document vectors;
    vectors.setSize(kView);
    for (int i = 0; i < kShapes + kTexts; ++i) {
        std::unique_ptr<Layer> layer = i % 5 == 4 ? text(random) : shape(i, random);
        layer->setTransform(somewhere(random));
        vectors.insertObject(std::move(layer));
    }
    Document images;
    images.setSize(kView);
    copyAsImages(vectors, images);

    const double vectorMs = composeMilliseconds(vectors);
    const double imageMs = composeMilliseconds(images);
    QList<BenchRow> rows;
    rows.append({u"compose 200 shapes and 50 texts, cached"_s, vectorMs,
                 u"%1 x image layers; goal 1.3 x"_s.arg(vectorMs / imageMs, 0, 'f', 2)});
    rows.append({u"  floor: the same pixels as image layers"_s, imageMs, {}});

    const QUuid changed = vectors.objectAt(0)->id();
    int changes = 0;
    drawings = 0;
    const double changeMs = medianMilliseconds(kRuns, [&] {
        vectors.setShapeFill(changed, QColor::fromHsv(++changes, 255, 255));
        buildSceneSnapshot(vectors, {}, nullptr);
    });
    rows.append({u"change one fill, take the scene"_s, changeMs,
                 u"%1 of %2 contents drawn at each change; goal 1"_s.arg(double(drawings) / changes)
                     .arg(vectors.objectCount())});
    return rows;
}

} // namespace zm::bench
