#include "filters/craft/brush_coverage.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace zm {

namespace {

// Lengths are in thousandths of the diagonal.

/// The mask's diagonal in pixels; finer than this no bristle is.
constexpr double kMaskDiagonal = 1700.0;
constexpr float kBristle = 2.4f;
constexpr float kLongStreak = 150.0f;
constexpr float kShortStreak = 26.0f;
/// From here on the end of a stroke takes less than a level.
constexpr float kFarInside = 130.0f;

constexpr float kBristleEdge = 0.035f; ///< half the softness of a bristle's edge, of the paint

// PCG: Jarzynski and Olano, "Hash Functions for GPU Rendering", 2020.
quint32 pcg(quint32 value)
{
    const quint32 state = value * 747796405u + 2891336453u;
    const quint32 word = ((state >> ((state >> 28u) + 4u)) ^ state) * 277803737u;
    return (word >> 22u) ^ word;
}

/// 0..1, of a row of numbers.
float randomAt(int x, quint32 row)
{
    return float(int(pcg(quint32(x) + row) >> 8)) * (1.0f / 16777216.0f);
}

float smoothStep(float from, float to, float value)
{
    const float t = std::clamp((value - from) / (to - from), 0.0f, 1.0f);
    return t * t * (3.0f - 2.0f * t);
}

/// Without a call, which std::floor is on the oldest processors.
int floored(float x)
{
    const int cut = int(x);
    return cut - (x < float(cut) ? 1 : 0);
}

/// Value noise along a line, 0..1, cells of one unit.
float noise(float x, quint32 row)
{
    const int cell = floored(x);
    const float first = randomAt(cell, row);
    return first + (randomAt(cell + 1, row) - first) * smoothStep(0.0f, 1.0f, x - float(cell));
}

/// The same over the plane.
float noise(float x, float y, quint32 seed)
{
    const int cell = floored(y);
    const float top = noise(x, pcg(quint32(cell) + seed));
    const float bottom = noise(x, pcg(quint32(cell + 1) + seed));
    return top + (bottom - top) * smoothStep(0.0f, 1.0f, y - float(cell));
}

/// Bristles one after the other: noise across a stroke that runs on for some way along it. 0..1. Exact between `low`
/// and `high`; beyond them it is only known to lie there, which costs less.
float streaks(float along, float across, quint32 seed, float low = 0.0f, float high = 1.0f)
{
    constexpr float kMiddle = 0.4f;
    constexpr float kFine = 0.26f;
    const auto isDecided = [&](float streak, float rest) { return streak >= high || streak + rest <= low; };
    float streak = 0.34f * noise(along / kLongStreak, across / (3.0f * kBristle), seed);
    if (isDecided(streak, kMiddle + kFine))
        return streak;
    streak += kMiddle * noise(along / kLongStreak, across / kBristle, seed + 1);
    if (isDecided(streak, kFine))
        return streak;
    return streak + kFine * noise(along / kShortStreak, across / (0.7f * kBristle), seed + 2);
}

class BrushCanvas
{
public:
    BrushCanvas(const QSizeF &size, const BrushCoverageSettings &settings)
        : m_half(float(size.width() / 2.0), float(size.height() / 2.0))
        , m_cosine(float(std::cos(qDegreesToRadians(settings.directionDegrees))))
        , m_sine(float(std::sin(qDegreesToRadians(settings.directionDegrees))))
        , m_margin(float(1000.0 * settings.margin))
        , m_roughness(float(settings.roughness))
        , m_dryness(float(settings.dryness))
        , m_seed(pcg(settings.seed))
    {
        const int count = std::max(int(std::lround(settings.strokes)), 1);
        const float reach = std::abs(m_half.first * m_sine) + std::abs(m_half.second * m_cosine);
        m_top = -std::max(reach - 0.6f * m_margin, 0.3f * reach);
        m_spacing = -2.0f * m_top / float(count);
        for (int i = 0; i < count; ++i)
            m_strokes.push_back(strokeAt(i));
    }

    /// 0..1; x and y from the middle.
    float coverageAt(float x, float y) const
    {
        const float along = x * m_cosine + y * m_sine;
        const float wobble = 0.12f * m_spacing * m_roughness * 2.0f * (noise(along / 260.0f, m_seed + 7) - 0.5f);
        const float across = y * m_cosine - x * m_sine + wobble;
        float bare = 1.0f;
        const int nearest = floored((across - m_top) / m_spacing);
        for (int i = nearest - 1; i <= nearest + 1; ++i) {
            if (i >= 0 && i < int(m_strokes.size()))
                bare *= 1.0f - strokeCoverage(m_strokes[size_t(i)], along, across);
            if (bare < 1.0f / 512.0f)
                break;
        }
        return (1.0f - bare) * borderCoverage(x, y, along, across);
    }

private:
    struct Stroke
    {
        float middle; ///< across
        float halfWidth;
        float begin; ///< along
        float end;
        bool isReversed;
        quint32 seed;
    };

