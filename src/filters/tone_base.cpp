#include "filters/tone_base.h"

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
    block.setVec2("u_texelSize"_L1, 1.0 / base.pictureSize.width(), 1.0 / base.pictureSize.height());
    block.setVec4("u_radius"_L1, base.cell, double(stage), base.atlasSize.width(), base.atlasSize.height());
    return block;
}

ToneBase addToneBase(PassChain &chain, PassChain::Picture input, double radius)
{
    const QSize size = chain.size(input);
    ToneBase base{input, size, size, std::max(radius / kCellsPerRadius, 1.0)};
    // The shorter side grows, so that a picture as long as a texture may be still has room.
    if (size.width() >= size.height())
        base.atlasSize.rheight() += cells(size.height(), base.cell);
    else
        base.atlasSize.rwidth() += cells(size.width(), base.cell);
    for (const ToneBaseStage stage : {ToneBaseStage::Gather, ToneBaseStage::Smooth}) {
        const LibraryUniformBlock block = toneBaseBlock(base, stage);
        base.atlas = chain.libraryShader(block.shaderId(), base.atlasSize, {base.atlas}, block.bytes());
    }
    return base;
}

} // namespace zm
