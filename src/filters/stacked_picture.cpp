#include "filters/stacked_picture.h"

#include <algorithm>
#include <cstring>

namespace zm {

namespace {

constexpr qsizetype kBytesPerPixel = 4;

void copyRows(QImage &to, const QImage &from, int left, int top)
{
    for (int y = 0; y < from.height(); ++y)
        std::memcpy(to.scanLine(top + y) + left * kBytesPerPixel, from.constScanLine(y),
                    size_t(from.width()) * kBytesPerPixel);
}

} // namespace

QImage stackedPicture(const QImage &picture, const QImage &map, int maximumSide)
{
    if (picture.isNull() || map.isNull())
        return {};
    const bool below = picture.height() + map.height() <= maximumSide;
    // The reader tells the two ways by the height: beside the picture nothing may be taller.
    if (!below && map.height() > picture.height())
        return {};
    const QSize size = below ? QSize(std::max(picture.width(), map.width()), picture.height() + map.height())
                             : QSize(picture.width() + map.width(), picture.height());
    if (std::max(size.width(), size.height()) > maximumSide)
        return {};

    QImage stack(size, QImage::Format_RGBA8888);
    if (stack.isNull())
        return {};
    copyRows(stack, picture.convertToFormat(QImage::Format_RGBA8888), 0, 0);
    copyRows(stack, map.convertToFormat(QImage::Format_RGBA8888), below ? 0 : picture.width(),
             below ? picture.height() : 0);
    return stack;
}

QSize mapSize(const QSize &picture, int reduction)
{
    const auto along = [reduction](int length) { return (length + reduction - 1) / reduction; };
    return {along(picture.width()), along(picture.height())};
}

} // namespace zm
