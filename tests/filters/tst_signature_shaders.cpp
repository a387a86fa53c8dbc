#include "filters/library_uniform_block.h"
#include "rendering/library_shader_rows.h"
#include "rendering/opengl_texture_renderer.h"
#include "support/pictures.h"
#include "support/pixel_formula.h"

#include <QSet>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

// What the shaders that show the house style compute, in double precision on the CPU.

constexpr double kWidth = 44.0;
constexpr double kHeight = 24.0;

QImage picture(const std::function<Pixel(int, int)> &formula)
{
    QImage result(int(kWidth), int(kHeight), QImage::Format_RGBA8888);
    for (int y = 0; y < result.height(); ++y)
        for (int x = 0; x < result.width(); ++x) {
            const Pixel p = formula(x, y);
            for (int i = 0; i < 4; ++i)
                result.scanLine(y)[x * 4 + i] = uchar(std::lround(unit(p[size_t(i)]) * 255.0));
        }
    return result;
}

QImage grey(const QImage &image)
{
    return picture([&](int x, int y) { return withAlpha(Pixel(sampled(image, x + 0.5, y + 0.5)[0], 4), 1.0); });
}

const QImage kNoise = noisePicture(int(kWidth), int(kHeight), 3);
/// Slow slopes, so that few values jump, with holes and the alphas near opacity.
const QImage kSlopes = picture([](int x, int y) {
    const double alpha = std::array{1.0, 1.0, 253.0 / 255.0, 1.0, 0.0, 0.4}.at(size_t(x / 9 + y / 5 * 2) % 6);
    return Pixel{0.5 + 0.5 * std::sin(x * 0.21), 0.5 + 0.5 * std::cos(x * 0.05 + y * 0.19),
                 0.5 + 0.5 * std::sin(x * 0.08 - y * 0.11), alpha};
});

double highest(const Pixel &p)
{
    return std::max({p[0], p[1], p[2]});
}

double lowest(const Pixel &p)
{
    return std::min({p[0], p[1], p[2]});
}

Pixel limited(const Pixel &p)
{
    return p.apply(unit);
}

double wrapped(double value)
{
    return value - std::floor(value);
}

Pixel saturated(const Pixel &p, double amount)
{
    const double chroma = highest(p) - lowest(p);
    if (chroma < 0.001)
        return p;
    const double lightness = (highest(p) + lowest(p)) / 2.0;
    const double available = 2.0 * std::min(lightness, 1.0 - lightness);
    return lightness + (p - lightness) * std::min(amount, available / chroma);
}

/// The sums of Sobel along x and y of what `value` gives for the pixels at `reach`.
std::pair<double, double> slopes(const QImage &image, double x, double y, double reach,
                                 const std::function<double(const Pixel &)> &value)
{
    const auto at = [&](int i, int j) { return value(sampled(image, x + i * reach, y + j * reach)); };
    double across = 0.0;
    double down = 0.0;
    for (const auto &[i, weight] : {std::pair(-1, 1.0), {0, 2.0}, {1, 1.0}}) {
        across += weight * (at(1, i) - at(-1, i));
        down += weight * (at(i, 1) - at(i, -1));
    }
    return {across, down};
}

struct Comic
{
    double style, ink, levels, dotSize, punch, brightness, scale;
};

