#pragma once

#include "bench.h"

namespace zm::bench {

/// Generating each shape's outline, with defaults and with all parameters at their highest: the slowest and the median
/// of all, beside what one node alone costs.
QList<BenchRow> benchShapes();

} // namespace zm::bench
