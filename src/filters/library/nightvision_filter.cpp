#include "filters/craft/film_look.h"
#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class NightvisionFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {

        LibraryUniformBlock intensifier(u"nightvision-pre"_s);
        intensifier.setFloat("u_contrast"_L1, request.percent(u"contrast"_s));
        LibraryUniformBlock screen(u"nightvision-comp"_s);
        screen.setSize("u_size"_L1, request.size());
        screen.setColor("u_tint_a"_L1, QColor(2, 10, 4));
        screen.setColor("u_tint_b"_L1, request.color(u"color"_s));
        screen.setFloat("u_scanlines"_L1, request.diagonalPixels(u"lineSize"_s));
        screen.setFloat("u_vignette"_L1, request.percent(u"vignette"_s));
        screen.setFloat("u_gain"_L1, std::exp2(4.0 * request.percent(u"gain"_s) - 0.5));
        screen.setFloat("u_glow"_L1, request.percent(u"glow"_s));
        screen.setFloat("u_tint_strength"_L1, request.percent(u"tintStrength"_s));
        screen.setFloat("u_line_strength"_L1, request.percent(u"lineStrength"_s));

        PassChain chain;
        const PassChain::Picture seen = addPass(chain, intensifier, {chain.source(request.image)});
        const PassChain::Picture noise = chain.addNoise(chain.source(noiseField(request.bounds.size())),
                                                        {.amount = 0.45 * request.percent(u"noise"_s)});
        const PassChain::Picture glow = chain.reducedBlur(seen, kGlowSize * request.diagonal());
        const PassChain::Picture view = addView(chain, request);
        return request.chained(chain, addPass(chain, screen, {seen, chain.gaussianBlur(noise, 0.6), glow, view}));
    }

private:
    static constexpr double kFieldDiagonal =
        1100.0; ///< pixels of the noise and of the mask, whatever the picture's size

    static QSize fieldSize(const QSizeF &size)
    {
        return (size * (kFieldDiagonal / std::hypot(size.width(), size.height()))).toSize().expandedTo(QSize(1, 1));
    }

    static QImage noiseField(const QSizeF &size)
    {
        QImage field(fieldSize(size), QImage::Format_RGBA8888);
        field.fill(QColor(128, 128, 128));
        return field;
    }

    // What the tubes show: one circle, two that overlap, or all.
    static PassChain::Picture addView(PassChain &chain, const FilterRenderRequest &request)
    {
        const QSizeF size = request.bounds.size();
        const QSize maskSize = fieldSize(size);
        const double radius = 0.5 * std::min(size.width(), size.height());
        const QPointF center(0.5 * size.width(), 0.5 * size.height());
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        const QString view = request.text(u"view"_s);
        if (view == "full"_L1) {
            path.addRect(QRectF({}, size));
        } else if (view == "monocular"_L1) {
            path.addEllipse(center, 0.96 * radius, 0.96 * radius);
        } else {
            const bool wide = size.width() >= size.height();
            const double length = std::max(size.width(), size.height());
            const double tube = std::min(0.96 * radius, 0.36 * length);
            const double offset = std::min(0.49 * length - tube, 0.75 * tube);
            const QPointF apart = wide ? QPointF(offset, 0.0) : QPointF(0.0, offset);
            path.addEllipse(center - apart, tube, tube);
            path.addEllipse(center + apart, tube, tube);
        }
        const PassChain::Picture mask = chain.source(filledShapeMask(path, size, maskSize));
        return chain.gaussianBlur(mask, featherSigma(8.0, maskSize));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Nightvision, NightvisionFilter, u"nightvision"_s)

} // namespace zm
