#include "io/image_allocation.h"

#include "base/pixel_limits.h"

#include <QImageReader>

namespace zm {

void raiseImageAllocationLimit()
{
    constexpr qint64 bytesOfDeepPixel = 2 * kBytesPerPixel;
    constexpr qint64 bytesPerMebibyte = 1024 * 1024;
    constexpr int needed = int(kMaximumRasterPixels * bytesOfDeepPixel / bytesPerMebibyte) + 1;
    const int present = QImageReader::allocationLimit();
    if (present != 0 && present < needed) // 0 is no limit
        QImageReader::setAllocationLimit(needed);
}

} // namespace zm
