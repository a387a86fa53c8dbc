#include "filters/coverage.h"

namespace zm {

void multiplyAlpha(QImage &image, const QImage &mask, bool inverted)
{
    Q_ASSERT(image.format() == QImage::Format_RGBA8888 && mask.format() == QImage::Format_RGBA8888);
    Q_ASSERT(image.size() == mask.size());
    const unsigned flip = inverted ? 255 : 0;
    for (int y = 0; y < image.height(); ++y) {
        uchar *alpha = image.scanLine(y) + 3;
        const uchar *coverage = mask.constScanLine(y) + 3;
        for (int x = 0; x < image.width(); ++x, alpha += 4, coverage += 4)
            *alpha = uchar((*alpha * (*coverage ^ flip) + 127) / 255);
    }
}

} // namespace zm
