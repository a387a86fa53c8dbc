#include "filters/craft/stardust_render.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Of the size of a star and of a grain: how far apart they are at most. The shader relies on neither reaching farther
// than 0.7 of a cell.
constexpr double kStarsCell = 1.6;
constexpr double kDustCell = 3.2;

constexpr int kDriftsSide = 384; ///< pixels: the drifts of dust are large

} // namespace

PassChain::Picture addStardust(PassChain &chain, const FilterRenderRequest &request, PassChain::Picture input,
                               PassChain::Picture mask, const StardustUse &use)
{
    const double seed = request.number(u"seed"_s);
    const double starSize = std::max(request.diagonalPixels(u"starSize"_s), 1.0);
    const double dustSize = std::max(request.diagonalPixels(u"dustSize"_s), 0.1);
    const double rays = request.choice(u"rays"_s);
    const double glow = request.percent(u"glow"_s);
    const QSize size = chain.size(input);

    LibraryUniformBlock block(u"stardust"_s);
    block.setSize("u_size"_L1, size);
    block.setColor("u_sparkleColor"_L1, request.color(u"color"_s));
    block.setFloat("u_sparkSeed"_L1, seed);
    block.setFloat("u_fineSeed"_L1, seed + 1000.0);
    block.setVec4("u_sparkParams"_L1, kStarsCell * starSize, request.percent(u"stars"_s), starSize, rays);
    block.setVec4("u_fineParams"_L1, kDustCell * dustSize, request.percent(u"dust"_s), dustSize, 0.0);
    block.setVec4("u_styleParams"_L1, glow, request.percent(u"twinkle"_s), request.percent(u"colorVariation"_s), 0.0);
    block.setFloat("u_maskInverted"_L1, use.maskInverted ? 1.0 : 0.0);
    block.setFloat("u_starsOnly"_L1, use.starsOnly ? 1.0 : 0.0);
    const auto setStep = [&](double drawsDrifts) {
        block.setVec4("u_renderParams"_L1, request.percent(u"highlights"_s), drawsDrifts, 0.0, 0.0);
    };

    setStep(1.0);
    const QSize drifts = size.scaled(kDriftsSide, kDriftsSide, Qt::KeepAspectRatio).boundedTo(size);
    const PassChain::Picture maskWithDrifts =
        chain.libraryShader(block.shaderId(), chain.size(mask).expandedTo(drifts), {mask, mask}, block.bytes());
    setStep(0.0);
    return addPass(chain, block, {input, maskWithDrifts});
}

} // namespace zm
