#pragma once

#include "bench.h"

namespace zm::bench {

/// Laying out and drawing text layers.
QList<BenchRow> benchText();

} // namespace zm::bench
