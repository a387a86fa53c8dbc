#pragma once

#include <QString>

namespace zm {

/// Whether opening a document or picture is expected to take long enough to tell of it by more than the pointer. Reads
/// no more than the head of the file; false for one that cannot be read, which fails at once.
bool opensSlowly(const QString &path);

} // namespace zm
