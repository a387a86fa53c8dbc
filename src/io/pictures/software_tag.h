#pragma once

#include <QByteArray>
#include <QString>

namespace zm {

/// Puts a minimal Exif block that names the software into the bytes of a finished JPEG or WebP file, in place of any
/// Exif block that is there. Returns false and leaves the bytes alone for another format and for a container that is
/// not what it should be.
bool embedSoftwareTag(QByteArray &encodedFile, const QByteArray &formatName, const QString &softwareName);

} // namespace zm
