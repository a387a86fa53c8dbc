#pragma once

#include "bench.h"

namespace zm::bench {

/// From starting the editor's program to the first frame of its window, without a file and with a photograph. Empty
/// without a display or without the program beside this one.
QList<BenchRow> benchStartup();

} // namespace zm::bench
