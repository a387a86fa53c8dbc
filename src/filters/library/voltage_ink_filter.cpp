#include "filters/craft/map_size.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kReach = 1.1; // of the gradient, thousandths of the diagonal
constexpr double kSmoothing = 0.6; // sigma of the blur before the gradient, of its reach

/// Writes the red of one picture into the green of another of the same size, both RGBA8888.
void mergeIntoGreen(QImage &image, const QImage &red)
{
    for (int y = 0; y < image.height(); ++y) {
        uchar *to = image.scanLine(y);
        const uchar *from = red.constScanLine(y);
        for (qsizetype x = 0; x < image.width(); ++x)
            to[x * 4 + 1] = from[x * 4];
    }
}

// Edges that glow like neon.
class VoltageInkFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double wanted = kReach * std::hypot(size.width(), size.height()) / 1000.0;
        const double reach = std::max(wanted, 0.8);
        const int reduction = std::max(int(reach / kGradientReachInMap), 1);
        const double radius = request.diagonalPixels(u"glowRadius"_s);
        const QSize mapsSize = mapSize(size, reduction);
        LibraryUniformBlock block(u"voltage-ink"_s);
        block.setSize("u_size"_L1, size);
        block.setSize("u_mapSize"_L1, mapsSize);
        block.setFloat("u_glowRadius"_L1, radius);
        block.setFloat("u_reach"_L1, reach);
        block.setFloat("u_edgeScale"_L1, std::sqrt(wanted / reach));
        block.setFloat("u_edgeThreshold"_L1, request.percent(u"edgeThreshold"_s));
        block.setFloat("u_lineIntensity"_L1, request.percent(u"lineIntensity"_s));
        block.setColor("u_glowColor"_L1, request.color(u"glowColor"_s));
        block.setFloat("u_backgroundDim"_L1, request.percent(u"backgroundDim"_s));
        const auto pass = [&](PassChain &chain, Stage stage, PassChain::Picture input, const QSize &passSize) {
            block.setFloat("u_step"_L1, double(stage));
            return chain.libraryShader(block.shaderId(), passSize, {input}, block.bytes());
        };

        FilterUtilityRenderer &renderer = *request.renderer;
        PassChain toning;
        const PassChain::Picture rough = pass(toning, Stage::Tones, toning.source(request.image), mapsSize);
        QImage maps = renderer.renderChain(toning, toning.gaussianBlur(rough, kSmoothing * reach / reduction));
        if (maps.isNull())
            return request.unchanged();

        PassChain glowing;
        const PassChain::Picture lines = pass(glowing, Stage::Lines, glowing.source(maps), mapsSize);
        const QImage glow = renderer.renderChain(glowing, glowing.gaussianBlur(lines, radius / reduction));
        if (glow.size() != maps.size())
            return request.unchanged();
        mergeIntoGreen(maps, glow);

        PassChain drawing;
        const PassChain::Picture stack =
            drawing.stacked(drawing.source(request.image), drawing.source(maps), renderer.maximumTextureSize());
        return request.chained(drawing, pass(drawing, Stage::Drawing, stack, size));
    }

private:
    enum class Stage { Tones, Lines, Drawing };
};

} // namespace

ZM_LIBRARY_EFFECT(VoltageInk, VoltageInkFilter, u"voltage-ink"_s)

} // namespace zm
