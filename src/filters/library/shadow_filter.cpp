#include "filters/craft/silhouette.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

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
    ShadowFilter()
        : LibraryFilter(u"shadow"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double opacity = std::clamp(request.percent(u"opacity"_s, 55.0), 0.0, 1.0);
        if (opacity <= 0.0)
            return request.unchanged();
        const bool isInner = request.choice(u"style"_s, {"drop"_L1, "inner"_L1}) == 1;
        const double angle = qDegreesToRadians(request.number(u"angle"_s, 55.0));
        const QPointF offset = request.diagonalPixels(u"distance"_s, 14.0) * QPointF(std::cos(angle), std::sin(angle));
        // What a person calls the size of a blur is about two sigmas.
        const double sigma = 0.5 * request.diagonalPixels(u"blur"_s, 24.0);

        Silhouette shadow = silhouette(request.image, sigma, request.parameters.color(u"color"_s, Qt::black), isInner);
        if (shadow.image.isNull())
            return request.unchanged();
        const QImage blurred = request.renderer->gaussianBlur(shadow.image, sigma / shadow.reduction);
        if (blurred.isNull())
            return request.unchanged();
        shadow.image = blurred;
        spreadAlpha(shadow.image, request.percent(u"spread"_s, 0.0));
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
        QRect grown = area.toAlignedRect().united(request.image.rect());
        // No side may become longer than a texture.
        const int longest = std::max({request.renderer->maximumTextureSize(), size.width(), size.height()});
        const auto limit = [longest](int length, int *before, int *after) {
            const int room = longest - length;
            *before = std::min(*before, std::max(room - std::min(*after, room / 2), 0));
            *after = std::min(*after, room - *before);
        };
        int left = -grown.left();
        int top = -grown.top();
        int right = grown.right() + 1 - size.width();
        int bottom = grown.bottom() + 1 - size.height();
        limit(size.width(), &left, &right);
        limit(size.height(), &top, &bottom);

        QImage image(size.width() + left + right, size.height() + top + bottom, QImage::Format_RGBA8888);
        if (image.isNull())
            return request.unchanged();
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.translate(left, top);
        painter.setOpacity(opacity);
        painter.drawImage(area, shadow.image);
        painter.setOpacity(1.0);
        painter.drawImage(QPoint(), request.image);
        painter.end();

        const double unitX = request.bounds.width() / size.width();
        const double unitY = request.bounds.height() / size.height();
        return {image, request.bounds.adjusted(-left * unitX, -top * unitY, right * unitX, bottom * unitY)};
    }
};

} // namespace

std::unique_ptr<Filter> makeShadowFilter()
{
    return std::make_unique<ShadowFilter>();
}

} // namespace zm
