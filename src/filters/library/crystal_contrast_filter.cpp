#include "filters/craft/tone_base.h"
#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class CrystalContrastFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        // Thousandths of the diagonal: wide enough for the relief of a face, too narrow to show as a glow.
        constexpr double radius = 6.0;
        const ToneBase base = toneBase(request, radius * request.diagonal() / 1000.0);

        LibraryUniformBlock block(u"crystal-contrast"_s);
        block.setFloat("u_amount"_L1, request.percent(u"amount"_s));
        block.setSize("u_size"_L1, base.pictureSize);
        block.setFloat("u_cell"_L1, base.cell);
        block.setFloat("u_contrast"_L1, request.percent(u"contrast"_s));
        block.setFloat("u_colorPop"_L1, request.percent(u"colorPop"_s));
        block.setFloat("u_coolTone"_L1, request.percent(u"coolTone"_s));
        return renderToneBase(request, base, block);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(CrystalContrast, CrystalContrastFilter, u"crystal-contrast"_s)

} // namespace zm
