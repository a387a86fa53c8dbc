#include "support/pixel_formula.h"

namespace zm::test {

Pixel sampled(const QImage &picture, double x, double y)
{
    const auto at = [&](double column, double row) {
        const int i = int(std::clamp(column, 0.0, picture.width() - 1.0));
        const uchar *p = picture.constScanLine(int(std::clamp(row, 0.0, picture.height() - 1.0))) + i * 4;
        return Pixel{p[0] / 255.0, p[1] / 255.0, p[2] / 255.0, p[3] / 255.0};
    };
    const double left = std::floor(x - 0.5);
    const double top = std::floor(y - 0.5);
    const auto row = [&](double line) { return mixed(at(left, line), at(left + 1, line), x - 0.5 - left); };
    return mixed(row(top), row(top + 1), y - 0.5 - top);
}

int countOff(const QImage &got, const QImage &picture, int tolerance, const Formula &formula)
{
    int count = 0;
    for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x) {
            const Pixel levels = formula(sampled(picture, x + 0.5, y + 0.5), x + 0.5, y + 0.5).apply([](double v) {
                return std::round(unit(v) * 255.0);
            });
            const uchar *p = got.constScanLine(y) + x * 4;
            const Pixel off = std::abs(levels - Pixel{double(p[0]), double(p[1]), double(p[2]), double(p[3])});
            count += off.max() > tolerance ? 1 : 0;
        }
    return count;
}

} // namespace zm::test
