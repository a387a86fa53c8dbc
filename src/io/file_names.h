#pragma once

#include <QString>

namespace zm {

inline constexpr QLatin1StringView kDocumentSuffix("zelmora");

/// The document that lives beside a picture: in the same folder, absolute, with the base name of the picture. Empty
/// when the picture has no base name.
QString sidecarPath(const QString &imagePath);

/// A name that every file system takes, from whatever a layer is called, without a suffix. "zelmora" when nothing of
/// the name is left.
QString cleanFileName(const QString &name);

} // namespace zm
