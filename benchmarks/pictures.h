#pragma once

#include <QImage>

namespace zm::bench {

/// Smooth shapes with a little noise, as photographs have; opaque QImage::Format_RGBA8888. The seed is that of the
/// noise.
QImage photograph(const QSize &size, quint32 seed = 1);

} // namespace zm::bench
