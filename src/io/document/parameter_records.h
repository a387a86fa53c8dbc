#pragma once

#include "io/document/record_fields.h"
#include "values/parameter_values.h"

#include <QSet>

namespace zm {

/// The values as one block of records, in key order, but those of the keys that are left out; their number in count.
std::optional<QByteArray> encodeParameters(const ParameterValues &values, const QSet<QString> &leftOut, quint32 *count,
                                           Error &error);

/// Takes that many records.
std::optional<ParameterValues> decodeParameters(ByteReader &reader, quint32 count, Error &error);

} // namespace zm
