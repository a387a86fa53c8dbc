#include "rendering/pass_chain.h"
#include "rendering/uniform_bytes.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

using Picture = PassChain::Picture;

constexpr double kSmallestSpan = 0.0001; // of a soft step, and of an exponent

constexpr QRgb kShadow = qRgb(26, 13, 5);
constexpr QRgb kMidtone = qRgb(90, 56, 32);
constexpr QRgb kHighlight = qRgb(216, 184, 150);

/// The value as the GPU takes it; the default for one that is not finite there.
float finite(double value, double defaultValue)
{
    const float narrowed = float(value);
    return std::isfinite(narrowed) ? narrowed : float(defaultValue);
}

float clamped(double value, double low, double high, double defaultValue)
{
    return std::clamp(finite(value, defaultValue), float(low), float(high));
}

float unit(double value, double defaultValue)
{
    return clamped(value, 0.0, 1.0, defaultValue);
}

float atLeast(double low, double value, double defaultValue)
{
    return std::max(finite(value, defaultValue), float(low));
}

UniformVec4 withAlpha(const QColor &color)
{
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

UniformVec4 opaque(const QColor &color, QRgb invalidColor, float fourth = 0.0F)
{
    const QColor used = color.isValid() ? color : QColor(invalidColor);
    return {used.redF(), used.greenF(), used.blueF(), fourth};
}

/// The numbers, each 0..1, of two points that are fractions of the picture.
UniformVec4 unitPoints(const QPointF &first, const QPointF &second, const QPointF &defaultFirst,
                       const QPointF &defaultSecond)
{
    return {unit(first.x(), defaultFirst.x()), unit(first.y(), defaultFirst.y()), unit(second.x(), defaultSecond.x()),
            unit(second.y(), defaultSecond.y())};
}

/// Left, top, right and bottom; of the whole picture for an empty or senseless region.
UniformVec4 edges(const QRectF &region, const QSize &size)
{
    const UniformVec4 result{float(region.left()), float(region.top()), float(region.right()), float(region.bottom())};
    const bool usable = std::all_of(result.cbegin(), result.cend(), [](float edge) { return std::isfinite(edge); });
    if (region.isEmpty() || !usable)
        return {0.0F, 0.0F, float(size.width()), float(size.height())};
    return result;
}

/// A pass in the size of its input.
Picture pass(PassChain &chain, const QString &shaderId, Picture input, std::initializer_list<UniformVec4> uniforms)
{
    return chain.shader(shaderId, chain.size(input), {input}, uniformBytes(uniforms));
}

UniformVec4 withSize(const PassChain &chain, Picture input, float third, float fourth = 0.0F)
{
    return {float(chain.size(input).width()), float(chain.size(input).height()), third, fourth};
}

/// Away from the picture, as the shader takes it.
QPoint direction(ReflectionGrowth growth)
{
    switch (growth) {
    case ReflectionGrowth::Down:
        return {0, 1};
    case ReflectionGrowth::Up:
        return {0, -1};
    case ReflectionGrowth::Right:
        return {1, 0};
    case ReflectionGrowth::Left:
        return {-1, 0};
    }
    Q_UNREACHABLE_RETURN({});
}

} // namespace

Picture PassChain::colorize(Picture input, const QColor &color, double opacity)
{
    const float share = finite(opacity, 0.0);
    if (share <= 0.0F)
        return input;
    return pass(*this, u"colorize"_s, input, {opaque(color, qRgb(255, 0, 0), share)});
}

Picture PassChain::colorAdjust(Picture input, const ColorAdjustment &adjustment)
{
    const auto signedUnit = [](double value) { return clamped(value, -1.0, 1.0, 0.0); };
    return pass(*this, u"colorAdjust"_s, input,
                {{signedUnit(adjustment.brightness), signedUnit(adjustment.saturation), signedUnit(adjustment.hue),
                  signedUnit(adjustment.contrast)},
                 {std::exp2(2.0F * signedUnit(adjustment.exposure)), signedUnit(adjustment.temperature),
                  std::exp2(-signedUnit(adjustment.gamma)), 0.0F}});
}

Picture PassChain::addNoise(Picture input, const NoiseSettings &noise)
{
    const NoiseSettings defaults;
    return pass(*this, u"addNoise"_s, input,
                {withSize(*this, input, finite(noise.amount, defaults.amount), finite(noise.seed, defaults.seed)),
                 {finite(noise.red, defaults.red), finite(noise.green, defaults.green),
                  finite(noise.blue, defaults.blue), 0.0F}});
}

Picture PassChain::grayscale(Picture input, const GrayscaleLevels &levels)
{
    const GrayscaleLevels defaults;
    return pass(*this, u"grayscale"_s, input,
                {{unit(levels.amount, defaults.amount), unit(levels.blackPoint, defaults.blackPoint),
                  unit(levels.whitePoint, defaults.whitePoint), unit(levels.thresholdAmount, defaults.thresholdAmount)},
                 {unit(levels.thresholdPoint, defaults.thresholdPoint),
                  clamped(levels.thresholdSoftness, kSmallestSpan, 1.0, defaults.thresholdSoftness), 0.0F, 0.0F}});
}

