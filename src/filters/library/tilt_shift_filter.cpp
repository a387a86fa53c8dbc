#include "filters/craft/lens_blur.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A band of focus over a picture that is otherwise out of focus: full-sized scenes look like models.
class TiltShiftFilter final : public LibraryFilter
{
public:
    TiltShiftFilter()
        : LibraryFilter(u"tilt-shift"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"tilt-shift"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_focusPosition"_L1, request.percent(u"focusPosition"_s, 50.0));
        block.setFloat("u_focusWidth"_L1, request.percent(u"focusWidth"_s, 10.0));
        block.setFloat("u_angle"_L1, request.number(u"angle"_s, 0.0) * std::numbers::pi / 180.0);
        block.setFloat("u_blurStrength"_L1, request.percent(u"blurStrength"_s, 100.0));
        block.setFloat("u_colorPunch"_L1, request.percent(u"colorPunch"_s, 50.0));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const double radius = request.diagonalPixels(u"blurSize"_s, 8.0);
        const PassChain::Picture blurred = chain.source(lensBlurred(request.image, radius));
        return request.chained(chain, addPass(chain, block, {input, blurred}));
    }
};

} // namespace

std::unique_ptr<Filter> makeTiltShiftFilter()
{
    return std::make_unique<TiltShiftFilter>();
}

} // namespace zm
