#pragma once

#include "filters/library_uniform_block.h"
#include "rendering/pass_chain.h"

#include <QSize>

namespace zm {

/// A picture with a small map of its broad tones beside it, in one texture, for shaders that change local contrast.
/// The map follows strong edges, so that what is done with it makes no halos. common/tone_base.glsl tells how.
struct ToneBase
{
    PassChain::Picture atlas;
    QSize atlasSize;
    QSize pictureSize;
    double cell; ///< side of the square that one pixel of the map stands for, pixels of the picture, at least 1
};

/// The steps of the shader "hdr-photo", in its numbers.
enum class ToneBaseStage { Use, Gather, Smooth };

/// `radius`: what is finer counts as detail, pixels.
ToneBase addToneBase(PassChain &chain, PassChain::Picture input, double radius);

/// Uniforms of "hdr-photo" for a step; the ones of its look are still zero.
LibraryUniformBlock toneBaseBlock(const ToneBase &base, ToneBaseStage stage);

} // namespace zm
