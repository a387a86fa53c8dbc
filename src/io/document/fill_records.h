#pragma once

#include "io/document/record_fields.h"
#include "values/fill.h"

namespace zm {

/// A texture is stored as its generator and values, without its pixels.
std::optional<QByteArray> encodeFill(const Fill &fill, Error &error);

/// All of the bytes have to be the fill.
std::optional<Fill> decodeFill(QByteArrayView record, Error &error);

} // namespace zm
