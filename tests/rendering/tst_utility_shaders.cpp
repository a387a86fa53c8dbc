#include "rendering/opengl_texture_renderer.h"
#include "support/pictures.h"
#include "support/pixel_formula.h"

#include <QTest>

#include <cmath>
#include <functional>
#include <numbers>

using namespace zm;
using namespace zm::test;

namespace {

// What every utility shader computes, in double precision on the CPU.

using Growth = ReflectionGrowth;

constexpr double kPi = std::numbers::pi;
const QColor kTeal(20, 160, 140, 128);
const QImage kNoise = noisePicture(41, 23, 3);

Pixel pixelOf(const QColor &color)
{
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

/// One rounding, and the eight bits in which drivers weigh the pixels of a linear read, make one level.
bool follows(const QImage &got, const Formula &formula)
{
    return got.size() == kNoise.size() && countOff(got, kNoise, 1, formula) == 0;
}

/// A fraction that looks random. It hangs on the last bits of a float, so that floats are rounded after every step.
double hash(float argument)
{
    const float scaled = float(std::sin(double(argument))) * 43758.546875F;
    return double(scaled - std::floor(scaled));
}

/// One value of a normal distribution for each place.
double gaussian(float x, float y, float seed)
{
    const auto random = [](float px, float py) { return hash(px * 127.1F + py * 311.7F); };
    const double first = std::max(random(x + seed, y + seed * 0.37F), 1e-6);
    const double second = random(x + (19.19F + seed * 1.71F), y + (73.73F - seed * 0.53F));
    return std::sqrt(-2.0 * std::log(first)) * std::cos(2.0 * kPi * second);
}

Pixel colorAdjusted(const Pixel &source, const ColorAdjustment &a)
{
    const auto turned = [](const Pixel &p, double c, double s) {
        return Pixel{
            dot(p, {0.213 + 0.787 * c - 0.213 * s, 0.715 - 0.715 * c - 0.715 * s, 0.072 - 0.072 * c + 0.928 * s, 0}),
            dot(p, {0.213 - 0.212 * c + 0.143 * s, 0.715 + 0.285 * c + 0.140 * s, 0.072 - 0.072 * c - 0.283 * s, 0}),
            dot(p, {0.213 - 0.213 * c - 0.787 * s, 0.715 - 0.715 * c + 0.715 * s, 0.072 + 0.928 * c + 0.072 * s, 0}),
            p[3]};
    };
    Pixel p = turned(turned(source, 1.0 + a.saturation, 0.0), std::cos(a.hue * kPi), std::sin(a.hue * kPi));
    /// A darkening as it is, a lightening less in highlights.
    const auto guarded = [&p](double lift, double leastShare) {
        const double light = dot(p.apply(unit), {0.213, 0.715, 0.072, 0.0});
        return lift > 0.0 ? lift * mixed(1.0, leastShare, softStep(0.68, 0.96, light)) : lift;
    };
    const double contrast = a.contrast < 0.0 ? a.contrast * 50.0 : a.contrast * 150.0;
    p += source * contrast / 100.0 - contrast / 255.0;
    p += guarded(a.brightness * 110.0 / 255.0, 0.25);
    p *= 1.0 + guarded(std::pow(4.0, a.exposure) - 1.0, 0.18);
    p *= Pixel{1.0 + 0.18 * a.temperature, 1.0, 1.0 - 0.18 * a.temperature, 1.0};
    return withAlpha(std::pow(p.apply(unit), std::pow(2.0, -a.gamma)), source[3]);
}

Pixel faded(const Pixel &p, const QPointF &place, const FadeOutSettings &s)
{
    const QPointF line = s.end - s.start;
    const QPointF way = place - s.start;
    const double squared = QPointF::dotProduct(line, line);
    const double t = s.mode == FadeMode::Linear ? QPointF::dotProduct(way, line) / std::max(squared, 1e-4)
                                                : std::hypot(way.x(), way.y()) / std::max(std::sqrt(squared), 1e-4);
    const double fade = std::pow(softStep(0.5 - s.softness / 2.0, 0.5 + s.softness / 2.0, unit(t)), s.curve);
    const double amount = (s.inverted ? 1.0 - fade : fade) * s.strength;
    const Pixel color = s.color.isValid() ? pixelOf(s.color) : Pixel{1, 1, 1, 0};
    const double alpha = mixed(p[3], p[3] * color[3], amount);
    const Pixel premultiplied = mixed(Pixel(p * p[3]), Pixel(color * p[3] * color[3]), amount);
    return withAlpha(alpha > 1e-6 ? Pixel(premultiplied / alpha) : p, alpha);
}

/// The reflection at `t` of its length, `across` the axis.
Pixel reflected(const QImage &picture, double across, double t, const WaterReflectionSettings &s)
{
    const bool upright = s.growth == Growth::Down || s.growth == Growth::Up;
    const double amplitude = s.waveStrength * (0.35 + 0.65 * (1.0 - t)) * (1.0 - s.glassMix);
    const double phase = t * s.waveFrequency * 2.0 * kPi;
    const double wave = std::sin(across * 0.045 * s.waveFrequency + phase)
        + 0.55 * std::sin(across * 0.017 * s.waveFrequency - phase * 1.73)
        + (hash(float(std::floor(t * 48.0)) * 127.1F) - 0.5) * s.ripple;
    const auto shifted = [&](double by) {
        const QPointF along = mixed(s.sourceEnd, s.sourceStart, t);
        const double side = across + amplitude * wave + by;
        const QPointF place =
            upright ? QPointF(side, along.y() * picture.height()) : QPointF(along.x() * picture.width(), side);
        const bool inside = QRectF(QPointF(), picture.size()).contains(place);
        return inside ? sampled(picture, place.x(), place.y()) : Pixel(0.0, 4);
    };
    const Pixel a = shifted(0.0);
    const Pixel soft = 0.55 * a + 0.25 * shifted(amplitude * 0.35 + 1.0) + 0.2 * shifted(-amplitude * 0.25 - 1.0);
    const Pixel color = mixed(soft, a, s.glassMix);
    const Pixel water = mixed(color, Pixel(color * Pixel{0.82, 0.92, 1.05, 1.0}), 0.45);
    const Pixel glass = mixed(color, Pixel(1.0, 4), s.sheen * (1.0 - t) * 0.35);
    const double fade = std::pow(1.0 - t, s.fadeExponent) * mixed(1.0, 1.0 - softStep(0.85, 1.0, t), s.glassMix);
    return withAlpha(mixed(water, glass, s.glassMix), color[3] * s.opacity * fade);
}

} // namespace

class TestUtilityShaders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (m_renderer.maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
    }

