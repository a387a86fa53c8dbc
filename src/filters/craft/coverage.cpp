#include "filters/craft/coverage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace zm {

namespace {

/// Between which two texels a pixel lies, and the weight of the second, 0..256.
struct Between
{
    int first;
    int second;
    int weight;
};

std::vector<Between> enlargement(int length, int maskLength)
{
    std::vector<Between> places(static_cast<size_t>(length));
    for (int i = 0; i < length; ++i) {
        const double place = std::max((i + 0.5) * maskLength / length - 0.5, 0.0);
        const int first = std::min(int(place), maskLength - 1);
        places[size_t(i)] = {first, std::min(first + 1, maskLength - 1), int(std::lround((place - first) * 256.0))};
    }
    return places;
}

} // namespace

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

void multiplyAlphaEnlarged(QImage &image, const QImage &mask, double steeper)
{
    Q_ASSERT(image.format() == QImage::Format_RGBA8888 && mask.format() == QImage::Format_Grayscale8);
    std::array<uchar, 256> steepened;
    for (int i = 0; i < 256; ++i)
        steepened[size_t(i)] = uchar(std::lround(255.0 * std::clamp((i / 255.0 - 0.5) * steeper + 0.5, 0.0, 1.0)));
    const std::vector<Between> columns = enlargement(image.width(), mask.width());
    const std::vector<Between> rows = enlargement(image.height(), mask.height());
    std::vector<int> blended(size_t(mask.width())); // a row between two, times 256
    for (int y = 0; y < image.height(); ++y) {
        const auto [first, second, weight] = rows[size_t(y)];
        const uchar *above = mask.constScanLine(first);
        const uchar *below = mask.constScanLine(second);
        for (int x = 0; x < mask.width(); ++x)
            blended[size_t(x)] = above[x] * (256 - weight) + below[x] * weight;
        uchar *alpha = image.scanLine(y) + 3;
        for (const Between &column : columns) {
            const int value =
                blended[size_t(column.first)] * (256 - column.weight) + blended[size_t(column.second)] * column.weight;
            *alpha = uchar((*alpha * steepened[size_t((value + 32768) >> 16)] + 127) / 255);
            alpha += 4;
        }
    }
}

bool hasTransparency(const QImage &image)
{
    Q_ASSERT(image.format() == QImage::Format_RGBA8888);
    for (int y = 0; y < image.height(); ++y) {
        const uchar *alpha = image.constScanLine(y) + 3;
        uchar common = 255; // of the whole row, since a loop that may end early is not vectorised
        for (int x = 0; x < image.width(); ++x)
            common &= alpha[4 * x];
        if (common != 255)
            return true;
    }
    return false;
}

void copyAlpha(QImage &image, const QImage &from)
{
    Q_ASSERT(image.format() == QImage::Format_RGBA8888 && from.format() == QImage::Format_RGBA8888);
    Q_ASSERT(image.size() == from.size());
    for (int y = 0; y < image.height(); ++y) {
        uchar *alpha = image.scanLine(y) + 3;
        const uchar *wanted = from.constScanLine(y) + 3;
        for (int x = 0; x < image.width(); ++x, alpha += 4, wanted += 4)
            *alpha = *wanted;
    }
}

} // namespace zm
