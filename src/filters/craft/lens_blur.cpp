#include "filters/craft/lens_blur.h"

#include "filters/craft/row_bands.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cmath>

namespace zm {

namespace {

constexpr double kSmallestRadius = 0.5;
constexpr double kWorkingRadius = 7.0; // pixels of the reduced picture: enough for round discs
constexpr double kLampBoost = 5.0;     // white counts as six times its light
constexpr double kLampPower = 10.0;    // of the light: how close to white the boost begins
constexpr double kFullScale = 1 << 20; // fixed-point value of white with its boost
constexpr int kEncodeSteps = 8192;
constexpr int kChannels = 4;

/// From encoded values to light with its boost, and back. Going back ends at white.
class LightScale
{
public:
    LightScale()
    {
        for (int i = 0; i < 256; ++i) {
            const double encoded = i / 255.0;
            const double linear =
                encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4); // IEC 61966-2-1
            m_light[i] = linear * (1.0 + kLampBoost * std::pow(linear, kLampPower)) / (1.0 + kLampBoost);
        }
        int code = 0;
        for (int i = 0; i <= kEncodeSteps; ++i) {
            const double root = double(i) / kEncodeSteps;
            while (code < 255 && root * root > 0.5 * (m_light[code] + m_light[code + 1]))
                ++code;
            m_encoded[i] = uchar(code);
        }
    }

