#pragma once

#include <QColor>
#include <QPointF>
#include <QtTypes>

namespace zm {

// Settings of the utility passes with more than a few numbers. A default changes nothing where there is such a value.
// Numbers out of range count as the nearest allowed one, non-finite ones as their default here.

/// Basic corrections, in straight colour. All -1..1; 0 changes nothing.
struct ColorAdjustment
{
    double brightness = 0.0;
    double saturation = 0.0;
    double hue = 0.0;         ///< 1 is half a turn
    double contrast = 0.0;
    double exposure = 0.0;    ///< 1 is two stops
    double temperature = 0.0; ///< above 0 is warm
    double gamma = 0.0;       ///< above 0 lightens midtones

    friend bool operator==(const ColorAdjustment &a, const ColorAdjustment &b) = default;
};

/// Noise of a normal distribution that stays within each pixel.
struct NoiseSettings
{
    double amount = 0.0; ///< standard deviation; 1 is from black to white
    double red = 1.0;    ///< factor of the amount
    double green = 1.0;
    double blue = 1.0;
    double seed = 0.0;
};

/// A grey picture with levels and a soft threshold. All 0..1.
struct GrayscaleLevels
{
    double amount = 1.0;          ///< share of the grey picture
    double blackPoint = 0.0;      ///< brightness that becomes black
    double whitePoint = 1.0;      ///< brightness that becomes white
    double thresholdAmount = 0.0; ///< share of the picture in black and white
    double thresholdPoint = 0.5;  ///< after the levels
    double thresholdSoftness = 0.0;
};

/// The colours that black and white become.
struct ToneMapColors
{
    QColor shadow{};    ///< an invalid one is rgb(26, 13, 5)
    QColor highlight{}; ///< an invalid one is rgb(216, 184, 150)
};

/// A picture as ink: two colours by brightness, and light parts vanish.
struct HighlightsToAlphaSettings
{
    QColor shadow{};         ///< an invalid one is rgb(26, 13, 5)
    QColor midtone{};        ///< an invalid one is rgb(90, 56, 32)
    double strength = 1.0;   ///< share of the alpha that white loses
    double threshold = 0.35; ///< brightness from which alpha shrinks, 0..1
    double softness = 0.55;  ///< span of brightness until all of it is gone, above 0
};

enum class FadeMode { Linear, Radial };

/// A fade from `start`, where the picture is whole, to `end`. Points are fractions of the picture.
struct FadeOutSettings
{
    QPointF start{0.5, 0.25};
    QPointF end{0.5, 1.0};
    FadeMode mode = FadeMode::Linear;
    double strength = 1.0; ///< 0..1
    double softness = 0.6; ///< share of the way over which the fade is spread, 0..1
    double curve = 1.0;    ///< exponent of the fade, above 0
    bool inverted = false; ///< fades at the start
    QColor color{};        ///< what is faded to, with its alpha; an invalid one is transparent
};

/// The side on which a reflection enlarges the picture.
enum class ReflectionGrowth { Down, Up, Right, Left };

/// A reflection in water or glass. Lengths are pixels of the picture.
struct WaterReflectionSettings
{
    ReflectionGrowth growth = ReflectionGrowth::Down;
    double ratio = 0.7;             ///< length of the reflection to that of the picture, at least 0.1
    QPointF sourceStart{0.5, 0.35}; ///< far end of the part that is reflected; a fraction of the picture
    QPointF sourceEnd{0.5, 0.98};   ///< its end at the waterline
    double glassMix = 0.0;          ///< 0 water .. 1 glass
    double opacity = 0.62;          ///< 0..1
    double fadeExponent = 1.45;     ///< above 1 fades sooner; at least 0.25
    double waveStrength = 7.56;     ///< reach of the waves at the waterline, pixels
    double waveFrequency = 1.57;    ///< waves over the reflection
    double ripple = 5.6;            ///< unevenness of the waves, in units of their reach
    double sheen = 0.3;             ///< whiteness of glass, 0..1
};

/// Pixels sorted by brightness along parallel lines, in blocks whose edges are scattered.
struct PixelDriftSettings
{
    double angle = 0.0;              ///< direction of the walk, degrees clockwise from the right, 0..360
    bool descending = false;         ///< the brightest first
    double streakLength = 96.0;      ///< length of a block, pixels of the picture, at least 2
    double shadowThreshold = 0.15;   ///< pixels darker than this stay, 0..1
    double highlightThreshold = 0.9; ///< pixels brighter than this stay, 0..1; under the other one all stay
    double amount = 0.75;            ///< share of the sorted picture, 0..1
    double seed = 23.0;
};

/// Edges by the gradients of Sobel.
struct EdgeDetection
{
    double strength = 1.0;  ///< at least 0
    double radius = 1.0;    ///< distance of the compared pixels, at least 0.25
    double threshold = 0.0; ///< weaker edges vanish, 0..1; under 0.001 all stay as they are
    bool inverted = false;  ///< dark edges on white
};

} // namespace zm
