#include "filters/craft/growth.h"
#include "filters/craft/silhouette.h"
#include "filters/library_filter.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// Softness of the shadow under each copy, in thousandths of the diagonal.
constexpr double kShadowSigma = 9.0;
constexpr double kShadowDistance = 0.35; // of that
/// A grown picture has at most this many times the pixels of the one that came.
constexpr double kMaximumGrowth = 6.0;

bool isOpaque(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const uchar *alpha = image.constScanLine(y) + 3;
        for (int x = 0; x < image.width(); ++x) {
            if (alpha[4 * x] != 255)
                return false;
        }
    }
    return true;
}

// Copies of the picture lie behind it like a stack of cards that someone has turned: each larger, further turned and
// fainter than the one before it.
class SwirlStackFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSizeF size = request.size();
        const int copies = std::clamp(int(std::lround(request.number(u"copies"_s))), 1, kMaximumCopies);
        const QList<QTransform> places = placesOf(request, size, copies);
        const double scale = std::clamp(request.percent(u"size"_s), 0.01, 1.0);
        if (request.text(u"placement"_s) != "beyond"_L1)
            return painted(request, places, request.size(), scale, 1.0);

        // Grown evenly on all sides, so that the picture stays where it is.
        QRectF all(QPointF(), size / scale);
        all.moveCenter({0.5 * size.width(), 0.5 * size.height()});
        for (const QTransform &place : places)
            all |= place.mapRect(QRectF(QPointF(), size));
        const QSizeF reach(2.0 * std::max(-all.left(), all.right() - size.width()) + size.width(),
                           2.0 * std::max(-all.top(), all.bottom() - size.height()) + size.height());
        const double longest = longestGrownSide(request);
        const double growth = reach.width() * reach.height() / (size.width() * size.height());
        // Pixels of the result for one of the picture.
        const double resolution = std::min({1.0, longest / (scale * reach.width()), longest / (scale * reach.height()),
                                            std::sqrt(kMaximumGrowth / growth) / scale});
        const QSize target = (scale * resolution * reach).toSize().expandedTo(QSize(1, 1));
        return painted(request, places, target, scale * resolution, resolution);
    }

private:
    static constexpr int kMaximumCopies = 30;

    /// From the farthest to the nearest: how each copy lies behind the picture, in pixels of the picture.
    static QList<QTransform> placesOf(const FilterRenderRequest &request, const QSizeF &size, int copies)
    {
        const double twist = request.number(u"angle"_s);
        const double growth = std::max(request.percent(u"growth"_s), 0.01);
        const double drift = request.diagonalPixels(u"drift"_s);
        const QPointF centre(0.5 * size.width(), 0.5 * size.height());
        QList<QTransform> places;
        for (int i = copies; i > 0; --i) {
            const double way = double(i) / copies;
            const double turn = twist * way;
            QTransform place;
            place.translate(centre.x(), centre.y());
            place.rotate(turn);
            // The drift turns along, which makes a spiral of it.
            place.translate(drift * way, 0.0);
            place.scale(std::pow(growth, way), std::pow(growth, way));
            place.translate(-centre.x(), -centre.y());
            places.append(place);
        }
        return places;
    }

    /// `scale` is that of the picture in the target, which has `resolution` pixels for one of the layer.
    static FilterRenderResult painted(const FilterRenderRequest &request, const QList<QTransform> &places,
                                      const QSize &target, double scale, double resolution)
    {
        const QSizeF size = request.size();
        QImage result(target, QImage::Format_RGBA8888);
        // Reduced once and well, since the painter's own reduction would let fine detail flicker.
        const QSize frontSize = (scale * size).toSize().expandedTo(QSize(1, 1));
        const QImage front = frontSize == request.size()
            ? request.image
            : request.image.scaled(frontSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                  .convertToFormat(QImage::Format_RGBA8888);
        if (result.isNull() || front.isNull())
            return request.unchanged();
        result.fill(Qt::transparent);

        const double shadowStrength = std::clamp(request.percent(u"shadow"_s), 0.0, 1.0);
        const double sigma = kShadowSigma / 1000.0 * std::hypot(front.width(), front.height());
        Silhouette shadow;
        if (shadowStrength > 0.0) {
            shadow = silhouette(front, sigma, Qt::black);
            shadow.image = request.renderer->gaussianBlur(shadow.image, sigma / shadow.reduction);
        }

        const QTransform toTarget = QTransform::fromScale(front.width() / size.width(), front.height() / size.height())
            * QTransform::fromTranslate(0.5 * (target.width() - front.width()),
                                        0.5 * (target.height() - front.height()));
        const QTransform toPicture =
            QTransform::fromScale(size.width() / front.width(), size.height() / front.height());
        const QPointF drop = kShadowDistance * sigma * QPointF(1.0, 1.6);
        const double lastOpacity = 1.0 - std::clamp(request.percent(u"fade"_s), 0.0, 1.0);

        QPainter painter(&result);
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
        const auto drawCopy = [&](const QTransform &place, double opacity) {
            if (!shadow.image.isNull()) {
                painter.setTransform(toPicture * place * toTarget * QTransform::fromTranslate(drop.x(), drop.y()));
                painter.setOpacity(opacity * shadowStrength);
                painter.drawImage(shadow.area(), shadow.image);
            }
            painter.setTransform(toPicture * place * toTarget);
            painter.setOpacity(opacity);
            painter.drawImage(QPoint(), front);
        };
        if (isOpaque(front)) {
            // What the picture will cover need not be painted.
            const QRect covered = toTarget.mapRect(QRectF(QPointF(), size)).toAlignedRect().adjusted(3, 3, -3, -3);
            painter.setClipRegion(QRegion(result.rect()) - QRegion(covered));
        }
        for (qsizetype i = 0; i < places.size(); ++i) {
            const double way = 1.0 - double(i) / double(places.size());
            drawCopy(places[i], 1.0 + (lastOpacity - 1.0) * way);
        }
        painter.setClipping(false);
        drawCopy({}, 1.0);
        painter.end();

        const double unitX = request.bounds.width() / (size.width() * resolution);
        const double unitY = request.bounds.height() / (size.height() * resolution);
        const QSizeF covered(target.width() * unitX, target.height() * unitY);
        const QPointF centre = request.bounds.center();
        return {result, {centre - QPointF(0.5 * covered.width(), 0.5 * covered.height()), covered}};
    }
};

} // namespace

ZM_LIBRARY_EFFECT(SwirlStack, SwirlStackFilter, u"swirl"_s)

} // namespace zm
