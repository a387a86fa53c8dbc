#include "io/image_allocation.h"

#include "base/pixel_limits.h"

#include <QImageReader>

namespace zm {

void raiseImageAllocationLimit()
{
    constexpr qint64 bytesOfDeepPixel = 2 * kBytesPerPixel;
    constexpr qint64 bytesPerMebibyte = 1024 * 1024;
    QImageReader::setAllocationLimit(int(kMaximumRasterPixels * bytesOfDeepPixel / bytesPerMebibyte) + 1);
}

} // namespace zm
