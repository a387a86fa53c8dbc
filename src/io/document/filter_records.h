#pragma once

#include "io/document/record_fields.h"
#include "values/filter_instance.h"

namespace zm {

/// One filter of a stack: its id, flags and values, never pixels.
std::optional<QByteArray> encodeFilter(const FilterInstance &instance, Error &error);

/// Takes one record. The values of a filter that this program knows are completed with its defaults, and those that it
/// does not define are dropped; an unknown filter keeps all. Old files do not tell whether a filter is limited to the
/// selection.
std::optional<FilterInstance> decodeFilter(ByteReader &reader, bool honourSelectionFlag, Error &error);

} // namespace zm
