#pragma once

#include "bench.h"

namespace zm::bench {

/// "zelmora export" of a 24-megapixel JPEG at quality 92, in time and peak memory, beside Qt's own reader and writer
/// doing just decode and encode in one process. Empty when the programs cannot be run.
QList<BenchRow> benchExport();

} // namespace zm::bench