    void recolouring()
    {
        for (const double opacity : {0.3, 1.0, 7.0})
            QVERIFY(follows(m_renderer.colorize(kNoise, kTeal, opacity), [&](const Pixel &p, double, double) {
                return withAlpha(mixed(p, pixelOf(kTeal), std::min(opacity, 1.0)), p[3]);
            }));
        QCOMPARE(m_renderer.colorize(kNoise, {}, 0.5), m_renderer.colorize(kNoise, Qt::red, 0.5));

        const QColor shadow(26, 13, 5);
        for (const auto &[colors, light, amount] : {std::tuple(ToneMapColors{}, QColor(216, 184, 150), 1.0),
                                                    {ToneMapColors{shadow, Qt::green}, QColor(Qt::green), 0.6}})
            QVERIFY(follows(m_renderer.toneMap(kNoise, colors, amount), [&](const Pixel &p, double, double) {
                return withAlpha(mixed(p, mixed(pixelOf(shadow), pixelOf(light), luma(p)), amount), p[3]);
            }));
        for (const auto &[s, light] : {std::pair(HighlightsToAlphaSettings{}, QColor(90, 56, 32)),
                                       {{{}, kTeal, 0.7, 0.1, 0.9}, kTeal},
                                       {{shadow, kTeal, 1.0, 0.5, 0.0}, kTeal}})
            QVERIFY(follows(m_renderer.highlightsToAlpha(kNoise, s), [&](const Pixel &p, double, double) {
                const double fade = softStep(s.threshold, s.threshold + s.softness, luma(p)) * s.strength;
                return withAlpha(mixed(pixelOf(shadow), pixelOf(light), luma(p)), p[3] * (1.0 - fade));
            }));
        for (const GrayscaleLevels &s : {GrayscaleLevels{1, 0.9, 0.1, 1, 1, 1},
                                         {0.4, 0.2, 0.7, 0.5, 0.3, 0.2},
                                         {},
                                         {1, 0.5, 0.5, 0, 0, 0},
                                         {1, 0, 1, 1, 0.45, 0}})
            QVERIFY(follows(m_renderer.grayscale(kNoise, s), [&](const Pixel &p, double, double) {
                const double leveled = unit((luma(p) - s.blackPoint) / std::max(0.001, s.whitePoint - s.blackPoint));
                const double soft = std::max(1e-4, s.thresholdSoftness);
                const double ink = softStep(s.thresholdPoint - soft, s.thresholdPoint + soft, leveled);
                return withAlpha(mixed(p, Pixel(mixed(leveled, ink, s.thresholdAmount), 4), s.amount), p[3]);
            }));
    }

