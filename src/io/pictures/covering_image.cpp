#include "io/pictures/covering_image.h"

#include "document/scene_object.h"

namespace zm {

namespace {

/// Every pixel of an RGBA8888 image has alpha 255.
bool isOpaque(const QImage &image)
{
    const qsizetype width = image.width(); // asked once, so that the loop over a row becomes vector instructions
    for (int y = 0; y < image.height(); ++y) {
        const uchar *row = image.constScanLine(y);
        uchar alpha = 255;
        for (qsizetype x = 0; x < width; ++x)
            alpha &= row[4 * x + 3];
        if (alpha != 255)
            return false;
    }
    return true;
}

bool sameRectangle(const QRectF &a, const QRectF &b)
{
    return a.x() == b.x() && a.y() == b.y() && a.width() == b.width() && a.height() == b.height();
}

} // namespace

QImage imageCovering(const SceneSnapshot &snapshot, const QRectF &rect)
{
    if (snapshot.items.isEmpty())
        return {};
    const SceneRenderItem &top = snapshot.items.constLast();
    if (top.image.format() != QImage::Format_RGBA8888 || top.opacity != 1.0 || top.blendMode != defaultBlendMode()
        || imageRect(top).size() != top.image.size() || itemMatrix(top).type() > QTransform::TxTranslate
        || !sameRectangle(itemBounds(top), rect) || !isOpaque(top.image))
        return {};
    return pixelsReadAs(top.image, QImage::Format_RGBA8888);
}

QImage pixelsReadAs(const QImage &image, QImage::Format format)
{
    // The view keeps the pixels alive through a copy of its own, and being read-only it never writes to them.
    auto *owner = new QImage(image);
    return QImage(
        owner->constBits(), owner->width(), owner->height(), owner->bytesPerLine(), format,
        [](void *kept) { delete static_cast<QImage *>(kept); }, owner);
}

} // namespace zm
