#pragma once

#include "io/document/record_fields.h"
#include "values/editable_path.h"

namespace zm {

std::optional<QByteArray> encodePath(const EditablePath &path, Error &error);

/// All of the bytes have to be the path.
std::optional<EditablePath> decodePath(QByteArrayView record, Error &error);

} // namespace zm
