#include "filters/craft/silhouette.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <vector>

namespace zm {

namespace {

/// A blur of four pixels and more survives the enlargement without a trace.
constexpr double kKeptSigma = 4.0;
constexpr int kMaximumReduction = 16;
/// Beyond three sigmas nothing is left of a blur.
constexpr double kBlurReach = 3.0;

} // namespace

Silhouette silhouette(const QImage &picture, double sigma, const QColor &color, bool inverted)
{
    Q_ASSERT(picture.format() == QImage::Format_RGBA8888);
    Silhouette result;
    const int reduction = std::clamp(int(sigma / kKeptSigma), 1, kMaximumReduction);
    result.reduction = reduction;
    result.margin = int(std::ceil(kBlurReach * sigma / reduction)) + 1;
    const auto reduced = [reduction](int length) { return (length + reduction - 1) / reduction; };
    const QSize inner(reduced(picture.width()), reduced(picture.height()));
    const int around = 2 * result.margin;
    result.image = QImage(inner.width() + around, inner.height() + around, QImage::Format_RGBA8888);
    if (result.image.isNull())
        return result;
    const uchar flip = inverted ? 255 : 0;
    result.image.fill(QColor(color.red(), color.green(), color.blue(), flip));

    // The last row and column may stand for fewer pixels than the others; what is missing there is transparent.
    const int share = reduction * reduction;
    std::vector<int> sums(size_t(inner.width()));
    for (int row = 0; row < inner.height(); ++row) {
        std::ranges::fill(sums, 0);
        const int end = std::min((row + 1) * reduction, picture.height());
        for (int y = row * reduction; y < end; ++y) {
            const uchar *alpha = picture.constScanLine(y) + 3;
            for (int x = 0; x < picture.width(); x += reduction) {
                const int stop = std::min(x + reduction, picture.width());
                int &sum = sums[size_t(x / reduction)];
                for (int i = x; i < stop; ++i)
                    sum += alpha[4 * i];
            }
        }
        uchar *target = result.image.scanLine(row + result.margin) + 4 * result.margin + 3;
        for (const int sum : sums) {
            *target = uchar((sum + share / 2) / share) ^ flip;
            target += 4;
        }
    }
    return result;
}

} // namespace zm
