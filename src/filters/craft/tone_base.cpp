#include "filters/craft/tone_base.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kCellsPerRadius = 2.0; // the standard deviation of the smoothing, in cells

int cells(int pixels, double cell)
{
    return std::clamp(int(std::ceil(pixels / cell)), 1, pixels);
}

} // namespace

LibraryUniformBlock toneBaseBlock(const ToneBase &base, ToneBaseStage stage)
{
    LibraryUniformBlock block(u"hdr-photo"_s);
    block.setTexelSize("u_texelSize"_L1, base.pictureSize);
    block.setFloat("u_radius"_L1, base.cell);
    block.setFloat("u_step"_L1, double(stage));
    block.setSize("u_mapSize"_L1, base.mapSize);
    return block;
}

ToneBase toneBase(const FilterRenderRequest &request, double radius)
{
    const QSize size = request.size();
    const double cell = std::max(radius / kCellsPerRadius, 1.0);
    ToneBase base{
        .pictureSize = size, .mapSize = {cells(size.width(), cell), cells(size.height(), cell)}, .cell = cell};
    const PassChain::Picture input = base.chain.source(request.image);
    PassChain::Picture map = input;
    for (const ToneBaseStage stage : {ToneBaseStage::Gather, ToneBaseStage::Smooth}) {
        const LibraryUniformBlock block = toneBaseBlock(base, stage);
        map = base.chain.libraryShader(block.shaderId(), base.mapSize, {map}, block.bytes());
    }
    base.stack = base.chain.stacked(input, map, request.renderer->maximumTextureSize());
    return base;
}

FilterRenderResult renderToneBase(const FilterRenderRequest &request, const ToneBase &base,
                                  const LibraryUniformBlock &block)
{
    PassChain chain = base.chain;
    return request.chained(chain, chain.libraryShader(block.shaderId(), base.pictureSize, {base.stack}, block.bytes()));
}

} // namespace zm
