#include "filters/craft/brush_coverage.h"
#include "filters/craft/coverage.h"
#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The mask is about a third of the size of a large picture.
constexpr double kSteeper = 2.2;

// The picture as broad strokes of a flat brush on a bare canvas.
class BrushstrokeFrameFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        BrushCoverageSettings settings;
        settings.strokes = request.number(u"strokes"_s);
        settings.directionDegrees = request.number(u"direction"_s);
        settings.margin = request.number(u"margin"_s) / 1000.0;
        settings.roughness = request.percent(u"roughness"_s);
        settings.dryness = request.percent(u"dryness"_s);
        settings.seed = quint32(request.number(u"seed"_s));
        const QImage mask = brushCoverage(request.size(), settings);
        if (mask.isNull())
            return request.unchanged();
        QImage image = request.image;
        multiplyAlphaEnlarged(image, mask, kSteeper);
        return request.result(image);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(BrushstrokeFrame, BrushstrokeFrameFilter, u"brushstroke-photo-frame"_s)

} // namespace zm
