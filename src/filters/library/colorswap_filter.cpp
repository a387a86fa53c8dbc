#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// 0, 1 or 2 for the chosen channel.
double channel(const FilterRenderRequest &request, const QString &key, const QString &fallback)
{
    const QString name = request.parameters.string(key, fallback);
    return name == "blue"_L1 ? 2.0 : name == "green"_L1 ? 1.0 : 0.0;
}

double flag(const FilterRenderRequest &request, const QString &key)
{
    return request.parameters.boolean(key, false) ? 1.0 : 0.0;
}

class ColorswapFilter final : public LibraryFilter
{
public:
    ColorswapFilter()
        : LibraryFilter(u"colorswap"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"colorswap"_s);
        block.setVec4("u_pick"_L1, channel(request, u"redFrom"_s, u"red"_s),
                      channel(request, u"greenFrom"_s, u"blue"_s), channel(request, u"blueFrom"_s, u"green"_s), 0.0);
        block.setVec4("u_negate"_L1, flag(request, u"redNegate"_s), flag(request, u"greenNegate"_s),
                      flag(request, u"blueNegate"_s), 0.0);
        block.setFloat("u_intensity"_L1, request.percent(u"intensity"_s, 100.0));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeColorswapFilter()
{
    return std::make_unique<ColorswapFilter>();
}

} // namespace zm
