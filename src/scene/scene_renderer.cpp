#include "scene/scene_renderer.h"

#include "base/pixel_limits.h"
#include "rendering/filter_utility_renderer.h"
#include "rendering/shader_texture_renderer.h"
#include "services/render_services.h"
#include "values/blend_modes.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

/// What one picture shows, and how.
struct View
{
    const SceneSnapshot &snapshot;
    /// From document units to the picture's pixels.
    QTransform toPixels;
    double scale;
    bool fixedBounds;
    bool smooth;
    bool showBounds;
};

double cleanScale(double scale)
{
    return scale >= kMinimumRenderScale ? scale : kMinimumRenderScale; // NaN, too
}

QRectF cleanRect(const SceneSnapshot &snapshot, const QRectF &rect)
{
    const QRectF normalized = rect.normalized();
    return normalized.isEmpty() ? documentRect(snapshot) : normalized;
}

void drawDocumentOutline(QPainter &painter, const View &view)
{
    QColor color = view.fixedBounds ? QColor(22, 24, 27) : QColor(124, 131, 141);
    color.setAlpha(128);
    const double width = 1.0 / view.scale;
    QPen pen(color, width, Qt::CustomDashLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setDashPattern({12.0, 8.0});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2.0;
    painter.drawRect(documentRect(view.snapshot).adjusted(-half, -half, half, half));
}

void drawItem(QPainter &painter, const SceneRenderItem &item)
{
    painter.save();
    painter.setCompositionMode(compositionMode(item.blendMode));
    painter.setOpacity(item.opacity);
    painter.setTransform(itemMatrix(item), true);
    painter.drawImage(imageRect(item), item.image);
    painter.restore();
}

/// QPainter spreads the pixels of a large picture over the processor's cores by itself, so nothing is divided here: a
/// picture painted in bands would come out otherwise by a level where a layer's soft edge crosses a border.
QImage renderPicture(const View &view, const QSize &size)
{
    QImage picture(size, QImage::Format_RGBA8888);
    if (picture.isNull())
        return {};
    picture.fill(view.fixedBounds ? QColor(Qt::transparent) : view.snapshot.backgroundColor);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, view.smooth);
    painter.setTransform(view.toPixels);
    if (view.fixedBounds) {
        painter.setClipRect(documentRect(view.snapshot), Qt::ReplaceClip);
        painter.fillRect(documentRect(view.snapshot), view.snapshot.backgroundColor);
    }
    if (view.showBounds)
        drawDocumentOutline(painter, view);
    // A pixel of room for the soft edge of an item.
    const QRectF touched = QRectF(picture.rect()).adjusted(-1.0, -1.0, 1.0, 1.0);
    for (const SceneRenderItem &item : view.snapshot.items) {
        if (view.toPixels.mapRect(itemBounds(item)).intersects(touched))
            drawItem(painter, item);
    }
    return picture;
}

} // namespace

int maxTileSize(const RenderServices *services)
{
    int side = services && services->textureRenderer ? services->textureRenderer->maximumTextureSize() : 0;
    if (side <= 0 && services && services->filterRenderer)
        side = services->filterRenderer->maximumTextureSize();
    return side > 0 ? std::min(side, kMaximumTileSide) : kMaximumTileSide;
}

QImage renderSceneTile(const SceneSnapshot &snapshot, const QRectF &rect, bool fixedBounds, double scale, bool smooth,
                       bool showBounds)
{
    const QRectF source = cleanRect(snapshot, rect);
    const double s = cleanScale(scale);
    const QTransform toPixels = QTransform::fromScale(s, s).translate(-source.left(), -source.top());
    return renderPicture({snapshot, toPixels, s, fixedBounds, smooth, showBounds}, coveringPixels(source.size() * s));
}

QList<SceneTile> renderSceneTiles(const SceneSnapshot &snapshot, const QRectF &rect, bool fixedBounds, double scale,
                                  int maxTile, bool showBounds)
{
    const QRectF source = cleanRect(snapshot, rect);
    const double s = cleanScale(scale);
    const int side = std::max(maxTile, 1);
    const bool smooth = s <= 1.0;

    // Counted in whole pixels throughout: divided and multiplied by the scale again, a side could come out one longer.
    const double firstColumn = std::floor(source.left() * s);
    const double firstRow = std::floor(source.top() * s);
    const QSize whole =
        coveringPixels({std::ceil(source.right() * s) - firstColumn, std::ceil(source.bottom() * s) - firstRow});
    const int width = whole.width();
    const int height = whole.height();
    const QPointF topLeft(firstColumn / s, firstRow / s);
    const QPointF bottomRight(std::ceil(source.right() * s) / s, std::ceil(source.bottom() * s) / s);

    QList<SceneTile> tiles;
    for (qint64 y = 0; y < height; y += side) {
        for (qint64 x = 0; x < width; x += side) {
            const QSize pixels(int(std::min<qint64>(side, width - x)), int(std::min<qint64>(side, height - y)));
            const qint64 endX = x + pixels.width();
            const qint64 endY = y + pixels.height();
            const QPointF tileTopLeft(topLeft.x() + double(x) / s, topLeft.y() + double(y) / s);
            const QPointF tileBottomRight(endX == width ? bottomRight.x() : topLeft.x() + double(endX) / s,
                                          endY == height ? bottomRight.y() : topLeft.y() + double(endY) / s);
            const QTransform toPixels =
                QTransform::fromTranslate(-firstColumn - double(x), -firstRow - double(y)).scale(s, s);
            tiles.append({QRectF(tileTopLeft, tileBottomRight), s,
                          renderPicture({snapshot, toPixels, s, fixedBounds, smooth, showBounds}, pixels)});
        }
    }
    return tiles;
}

QImage renderDocumentImage(const SceneSnapshot &snapshot, double scale)
{
    return renderSceneTile(snapshot, documentRect(snapshot), true, scale, true, false);
}

QImage renderSceneRegion(const SceneSnapshot &snapshot, const QRectF &rect, double scale)
{
    return renderSceneTile(snapshot, rect, false, scale, true, false);
}

} // namespace zm
