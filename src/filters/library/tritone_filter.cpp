#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Three colours for shadows, midtones and highlights. The last component of each carries a number of the mixture.
class TritoneFilter final : public LibraryFilter
{
public:
    TritoneFilter()
        : LibraryFilter(u"tritone"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const auto tone = [&request](const QString &key, QRgb fallback) {
            return request.parameters.color(key, QColor(fallback));
        };
        LibraryUniformBlock block(u"tritone"_s);
        block.setVec4("u_toneLow"_L1, 0.0, 0.0, 0.0, request.percent(u"balance"_s, 0.0));
        block.setVec4("u_toneMid"_L1, 0.0, 0.0, 0.0, request.percent(u"contrast"_s, 15.0));
        block.setVec4("u_toneHigh"_L1, 0.0, 0.0, 0.0, request.percent(u"amount"_s, 100.0));
        block.setColor("u_toneLow"_L1, tone(u"tone0"_s, 0xff17183a));
        block.setColor("u_toneMid"_L1, tone(u"tone1"_s, 0xffb85a68));
        block.setColor("u_toneHigh"_L1, tone(u"tone2"_s, 0xfffbebcf));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeTritoneFilter()
{
    return std::make_unique<TritoneFilter>();
}

} // namespace zm
