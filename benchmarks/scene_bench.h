#pragma once

#include "bench.h"

namespace zm::bench {

/// Composing a view of 1600 x 1000 pixels, and the steps of panning and zooming.
QList<BenchRow> benchScene();

} // namespace zm::bench
