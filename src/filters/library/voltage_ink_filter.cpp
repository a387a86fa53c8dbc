#include "filters/library_filter.h"
#include "filters/library_filters.h"
#include "filters/stacked_picture.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kMapReduction = 4; // a glow has nothing fine

// Edges that glow like neon.
class VoltageInkFilter final : public LibraryFilter
{
public:
    VoltageInkFilter()
        : LibraryFilter(u"voltage-ink"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const QSize mapSize((size.width() + kMapReduction - 1) / kMapReduction,
                            (size.height() + kMapReduction - 1) / kMapReduction);
        const double radius = std::max(request.diagonalPixels(u"glowRadius"_s, 9.0), 0.01);
        LibraryUniformBlock block(u"voltage-ink"_s);
        block.setVec4("u_size"_L1, size.width(), size.height(), mapSize.width(), mapSize.height());
        block.setFloat("u_edgeThreshold"_L1, request.percent(u"edgeThreshold"_s, 30.0));
        block.setFloat("u_lineIntensity"_L1, request.percent(u"lineIntensity"_s, 70.0));
        block.setColor("u_glowColor"_L1, request.parameters.color(u"glowColor"_s, QColor(0x22, 0xc8, 0xff)));
        block.setFloat("u_backgroundDim"_L1, request.percent(u"backgroundDim"_s, 82.0));

        PassChain chain;
        const PassChain::Picture lines =
            chain.libraryShader(block.shaderId(), mapSize, {chain.source(request.image)}, block.bytes());
        const QImage glow = request.renderer->renderChain(chain, chain.gaussianBlur(lines, radius / kMapReduction));
        block.setFloat("u_glowRadius"_L1, radius);

        PassChain drawing;
        const PassChain::Picture stack =
            drawing.source(stackedPicture(request.image, glow, request.renderer->maximumTextureSize()));
        return request.chained(drawing, drawing.libraryShader(block.shaderId(), size, {stack}, block.bytes()));
    }
};

} // namespace

std::unique_ptr<Filter> makeVoltageInkFilter()
{
    return std::make_unique<VoltageInkFilter>();
}

} // namespace zm