    void corrections()
    {
        QCOMPARE_LE(maximumDifference(m_renderer.colorAdjust(kNoise, {}), kNoise), 1);
        QList<ColorAdjustment> cases{{0.4, -0.3, 0.6, 0.2, 0.5, -0.7, 0.8}};
        for (const double v : {-1.0, -0.4, 0.3, 1.0})
            cases += {{.brightness = v}, {.saturation = v},  {.hue = v},  {.contrast = v},
                      {.exposure = v},   {.temperature = v}, {.gamma = v}};
        for (const ColorAdjustment &s : cases)
            QVERIFY(follows(m_renderer.colorAdjust(kNoise, s),
                            [&](const Pixel &p, double, double) { return colorAdjusted(p, s); }));
    }

    void neighbourhoods()
    {
        for (const EdgeDetection &s :
             {EdgeDetection(), {0.6, 2, 0.2, false}, {0.4, 0, 0.0009, true}, {0.3, 1.5, 1, false}, {-2, 1, 0, true}})
            QVERIFY(follows(m_renderer.sobel(kNoise, s), [&](const Pixel &p, double x, double y) {
                const auto grey = [&](int column, int row) {
                    const double reach = std::max(s.radius, 0.25);
                    return dot(sampled(kNoise, x + column * reach, y + row * reach), {3, 4, 2, 0}) * 0.1111111;
                };
                double across = 0.0;
                double down = 0.0;
                for (const auto &[i, weight] : {std::pair(-1, 1), {0, 2}, {1, 1}}) {
                    across += weight * (grey(1, i) - grey(-1, i));
                    down += weight * (grey(i, 1) - grey(i, -1));
                }
                double edge = unit((std::abs(across) + std::abs(down)) * std::max(s.strength, 0.0) * 0.5618);
                if (s.threshold >= 0.001)
                    edge = s.threshold < 1.0 ? softStep(s.threshold, std::min(1.0, s.threshold + 0.55), edge) : 0.0;
                return withAlpha(Pixel(s.inverted ? 1.0 - edge : edge, 4), p[3]);
            }));
        for (const double block : {2.0, 3.9, 16.0, 1e9})
            QVERIFY(follows(m_renderer.pixelate(kNoise, block), [&](const Pixel &, double x, double y) {
                const double side = std::floor(block);
                return sampled(kNoise, (std::floor(x / side) + 0.5) * side, (std::floor(y / side) + 0.5) * side);
            }));
    }

