#pragma once

#include "io/document/zelmora_document_io.h"

namespace zm::cli {

/// What a file holds, for a reader's eyes: its size and background, and a line for each layer, the top first. No
/// pixels are needed.
QString readableInfo(const QString &path, const DocumentRecords &records);

} // namespace zm::cli
