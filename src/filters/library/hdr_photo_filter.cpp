#include "filters/craft/tone_base.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Compresses the broad tones and keeps what is finer.
class HDRPhotoFilter final : public LibraryFilter
{
public:
    HDRPhotoFilter()
        : LibraryFilter(u"hdr-photo"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const ToneBase base = toneBase(request, request.diagonalPixels(u"radius"_s, 14.0));
        LibraryUniformBlock block = toneBaseBlock(base, ToneBaseStage::Use);
        block.setFloat("u_amount"_L1, request.percent(u"amount"_s, 70.0));
        block.setFloat("u_detail"_L1, request.percent(u"detail"_s, 50.0));
        block.setFloat("u_color"_L1, request.percent(u"color"_s, 20.0));
        return renderToneBase(request, base, block);
    }
};

} // namespace

std::unique_ptr<Filter> makeHDRPhotoFilter()
{
    return std::make_unique<HDRPhotoFilter>();
}

} // namespace zm
