#pragma once

#include "bench.h"

namespace zm::bench {

/// gaussianBlur of 12 megapixels with sigma 3 and 40, split into upload, passes and readback, each beside its floor.
/// Empty where OpenGL is not available.
QList<BenchRow> benchBlur();

} // namespace zm::bench
