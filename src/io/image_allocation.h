#pragma once

namespace zm {

/// Makes room in Qt's own reader for a picture of kMaximumRasterPixels at up to eight bytes a pixel, which deep
/// colour formats are decoded to before they are converted. Called once at the start of each program.
void raiseImageAllocationLimit();

} // namespace zm