Picture PassChain::toneMap(Picture input, const ToneMapColors &colors, double amount)
{
    return pass(
        *this, u"toneMap"_s, input,
        {opaque(colors.shadow, kShadow), opaque(colors.highlight, kHighlight), {unit(amount, 1.0), 0.0F, 0.0F, 0.0F}});
}

Picture PassChain::highlightsToAlpha(Picture input, const HighlightsToAlphaSettings &settings)
{
    const HighlightsToAlphaSettings defaults;
    return pass(
        *this, u"highlightsToAlpha"_s, input,
        {opaque(settings.shadow, kShadow),
         opaque(settings.midtone, kMidtone),
         {unit(settings.threshold, defaults.threshold), atLeast(kSmallestSpan, settings.softness, defaults.softness),
          finite(settings.strength, defaults.strength), 0.0F}});
}

Picture PassChain::fadeOut(Picture input, const FadeOutSettings &settings)
{
    const FadeOutSettings defaults;
    return pass(*this, u"fadeOut"_s, input,
                {unitPoints(settings.start, settings.end, defaults.start, defaults.end),
                 {settings.mode == FadeMode::Radial ? 1.0F : 0.0F, unit(settings.strength, defaults.strength),
                  unit(settings.softness, defaults.softness), atLeast(kSmallestSpan, settings.curve, defaults.curve)},
                 {settings.inverted ? 1.0F : 0.0F, 0.0F, 0.0F, 0.0F},
                 settings.color.isValid() ? withAlpha(settings.color) : UniformVec4{1.0F, 1.0F, 1.0F, 0.0F}});
}

Picture PassChain::waterReflection(Picture input, const WaterReflectionSettings &settings, int maximumTextureSize)
{
    const WaterReflectionSettings defaults;
    const QPoint away = direction(settings.growth);
    const QSize pixels = size(input);
    const int extent = away.x() != 0 ? pixels.width() : pixels.height();
    const int room = maximumTextureSize - extent;
    if (room < 1)
        return input;
    const double wanted = double(atLeast(0.1, settings.ratio, defaults.ratio)) * extent;
    const int length = int(std::clamp(std::round(wanted), 1.0, double(room)));
    const QSize result = pixels + QSize(std::abs(away.x()), std::abs(away.y())) * length;
    const QPoint offset(away.x() < 0 ? length : 0, away.y() < 0 ? length : 0);
    return shader(
        u"waterReflection"_s, result, {input},
        uniformBytes(
            {withSize(*this, input, float(result.width()), float(result.height())),
             {float(offset.x()), float(offset.y()), float(length), 0.0F},
             unitPoints(settings.sourceStart, settings.sourceEnd, defaults.sourceStart, defaults.sourceEnd),
             {float(away.x()), float(away.y()), unit(settings.glassMix, defaults.glassMix), 0.0F},
             {unit(settings.opacity, defaults.opacity), atLeast(0.25, settings.fadeExponent, defaults.fadeExponent),
              atLeast(0.0, settings.waveStrength, defaults.waveStrength),
              atLeast(0.0, settings.waveFrequency, defaults.waveFrequency)},
             {atLeast(0.0, settings.ripple, defaults.ripple), unit(settings.sheen, defaults.sheen), 0.0F, 0.0F}}));
}

Picture PassChain::pixelate(Picture input, double blockSize)
{
    const float block = std::floor(finite(blockSize, 1.0));
    return block <= 1.0F ? input : pass(*this, u"pixelate"_s, input, {withSize(*this, input, block)});
}

Picture PassChain::sobel(Picture input, const EdgeDetection &edges)
{
    const EdgeDetection defaults;
    const QSize pixels = size(input);
    return pass(*this, u"sobel"_s, input,
                {{1.0F / float(pixels.width()), 1.0F / float(pixels.height()),
                  atLeast(0.0, edges.strength, defaults.strength), atLeast(0.25, edges.radius, defaults.radius)},
                 {unit(edges.threshold, defaults.threshold), edges.inverted ? 1.0F : 0.0F, 0.0F, 0.0F}});
}

Picture PassChain::innerShadow(Picture input, const QRectF &region, double reach, double strength, const QColor &tint)
{
    return pass(*this, u"innerShadow"_s, input,
                {withSize(*this, input, atLeast(0.001, reach, 0.0), unit(strength, 0.0)), edges(region, size(input)),
                 opaque(tint, qRgb(0, 0, 0))});
}

Picture PassChain::softBevel(Picture input, const QRectF &region, double width, double strength)
{
    return pass(*this, u"softBevel"_s, input,
                {withSize(*this, input, atLeast(0.0, width, 0.0), unit(strength, 0.0)), edges(region, size(input))});
}

Picture PassChain::raise(Picture input, const QRectF &region, double bevelSize)
{
    const float bevel = finite(bevelSize, 0.0);
    if (bevel <= 0.0F)
        return input;
    return pass(*this, u"raise"_s, input, {withSize(*this, input, bevel), edges(region, size(input))});
}

} // namespace zm
