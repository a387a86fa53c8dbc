#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// What the shader does, in its own numbers.
enum class Step { Sharpen, Premultiply, Divide };

// Sigma of the full blur: blurs are wanted much wider than what sharpens. Towards 0 it falls faster than the slider,
// for fine settings of faint blurs.
constexpr double kBlurPerRadius = 8.0;

// Below 0 the slider blurs, above it sharpens.
class SharpenFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double strength = request.percent(u"strength"_s);
        const double radius = request.pixels(u"radius"_s);
        if (strength == 0.0)
            return request.unchanged();

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const auto pass = [&](PassChain::Picture picture, Step step) {
            LibraryUniformBlock block(u"sharpen"_s);
            block.setSize("u_size"_L1, request.size());
            block.setFloat("u_strength"_L1, std::max(strength, 0.0));
            block.setFloat("u_step"_L1, double(step));
            block.setFloat("u_radius"_L1, radius);
            return addPass(chain, block, {picture});
        };
        if (strength > 0.0)
            return request.chained(chain, pass(input, Step::Sharpen));

        // Colours are weighted by their alpha, or the surroundings of a cut-out would show in its edges.
        const PassChain::Picture blurred =
            chain.gaussianBlur(pass(input, Step::Premultiply), std::pow(-strength, 1.5) * kBlurPerRadius * radius);
        return request.chained(chain, pass(blurred, Step::Divide));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Sharpen, SharpenFilter, u"sharpen"_s)

} // namespace zm
