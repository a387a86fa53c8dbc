#include "filters/selection_blend.h"

#include <QPainter>
#include <QPainterPath>

namespace zm {

namespace {

/// Coverage of the selection, 0..255.
QImage selectionMask(const EditablePath &selection, const QSize &size, const QRectF &bounds)
{
    QImage mask(size, QImage::Format_Alpha8);
    if (mask.isNull() || bounds.isEmpty())
        return {};
    mask.fill(0);
    const double scaleX = size.width() / bounds.width();
    const double scaleY = size.height() / bounds.height();
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.setTransform(QTransform(scaleX, 0, 0, scaleY, -bounds.left() * scaleX, -bounds.top() * scaleY));
    painter.drawPath(painterPath(selection));
    return mask;
}

/// One pixel under a mask value between the two ends; `result` holds the filtered pixel.
void blend(const uchar *before, uchar *result, unsigned mask)
{
    const unsigned weightBefore = (255 - mask) * before[3];
    const unsigned weightAfter = mask * result[3];
    const unsigned weight = weightBefore + weightAfter;
    for (int channel = 0; channel < 3; ++channel) {
        const unsigned mixed = weight != 0
            ? (weightBefore * before[channel] + weightAfter * result[channel] + weight / 2) / weight
            : (result[channel] * mask + (255 - mask) * before[channel] + 127) / 255;
        result[channel] = uchar(mixed);
    }
    result[3] = uchar((weight + 127) / 255);
}

} // namespace

QImage blendedInSelection(const QImage &before, const QImage &after, const EditablePath &selection,
                          const QRectF &bounds)
{
    const QImage mask = selectionMask(selection, after.size(), bounds);
    if (mask.isNull() || before.size() != after.size())
        return after;
    QImage result = after;
    for (int y = 0; y < result.height(); ++y) {
        const uchar *from = before.constScanLine(y);
        const uchar *covered = mask.constScanLine(y);
        uchar *to = result.scanLine(y);
        for (int x = 0; x < result.width(); ++x, from += 4, to += 4) {
            if (covered[x] == 0)
                std::copy_n(from, 4, to);
            else if (covered[x] != 255)
                blend(from, to, covered[x]);
        }
    }
    return result;
}

} // namespace zm