    void framesCountRowsFromTheOtherEnd()
    {
        const QRectF whole(QPointF(), kNoise.size());
        const QRectF inner(5, 3, 30, 12);
        using Case = std::tuple<QRectF, double, double>;
        for (const auto &[region, size, strength] : {Case(inner, 4, 0.7),
                                                     {inner, 40, 1},
                                                     {inner, 0, 1},
                                                     {QRectF(-50, 4, 60, 9), 6, 1},
                                                     {QRectF(), 7.5, 0.5},
                                                     {QRectF(9, 9, -3, 2), 5, 1},
                                                     {QRectF(NAN, 0, 9, 9), 5, 1}}) {
            const QRectF used = inner == region || region.left() < 0.0 ? region : whole;
            /// The change gets a pixel and its distances to left, top, right and bottom.
            const auto framed = [&](const QImage &got, const auto &change) {
                return follows(got, [&](const Pixel &p, double x, double fromTop) {
                    const double y = kNoise.height() - fromTop;
                    const Pixel d{x - used.left(), y - used.top(), used.right() - x, used.bottom() - y};
                    return d.min() < 0.0 ? p : withAlpha(change(p, d), p[3]);
                });
            };
            QVERIFY(framed(m_renderer.innerShadow(kNoise, region, size, strength, kTeal), [&](Pixel p, const Pixel &d) {
                double alpha = 1.0;
                for (const double distance : {std::min(d[0], d[2]), std::min(d[1], d[3])})
                    alpha *= distance < size ? std::clamp(distance / size + 1.0 - strength, 0.2, 1.0) : 1.0;
                const Pixel tint = pixelOf(kTeal);
                for (size_t i = 0; i < 3 && alpha < 0.999; ++i)
                    p[i] = std::max(mixed(tint[i], p[i], alpha), std::min(p[i], tint[i]));
                return p;
            }));
            QVERIFY(framed(m_renderer.softBevel(kNoise, region, size, strength), [&](Pixel p, const Pixel &d) {
                const double wave = d.min() < size ? std::sin((size / 2.0 - d.min()) / (size / 2.0)) : 0.0;
                return Pixel(p + wave * strength * 30.0 / 255.0);
            }));
            QVERIFY(framed(m_renderer.raise(kNoise, region, size), [&](const Pixel &p, const Pixel &d) {
                const double sign = std::min(d[0], d[1]) <= std::min(d[2], d[3]) ? 0.2 : -0.2;
                return d.min() < size ? Pixel(p + sign * (1.0 - d.min() / size)) : p;
            }));
        }
    }

    void fades()
    {
        const QPointF point(0.25, 0.5);
        for (const FadeOutSettings &s : {FadeOutSettings(),
                                         {{0, 0.2}, {1, 0.9}, FadeMode::Linear, 0.8, 0.3, 2.5, true, kTeal},
                                         {{0.5, 0.5}, {1, 1}, FadeMode::Radial, 1, 1, 0.4, false, Qt::red},
                                         {point, point, FadeMode::Radial, 1, 0.6, 1, false},
                                         {point, point, FadeMode::Linear, 1, 0.6, 1, true},
                                         {point, {0.7, 0.5}, FadeMode::Linear, 1, 0, 1, false}})
            QVERIFY(follows(m_renderer.fadeOut(kNoise, s), [&](const Pixel &p, double x, double y) {
                return faded(p, {x / kNoise.width(), y / kNoise.height()}, s);
            }));
    }

    void reflections()
    {
        // Of lengths that are multiples of 16 pixels, no row lies where two bands of ripples meet.
        const QImage picture = gradientPicture(79, 46);
        const QPointF far(0.3, 0.2);
        const QPointF near(0.9, 0.97);
        for (const WaterReflectionSettings &s : {WaterReflectionSettings(),
                                                 {Growth::Up, 1.04, near, far, 0, 0.9, 0.3, 4, 3.95, 0, 0},
                                                 {Growth::Right, 0.61, far, near, 0.4, 0.8, 1, 18, 0.6, 1, 0.5},
                                                 {Growth::Left, 0.81, near, far, 0.1, 1, 3, 18, 2, 20, 1},
                                                 {Growth::Down, 0.35, far, near, 1, 1, 0.25, 0, 0, 0, 0.7}}) {
            const bool upright = s.growth == Growth::Down || s.growth == Growth::Up;
            const int length = int(std::lround(s.ratio * (upright ? 46 : 79)));
            const QPoint place(s.growth == Growth::Left ? length : 0, s.growth == Growth::Up ? length : 0);
            const QImage result = m_renderer.waterReflection(picture, s);
            QCOMPARE(result.size(), picture.size() + QSize(upright ? 0 : length, upright ? length : 0));
            QCOMPARE(result.copy(QRect(place, picture.size())), picture);
            const int off = countOff(result, result, 2, [&](const Pixel &p, double x, double y) {
                const bool atEnd = s.growth == Growth::Down || s.growth == Growth::Right;
                const double along = upright ? y : x;
                const double t = atEnd ? (along - (upright ? 46 : 79)) / length : 1.0 - along / length;
                return t > 0.0 && t < 1.0 ? reflected(picture, upright ? x : y, t, s) : p;
            });
            // Where a wave crosses the edge of the picture, a pixel may fall on either side; blue has steps there.
            QCOMPARE_LE(off, result.width() * result.height() / 200);
        }
    }

