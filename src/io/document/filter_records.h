#pragma once

#include "io/document/record_fields.h"
#include "values/filter_instance.h"

namespace zm {

/// One effect of a stack: its id, flags and values, never pixels.
std::optional<QByteArray> encodeFilter(const FilterInstance &instance, Error &error);

/// Takes one record. The values of an effect that this program knows are completed with its defaults, and those that it
/// does not define are dropped; an unknown effect keeps all. Old files do not tell whether an effect is limited to the
/// selection.
std::optional<FilterInstance> decodeFilter(ByteReader &reader, bool honourSelectionFlag, Error &error);

} // namespace zm
