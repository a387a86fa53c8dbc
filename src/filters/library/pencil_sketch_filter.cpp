#include "filters/library_filter.h"
#include "generators/texture_loader.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kTileSize = 1024.0; // of the texture, pixels
constexpr double kLineWidth = 1.0 / 1500.0; // of the diagonal
constexpr double kSmoothingInCopy = 0.9; // sigma before the lines are found, pixels of the reduced copy, at most

// Graphite hatching and lines.
class PencilSketchFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double diagonal = request.diagonal();
        const double tileSize = request.diagonalPixels(u"strokeSize"_s);

        LibraryUniformBlock block(u"pencil-sketch"_s);
        block.setSize("u_size"_L1, request.size());
        block.setFloat("u_tileSize"_L1, tileSize);
        block.setFloat("u_color"_L1, request.percent(u"color"_s));
        block.setFloat("u_tone"_L1, request.percent(u"tone"_s));
        block.setFloat("u_texture"_L1, request.percent(u"texture"_s));
        block.setFloat("u_edgeStrength"_L1, request.percent(u"edgeStrength"_s));
        // Strokes that melt together in a small tile are greys, whose share of ink is kept by a softer threshold.
        const double melted = std::clamp((kTileSize / std::max(tileSize, 1.0) - 3.0) / 8.0, 0.0, 1.0);
        const double softness = std::max(request.percent(u"softness"_s), 0.01);
        block.setFloat("u_softness"_L1, std::lerp(softness, 0.5, melted));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        // Lines that are as wide on a small picture as on a large one, and no lines from grain.
        const double width = diagonal * kLineWidth;
        const PassChain::Picture tones = chain.reducedBlur(input, 0.5 * width, TextureEdge::Clamp, kSmoothingInCopy);
        const double widthInCopy = width * chain.size(tones).width() / request.image.width();
        const PassChain::Picture edges =
            chain.keepRed(chain.sobel(tones, {.strength = 1.3, .radius = widthInCopy, .threshold = 0.08}));
        return request.chained(chain, addPass(chain, block, {input, edges, chain.source(tile(request, tileSize))}));
    }

private:
    // The hatching at the size at which it is drawn, so that fine strokes do not flicker.
    static QImage tile(const FilterRenderRequest &request, double size)
    {
        if (!request.services.textureLoader)
            return {};
        const QImage image = request.services.textureLoader->loadImage(u"pencil/graphite-hatching.png"_s);
        const int side = std::max(int(std::lround(size)), 1);
        return side < image.width() ? image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : image;
    }
};

} // namespace

ZM_LIBRARY_EFFECT(PencilSketch, PencilSketchFilter, u"pencil-sketch"_s)

} // namespace zm
