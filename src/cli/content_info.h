#pragma once

#include "io/document/layer_content.h"

#include <QJsonObject>

namespace zm::cli {

// What layers hold, as "zelmora info --json" tells it.

/// Without the digest the pixels may be missing.
QJsonObject imageInfo(const ImageContent &image, bool withDigest);
QJsonObject shapeInfo(const ShapeContent &shape);

QJsonObject pathInfo(const EditablePath &path);
QJsonObject fillInfo(const Fill &fill);

} // namespace zm::cli
