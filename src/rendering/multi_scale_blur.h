#pragma once

#include "rendering/blur_plan.h"
#include "rendering/filter_pass_drawer.h"
#include "rendering/image_transfer.h"

#include <QSize>

#include <memory>

namespace zm {

/// The blur of gaussianBlur and of the masked blur, on textures: reduces in halves, blurs across and down, and enlarges
/// in doubles when `restoreSize` is set. `edge` holds for every texture made here; `texture` keeps its own. Sigma is in
/// pixels of `size`. Null when a pass or an allocation fails, or when sigma is not finite or under kSmallestBlur. The
/// context of `passes` is current.
std::unique_ptr<QOpenGLFramebufferObject> blurTexture(FilterPassDrawer &passes, GLuint texture, const QSize &size,
                                                      double sigma, double maxWorkingSigma, TextureEdge edge,
                                                      bool restoreSize);

} // namespace zm
