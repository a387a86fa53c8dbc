#include "filters/craft/swirl_frame.h"

#include <QtMath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

PassChain::Picture addSwirlFrame(PassChain &chain, PassChain::Picture picture, PassChain::Picture background,
                                 const SwirlFrameSettings &settings)
{
    const QSize size = chain.size(picture);
    LibraryUniformBlock block(u"frame-swirl"_s);
    block.setFloat("u_swirlAngle"_L1, qDegreesToRadians(settings.swirlDegrees));
    block.setFloat("u_swirlRadius"_L1, settings.swirlReach);
    block.setFloat("u_bgGammaInv"_L1, 1.0 / std::max(settings.backgroundGamma, 0.01));
    block.setFloat("u_negative"_L1, settings.backgroundNegative);
    block.setFloat("u_thumbScale"_L1, settings.pictureScale);
    block.setFloat("u_thumbAlpha"_L1, settings.pictureOpacity);
    block.setFloat("u_thumbTilt"_L1, qDegreesToRadians(settings.pictureTiltDegrees));
    block.setFloat("u_maskFeather"_L1, settings.feather);
    block.setFloat("u_fadeShare"_L1, settings.fadeShare);
    block.setFloat("u_ovalShape"_L1, settings.ovalShape);
    block.setFloat("u_aspectRatio"_L1, double(size.width()) / size.height());
    block.setSize("u_size"_L1, size);
    return chain.libraryShader(block.shaderId(), size, {background, picture}, block.bytes());
}

} // namespace zm
