#pragma once

#include <QByteArrayView>

namespace zm {

/// True when the bytes of a JPEG, GIF or BMP file end before the picture does. Qt's readers of these formats fill the
/// missing part with grey or black and report success; the other formats give false here, as do compressed bitmaps
/// and bytes whose structure is unknown: those are left for the decoder to judge. Looks at structure only, decodes
/// nothing.
bool endsBeforePicture(QByteArrayView file);

} // namespace zm
