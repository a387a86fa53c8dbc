#include "filters/craft/tinted_mask_overlay.h"

#include "filters/craft/shape_mask.h"
#include "generators/texture_loader.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kSmallestTextureScale = 0.01;

/// The tile at the size at which it is shown, where that is smaller: the shader reads without mipmaps, and fine lines
/// would break up.
QImage fittedTile(const QImage &tile, double shownScale)
{
    if (shownScale >= 1.0)
        return tile;
    const QSize shown(std::max(int(std::lround(tile.width() * shownScale)), 1),
                      std::max(int(std::lround(tile.height() * shownScale)), 1));
    return tile.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

TintedMaskOverlayFilter::TintedMaskOverlayFilter(const QString &id, const QString &maskTextureFamily)
    : LibraryFilter(id)
    , m_maskTextureFamily(maskTextureFamily)
{
}

FilterRenderResult TintedMaskOverlayFilter::render(const FilterRenderRequest &request) const
{
    const double intensity = request.percent(u"intensity"_s);
    if (!request.services.textureLoader || intensity <= 0.0)
        return request.unchanged();
    const QString texture = request.text(u"texture"_s);
    const QImage tile = request.services.textureLoader->loadImage(m_maskTextureFamily + u'/' + texture);
    if (tile.isNull())
        return request.unchanged();

    const double textureScale = request.number(u"textureScale"_s) * 0.009 + 0.1;
    const double offset = request.number(u"offset"_s) * 0.0025;
    const double pixelsPerUnit = request.renderScale();
    LibraryUniformBlock block(u"tinted-mask-base"_s);
    block.setSize("u_size"_L1, request.size());
    block.setVec2("u_texSize"_L1, tile.width() * pixelsPerUnit, tile.height() * pixelsPerUnit);
    block.setFloat("u_textureScale"_L1, textureScale);
    block.setFloat("u_inverted"_L1, request.flag(u"mask.inverted"_s));
    block.setVec2("u_offset"_L1, offset, offset);
    block.setFloat("u_intensity"_L1, intensity);
    block.setColor("u_color0"_L1, request.color(u"color0"_s));
    block.setColor("u_color1"_L1, request.color(u"color1"_s));
    block.setColor("u_color2"_L1, request.color(u"color2"_s));

    const double shownScale = std::max(textureScale, kSmallestTextureScale) * pixelsPerUnit;
    PassChain chain;
    const PassChain::Picture input = chain.source(request.image);
    const PassChain::Picture pattern = chain.source(fittedTile(tile, shownScale));
    const PassChain::Picture mask = addShapeMask(chain, request);
    return request.chained(chain, addPass(chain, block, {input, pattern, mask}));
}

} // namespace zm
