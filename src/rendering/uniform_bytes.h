#pragma once

#include <QByteArray>

#include <array>
#include <initializer_list>

namespace zm {

/// Four 32-bit floats: the one kind of uniform of filter shaders.
using UniformVec4 = std::array<float, 4>;

inline constexpr qsizetype kUniformVec4Bytes = sizeof(UniformVec4);
static_assert(kUniformVec4Bytes == 16, "std140 lays consecutive vec4 members out without gaps");

/// The uniforms as the block of bytes that a pass is fed with, in the order of the shader's descriptor.
inline QByteArray uniformBytes(std::initializer_list<UniformVec4> values)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(values.size()) * kUniformVec4Bytes);
    for (const UniformVec4 &value : values)
        bytes.append(reinterpret_cast<const char *>(value.data()), kUniformVec4Bytes);
    return bytes;
}

} // namespace zm
