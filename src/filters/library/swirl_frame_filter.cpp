#include "filters/craft/swirl_frame.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The background, in thousandths of the diagonal: fine detail would stand beside itself where it is smeared.
constexpr double kSoftening = 1.2;
constexpr double kLeastSoftening = 2.5; ///< pixels, of a picture that can be halved

// The picture stays clear in the middle and is stirred around it.
class SwirlFrameFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        SwirlFrameSettings settings;
        settings.swirlDegrees = request.number(u"angle"_s);
        settings.swirlReach = request.percent(u"reach"_s);
        settings.backgroundGamma = 1.0 + request.percent(u"brightness"_s);
        settings.feather = request.percent(u"feather"_s);
        settings.ovalShape = request.percent(u"roundness"_s);
        settings.pictureScale = request.percent(u"size"_s);
        // A smaller picture does not lie upon itself: its border fades as a whole.
        settings.fadeShare = 1.0 - 0.7 * std::clamp((settings.pictureScale - 0.85) / 0.15, 0.0, 1.0);
        PassChain chain;
        const PassChain::Picture picture = chain.source(request.image);
        // What is as soft as this is there in a half, too: the blur is done where it has little left to do.
        PassChain::Picture background = picture;
        double softening = kSoftening / 1000.0 * request.diagonal();
        for (; softening > kLeastSoftening; softening /= 2.0)
            background = chain.shader(u"textureCopy"_s, (chain.size(background) / 2).expandedTo({1, 1}), {background});
        background = chain.reducedBlur(background, softening);
        return request.chained(chain, addSwirlFrame(chain, picture, background, settings));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(SwirlFrame, SwirlFrameFilter, u"swirl-frame"_s)

} // namespace zm
