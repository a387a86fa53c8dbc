#pragma once

#include "bench.h"

namespace zm::bench {

/// Writing and reading of document files: large rasters beside libwebp on one thread, many small layers, and the
/// records of a large file without its pixels.
QList<BenchRow> benchDocuments();

} // namespace zm::bench
