#include "filters/craft/film_look.h"
#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class DreamyBlendFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double glow = request.percent(u"glow"_s);
        const double sharpening = request.percent(u"sharpen"_s);

        LibraryUniformBlock energy(u"halation-highlights"_s);
        energy.setFloat("u_threshold"_L1, 0.25);
        energy.setFloat("u_softness"_L1, 0.75);
        LibraryUniformBlock bloom(u"halation"_s);
        bloom.setFloat("u_strength"_L1, 0.75 * glow);
        LibraryUniformBlock wash(u"dreamy-blend"_s);
        wash.setSize("u_size"_L1, request.size());
        wash.setColor("u_tint"_L1, request.color(u"tint"_s));
        wash.setFloat("u_tintAmount"_L1, request.percent(u"tintAmount"_s));
        wash.setFloat("u_colorSpread"_L1, request.percent(u"colorSpread"_s));
        wash.setFloat("u_maskSize"_L1, request.percent(u"maskSize"_s));
        wash.setFloat("u_maskFeather"_L1, request.percent(u"maskFeather"_s));
        wash.setFloat("u_maskExpo"_L1, 1.5 * request.percent(u"maskExpo"_s));
        wash.setFloat("u_lightness"_L1, request.percent(u"lightness"_s));
        wash.setFloat("u_sharpen"_L1, sharpening);
        wash.setFloat("u_sharpenReach"_L1, request.renderScale());
        LibraryUniformBlock sharpen(u"sharpen"_s);
        sharpen.setSize("u_size"_L1, request.size());
        sharpen.setFloat("u_strength"_L1, 0.5 * sharpening);
        sharpen.setFloat("u_radius"_L1, kSharpenRadius * request.renderScale());

        PassChain chain;
        PassChain::Picture picture = chain.source(request.image);
        if (glow > 0.0) {
            // With nothing to subtract the glow lies on the lights too, not only beside them.
            const PassChain::Picture nothing = chain.source(blackPixel());
            const PassChain::Picture lights = addPass(chain, energy, {picture});
            picture =
                addPass(chain, bloom, {picture, nothing, chain.reducedBlur(lights, kBloomSize * request.diagonal())});
        }
        picture = addPass(chain, wash, {picture});
        if (sharpening > 0.0)
            picture = addPass(chain, sharpen, {picture});
        return request.chained(chain, picture);
    }

private:
    static constexpr double kBloomSize = 0.014; ///< sigma, as a share of the diagonal

    static QImage blackPixel()
    {
        QImage image(1, 1, QImage::Format_RGBA8888);
        image.fill(Qt::black);
        return image;
    }
};

} // namespace

ZM_LIBRARY_EFFECT(DreamyBlend, DreamyBlendFilter, u"dreamy-blend"_s)

} // namespace zm
