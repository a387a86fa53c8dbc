#pragma once

#include "values/parameter_values.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointF>
#include <QSizeF>
#include <QUuid>

namespace zm::cli {

// The values that "zelmora info --json" is made of.

/// Without braces.
QString idText(const QUuid &id);

QJsonArray pointInfo(const QPointF &point);
QJsonArray sizeInfo(const QSizeF &size);
/// Red, green, blue and alpha of 0..1; an invalid colour is transparent, as in a file.
QJsonArray colorInfo(const QColor &color);
QJsonObject strokeInfo(const Stroke &stroke);
/// Each value with its type, by key.
QJsonObject parametersInfo(const ParameterValues &values);

} // namespace zm::cli
