#pragma once

#include "base/pixel_limits.h"
#include "io/document/record_fields.h"

#include <QSizeF>

namespace zm {

/// Width and height, in layer units.
inline QSizeF sizeAt(QByteArrayView record, qsizetype offset)
{
    return {f64At(record, offset), f64At(record, offset + qsizetype(sizeof(double)))};
}

inline void setLayerSize(QByteArray &record, qsizetype offset, const QSizeF &size)
{
    setPoint(record, offset, {size.width(), size.height()});
}

/// True for the box of an image or shape as a file takes it: positive, no side above 1,000,000, and no more pixels than
/// a raster may have.
inline bool isStorableSize(const QSizeF &size)
{
    constexpr double maximumSide = 1'000'000.0;
    const auto isStorableSide = [](double side) { return side > 0.0 && side <= maximumSide; }; // NaN is neither
    return isStorableSide(size.width()) && isStorableSide(size.height())
        && isAllocatableRasterSize(coveringPixels(size));
}

} // namespace zm
