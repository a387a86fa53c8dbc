#pragma once

#include <QImage>

namespace zm::test {

/// A picture whose every pixel differs in a known way: red grows with x, green with y, blue with both, opaque.
QImage gradientPicture(int width, int height);

/// A picture of one colour in the document's format.
QImage plainPicture(int width, int height, const QColor &color);

/// Pseudo-random RGBA, fully transparent pixels with colour among them.
QImage noisePicture(int width, int height, quint32 seed);

/// The greatest difference of any channel of any pixel; 256 when the sizes differ. Both are compared as RGBA8888.
int maximumDifference(const QImage &a, const QImage &b);

} // namespace zm::test
