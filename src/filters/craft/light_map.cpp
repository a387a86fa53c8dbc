#include "filters/craft/light_map.h"

#include "filters/craft/map_size.h"

using namespace Qt::StringLiterals;

namespace zm {

FilterRenderResult renderWithLightMap(const FilterRenderRequest &request, LibraryUniformBlock block, int reduction)
{
    const QSize size = request.size();
    block.setSize("u_size"_L1, size);
    const auto setMap = [&](int width, int height) { block.setVec2("u_mapSize"_L1, width, height); };
    if (reduction < 2) {
        setMap(0, 0);
        return request.singlePass(block);
    }
    const QSize reduced = mapSize(size, reduction);
    QImage nothing(1, 1, QImage::Format_RGBA8888); // the field does not depend on the picture
    nothing.fill(Qt::black);
    PassChain chain;
    setMap(-1, -1);
    const PassChain::Picture map =
        chain.libraryShader(block.shaderId(), reduced, {chain.source(nothing)}, block.bytes());
    setMap(reduced.width(), reduced.height());
    const PassChain::Picture stack =
        chain.stacked(chain.source(request.image), map, request.renderer->maximumTextureSize());
    return request.chained(chain, chain.libraryShader(block.shaderId(), size, {stack}, block.bytes()));
}

} // namespace zm
