#pragma once

#include "io/document/record_fields.h"
#include "values/fill.h"

namespace zm {

/// A texture is stored as its generator and values, without its pixels.
std::optional<QByteArray> encodeFill(const Fill &fill, FileError &error);

/// All of the bytes have to be the fill.
std::optional<Fill> decodeFill(QByteArrayView record, FileError &error);

} // namespace zm
