#pragma once

#include <QImage>

#include <algorithm>
#include <cmath>
#include <functional>
#include <valarray>

/// What a shader computes, in double precision on the CPU: the words of GLSL, and pictures that are checked with them.
namespace zm::test {

/// Red, green, blue and straight alpha, 0..1.
using Pixel = std::valarray<double>;
/// What stands at a place of the result, in pixels from the top left, from what stands there in the picture.
using Formula = std::function<Pixel(const Pixel &, double x, double y)>;

template<typename Value>
Value mixed(const Value &a, const Value &b, double t)
{
    return Value(a + (b - a) * t);
}

inline double unit(double value)
{
    return std::clamp(value, 0.0, 1.0);
}

inline double softStep(double low, double high, double value)
{
    const double t = high > low ? unit((value - low) / (high - low)) : double(value >= high);
    return t * t * (3.0 - 2.0 * t);
}

inline double dot(const Pixel &p, const Pixel &weights)
{
    return Pixel(p * weights).sum();
}

inline double luma(const Pixel &p)
{
    return dot(p, {0.299, 0.587, 0.114, 0.0});
}

inline Pixel withAlpha(Pixel color, double alpha)
{
    color[3] = alpha;
    return color;
}

/// Linear between pixels, whose centres lie at halves; the nearest one beyond the edge.
Pixel sampled(const QImage &picture, double x, double y);

/// How many pixels of `got` are further from the formula than `tolerance` levels.
int countOff(const QImage &got, const QImage &picture, int tolerance, const Formula &formula);

} // namespace zm::test
