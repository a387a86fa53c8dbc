#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Each pass joins ten places of the picture, and later passes join what earlier ones have smeared. What a pass smears
// is 2.5 times as long as the next one's steps: near the sharp disc, where trails are shorter, it still bridges them.
constexpr double kPassLengths[] = {1.0 / 16.0, 1.0 / 4.0, 1.0}; // of the whole

// What a zoom turned during the exposure gives: all runs out from a centre that stays sharp.
class ZoomTrailsFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double amount = request.percent(u"amount"_s);
        const double length = request.percent(u"length"_s);
        if (amount <= 0.0 || length <= 0.0)
            return request.unchanged();
        const QLineF focus = request.line(u"center"_s);

        PassChain chain;
        PassChain::Picture picture = chain.source(request.image);
        for (const double share : kPassLengths) {
            const bool isLast = share == 1.0;
            LibraryUniformBlock block(u"zoom-trails"_s);
            block.setSize("u_size"_L1, request.size());
            block.setVec2("u_center"_L1, focus.x1(), focus.y1());
            block.setFloat("u_focusRadius"_L1, focus.length());
            block.setFloat("u_length"_L1, 1.0 - std::pow(1.0 - length, share));
            block.setFloat("u_amount"_L1, amount);
            block.setFloat("u_focusSoftness"_L1, request.percent(u"focusSoftness"_s));
            block.setFloat("u_glow"_L1, isLast ? request.percent(u"glow"_s) : 0.0);
            block.setFloat("u_colorSplit"_L1, isLast ? request.percent(u"colorSplit"_s) : 0.0);
            picture = addPass(chain, block, {picture});
        }
        return request.chained(chain, picture);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(ZoomTrails, ZoomTrailsFilter, u"zoom-trails"_s)

} // namespace zm
