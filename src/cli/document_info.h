#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace zm::cli {

/// What a file holds, as "zelmora info --json" tells it. A picture file is a document of one layer, with format version
/// 0 because it is no document file. Without withDigest no pixels are decoded. Nothing on a failure, with a sentence in
/// error.
std::optional<QJsonObject> documentInfo(const QString &path, bool withDigest, QString *error);

} // namespace zm::cli