    Stroke strokeAt(int i) const
    {
        const auto random = [this, i](quint32 which) { return randomAt(i, pcg(which + m_seed + 11)); };
        Stroke stroke;
        stroke.middle = m_top + (float(i) + 0.5f + 0.16f * m_roughness * (random(0) - 0.5f)) * m_spacing;
        stroke.halfWidth = 0.5f * m_spacing * (1.24f + 0.22f * m_roughness * random(1));
        const auto [begin, end] = chord(stroke.middle);
        const float ragged = m_roughness * (0.35f * m_spacing + m_margin);
        stroke.begin = begin + ragged * random(2);
        stroke.end = end - ragged * random(3);
        stroke.isReversed = (i & 1) == 1;
        stroke.seed = m_seed + 100u * quint32(i + 1);
        return stroke;
    }

    /// Where a line along the strokes enters and leaves the canvas without half its margin.
    std::pair<float, float> chord(float across) const
    {
        float begin = -1e4f;
        float end = 1e4f;
        const auto limit = [&](float origin, float slope, float half) {
            if (std::abs(slope) < 1e-4f)
                return;
            const float a = (-half - origin) / slope;
            const float b = (half - origin) / slope;
            begin = std::max(begin, std::min(a, b));
            end = std::min(end, std::max(a, b));
        };
        limit(-across * m_sine, m_cosine, m_half.first - 0.5f * m_margin);
        limit(across * m_cosine, m_sine, m_half.second - 0.5f * m_margin);
        return {begin, end};
    }

    float strokeCoverage(const Stroke &stroke, float along, float across) const
    {
        const float away = std::abs(across - stroke.middle);
        if (away >= stroke.halfWidth)
            return 0.0f;
        const float waist = 1.0f - 0.2f * m_roughness * noise(along / 130.0f, stroke.seed + 8);
        const float side = away / (stroke.halfWidth * waist);
        if (side >= 1.0f)
            return 0.0f;
        float inside = std::min(along - stroke.begin, stroke.end - along);
        // Each bristle touches down and lifts at a place of its own, which does not matter far inside.
        const float ragged = m_roughness * (0.5f * m_spacing + 20.0f);
        if (inside < ragged + kFarInside) {
            const float touch = noise(across / kBristle, stroke.seed + 5);
            const float group = noise(across / (0.22f * m_spacing), stroke.seed + 6);
            const float ownBegin = stroke.begin + ragged * (0.45f * touch * touch + 0.4f * group - 0.2f);
            const float ownEnd = stroke.end - ragged * (0.55f * touch * touch + 0.5f * (1.0f - group) - 0.2f);
            inside = std::min(along - ownBegin, ownEnd - along);
        }
        if (inside <= -1.0f)
            return 0.0f;
        const float length = std::max(stroke.end - stroke.begin, 1.0f);
        const float way = std::clamp((along - stroke.begin) / length, 0.0f, 1.0f);
        const float spent = stroke.isReversed ? 1.0f - way : way;

        const float sideLoss = (0.25f + 0.75f * m_roughness) * side * side * side * side;
        const float endLoss = 0.45f * m_roughness * std::exp(-std::max(inside, 0.0f) / 30.0f);
        const float paint = 1.0f - m_dryness * (0.2f + 0.46f * spent * spent) - 0.6f * sideLoss - endLoss;
        const float streak = streaks(along, across, stroke.seed, paint - kBristleEdge, paint + kBristleEdge);
        return smoothStep(-kBristleEdge, kBristleEdge, paint - streak) * smoothStep(-1.0f, 1.0f, inside);
    }

    /// Nothing may be cut off straight at the border of the picture: the brush keeps off it, unevenly.
    float borderCoverage(float x, float y, float along, float across) const
    {
        const float distance = std::min(m_half.first - std::abs(x), m_half.second - std::abs(y));
        if (distance > 1.6f * m_margin + 2.0f)
            return 1.0f;
        const float slow = noise(along / 90.0f, across / 40.0f, m_seed + 21);
        const float uneven = 0.5f * slow + 0.5f * streaks(along, across, m_seed + 22);
        const float line = m_margin * (0.5f + 2.0f * m_roughness * (uneven - 0.5f));
        return smoothStep(-0.8f, 0.8f, distance - std::max(line, 1.0f));
    }

    std::pair<float, float> m_half;
    float m_cosine;
    float m_sine;
    float m_margin;
    float m_roughness;
    float m_dryness;
    quint32 m_seed;
    float m_top = 0.0f;
    float m_spacing = 1.0f;
    std::vector<Stroke> m_strokes;
};

} // namespace

QImage brushCoverage(const QSize &pictureSize, const BrushCoverageSettings &settings)
{
    const double diagonal = std::hypot(pictureSize.width(), pictureSize.height());
    const double reduction = std::min(1.0, kMaskDiagonal / diagonal);
    const QSize size = (QSizeF(pictureSize) * reduction).toSize().expandedTo(QSize(1, 1));
    QImage mask(size, QImage::Format_Grayscale8);
    if (mask.isNull())
        return mask;
    const QSizeF canvas = QSizeF(pictureSize) * (1000.0 / diagonal);
    const BrushCanvas brush(canvas, settings);
    const float stepX = float(canvas.width() / size.width());
    const float stepY = float(canvas.height() / size.height());
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = mask.scanLine(y);
        const float fromMiddle = (float(y) + 0.5f) * stepY - float(canvas.height() / 2.0);
        for (int x = 0; x < size.width(); ++x) {
            const float covered = brush.coverageAt((float(x) + 0.5f) * stepX - float(canvas.width() / 2.0), fromMiddle);
            row[x] = uchar(255.0f * covered + 0.5f);
        }
    }
    return mask;
}

} // namespace zm