    void reflectionKeepsToTheTexturesOfTheDriver()
    {
        const int maximum = m_renderer.maximumTextureSize();
        QCOMPARE(m_renderer.waterReflection(noisePicture(3, 5, 1), {.ratio = 0.0}).size(), QSize(3, 6));
        const QImage tallest = noisePicture(1, maximum, 1);
        QCOMPARE(m_renderer.waterReflection(tallest, {}), tallest);
        PassChain chain;
        const PassChain::Picture source = chain.source(tallest);
        QCOMPARE(chain.size(chain.waterReflection(source, {.ratio = 9.0}, maximum + 7)), QSize(1, maximum + 7));
    }

    void noise()
    {
        const QImage grey = plainPicture(80, 60, QColor(128, 128, 128, 77));
        for (const NoiseSettings &s : {NoiseSettings{.amount = 0.1}, {0.2, 0.5, 1, 0, 3}, {0.05, 1, 2, 4, 1234.5}}) {
            const int off = countOff(m_renderer.addNoise(grey, s), grey, 2, [&](const Pixel &p, double x, double y) {
                const auto shifted = [&](int right, int down) {
                    return gaussian(float(x - 0.5 + right), float(y - 0.5 + down), float(s.seed));
                };
                const Pixel values{shifted(0, 0), shifted(17, 29), shifted(43, 11), 0};
                return Pixel(p + values * s.amount * Pixel{s.red, s.green, s.blue, 0});
            });
            // The driver's sine has its own last bits, which decide at few pixels.
            QCOMPARE_LE(off, 48);
        }
    }

    void senselessNumbersCountAsDefaults()
    {
        OpenGLTextureRenderer &r = m_renderer;
        const QRectF area(5, 3, 30, 12);
        using Operation = std::function<QImage(const QImage &, double)>;
        for (const auto &[usual, operation] : {
                 std::pair<double, Operation>(0, [&](auto &i, double v) { return r.colorize(i, kTeal, v); }),
                 {0, [&](auto &i, double v) { return r.colorAdjust(i, {v, v, v, v, v, v, v}); }},
                 {1, [&](auto &i, double v) { return r.addNoise(i, {0.1, v, v, v, 0}); }},
                 {0, [&](auto &i, double v) { return r.grayscale(i, {1, v, 1, v, 0.5, v}); }},
                 {0.5, [&](auto &i, double v) { return r.grayscale(i, {1, 0, 1, 1, v, 0.1}); }},
                 {1, [&](auto &i, double v) { return r.toneMap(i, {}, v); }},
                 {0.35, [&](auto &i, double v) { return r.highlightsToAlpha(i, {.threshold = v}); }},
                 {0.55, [&](auto &i, double v) { return r.highlightsToAlpha(i, {.softness = v}); }},
                 {0.5, [&](auto &i, double v) { return r.fadeOut(i, {.start = {v, 0}, .end = {v, 0.9}}); }},
                 {1, [&](auto &i, double v) { return r.fadeOut(i, {.end = {0, v}, .strength = v, .curve = v}); }},
                 {0.7, [&](auto &i, double v) { return r.waterReflection(i, {.ratio = v}); }},
                 {1, [&](auto &i, double v) { return r.pixelate(i, v); }},
                 {1, [&](auto &i, double v) { return r.sobel(i, {.strength = v, .radius = v}); }},
                 {0, [&](auto &i, double v) { return r.innerShadow(i, area, v, v, kTeal); }},
                 {0, [&](auto &i, double v) { return r.softBevel(i, area, v, v); }},
                 {0, [&](auto &i, double v) { return r.raise(i, area, v); }},
             }) {
            const QImage expected = operation(kNoise, usual);
            for (const double senseless : {std::nan(""), double(INFINITY), -double(INFINITY), 1e300})
                QCOMPARE(operation(kNoise, senseless), expected);
            QVERIFY(operation({}, usual).isNull());
            for (const QImage &thin : {noisePicture(1, 1, 2), noisePicture(1, 5000, 2)})
                QCOMPARE_GE(operation(thin, usual).height(), thin.height());
        }
        for (const QImage &same : {r.colorize(kNoise, kTeal, -1), r.pixelate(kNoise, 1.9), r.raise(kNoise, {}, 0)})
            QCOMPARE(same.constBits(), kNoise.constBits());
    }

