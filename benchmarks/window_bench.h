#pragma once

#include "bench.h"

namespace zm::bench {

/// How fast the real window answers: opening a photograph, work in the layer list of a large document, the preview of
/// the export. Runs in a process of its own, whose settings are nobody's. Empty without a display.
QList<BenchRow> benchWindow();

/// What controls cost: making them in the real window, and selecting layers while the inspector shows their facts. The
/// same way.
QList<BenchRow> benchControls();

} // namespace zm::bench
