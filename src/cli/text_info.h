#pragma once

#include "document/text_state.h"

#include <QJsonObject>

namespace zm::cli {

/// What a text layer holds, as "zelmora info --json" tells it.
QJsonObject textInfo(const TextLayerState &text);

} // namespace zm::cli