    float light(uchar encoded) const { return float(m_light[encoded]); }
    /// 0..1. The steps are those of the square root, so that the dark ones are fine.
    uchar encoded(double light) const { return m_encoded[int(std::sqrt(std::clamp(light, 0.0, 1.0)) * kEncodeSteps)]; }

private:
    std::array<double, 256> m_light;
    std::array<uchar, kEncodeSteps + 1> m_encoded;
};

/// Light and coverage, weighted by coverage, of a small picture; kChannels numbers a pixel.
struct LightField
{
    int width = 0;
    int height = 0;
    QList<float> values;
};

/// The cell of a reduced row or column that each pixel falls into.
QList<int> cellsOf(int pixels, int cells)
{
    QList<int> result(pixels);
    for (int i = 0; i < pixels; ++i)
        result[i] = int(qint64(i) * cells / pixels);
    return result;
}

LightField reduced(const QImage &image, int factor, const LightScale &scale)
{
    const auto part = [factor](int side) { return std::max((side + factor / 2) / factor, 1); };
    LightField field{part(image.width()), part(image.height()), {}};
    field.values.fill(0.0F, qsizetype(field.width) * field.height * kChannels);
    const QList<int> columns = cellsOf(image.width(), field.width);
    const QList<int> rows = cellsOf(image.height(), field.height);
    QList<int> columnPixels(field.width, 0);
    for (const int column : columns)
        ++columnPixels[column];

    float *values = field.values.data();
    const qsizetype stride = qsizetype(field.width) * kChannels;
    const auto reduceRow = [&](int cellRow) {
        float *row = values + cellRow * stride;
        const auto [begin, end] = std::equal_range(rows.begin(), rows.end(), cellRow);
        for (int y = int(begin - rows.begin()); y < int(end - rows.begin()); ++y) {
            const uchar *pixel = image.constScanLine(y);
            for (int x = 0; x < image.width(); ++x, pixel += kChannels) {
                float *cell = row + columns[x] * kChannels;
                const float alpha = float(pixel[3]) / 255.0F;
                for (int channel = 0; channel < 3; ++channel)
                    cell[channel] += alpha * scale.light(pixel[channel]);
                cell[3] += alpha;
            }
        }
        for (int x = 0; x < field.width; ++x) {
            const float share = 1.0F / float(columnPixels[x] * (end - begin));
            for (int channel = 0; channel < kChannels; ++channel)
                row[x * kChannels + channel] *= share;
        }
    };
    forRowBands(field.height, [&](int first, int count) {
        for (int cellRow = first; cellRow < first + count; ++cellRow)
            reduceRow(cellRow);
    });
    return field;
}

/// A row's running sums with the outer pixels repeated beyond both ends. Fixed point in numbers that wrap around: the
/// difference of two sums is exact.
class RowSums
{
public:
    void build(const float *row, int width, int margin)
    {
        m_sums.resize(qsizetype(width + 2 * margin + 1) * kChannels);
        quint32 *sum = m_sums.data();
        std::fill_n(sum, kChannels, 0U);
        for (int x = -margin; x < width + margin; ++x, sum += kChannels) {
            const float *pixel = row + qsizetype(std::clamp(x, 0, width - 1)) * kChannels;
            for (int channel = 0; channel < kChannels; ++channel)
                sum[kChannels + channel] = sum[channel] + quint32(std::lround(pixel[channel] * kFullScale));
        }
    }
    /// Of the pixels from `first` on, counted from the margin's left end.
    const quint32 *before(int first) const { return m_sums.constData() + qsizetype(first) * kChannels; }

private:
    QList<quint32> m_sums;
};

/// One row of a disc: whole pixels to both sides of the middle, and the share of the next ones.
struct DiscRow
{
    int half;
    float rim;
};

/// Adds the row of a disc around every pixel of a row.
void addDiscRow(const RowSums &sums, DiscRow disc, int margin, QList<float> &totals)
{
    const int inner = 2 * disc.half + 1;
    const qsizetype width = totals.size() / kChannels;
    float *total = totals.data();
    for (int x = 0; x < width; ++x, total += kChannels) {
        const int first = x + margin - disc.half;
        const quint32 *left = sums.before(first);
        const quint32 *right = sums.before(first + inner);
        for (int channel = 0; channel < kChannels; ++channel) {
            const quint32 whole = right[channel] - left[channel];
            const quint32 ends =
                left[channel] - left[channel - kChannels] + right[channel + kChannels] - right[channel];
            total[channel] += float(whole) + disc.rim * float(ends);
        }
    }
}

QImage encoded(const LightField &field, double radius, const LightScale &scale)
{
    const int reach = int(std::floor(radius));
    const int margin = reach + 2;
    QList<DiscRow> disc;
    double area = 0.0;
    for (int dy = -reach; dy <= reach; ++dy) {
        const double half = std::max(std::sqrt(radius * radius - dy * dy) - 0.5, 0.0);
        disc.append({int(half), float(half - std::floor(half))});
        area += 1.0 + 2.0 * half;
    }

    QImage result(field.width, field.height, QImage::Format_RGBA8888);
    if (result.isNull())
        return result;
    QList<RowSums> rows(2 * reach + 1); // a ring: row y is at y modulo its size
    const auto sumsOf = [&](int y) -> RowSums & { return rows[y % rows.size()]; };
    const auto build = [&](int y) {
        if (y < field.height)
            sumsOf(y).build(field.values.constData() + qsizetype(y) * field.width * kChannels, field.width, margin);
    };
    for (int y = 0; y < reach; ++y)
        build(y);
    QList<float> totals(qsizetype(field.width) * kChannels);
    for (int y = 0; y < field.height; ++y) {
        build(y + reach);
        totals.fill(0.0F);
        for (int dy = -reach; dy <= reach; ++dy)
            addDiscRow(sumsOf(std::clamp(y + dy, 0, field.height - 1)), disc[dy + reach], margin, totals);
        uchar *pixel = result.scanLine(y);
        const float *total = totals.constData();
        for (int x = 0; x < field.width; ++x, total += kChannels, pixel += kChannels) {
            for (int channel = 0; channel < 3; ++channel)
                pixel[channel] = scale.encoded(total[channel] / std::max(total[3], 1.0F));
            pixel[3] = uchar(std::clamp(std::lround(255.0 * total[3] / (area * kFullScale)), 0L, 255L));
        }
    }
    return result;
}

} // namespace

QImage lensBlurred(const QImage &image, double radius)
{
    const QImage picture = image.convertToFormat(QImage::Format_RGBA8888);
    if (picture.isNull() || !std::isfinite(radius) || radius < kSmallestRadius)
        return picture;
    static const LightScale scale;
    const int factor = int(std::ceil(radius / kWorkingRadius));
    return encoded(reduced(picture, factor, scale), std::max(radius / factor, 1.0), scale);
}

} // namespace zm
