#pragma once

#include "bench.h"

namespace zm::bench {

/// A document of many shapes and texts against the same pixels as image layers.
QList<BenchRow> benchVectors();

} // namespace zm::bench
