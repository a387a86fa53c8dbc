#include "scene_bench.h"

#include "document/document.h"
#include "pictures.h"
#include "scene/scene_presentation_model.h"
#include "values/blend_modes.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr QSize kView(1600, 1000);
constexpr int kRuns = 15;

/// An image layer that counts how often its content is drawn.
class CountedLayer : public ImageLayer
{
public:
    using ImageLayer::ImageLayer;
    RenderedContent renderContent(const RenderServices *services) const override
    {
        ++draws;
        return ImageLayer::renderContent(services);
    }
    mutable int draws = 0;
};

/// Layers of this size, centred on the document, in the first modes of the blend menu.
SceneSnapshot stack(const QSize &size, int count)
{
    SceneSnapshot scene{QSizeF(size), Qt::white, {}};
    ObjectTransform centred;
    centred.setPosition({-size.width() / 2.0, -size.height() / 2.0});
    for (int i = 0; i < count; ++i) {
        const QImage image = photograph(size, quint32(i));
        scene.items.append({QUuid::createUuid(), centred, 1.0, QString(blendModes()[i].key), image, QSizeF(size),
                            QPointF(), QSizeF(size)});
    }
    return scene;
}

QRectF viewAt(double scale, const QPointF &center = {})
{
    QRectF rect(QPointF(), QSizeF(kView) / scale);
    rect.moveCenter(center);
    return rect;
}

/// What cannot be saved: a new tile, and one drawImage for each layer.
double bareDrawMilliseconds(const SceneSnapshot &scene, double scale)
{
    return medianMilliseconds(kRuns, [&] {
        QImage tile(kView, QImage::Format_RGBA8888);
        tile.fill(Qt::white);
        QPainter painter(&tile);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.translate(kView.width() / 2.0, kView.height() / 2.0);
        painter.scale(scale, scale);
        for (const SceneRenderItem &item : scene.items) {
            painter.setCompositionMode(compositionMode(item.blendMode));
            painter.drawImage(itemBounds(item), item.image);
        }
    });
}

void composeRows(QList<BenchRow> &rows, const QString &name, const SceneSnapshot &scene, double scale, double goalMs)
{
    const double ms = medianMilliseconds(
        kRuns, [&] { renderSceneTiles(scene, viewAt(scale), false, scale, kMaximumTileSide, false); });
    const double floor = bareDrawMilliseconds(scene, scale);
    const double megapixels = double(kView.width()) * kView.height() * double(scene.items.size()) / 1e6;
    rows.append({name, ms,
                 u"%1 MP/s of layers, %2 x bare drawImage; goal %3 ms"_s.arg(megapixels / ms * 1e3, 0, 'f', 0)
                     .arg(ms / floor, 0, 'f', 2)
                     .arg(goalMs)});
    rows.append({u"  floor: bare drawImage"_s, floor, {}});
}

void viewRows(QList<BenchRow> &rows)
{
    Document document;
    document.setSize({6000.0, 4000.0});
    auto owned = std::make_unique<CountedLayer>(photograph({6000, 4000}), u"photograph"_s);
    const CountedLayer *layer = owned.get();
    ObjectTransform centred;
    centred.setPosition({-3000.0, -2000.0});
    owned->setTransform(centred);
    owned->setFilters({FilterInstance{QUuid::createUuid(), u"unknown"_s, {}, true, false}});
    document.insertObject(std::move(owned));
    ScenePresentationModel model(&document);
    double zoom = 0.25;
    model.setView(viewAt(zoom), zoom);

    const int drawsBefore = layer->draws;
    const qint64 pixelsBefore = model.snapshot().items.constFirst().image.cacheKey();
    const auto append = [&](const QString &name, double ms) {
        const bool same = model.snapshot().items.constFirst().image.cacheKey() == pixelsBefore;
        rows.append({name, ms,
                     u"content drawn %1 times, filtered picture %2"_s.arg(layer->draws - drawsBefore)
                         .arg(same ? u"kept"_s : u"MADE ANEW"_s)});
    };
    double x = 0.0;
    append(u"pan step, 24 MP layer"_s,
           medianMilliseconds(kRuns, [&] { model.setViewportRect(viewAt(zoom, {x += 4.0, 0.0})); }));
    // A step of the wheel moves both, and each composes.
    append(u"zoom step, 24 MP layer"_s, medianMilliseconds(kRuns, [&] {
               zoom = zoom > 0.3 ? 0.25 : zoom * 1.1;
               model.setView(viewAt(zoom), zoom);
           }));
}

} // namespace

QList<BenchRow> benchScene()
{
    QList<BenchRow> rows;
    composeRows(rows, u"compose one 24 MP layer at 0.25"_s, stack({6000, 4000}, 1), 0.25, 12.0);
    SceneSnapshot ten = stack({4000, 3000}, 10);
    composeRows(rows, u"compose ten 12 MP layers at 0.4, ten modes"_s, ten, 0.4, 60.0);
    for (SceneRenderItem &item : ten.items)
        item.blendMode = defaultBlendMode();
    rows.append({u"  floor: the ten resampled, all normal"_s, bareDrawMilliseconds(ten, 0.4), {}});
    QImage tile(kView, QImage::Format_RGBA8888);
    rows.append({u"  floor: fill a ready tile"_s, medianMilliseconds(kRuns, [&] { tile.fill(Qt::red); }), {}});
    viewRows(rows);
    return rows;
}

} // namespace zm::bench