Pixel comic(const QImage &image, const Pixel &source, double x, double y, const Comic &given)
{
    const auto style = size_t(std::clamp(std::floor(given.style + 0.5), 0.0, 2.0));
    const double strength = unit(given.ink);
    const double levels = std::clamp(std::floor(given.levels + 0.5), 3.0, 8.0);
    const double punch = unit(given.punch);
    const Pixel ink =
        std::array<Pixel, 3>{{{0.025, 0.04, 0.085, 0}, {0.105, 0.028, 0.022, 0}, {0.018, 0.026, 0.045, 0}}}.at(style);
    const Pixel paper =
        std::array<Pixel, 3>{{{1, 0.955, 0.82, 0}, {0.965, 0.825, 0.57, 0}, {0.945, 0.9, 0.76, 0}}}.at(style);
    const double light = luma(source);
    Pixel color = mixed(ink, paper, softStep(0.035, 0.965, light));
    if (style == 0) {
        color = saturated(source, 1.05 + 0.9 * punch)
            * mixed(Pixel{0.9, 0.96, 1.08, 0}, Pixel{1.05, 1.0, 0.88, 0}, softStep(0.18, 0.82, light));
    } else if (style == 1) {
        const Pixel s = saturated(source, 0.95 + 0.72 * punch);
        color = Pixel{1.08 * s[0] + 0.03 * s[1], 0.92 * s[1] + 0.035 * s[0], 0.76 * s[2] + 0.08 * s[1], 0};
        color = mixed(color, Pixel(color * Pixel{1.08, 0.94, 0.76, 0}), 0.2 + 0.16 * (1.0 - light));
    }
    color = limited((color - 0.5) * (0.97 + 0.24 * punch) + 0.5);
    const double tone = luma(color);
    const double steps = std::max(2.0, levels - 1.0);
    const double colorSteps = std::max(2.0, std::floor(0.75 * levels));
    const double flat = std::round(tone * steps) / steps;
    const Pixel coarse = Pixel(color * colorSteps).apply([](double v) { return std::round(v); }) / colorSteps;
    color = flat + (coarse - luma(coarse)) * (0.78 + 0.34 * punch);
    color = mixed(color, paper, 0.16 * softStep(0.68, 1.0, flat));
    color = limited(mixed(color, ink, 0.28 * (1.0 - softStep(0.02, 0.28, flat))));
    color = std::pow(color, std::pow(2.0, -0.75 * std::clamp(given.brightness, -1.0, 1.0)));

    if (given.dotSize >= 0.5) {
        const double angle = std::array{0.261799, -0.20944, 0.785398}.at(style);
        const auto distance = [&](double px, double py) {
            const double size = std::max(given.dotSize, 1.0);
            return std::hypot(wrapped((px * std::cos(angle) - py * std::sin(angle)) / size) - 0.5,
                              wrapped((px * std::sin(angle) + py * std::cos(angle)) / size) - 0.5);
        };
        // Drivers take differences within squares of two pixels.
        const double left = std::floor(x / 2.0) * 2.0 + 0.5;
        const double top = std::floor(y / 2.0) * 2.0 + 0.5;
        const double change =
            std::abs(distance(left + 1.0, y) - distance(left, y)) + std::abs(distance(x, top + 1.0) - distance(x, top));
        const double width = std::max(change, 0.012);
        const double radius = 0.47 * std::sqrt(unit((1.0 - tone - 0.04) / 0.88));
        const double dotted = 1.0 - softStep(radius - width, radius + width, distance(x, y));
        color = mixed(color, ink, dotted * std::array{0.3, 0.4, 0.34}.at(style));
    }
    const double reach = std::clamp(given.scale, 0.5, 4.0) * (0.75 + 0.7 * strength);
    const auto edges = slopes(image, x, y, reach, [](const Pixel &p) { return mixed(1.0, luma(p), p[3]); });
    const auto rims = slopes(image, x, y, reach, [](const Pixel &p) { return p[3]; });
    const double edge = unit(0.3 * std::hypot(edges.first, edges.second) + 0.22 * std::hypot(rims.first, rims.second));
    const double contour = softStep(mixed(0.34, 0.065, strength), mixed(0.58, 0.18, strength), edge) * strength;
    const double shadow = (1.0 - softStep(0.035, 0.2, tone)) * strength * 0.36;
    return withAlpha(mixed(color, ink, std::max(contour, shadow)), source[3]);
}

struct Splash
{
    double hue, tolerance, softness, background, boost, amount, invert;
};

