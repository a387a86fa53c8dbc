#pragma once

#include <QColor>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QUuid>

#include <algorithm>
#include <array>
#include <optional>

namespace zm {

// The values of controls that are more than one number, colour or text. All are plain values.

/// The bare file name of a picture that a setting refers to.
struct AssetName
{
    QString fileName;

    friend bool operator==(const AssetName &a, const AssetName &b) = default;
};

struct EnabledColor
{
    bool enabled = false;
    QColor color = Qt::transparent;

    friend bool operator==(const EnabledColor &a, const EnabledColor &b) = default;
};

/// A line around something. A width of 0 draws none.
struct Stroke
{
    QColor color = Qt::black;
    double width = 0.0;

    friend bool operator==(const Stroke &a, const Stroke &b) = default;
};

/// Where a gradient begins and ends, as fractions of the layer's box.
struct GradientPosition
{
    double x1 = 0.5;
    double y1 = 0.25;
    double x2 = 0.5;
    double y2 = 1.0;

    friend bool operator==(const GradientPosition &a, const GradientPosition &b) = default;
};

/// How a mask lies on a picture: its centre and the pivot as fractions, the rotation in degrees.
struct MaskTransform
{
    enum class Mode { Free, Uniform };

    double x = 0.5;
    double y = 0.5;
    double scaleX = 1.0;
    double scaleY = 1.0;
    double rotation = 0.0;
    double pivotX = 0.5;
    double pivotY = 0.5;
    Mode mode = Mode::Free;

    friend bool operator==(const MaskTransform &a, const MaskTransform &b) = default;
};

/// The id of the shape generator that a mask is cut with.
struct ShapeMask
{
    QString generatorId;

    friend bool operator==(const ShapeMask &a, const ShapeMask &b) = default;
};

/// A light placed on a picture. The centre is a fraction of the layer's box, the radius one of its smaller side, the
/// angle is in degrees, softness is 0..1.
struct LightSource
{
    enum class Shape { Round, Oval, Rectangle, Spot };

    QUuid id = QUuid::createUuid();
    double x = 0.5;
    double y = 0.4;
    double radius = 0.5;
    double angle = 0.0;
    double intensity = 0.8;
    double softness = 0.7;
    Shape shape = Shape::Round;
    QColor tint = Qt::white;

    friend bool operator==(const LightSource &a, const LightSource &b) = default;
};

/// What the shapes are called in descriptions of effects and on the command line, in the order of the enumeration.
inline constexpr std::array<QLatin1StringView, 4> kLightShapeNames{
    QLatin1StringView("round"), QLatin1StringView("oval"), QLatin1StringView("rectangle"), QLatin1StringView("spot")};

inline QLatin1StringView lightShapeName(LightSource::Shape shape)
{
    return kLightShapeNames[size_t(shape)];
}

/// Nothing for an unknown name.
inline std::optional<LightSource::Shape> lightShapeFromName(const QString &name)
{
    const auto found = std::ranges::find(kLightShapeNames, name);
    return found == kLightShapeNames.end() ? std::nullopt
                                           : std::optional(LightSource::Shape(found - kLightShapeNames.begin()));
}

using LightSources = QList<LightSource>;

/// The most lights that one value may hold.
inline constexpr qsizetype kMaximumLightSources = 64;

} // namespace zm
