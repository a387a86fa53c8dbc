#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class DreamyBlendFilter final : public LibraryFilter
{
public:
    DreamyBlendFilter()
        : LibraryFilter(u"dreamy-blend"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double glow = request.percent(u"glow"_s, 35.0);
        const double sharpening = request.percent(u"sharpen"_s, 25.0);
        const double diagonal = std::hypot(request.image.width(), request.image.height());

        LibraryUniformBlock energy(u"halation-highlights"_s);
        energy.setFloat("u_threshold"_L1, 0.25);
        energy.setFloat("u_softness"_L1, 0.75);
        LibraryUniformBlock bloom(u"halation"_s);
        bloom.setFloat("u_strength"_L1, 0.75 * glow);
        LibraryUniformBlock wash(u"dreamy-blend"_s);
        wash.setVec2("u_size"_L1, request.image.width(), request.image.height());
        wash.setColor("u_tint"_L1, request.parameters.color(u"tint"_s, QColor(242, 167, 195)));
        wash.setFloat("u_tintAmount"_L1, request.percent(u"tintAmount"_s, 50.0));
        wash.setFloat("u_colorSpread"_L1, request.percent(u"colorSpread"_s, 60.0));
        wash.setFloat("u_maskSize"_L1, request.percent(u"maskSize"_s, 55.0));
        wash.setFloat("u_maskFeather"_L1, request.percent(u"maskFeather"_s, 70.0));
        wash.setFloat("u_maskExpo"_L1, 1.5 * request.percent(u"maskExpo"_s, 40.0));
        wash.setFloat("u_lightness"_L1, request.percent(u"lightness"_s, 10.0));
        wash.setVec2("u_sharpen"_L1, sharpening, request.renderScale());
        LibraryUniformBlock sharpen(u"sharpen"_s);
        sharpen.setVec2("u_size"_L1, request.image.width(), request.image.height());
        sharpen.setFloat("u_strength"_L1, 0.5 * sharpening);
        sharpen.setFloat("u_radius"_L1, 0.8 * request.renderScale());

        PassChain chain;
        PassChain::Picture picture = chain.source(request.image);
        if (glow > 0.0) {
            // With nothing to subtract the glow lies on the lights too, not only beside them.
            const PassChain::Picture nothing = chain.source(blackPixel());
            const PassChain::Picture lights = addPass(chain, energy, {picture});
            picture = addPass(chain, bloom, {picture, nothing, chain.reducedBlur(lights, kGlowSize * diagonal)});
        }
        picture = addPass(chain, wash, {picture});
        if (sharpening > 0.0)
            picture = addPass(chain, sharpen, {picture});
        return request.chained(chain, picture);
    }

private:
    static constexpr double kGlowSize = 0.014; ///< sigma, as a share of the diagonal

    static QImage blackPixel()
    {
        QImage image(1, 1, QImage::Format_RGBA8888);
        image.fill(Qt::black);
        return image;
    }
};

} // namespace

std::unique_ptr<Filter> makeDreamyBlendFilter()
{
    return std::make_unique<DreamyBlendFilter>();
}

} // namespace zm