Pixel splashed(const Pixel &p, const Pixel &gray, const Splash &s)
{
    const double chroma = highest(p) - lowest(p);
    double sextant = 0.0;
    if (chroma > 0.0)
        sextant = p[0] >= highest(p) ? (p[1] - p[2]) / chroma
            : p[1] >= highest(p)     ? 2.0 + (p[2] - p[0]) / chroma
                                     : 4.0 + (p[0] - p[1]) / chroma;
    const double away = std::abs(wrapped(sextant / 6.0) - s.hue);
    const double distance = std::min(away, 1.0 - away);
    const double near = 1.0 - softStep(s.tolerance, s.tolerance + std::max(s.softness, 0.001), distance);
    const double colored = softStep(0.05, 0.22, highest(p) > 0.0 ? chroma / highest(p) : 0.0);
    const double keep = s.invert >= 0.5 ? 1.0 - unit(near * colored) : unit(near * colored);
    const Pixel boosted = limited(mixed(gray, p, 1.0 + s.boost));
    return withAlpha(mixed(p, mixed(mixed(gray, p, s.background), boosted, keep), s.amount), p[3]);
}

struct Miniature
{
    double position, width, angle, blur, punch;
};

Pixel miniature(const Pixel &source, const Pixel &blurred, double x, double y, const Miniature &m)
{
    const double aspect = kWidth / kHeight;
    const double distance =
        std::abs((x / kWidth - 0.5) * aspect * -std::sin(m.angle) + (y / kHeight - m.position) * std::cos(m.angle));
    const double feather = 0.026 + 0.3 * m.width + 0.025 * m.blur;
    const double lens = mixed(softStep(0.78 * m.width, m.width + feather, distance),
                              softStep(m.width, m.width + 2.15 * feather, distance), 0.34);
    const double coverage = softStep(0.985, 0.9995, source[3]) * softStep(0.985, 0.9995, blurred[3]);
    const double blur = unit(lens * m.blur) * coverage;
    Pixel color = mixed(source, blurred, blur);
    color += (source - blurred) * ((1.0 - lens) * coverage * m.blur * (0.035 + 0.045 * m.punch));
    const double vibrance = 1.0 + m.punch * mixed(0.52, 0.2, highest(color) - lowest(color));
    color = mixed(Pixel(luma(color), 4), color, vibrance);
    color = mixed(color, Pixel(3.0 * color * color - 2.0 * color * color * color), 0.28 * m.punch);
    const double l = luma(color);
    color += m.punch
        * (Pixel{-0.014, 0.006, 0.034, 0} * (1.0 - softStep(0.12, 0.52, l))
           + Pixel{0.012, 0.02, -0.004, 0} * (softStep(0.16, 0.5, l) * (1.0 - softStep(0.58, 0.88, l)))
           + Pixel{0.042, 0.018, -0.018, 0} * softStep(0.48, 0.94, l));
    color = limited(color) + blurred * (softStep(0.62, 0.96, luma(blurred)) * blur * m.punch * 0.035);
    const double corner = std::hypot((x / kWidth - 0.5) * aspect, y / kHeight - 0.5);
    return withAlpha(limited(color * (1.0 - softStep(0.44, 0.88, corner) * m.punch * 0.045)), source[3]);
}

/// By the transfer function of IEC 61966-2-1.
double toLinear(double v)
{
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double toEncoded(double v)
{
    return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1.0 / 2.4) - 0.055;
}

struct Light
{
    double x, y, radius, angle;
    int shape; ///< round, oval, rectangle, spot
    double softness;
    Pixel color; ///< linear, and the intensity
};

double coverage(const Light &light, double px, double py)
{
    const double radius = std::max(light.radius, 1.0);
    const double x = ((px - light.x) * std::cos(light.angle) + (py - light.y) * std::sin(light.angle)) / radius;
    const double y = ((py - light.y) * std::cos(light.angle) - (px - light.x) * std::sin(light.angle)) / radius;
    const double edge = std::min(1.5 / radius, 0.5);
    const auto falling = [&](double d, double soft) {
        const double inner = (1.0 - soft) * (1.0 - edge);
        const double t = unit((d - inner) / std::max(1.0 - inner, edge));
        return (1.0 - t * t * (3.0 - 2.0 * t)) * mixed(1.0, 0.6, light.softness);
    };
    if (light.shape == 2)
        return falling(std::pow(std::pow(x, 4.0) + std::pow(y / 0.62, 4.0), 0.25), light.softness);
    const double reach = std::hypot(x, y);
    if (light.shape < 2)
        return falling(light.shape == 0 ? reach : std::hypot(x, y / 0.5), light.softness);
    const double spread = reach < 0.0001 ? 0.0 : std::atan2(std::abs(y), x);
    const double angular = std::min(1.5 / std::max(reach * radius, 1.0), 0.5);
    const double cone = 1.0 - softStep(0.45 * (1.0 - 0.8 * light.softness), 0.45 + angular, spread);
    return cone * falling(reach, std::max(light.softness, 0.35));
}

