#pragma once

#include <QByteArrayView>

namespace zm {

/// True when the bytes of a JPEG, GIF or BMP file end before the picture does. Qt's readers of these formats fill the
/// missing part with grey or black and report success; the other formats fail by themselves and give false here, as do
/// bytes whose structure is unknown, which are left for the decoder to judge. Looks at structure only, decodes nothing.
bool endsBeforePicture(QByteArrayView file);

} // namespace zm
