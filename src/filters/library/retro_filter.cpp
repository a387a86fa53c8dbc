#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class RetroFilter final : public LibraryFilter
{
public:
    RetroFilter()
        : LibraryFilter(u"retro"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double sharpening = request.percent(u"sharpen"_s, 25.0);

        LibraryUniformBlock print(u"retro"_s);
        print.setVec2("u_size"_L1, request.image.width(), request.image.height());
        print.setColor("u_tint"_L1, request.parameters.color(u"tint"_s, QColor(240, 169, 90)));
        print.setFloat("u_tintAmount"_L1, request.percent(u"tintAmount"_s, 55.0));
        print.setFloat("u_colorSpread"_L1, request.percent(u"colorSpread"_s, 65.0));
        print.setFloat("u_contrast"_L1, request.percent(u"contrast"_s, 15.0));
        print.setFloat("u_shadowLift"_L1, request.percent(u"shadowLift"_s, 45.0));
        print.setFloat("u_saturation"_L1, request.percent(u"saturation"_s, -5.0));
        print.setVec2("u_grain"_L1, request.percent(u"grain"_s, 18.0), kGrainSize * request.renderScale());
        print.setFloat("u_sharpen"_L1, sharpening);
        print.setFloat("u_seed"_L1, request.number(u"seed"_s, 1.0));
        LibraryUniformBlock sharpen(u"sharpen"_s);
        sharpen.setVec2("u_size"_L1, request.image.width(), request.image.height());
        sharpen.setFloat("u_strength"_L1, sharpening);
        sharpen.setFloat("u_radius"_L1, kSharpenRadius * request.renderScale());

        PassChain chain;
        PassChain::Picture picture = addPass(chain, print, {chain.source(request.image)});
        if (sharpening > 0.0)
            picture = addPass(chain, sharpen, {picture});
        return request.chained(chain, picture);
    }

private:
    static constexpr double kGrainSize = 1.8; ///< layer pixels
    static constexpr double kSharpenRadius = 0.8; ///< layer pixels
};

} // namespace

std::unique_ptr<Filter> makeRetroFilter()
{
    return std::make_unique<RetroFilter>();
}

} // namespace zm
