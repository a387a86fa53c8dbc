#pragma once

#include "document/text_state.h"
#include "io/document/record_fields.h"

namespace zm {

std::optional<QByteArray> encodeTextRun(const TextRun &run, Error &error);

/// Takes one run.
std::optional<TextRun> decodeTextRun(ByteReader &reader, Error &error);

} // namespace zm