Pixel relit(const Pixel &source, double x, double y, double base, const QList<Light> &lights)
{
    if (source[3] <= 1e-6)
        return source;
    Pixel sum(0.0, 4);
    for (const Light &light : lights)
        sum += light.color * (std::max(light.color[3], 0.0) * coverage(light, x, y));
    const Pixel albedo = source.apply(toLinear);
    Pixel lit = albedo * (base + sum) + sum * 0.035;
    for (size_t i = 0; i < 3; ++i) {
        const double knee = std::max(albedo[i], 0.8);
        const double room = std::max(1.0 - knee, 0.0001);
        if (lit[i] > knee)
            lit[i] = knee + room * (1.0 - std::exp(-(lit[i] - knee) / room));
    }
    return withAlpha(lit.apply(toEncoded), source[3]);
}

} // namespace

class TestSignatureShaders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (m_renderer.maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
    }

    void comicBook()
    {
        const auto printed = [&](const QImage &image, const Comic &c) {
            return render("comic-book", {image},
                          "u_style u_ink u_levels u_dotSize u_colorPunch u_brightnessCorrection u_renderScale",
                          {{c.style}, {c.ink}, {c.levels}, {c.dotSize}, {c.punch}, {c.brightness}, {c.scale}});
        };
        // A value in the middle between two flat tones, or at the rim of a dot, may fall on either side.
        for (const auto &[image, c, tolerance] : {std::tuple(kNoise, Comic{0, 0, 5, 0, 0.5, 0, 1}, 1),
                                                  {kNoise, {1, 0, 4, 0, 1, -0.6, 1}, 1},
                                                  {kNoise, {2, 0, 8, 0.4, 0.2, 0.7, 1}, 1},
                                                  {kNoise, {0, 0, 6, 5, 0.3, 0, 1}, 3},
                                                  {kNoise, {1, 0, 6, 8.5, 0.3, 0, 1}, 3},
                                                  {kNoise, {2, 0, 6, 0.7, 0.3, 0, 1}, 3},
                                                  {kSlopes, {0, 0.5, 5, 0, 0.5, 0.2, 1}, 3},
                                                  {kSlopes, {1, 0.2, 3, 6, 0.9, -0.2, 2}, 3},
                                                  {kSlopes, {2.4, 7, 12.4, -3, -2, 5, 9}, 3},
                                                  {kSlopes, {0, 1, 3, 0, 1, -1, 2 / 1.45}, 3},
                                                  {kSlopes, {-4, 0.4, 0, 0, 7, -5, 0.1}, 3}})
            QCOMPARE_LE(off(printed(image, c), image, tolerance,
                            [&](const Pixel &p, double x, double y) { return comic(image, p, x, y, c); }),
                        int(kWidth * kHeight / 100));

        // No colour is left in the third style: all of noise falls on the few steps between ink and paper.
        const QImage noir = printed(kNoise, {2, 0, 5, 0, 1, 0, 1});
        QSet<QRgb> tones;
        for (int i = 0; i < noir.width() * noir.height(); ++i)
            tones.insert(noir.pixel(i % noir.width(), i / noir.width()) | 0xff000000U);
        QCOMPARE_LE(tones.size(), 14);
    }

    void pencilSketch()
    {
        const QImage edges = noisePicture(int(kWidth), int(kHeight), 5);
        // Dark on its left, so that on the right the strokes of the mirrored tile are the stronger ones. Not darker, as
        // drivers read between pixels in eight bits, and the fifth root of values near black is steep.
        QImage tile = noisePicture(16, 16, 7).convertToFormat(QImage::Format_RGBX8888);
        for (int i = 0; i < 16 * 8; ++i)
            tile.setPixelColor(i % 8, i / 8, tile.pixelColor(i % 8, i / 8).darker(400));
        struct Pencil
        {
            double tile, color, tone, texture, edge, softness;
        };
        for (const Pencil &s : {Pencil{16, 0, 1, 0, 1, 0.1}, {16, 0.4, 0.7, 0.8, 0, 0.2}, {45, 1, 0.3, 1, 0.4, 0.5}}) {
            const QImage got = render("pencil-sketch", {kNoise, edges, tile},
                                      "u_tileSize u_color u_tone u_texture u_edgeStrength u_softness",
                                      {{s.tile}, {s.color}, {s.tone}, {s.texture}, {s.edge}, {s.softness}});
            QCOMPARE_LE(
                off(got, kNoise, 2,
                    [&](const Pixel &p, double x, double y) {
                        const double gray = std::pow(luma(p), 0.45455);
                        const double shade = unit(1.0 - gray);
                        const double row = wrapped((kHeight - y) / s.tile) * 16.0;
                        const double column = wrapped(x / s.tile) * 16.0;
                        const double first = luma(sampled(tile, column, row));
                        const double second = std::pow(std::max(luma(sampled(tile, 16.0 - column, row)), 0.001), 0.2);
                        const double hatch =
                            std::max(1.0 - softStep(shade - s.softness, shade + s.softness, first),
                                     1.0 - softStep(0.82 * shade - s.softness, 0.82 * shade + s.softness, second));
                        const double ink = unit(hatch * s.texture + sampled(edges, x, y)[0] * s.edge);
                        const Pixel wash = mixed(Pixel(1.0, 4), mixed(Pixel(gray, 4), p, s.color), shade * s.tone);
                        return withAlpha(mixed(wash, Pixel{0.035, 0.032, 0.03, 0}, ink), p[3]);
                    }),
                2);
        }
    }

    void painting()
    {
        for (const auto &[strength, saturation, brightness] :
             {std::tuple(0.0, 1.6, 1.2), {0.3, 0.4, 1.0}, {1.0, 2.5, 0.8}, {0.15, 1.0, 1.5}}) {
            const QImage got = render("painting", {kNoise}, "u_texelSize u_strength u_satMul u_brightMul",
                                      {{1.0 / kWidth, 1.0 / kHeight}, {strength}, {saturation}, {brightness}});
            QCOMPARE(off(got, kNoise, 1,
                         [&](const Pixel &p, double x, double y) {
                             const auto [across, down] =
                                 slopes(kNoise, x, y, 1.0, [](const Pixel &n) { return dot(n, {3, 4, 2, 0}) / 9.0; });
                             const double magnitude = unit((std::abs(across) + std::abs(down)) * strength * 0.5618);
                             const Pixel color = limited(limited(saturated(p, saturation)) * brightness) - magnitude;
                             return withAlpha(color, p[3]);
                         }),
                     0);
        }
    }

    void halation()
    {
        for (const auto &[threshold, softness] : {std::pair(0.6, 0.2), {0.2, 0.7}, {0.0, 1.0}})
            QCOMPARE(off(render("halation-highlights", {kNoise}, "u_threshold u_softness", {{threshold}, {softness}}),
                         kNoise, 1,
                         [&](const Pixel &p, double, double) {
                             const double energy = softStep(threshold, threshold + softness, luma(p)) * p[3];
                             return withAlpha(Pixel(energy, 4), 1.0);
                         }),
                     0);

        const QImage local = grey(noisePicture(int(kWidth), int(kHeight), 11));
        const QImage blurred = grey(noisePicture(int(kWidth), int(kHeight), 12));
        for (const auto &[strength, warmth] : {std::pair(0.0, 1.0), {0.5, 1.0}, {1.0, 0.3}, {2.0, 0.0}}) {
            const QImage got =
                render("halation", {kNoise, local, blurred}, "u_strength u_warmth", {{strength}, {warmth}});
            QCOMPARE(off(got, kNoise, 1,
                         [&](const Pixel &p, double x, double y) {
                             const double spread = std::max(sampled(blurred, x, y)[0] - sampled(local, x, y)[0], 0.0);
                             const double halo = spread * spread / (spread + 0.04) * strength;
                             const Pixel tint = mixed(Pixel(1.0, 4), Pixel{1.0, 0.12, 0.025, 0.0}, warmth);
                             const Pixel glowing = limited(p.apply(toLinear) + tint * halo).apply(toEncoded);
                             return p[3] > 0.0 && halo > 0.0 ? withAlpha(glowing, p[3]) : p;
                         }),
                     0);
            QVERIFY((got == kNoise) == (strength == 0.0));
        }
    }

    void selectiveColor()
    {
        const QImage gray = grey(kSlopes);
        for (const Splash &s : {Splash{0.0, 0.08, 0.1, 0, 0.4, 1, 0},
                                {0.97, 0.2, 0.3, 0.3, 0, 0.7, 1},
                                {0.4, 0.1, 0.15, 0.1, 1, 1, 0.4},
                                {0.6, 0.3, 0.2, 0, 1, 0, 0}}) {
            const QImage got =
                render("selective-color", {kNoise, gray},
                       "u_targetHue u_tolerance u_softness u_backgroundSaturation u_targetBoost u_amount u_invert",
                       {{s.hue}, {s.tolerance}, {s.softness}, {s.background}, {s.boost}, {s.amount}, {s.invert}});
            QCOMPARE(off(got, kNoise, 1,
                         [&](const Pixel &p, double x, double y) { return splashed(p, sampled(gray, x, y), s); }),
                     0);
            QVERIFY((got == kNoise) == (s.amount == 0.0));
        }
    }

    void tiltShift()
    {
        for (const QImage &blurred : {noisePicture(int(kWidth), int(kHeight), 9), grey(kNoise)})
            for (const Miniature &m :
                 {Miniature{0.5, 0.1, 0, 1, 0}, {0.3, 0.2, 0.7, 0.8, 0.6}, {0.8, 0, -1.2, 0.4, 1}}) {
                const QImage got = render("tilt-shift", {kSlopes, blurred},
                                          "u_focusPosition u_focusWidth u_angle u_blurStrength u_colorPunch",
                                          {{m.position}, {m.width}, {m.angle}, {m.blur}, {m.punch}});
                QCOMPARE(off(got, kSlopes, 1,
                             [&](const Pixel &p, double x, double y) {
                                 return miniature(p, sampled(blurred, x, y), x, y, m);
                             }),
                         0);
            }
    }

    void relight()
    {
        const Pixel warm{1.0, 0.7, 0.4, 0.9};
        const QList<Light> shapes{{10, 8, 14, 0.4, 0, 0.7, warm},
                                  {30, 12, 16, -0.8, 1, 0.2, {0.2, 0.5, 1, 1.6}},
                                  {20, 20, 12, 2.1, 2, 0.5, {0.1, 1, 0.3, 1}},
                                  {4, 4, 40, 0.3, 3, 0.4, {1, 1, 1, 2}}};
        QList<std::pair<double, QList<Light>>> cases{
            {1.0, shapes}, {2.0, {}}, {0.4, shapes + shapes.mid(1) + shapes.mid(3)}};
        for (Light light : shapes)
            for (const double softness : {0.0, 1.0}) {
                light.softness = softness;
                cases.append({0.3, {light}});
            }
        cases.append({0.5, {{20.5, 10.5, 0, 0, 0, 0.7, warm}, {9, 9, 12, 0, 0, 0.5, {1, 1, 1, -1}}}});
        for (const auto &[base, lights] : cases) {
            QByteArray names = "u_frame";
            QList<QList<double>> values{{kWidth, kHeight, double(lights.size()), base}};
            for (int i = 0; i < lights.size(); ++i) {
                const Light &l = lights.at(i);
                for (const char *name : {" u_lightGeometry", " u_lightColor", " u_lightShape"})
                    names += name + QByteArray::number(i);
                values += {{l.x, l.y, l.radius, l.angle},
                           {l.color[0], l.color[1], l.color[2], l.color[3]},
                           {double(l.shape), l.softness}};
            }
            QCOMPARE(off(render("relight", {kNoise}, names.constData(), values), kNoise, 1,
                         [&](const Pixel &p, double x, double y) { return relit(p, x, y, base, lights); }),
                     0);
        }
    }

    void tintedMask()
    {
        const QImage texture = noisePicture(8, 8, 21);
        // Reads close to the border of the tile look over to its other side.
        QImage tiled(10, 10, QImage::Format_RGBA8888);
        for (int i = 0; i < 100; ++i)
            std::copy_n(texture.constScanLine((i / 10 + 7) % 8) + (i % 10 + 7) % 8 * 4, 4,
                        tiled.scanLine(i / 10) + i % 10 * 4);
        const QImage mask = noisePicture(int(kWidth), int(kHeight), 22);
        const std::array<Pixel, 3> colors{Pixel{1, 0.2, 0, 0}, Pixel{0.1, 0.9, 0.3, 0}, Pixel{0.3, 0, 1, 0}};
        struct Overlay
        {
            double scale, inverted, offset, intensity;
        };
        // At the scale of 1 all reads fall on pixels; between them, drivers weigh pixels in eight bits, three times.
        for (const auto &[s, tolerance] : {std::pair(Overlay{1, 0, 0.25, 1}, 1),
                                           {Overlay{1, 1, 0.125, 0.6}, 1},
                                           {Overlay{0.55, 0, 0.0625, 0.8}, 2},
                                           {Overlay{2.3, 1, 0.21, 1}, 2}}) {
            QList<QList<double>> values{{8, 8}, {s.scale}, {s.inverted}, {s.offset, s.offset}, {s.intensity}};
            for (const Pixel &c : colors)
                values.append({c[0], c[1], c[2]});
            const QImage got =
                render("tinted-mask-base", {kNoise, texture, mask},
                       "u_texSize u_textureScale u_inverted u_offset u_intensity u_color0 u_color1 u_color2", values);
            QCOMPARE(off(got, kNoise, tolerance,
                         [&](const Pixel &p, double x, double y) {
                             const double inside = sampled(mask, x, y)[3];
                             const double area = mixed(inside, 1.0 - inside, s.inverted);
                             Pixel color = p;
                             for (size_t i = 0; i < 3; ++i) {
                                 const auto place = [&](double at) {
                                     return wrapped(at / (8.0 * s.scale) + double(i) * s.offset) * 8.0 + 1.0;
                                 };
                                 color = mixed(color, colors.at(i),
                                               sampled(tiled, place(x), place(y))[3] * area * s.intensity);
                             }
                             return withAlpha(color, p[3]);
                         }),
                     0);
        }
    }

private:
    /// With each list of components in the field of its name, and the size where the shader wants it.
    QImage render(const char *id, const QList<QImage> &images, const char *names, const QList<QList<double>> &values)
    {
        LibraryUniformBlock block{QString::fromLatin1(id)};
        if (findLibraryShader(block.shaderId())->fieldPosition("u_size"_L1) >= 0)
            block.setVec2("u_size"_L1, kWidth, kHeight);
        const QByteArrayList fields = QByteArray(names).split(' ');
        for (qsizetype i = 0; i < values.size(); ++i) {
            const QList<double> &v = values.at(i);
            block.setVec4(QLatin1StringView(fields.at(i)), v.value(0), v.value(1), v.value(2), v.value(3));
        }
        return m_renderer.renderFilterShader(block.shaderId(), images.first().size(), images, block.bytes(), {});
    }

    /// As countOff, all of a picture that is not there.
    static int off(const QImage &got, const QImage &source, int tolerance, const Formula &formula)
    {
        return got.size() == source.size() ? countOff(got, source, tolerance, formula) : INT_MAX;
    }

    OpenGLTextureRenderer m_renderer;
};

QTEST_MAIN(TestSignatureShaders)
#include "tst_signature_shaders.moc"
