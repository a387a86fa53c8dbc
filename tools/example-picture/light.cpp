#include "example-picture/light.h"

#include <QtConcurrent>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace zm::example {

namespace {

/// Each pixel becomes the average of the 2 * radius + 1 around it along the line.
void averageLine(const Light *in, Light *out, int count, int stride, int radius)
{
    Light sum = in[0] * double(radius + 1);
    const auto entry = [&](int index) { return in[std::ptrdiff_t(std::clamp(index, 0, count - 1)) * stride]; };
    for (int i = 1; i <= radius; ++i)
        sum = sum + entry(i);
    for (int i = 0; i < count; ++i) {
        out[std::ptrdiff_t(i) * stride] = sum * (1.0 / (2 * radius + 1));
        sum = sum + entry(i + radius + 1) + entry(i - radius) * -1.0;
    }
}

} // namespace

Light lightOf(QRgb colour)
{
    static const std::array<float, 256> linear = [] {
        std::array<float, 256> values{};
        for (int i = 0; i < 256; ++i) {
            const double v = i / 255.0;
            values[std::size_t(i)] = float(v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
        }
        return values;
    }();
    return {linear[std::size_t(qRed(colour))], linear[std::size_t(qGreen(colour))], linear[std::size_t(qBlue(colour))]};
}

LightPicture::LightPicture(int width, int height, int above)
    : m_width(width)
    , m_height(height)
    , m_above(above)
    , m_pixels(std::size_t(width) * std::size_t(height + above))
{
}

Light LightPicture::between(double x, double y) const
{
    x = std::clamp(x, 0.0, m_width - 1.001);
    y = std::clamp(y, double(-m_above), m_height - 1.001);
    const int left = int(x);
    const int top = int(std::floor(y));
    return mix(mix(at(left, top), at(left + 1, top), x - left), mix(at(left, top + 1), at(left + 1, top + 1), x - left),
               y - top);
}

void LightPicture::fill(int firstRow, int endRow, const std::function<Light(int, int)> &colour)
{
    std::vector<int> rows(std::size_t(std::max(0, endRow - firstRow)));
    std::iota(rows.begin(), rows.end(), firstRow);
    QtConcurrent::blockingMap(rows, [this, &colour](int y) {
        for (int x = 0; x < m_width; ++x)
            at(x, y) = colour(x, y);
    });
}

LightPicture LightPicture::blurred(double sigma) const
{
    const int radius = std::max(1, int(std::lround((std::sqrt(4.0 * sigma * sigma + 1.0) - 1.0) / 2.0)));
    LightPicture from = *this;
    LightPicture to = *this;
    const int rows = m_height + m_above;
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < rows; ++y) {
            const std::size_t start = std::size_t(y) * std::size_t(m_width);
            averageLine(&from.m_pixels[start], &to.m_pixels[start], m_width, 1, radius);
        }
        for (int x = 0; x < m_width; ++x)
            averageLine(&to.m_pixels[std::size_t(x)], &from.m_pixels[std::size_t(x)], rows, m_width, radius);
    }
    return from;
}

} // namespace zm::example
