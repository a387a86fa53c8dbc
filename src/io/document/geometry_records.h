#pragma once

#include "document/shape_layer.h"
#include "io/document/record_fields.h"

namespace zm {

/// What the record of an outline is, as the record around it tells.
enum class GeometryType : quint32 { Parametric = 1, Path = 2 };

GeometryType geometryType(const ShapeGeometry &geometry);
std::optional<QByteArray> encodeGeometry(const ShapeGeometry &geometry, Error &error);

/// All of the bytes have to be the outline. Fails for a type that is not known.
std::optional<ShapeGeometry> decodeGeometry(quint32 type, QByteArrayView record, Error &error);

} // namespace zm
