#include "filters/craft/tone_base.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class CrystalContrastFilter final : public LibraryFilter
{
public:
    CrystalContrastFilter()
        : LibraryFilter(u"crystal-contrast"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        // Thousandths of the diagonal: wide enough for the relief of a face, too narrow to show as a glow.
        constexpr double radius = 6.0;
        const ToneBase base =
            toneBase(request, radius * std::hypot(request.size().width(), request.size().height()) / 1000.0);

        LibraryUniformBlock block(u"crystal-contrast"_s);
        block.setVec4("u_amount"_L1, request.percent(u"amount"_s, 60.0), base.pictureSize.width(),
                      base.pictureSize.height(), base.cell);
        block.setFloat("u_contrast"_L1, request.percent(u"contrast"_s, 35.0));
        block.setFloat("u_colorPop"_L1, request.percent(u"colorPop"_s, 35.0));
        block.setFloat("u_coolTone"_L1, request.percent(u"coolTone"_s, 30.0));
        return renderToneBase(request, base, block);
    }
};

} // namespace

std::unique_ptr<Filter> makeCrystalContrastFilter()
{
    return std::make_unique<CrystalContrastFilter>();
}

} // namespace zm
