#include "pictures.h"

#include <cmath>

namespace zm::bench {

QImage photograph(const QSize &size, quint32 seed)
{
    QImage picture(size, QImage::Format_RGBA8888);
    quint32 state = seed;
    for (int y = 0; y < size.height(); ++y) {
        uchar *pixel = picture.scanLine(y);
        for (int x = 0; x < size.width(); ++x, pixel += 4) {
            state = state * 1664525U + 1013904223U; // the generator of Numerical Recipes
            const double wave = std::sin(x * 9.0 / size.width()) * std::cos(y * 7.0 / size.height());
            for (int channel = 0; channel < 3; ++channel)
                pixel[channel] = uchar(120.0 + 100.0 * wave * (1.0 - 0.3 * channel) + double(state >> 28));
            pixel[3] = 255;
        }
    }
    return picture;
}

} // namespace zm::bench
