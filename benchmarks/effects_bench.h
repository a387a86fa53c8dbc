#pragma once

#include "bench.h"

namespace zm::bench {

/// Every effect at its defaults on 1, 12 and 24 megapixels, dearest first, beside a plain copy pass of the same size;
/// and a slider of the last of four effects. The program's second argument narrows them to the effects whose id
/// contains it.
QList<BenchRow> benchEffects();

} // namespace zm::bench
