#include "generators/texture_loader.h"

namespace zm {

Q_LOGGING_CATEGORY(lcTextures, "zelmoraatelier.textures")

} // namespace zm
