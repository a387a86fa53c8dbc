#pragma once

namespace zm {

/// Makes room in Qt's own reader for a picture of kMaximumRasterPixels at up to eight bytes a pixel, which deep
/// colour formats are decoded to before they are converted. Called once at the start of each program, before any other
/// thread decodes; where there is room already, a further call only looks.
void raiseImageAllocationLimit();

} // namespace zm
