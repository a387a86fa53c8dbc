#pragma once

#include "rendering/filter_pass_drawer.h"
#include "rendering/image_transfer.h"

#include <QSize>

#include <memory>

namespace zm {

/// Below this sigma or radius, in pixels, a blur would change nothing that the eye can see; it is skipped.
inline constexpr double kSmallestBlur = 0.5;

/// How a Gaussian is done: at a reduced size, so that its sigma there, and with it the cost of a pixel, stays bounded.
struct BlurPlan
{
    QSize workingSize;
    double workingSigma = 0.0; ///< pixels of the working size
    int kernelRadius = 0;      ///< pixels of the working size

    static BlurPlan make(const QSize &size, double sigma, double maxWorkingSigma);
};

/// The blur of gaussianBlur and of the masked blur, on textures: reduces in halves, blurs across and down, and enlarges
/// in doubles when `restoreSize` is set. `edge` holds for every texture made here; `texture` keeps its own. Sigma is in
/// pixels of `size`. Null when a pass or an allocation fails, or when sigma is not finite or under kSmallestBlur. The
/// context of `passes` is current.
std::unique_ptr<QOpenGLFramebufferObject> blurTexture(FilterPassDrawer &passes, GLuint texture, const QSize &size,
                                                      double sigma, double maxWorkingSigma, TextureEdge edge,
                                                      bool restoreSize);

} // namespace zm
