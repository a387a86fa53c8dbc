#include "filters/craft/coverage.h"
#include "filters/craft/row_bands.h"
#include "filters/craft/shape_mask.h"
#include "filters/craft/silhouette.h"
#include "filters/library_filter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The blur of straight colours that pays no heed to those of transparent pixels; alpha is that of the blur.
QImage weightedBlur(FilterUtilityRenderer &renderer, const QImage &image, double sigma, const ColorAdjustment &tone)
{
    QImage weighted = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    weighted.reinterpretAsFormat(QImage::Format_RGBA8888);
    PassChain blur;
    QImage blurred = renderer.renderChain(blur, blur.gaussianBlur(blur.source(weighted), sigma));
    if (blurred.isNull())
        return {};
    blurred.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    return renderer.colorAdjust(blurred.convertToFormat(QImage::Format_RGBA8888), tone);
}

/// Colours of `outside` where the mask is 0, of `image` where it is 255, or the other way round; alpha of `image`.
void mixIn(QImage &outside, const QImage &image, const QImage &mask, bool inverted)
{
    const int flip = inverted ? 255 : 0;
    uchar *pixels = outside.bits();
    const auto mixRow = [&](int y) {
        uchar *target = pixels + y * outside.bytesPerLine();
        const uchar *sharp = image.constScanLine(y);
        const uchar *coverage = mask.constScanLine(y) + 3;
        for (int x = 0; x < image.width(); ++x, target += 4, sharp += 4, coverage += 4) {
            const int inside = *coverage ^ flip;
            if (inside == 255) { // as most are
                std::copy_n(sharp, 4, target);
                continue;
            }
            if (inside == 0) {
                target[3] = sharp[3];
                continue;
            }
            for (int c = 0; c < 3; ++c)
                target[c] = uchar((target[c] * (255 - inside) + sharp[c] * inside + 127) / 255);
            target[3] = sharp[3];
        }
    };
    forRowBands(image.height(), [&](int first, int count) {
        for (int y = first; y < first + count; ++y)
            mixRow(y);
    });
}

// Within a shape the picture stays as it is; around it it is out of focus and toned down, as if the shape lay on it
// like a print.
class FocusFrameFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSizeF box = request.bounds.size();
        const bool inverted = request.flag(u"mask.inverted"_s);
        const QPainterPath path =
            shapeMaskPath(request.text(u"mask"_s), {}, request.maskTransform(u"mask.transform"_s), box);
        const QImage shape = filledShapeMask(path, box, request.size());
        QImage result = surroundings(request);
        if (result.isNull() || shape.isNull())
            return request.unchanged();

        if (const double strength = std::clamp(request.percent(u"shadow"_s), 0.0, 1.0); strength > 0.0)
            castShadow(request, shape, inverted, strength, result);
        const QImage mask =
            request.renderer->gaussianBlur(shape, featherSigma(request.number(u"mask.feather"_s), request.size()));
        if (mask.isNull())
            return request.unchanged();
        mixIn(result, request.image, mask, inverted);

        if (const double line = request.diagonalPixels(u"lineWidth"_s); line > 0.0) {
            QPainter painter(&result);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
            const QTransform toPixels =
                QTransform::fromScale(result.width() / box.width(), result.height() / box.height());
            painter.strokePath(toPixels.map(path),
                               QPen(request.color(u"lineColor"_s), line, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
        }
        return request.result(result);
    }

private:
    /// The picture blurred and toned down.
    static QImage surroundings(const FilterRenderRequest &request)
    {
        const double sigma = 0.5 * request.diagonalPixels(u"blur"_s);
        ColorAdjustment tone;
        tone.exposure = -0.6 * request.percent(u"darken"_s);
        tone.saturation = -request.percent(u"desaturate"_s);
        if (hasTransparency(request.image))
            return weightedBlur(*request.renderer, request.image, sigma, tone);
        PassChain chain;
        // Toned at the reduced size, and enlarged with linear filtering.
        const PassChain::Picture toned = chain.colorAdjust(chain.reducedBlur(chain.source(request.image), sigma), tone);
        return request.renderer->renderChain(chain, chain.shader(u"textureCopy"_s, request.size(), {toned}));
    }

    /// Darkens around the shape, or within it when the sharp part is outside. Alpha stays.
    static void castShadow(const FilterRenderRequest &request, const QImage &shape, bool inverted, double strength,
                           QImage &result)
    {
        const double diagonal = std::hypot(result.width(), result.height());
        Silhouette shadow = silhouette(shape, 0.012 * diagonal, Qt::black, inverted);
        shadow.image = request.renderer->gaussianBlur(shadow.image, 0.012 * diagonal / shadow.reduction);
        uchar *pixels = result.bits();
        forRowBands(result.height(), [&](int first, int count) {
            QImage band(pixels + first * result.bytesPerLine(), result.width(), count, result.bytesPerLine(),
                        result.format());
            QPainter painter(&band);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
            painter.setOpacity(strength);
            painter.drawImage(shadow.area().translated(0.0, 0.004 * diagonal - first), shadow.image);
        });
    }
};

} // namespace

ZM_LIBRARY_EFFECT(FocusFrame, FocusFrameFilter, u"focus-frame"_s)

} // namespace zm
