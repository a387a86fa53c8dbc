#pragma once

#include <QLoggingCategory>

namespace zm {

/// "zelmoraatelier.rendering.opengl.texture": contexts, transfers and passes.
Q_DECLARE_LOGGING_CATEGORY(lcTexture)

} // namespace zm
