#include "filters/library_filter.h"
#include "filters/library_filters.h"
#include "filters/shape_mask.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class FilmGraderFilter final : public LibraryFilter
{
public:
    FilmGraderFilter()
        : LibraryFilter(u"film-grader"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double vignette = request.percent(u"vignette"_s, 30.0);

        LibraryUniformBlock film(u"film-grader"_s);
        film.setVec2("u_size"_L1, request.image.width(), request.image.height());
        film.setFloat("u_style"_L1,
                      request.choice(u"style"_s,
                                     {"negative"_L1, "slide"_L1, "teal-orange"_L1, "bleach-bypass"_L1, "faded-print"_L1,
                                      "cross-process"_L1, "tungsten"_L1, "seventies"_L1, "mono"_L1}));
        film.setFloat("u_strength"_L1, request.percent(u"strength"_s, 100.0));
        film.setFloat("u_saturation"_L1, request.percent(u"saturation"_s, 0.0));
        film.setFloat("u_contrast"_L1, request.percent(u"contrast"_s, 0.0));
        film.setFloat("u_fade"_L1, request.percent(u"fade"_s, 10.0));
        film.setVec2("u_grain"_L1, request.percent(u"grain"_s, 25.0), kGrainSize * request.renderScale());
        film.setFloat("u_vignette"_L1, vignette);
        film.setFloat("u_artifacts"_L1, request.percent(u"artifacts"_s, 0.0));
        film.setFloat("u_seed"_L1, request.number(u"seed"_s, 1.0));

        // The lens's own loss of light is in the first pass, before the film's curve; this is the printer's.
        LibraryUniformBlock corners(u"vignette"_s);
        corners.setFloat("u_strength"_L1, 0.5 * vignette);
        corners.setColor("u_tint"_L1, Qt::black);

        PassChain chain;
        PassChain::Picture picture = addPass(chain, film, {chain.source(request.image)});
        if (vignette > 0.0)
            picture = addPass(chain, corners, {picture, addCornerMask(chain, request.bounds.size())});
        return request.chained(chain, picture);
    }

private:
    static constexpr double kGrainSize = 1.7; ///< layer pixels
};

} // namespace

std::unique_ptr<Filter> makeFilmGraderFilter()
{
    return std::make_unique<FilmGraderFilter>();
}

} // namespace zm