    /// Nothing is lost or gained by leaving pictures on the GPU.
    void chainEqualsSingleOperations()
    {
        const ColorAdjustment warm{.contrast = 0.2, .temperature = 0.5};
        const FadeOutSettings fade{.mode = FadeMode::Radial, .color = kTeal};
        PassChain chain;
        PassChain::Picture picture = chain.colorAdjust(chain.source(kNoise), warm);
        picture = chain.gaussianBlur(chain.waterReflection(picture, {}, m_renderer.maximumTextureSize()), 1.5);
        picture = chain.softBevel(chain.pixelate(picture, 3.0), {}, 5.0, 1.0);
        picture = chain.raise(chain.fadeOut(picture, fade), {}, 3.0);

        QImage single = m_renderer.waterReflection(m_renderer.colorAdjust(kNoise, warm), {});
        single = m_renderer.pixelate(m_renderer.gaussianBlur(single, 1.5), 3.0);
        single = m_renderer.fadeOut(m_renderer.softBevel(single, {}, 5.0, 1.0), fade);
        QCOMPARE(m_renderer.renderChain(chain, picture), m_renderer.raise(single, {}, 3.0));
    }

    /// A quarter of the memory gives the same grey.
    void redAloneIsEnoughForGrey()
    {
        const QImage opaque = gradientPicture(200, 90);
        const auto softEdges = [&](bool redAlone) {
            PassChain chain;
            PassChain::Picture gray = chain.grayscale(chain.source(opaque), {});
            if (redAlone)
                gray = chain.keepRed(gray);
            return m_renderer.renderChain(chain, chain.sobel(chain.gaussianBlur(gray, 12.0), {.strength = 4.0}));
        };
        QCOMPARE(softEdges(true), softEdges(false));
    }

    void stackHoldsPictureAndMap()
    {
        const QImage tall = noisePicture(23, 41, 5);
        const QImage map = noisePicture(9, 30, 6);
        const std::pair<int, QPoint> cases[] = {{71, {0, 41}}, {70, {23, 0}}, {40, {}}};
        for (const auto &[maximumSide, mapPlace] : cases) {
            for (const bool isMade : {false, true}) { // by the chain, or uploaded as it is
                PassChain chain;
                const auto part = [&](const QImage &image) {
                    const auto source = chain.source(image);
                    return isMade ? chain.shader(QStringLiteral("textureCopy"), image.size(), {source}) : source;
                };
                const auto picture = part(tall);
                const QImage got = m_renderer.renderChain(chain, chain.stacked(picture, part(map), maximumSide));
                QCOMPARE(got.isNull(), mapPlace.isNull());
                if (!got.isNull()) {
                    QCOMPARE(got.copy(tall.rect()), tall);
                    QCOMPARE(got.copy({mapPlace, map.size()}), map);
                }
            }
        }
    }

private:
    OpenGLTextureRenderer m_renderer;
};

QTEST_MAIN(TestUtilityShaders)
#include "tst_utility_shaders.moc"
