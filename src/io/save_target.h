#pragma once

#include <QString>

namespace zm {

/// False for a device, a pipe and the like: a save file takes the place of its target, which must not happen to those.
/// A folder passes, since a save file refuses it in words of its own.
bool mayBeReplaced(const QString &path);

} // namespace zm
