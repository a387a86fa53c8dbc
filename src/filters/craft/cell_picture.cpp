#include "filters/craft/cell_picture.h"

#include "filters/craft/coverage.h"

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

// Jarzynski and Olano, "Hash Functions for GPU Rendering", JCGT 9(3), 2020.
quint32 pcg(quint32 value)
{
    const quint32 state = value * 747796405U + 2891336453U;
    const quint32 word = ((state >> ((state >> 28U) + 4U)) ^ state) * 277803737U;
    return (word >> 22U) ^ word;
}

double unit(quint32 bits)
{
    return (bits >> 8U) / 16777216.0;
}

} // namespace

CellPicture::CellPicture(const QImage &image, double side, int detail)
    : m_squares(std::max(int(std::ceil(image.width() / side)), 1), std::max(int(std::ceil(image.height() / side)), 1))
{
    const double reduction = std::max(side / detail, 1.0);
    const QSize size(std::max(qRound(image.width() / reduction), 1), std::max(qRound(image.height() / reduction), 1));
    // Premultiplied before it is reduced: transparent pixels lend no colour. An opaque picture is so already.
    constexpr QImage::Format premultiplied = QImage::Format_RGBA8888_Premultiplied;
    const bool isOpaque = image.format() == QImage::Format_RGBA8888 && !hasTransparency(image);
    m_reduced = isOpaque ? QImage(image.constBits(), image.width(), image.height(), image.bytesPerLine(), premultiplied)
                         : image.convertToFormat(premultiplied);
    m_reduced = size != image.size()
        ? m_reduced.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(premultiplied)
        : m_reduced.copy();
    m_step = {image.width() / side / size.width(), image.height() / side / size.height()};
}

CellPicture::Color CellPicture::color(int x, int y) const
{
    const uchar *texel = m_reduced.constScanLine(std::clamp(y, 0, m_reduced.height() - 1))
        + qsizetype(4) * std::clamp(x, 0, m_reduced.width() - 1);
    return {texel[0] / 255.0F, texel[1] / 255.0F, texel[2] / 255.0F, texel[3] / 255.0F};
}

CellPicture::Color CellPicture::colorAt(const QPointF &place) const
{
    return color(int(std::floor(place.x() / m_step.x())), int(std::floor(place.y() / m_step.y())));
}

float squaredDistance(const CellPicture::Color &a, const CellPicture::Color &b)
{
    float sum = 0.0F;
    for (size_t i = 0; i < a.size(); ++i)
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    return sum;
}

void ColorSum::add(const CellPicture::Color &color, float share)
{
    for (size_t i = 0; i < sum.size(); ++i)
        sum[i] += color[i] * share;
    weight += share;
}

CellPicture::Color ColorSum::mean() const
{
    CellPicture::Color result{};
    if (weight > 0.0F) {
        for (size_t i = 0; i < sum.size(); ++i)
            result[i] = sum[i] / weight;
    }
    return result;
}

QRgb opaqueTexel(const CellPicture::Color &color)
{
    const float alpha = color[3];
    if (alpha <= 0.0F)
        return qRgb(0, 0, 0);
    const auto byte = [alpha](float value) { return int(std::lround(std::clamp(value / alpha, 0.0F, 1.0F) * 255.0F)); };
    return qRgb(byte(color[0]), byte(color[1]), byte(color[2]));
}

QPointF squareHash(int x, int y, quint32 seed)
{
    const quint32 first = pcg(quint32(x) + pcg(quint32(y) + pcg(seed)));
    return {unit(first), unit(pcg(first))};
}

} // namespace zm
