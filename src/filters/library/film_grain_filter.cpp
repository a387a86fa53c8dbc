#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class FilmGrainFilter final : public LibraryFilter
{
public:
    FilmGrainFilter()
        : LibraryFilter(u"film-grain"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"film-grain"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat(
            "u_style"_L1,
            request.choice(u"style"_s,
                           {"classic"_L1, "fine"_L1, "pushed"_L1, "coarse"_L1, "mottled"_L1, "paper"_L1, "canvas"_L1}));
        block.setFloat("u_amount"_L1, request.percent(u"amount"_s, 50.0));
        block.setFloat("u_opacity"_L1, request.percent(u"opacity"_s, 100.0));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 1.0));
        block.setFloat("u_scale"_L1, request.pixels(u"scale"_s, 1.8));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeFilmGrainFilter()
{
    return std::make_unique<FilmGrainFilter>();
}

} // namespace zm
