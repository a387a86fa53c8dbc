#include "rendering/rendering_log.h"

namespace zm {

Q_LOGGING_CATEGORY(lcTexture, "zelmoraatelier.rendering.opengl.texture")

} // namespace zm
