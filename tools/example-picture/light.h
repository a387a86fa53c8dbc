#pragma once

#include <QImage>
#include <QRgb>

#include <functional>
#include <vector>

namespace zm::example {

/// Linear light, Rec. 709 primaries; 1 is a white sheet in the shade.
struct Light
{
    float r = 0.0f;
    float g = 0.0f;
    float b = 0.0f;
};

inline Light operator+(Light a, Light b)
{
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
inline Light operator*(Light a, Light b)
{
    return {a.r * b.r, a.g * b.g, a.b * b.b};
}
inline Light operator*(Light a, double f)
{
    return {float(a.r * f), float(a.g * f), float(a.b * f)};
}
inline Light mix(Light a, Light b, double part)
{
    return a * (1.0 - part) + b * part;
}

/// The light of a colour written as #rrggbb.
Light lightOf(QRgb colour);

/// A picture in light. Rows from -above() on exist, for what only a reflection shows.
class LightPicture
{
public:
    LightPicture(int width, int height, int above = 0);

    int width() const { return m_width; }
    int height() const { return m_height; }
    int above() const { return m_above; }

    Light &at(int x, int y) { return m_pixels[std::size_t(y + m_above) * std::size_t(m_width) + std::size_t(x)]; }
    const Light &at(int x, int y) const { return const_cast<LightPicture *>(this)->at(x, y); }

    /// Between pixels; places outside are those on the border.
    Light between(double x, double y) const;

    /// Sets every pixel, on all cores; `colour` must be free of side effects.
    void fill(int firstRow, int endRow, const std::function<Light(int, int)> &colour);

    /// Three box blurs, which come close to a Gaussian of that sigma.
    LightPicture blurred(double sigma) const;

private:
    int m_width;
    int m_height;
    int m_above;
    std::vector<Light> m_pixels;
};

} // namespace zm::example
