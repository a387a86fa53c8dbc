#include "filters/craft/tone_base.h"
#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Compresses the broad tones and keeps what is finer.
class HDRPhotoFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const ToneBase base = toneBase(request, request.diagonalPixels(u"radius"_s));
        LibraryUniformBlock block = toneBaseBlock(base, ToneBaseStage::Use);
        block.setFloat("u_amount"_L1, request.percent(u"amount"_s));
        block.setFloat("u_detail"_L1, request.percent(u"detail"_s));
        block.setFloat("u_color"_L1, request.percent(u"color"_s));
        return renderToneBase(request, base, block);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(HDRPhoto, HDRPhotoFilter, u"hdr-photo"_s)

} // namespace zm
