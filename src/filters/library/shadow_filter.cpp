#include "filters/craft/growth.h"
#include "filters/craft/silhouette.h"
#include "filters/library_filter.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// At a spread of 100 the shadow keeps a fifth of its softness.
constexpr double kMaximumSpread = 0.8;

/// Lets a blurred alpha rise sooner, so that the shadow grows and hardens.
void spreadAlpha(QImage &shadow, double spread)
{
    const double exponent = 1.0 / (1.0 - kMaximumSpread * std::clamp(spread, 0.0, 1.0));
    if (exponent == 1.0)
        return;
    std::array<uchar, 256> spreadOf;
    for (int i = 0; i < 256; ++i)
        spreadOf[size_t(i)] = uchar(std::lround(255.0 * (1.0 - std::pow(1.0 - i / 255.0, exponent))));
    for (int y = 0; y < shadow.height(); ++y) {
        uchar *alpha = shadow.scanLine(y) + 3;
        for (int x = 0; x < shadow.width(); ++x)
            alpha[4 * x] = spreadOf[alpha[4 * x]];
    }
}

// A shadow of the picture's outline behind it, or within it as if the picture lay deeper.
class ShadowFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double opacity = std::clamp(request.percent(u"opacity"_s), 0.0, 1.0);
        if (opacity <= 0.0)
            return request.unchanged();
        const bool isInner = request.text(u"style"_s) == "inner"_L1;
        const double angle = request.radians(u"angle"_s);
        const QPointF offset = request.diagonalPixels(u"distance"_s) * QPointF(std::cos(angle), std::sin(angle));
        // What a person calls the size of a blur is about two sigmas.
        const double sigma = 0.5 * request.diagonalPixels(u"blur"_s);

        Silhouette shadow = silhouette(request.image, sigma, request.color(u"color"_s), isInner);
        if (shadow.image.isNull())
            return request.unchanged();
        const QImage blurred = request.renderer->gaussianBlur(shadow.image, sigma / shadow.reduction);
        if (blurred.isNull())
            return request.unchanged();
        shadow.image = blurred;
        spreadAlpha(shadow.image, request.percent(u"spread"_s));
        return isInner ? within(request, shadow, offset, opacity) : behind(request, shadow, offset, opacity);
    }

private:
    static FilterRenderResult within(const FilterRenderRequest &request, const Silhouette &shadow,
                                     const QPointF &offset, double opacity)
    {
        QImage image = request.image;
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        painter.setOpacity(opacity);
        const QRectF area = shadow.area().translated(offset);
        painter.drawImage(area, shadow.image);
        // Where the offset has moved the silhouette away from the border, it is solid.
        QPainterPath beyond;
        beyond.addRect(image.rect());
        QPainterPath covered;
        covered.addRect(area);
        painter.fillPath(beyond - covered, shadow.image.pixelColor(0, 0));
        painter.end();
        return request.result(image);
    }

    static FilterRenderResult behind(const FilterRenderRequest &request, const Silhouette &shadow,
                                     const QPointF &offset, double opacity)
    {
        const QSize size = request.size();
        const QRectF area = shadow.area().translated(offset);
        const QRect grown = area.toAlignedRect();
        const QMargins margins = affordableMargins(
            request,
            {-grown.left(), -grown.top(), grown.right() + 1 - size.width(), grown.bottom() + 1 - size.height()});

        QImage image(size.grownBy(margins), QImage::Format_RGBA8888);
        if (image.isNull())
            return request.unchanged();
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.translate(margins.left(), margins.top());
        painter.setOpacity(opacity);
        painter.drawImage(area, shadow.image);
        painter.setOpacity(1.0);
        painter.drawImage(QPoint(), request.image);
        painter.end();

        return {image, grownBounds(request, margins)};
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Shadow, ShadowFilter, u"shadow"_s)

} // namespace zm
