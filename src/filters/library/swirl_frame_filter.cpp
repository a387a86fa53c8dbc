#include "filters/library_filter.h"
#include "filters/library_filters.h"
#include "filters/swirl_frame.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture stays clear in the middle and is stirred around it.
class SwirlFrameFilter final : public LibraryFilter
{
public:
    SwirlFrameFilter()
        : LibraryFilter(u"swirl-frame"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        SwirlFrameSettings settings;
        settings.swirlDegrees = request.number(u"angle"_s, 220.0);
        settings.swirlReach = request.percent(u"reach"_s, 130.0);
        settings.backgroundGamma = 1.0 + request.percent(u"brightness"_s, 0.0);
        settings.feather = request.percent(u"feather"_s, 55.0);
        settings.ovalShape = request.percent(u"roundness"_s, 60.0);
        settings.pictureScale = request.percent(u"size"_s, 100.0);
        PassChain chain;
        const PassChain::Picture picture = chain.source(request.image);
        return request.chained(chain, addSwirlFrame(chain, picture, picture, settings));
    }
};

} // namespace

std::unique_ptr<Filter> makeSwirlFrameFilter()
{
    return std::make_unique<SwirlFrameFilter>();
}

} // namespace zm
