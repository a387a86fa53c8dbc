#include "io/opening_estimate.h"

#include "io/document_opening.h"
#include "io/file_names.h"

#include <QFileInfo>
#include <QImageReader>

namespace zm {

namespace {

constexpr double kLongNanoseconds = 300e6;

// Measured on two cores; an estimate needs no more.
constexpr double kNanosecondsOfJpegPixel = 7.0;
constexpr double kNanosecondsOfOtherPixel = 25.0; // PNG and WebP
constexpr double kNanosecondsOfDocumentByte = 30.0;

} // namespace

bool opensSlowly(const QString &path)
{
    const QFileInfo sidecar(sidecarPath(path));
    const QFileInfo document = hasDocumentSuffix(path) ? QFileInfo(path) : sidecar;
    if (document.isFile())
        return double(document.size()) * kNanosecondsOfDocumentByte > kLongNanoseconds;
    const QImageReader reader(path);
    const QSize size = reader.size();
    const double pixel = reader.format() == "jpeg" ? kNanosecondsOfJpegPixel : kNanosecondsOfOtherPixel;
    return double(size.width()) * double(size.height()) * pixel > kLongNanoseconds;
}

} // namespace zm
