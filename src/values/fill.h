#pragma once

#include "values/gradient_fill.h"
#include "values/parameter_values.h"

#include <QBrush>
#include <QImage>
#include <QTransform>

#include <variant>

namespace zm {

/// A generated texture laid into the painted box.
struct TextureFill
{
    /// Empty for a picture that no generator made.
    QString generatorId;
    ParameterValues parameters;
    /// The generated pixels; null after loading until they are generated again.
    QImage image;
    QTransform transform;
    /// 0..3: how the texture is laid into the box.
    quint32 mapping = 0;

    friend bool operator==(const TextureFill &a, const TextureFill &b) = default;
};

/// What shapes, texts and the fill tool paint with: a colour, a gradient or a texture. A plain value, cleaned when it
/// is made: an invalid colour becomes black, a gradient is cleaned as cleanGradient() tells, and a texture of an
/// unknown mapping or with a transform that is not finite takes mapping 0 or the identity.
class Fill
{
public:
    Fill();
    Fill(const QColor &color);
    Fill(const GradientFill &gradient);
    Fill(const TextureFill &texture);

    /// A linear gradient brush becomes a gradient in fractions of the box, along the brush's direction from edge to
    /// edge where the brush counts in pixels. A texture brush becomes a texture without a generator, any other its
    /// colour.
    static Fill fromBrush(const QBrush &brush, quint32 mapping = 0);

    bool isSolid() const { return std::holds_alternative<QColor>(m_value); }
    /// The fallback where the fill is no colour.
    QColor solidColor(const QColor &fallback) const;
    /// Null where the fill is no gradient.
    const GradientFill *gradient() const { return std::get_if<GradientFill>(&m_value); }
    /// Null where the fill is no texture.
    const TextureFill *texture() const { return std::get_if<TextureFill>(&m_value); }

    /// Paints a box of that many pixels at the origin, a side below 1 counting as 1. A gradient fades to nothing beyond
    /// its outer stops. A texture without an image paints nothing.
    QBrush brushFor(const QSize &size) const;

    friend bool operator==(const Fill &a, const Fill &b) = default;

private:
    std::variant<QColor, GradientFill, TextureFill> m_value;
};

/// The fill as a gradient of that type: a gradient keeps its stops, and its points where it has that type already;
/// anything else runs from its colour, or black, to white.
GradientFill gradientFrom(const Fill &fill, GradientType type);

} // namespace zm
