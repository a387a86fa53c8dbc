#include "filters/craft/film_look.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

struct Stock
{
    std::array<double, 4> tone; ///< contrast, chroma, how far black is lifted, exposure in stops
    std::array<double, 2> shadows; ///< their tint, Oklab a and b
    std::array<double, 2> lights; ///< the same of highlights
    /// An axis in Oklab's a and b, how far other hues are drawn to it, and how dark strong colours get, as dyes do.
    std::array<double, 4> palette;
    std::array<double, 3> fadedBlack; ///< red, green and blue, encoded
    double grain;
};

// As the choices of "style".
constexpr Stock kStocks[] = {
    // Colour negative: gentle, warm highlights, a breath of green in the shadows.
    {{0.20, 1.04, 0.10, 0.12}, {-0.012, -0.004}, {0.006, 0.018}, {0.75, 0.66, 0.12, 0.16}, {0.30, 0.33, 0.31}, 1.0},
    // Slide: deep and clear, cool shadows.
    {{0.52, 1.30, 0.0, -0.08}, {-0.004, -0.020}, {0.002, 0.008}, {0.6, 0.8, 0.0, 0.36}, {0.22, 0.25, 0.34}, 0.5},
    // Teal and orange.
    {{0.36, 1.12, 0.03, 0.0}, {-0.036, -0.030}, {0.016, 0.036}, {0.66, 0.75, 0.55, 0.2}, {0.20, 0.30, 0.34}, 0.8},
    // Bleach bypass: silver left in the print.
    {{0.72, 0.42, 0.0, 0.10}, {-0.006, -0.010}, {-0.004, 0.004}, {0.6, 0.8, 0.0, 0.1}, {0.25, 0.26, 0.27}, 1.4},
    // A print that faded for forty years: cyan went first.
    {{-0.06, 0.80, 0.42, 0.16}, {0.020, 0.010}, {0.006, 0.036}, {0.8, 0.6, 0.15, 0.0}, {0.40, 0.29, 0.27}, 1.0},
    // Cross-processed slide: blue shadows, yellow-green lights.
    {{0.58, 1.18, 0.05, 0.10}, {-0.006, -0.052}, {-0.034, 0.062}, {-0.3, 0.95, 0.0, 0.2}, {0.10, 0.20, 0.38}, 0.9},
    // Cinema tungsten: blue dusk, lamps stay warm.
    {{0.30, 1.02, 0.05, -0.05}, {-0.018, -0.050}, {0.004, -0.004}, {0.60, 0.80, 0.22, 0.25}, {0.17, 0.23, 0.33}, 1.1},
    // Golden seventies.
    {{0.10, 1.02, 0.24, 0.12}, {0.010, 0.006}, {0.010, 0.052}, {0.45, 0.89, 0.28, 0.12}, {0.38, 0.30, 0.24}, 1.0},
    // Black and white, a little warm as paper is.
    {{0.46, 0.0, 0.05, 0.06}, {0.001, 0.003}, {0.001, 0.006}, {0.6, 0.8, 0.0, 0.0}, {0.28, 0.27, 0.26}, 1.3},
};

class FilmGraderFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const Stock &stock = kStocks[std::min<size_t>(size_t(request.choice(u"style"_s)), std::size(kStocks) - 1)];

        LibraryUniformBlock film(u"film-grader"_s);
        film.setSize("u_size"_L1, request.size());
        film.setVec4("u_style"_L1, stock.tone[0], stock.tone[1], stock.tone[2], stock.tone[3]);
        film.setFloat("u_strength"_L1, request.percent(u"strength"_s));
        film.setVec4("u_fadedBlack"_L1, stock.fadedBlack[0], stock.fadedBlack[1], stock.fadedBlack[2], 0.0);
        film.setFloat("u_saturation"_L1, request.percent(u"saturation"_s));
        film.setVec2("u_shadowTint"_L1, stock.shadows[0], stock.shadows[1]);
        film.setFloat("u_contrast"_L1, request.percent(u"contrast"_s));
        film.setVec2("u_lightTint"_L1, stock.lights[0], stock.lights[1]);
        film.setFloat("u_fade"_L1, request.percent(u"fade"_s));
        film.setFloat("u_grain"_L1, request.percent(u"grain"_s) * stock.grain);
        film.setFloat("u_grainSize"_L1, kFilmGrainSize * request.renderScale());
        film.setFloat("u_vignette"_L1, request.percent(u"vignette"_s));
        film.setVec2("u_hueAxis"_L1, stock.palette[0], stock.palette[1]);
        film.setFloat("u_hueDraw"_L1, stock.palette[2]);
        film.setFloat("u_dyeDensity"_L1, stock.palette[3]);
        film.setFloat("u_artifacts"_L1, request.percent(u"artifacts"_s));
        film.setFloat("u_seed"_L1, request.number(u"seed"_s));
        return request.singlePass(film);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(FilmGrader, FilmGraderFilter, u"film-grader"_s)

} // namespace zm
