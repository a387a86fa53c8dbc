#pragma once

#include "rendering/uniform_bytes.h"

#include <QByteArray>
#include <QColor>
#include <QLatin1StringView>
#include <QList>
#include <QSize>
#include <QString>

namespace zm {

struct LibraryShaderRow;

/// The uniforms of one library shader, written by field name. All are zero at first.
/// An unknown name does nothing; a debug build stops at it, as it is a slip of the pen.
class LibraryUniformBlock
{
public:
    /// `shaderId` is bare. A block for an unknown shader has no fields and takes any name; the renderer tells of it.
    explicit LibraryUniformBlock(const QString &shaderId);

    /// Bare, as the renderer takes it.
    const QString &shaderId() const { return m_shaderId; }

    /// Writes the first component and leaves the others.
    void setFloat(QLatin1StringView name, double value);
    /// The other two components become zero.
    void setVec2(QLatin1StringView name, double x, double y);
    void setSize(QLatin1StringView name, const QSize &pixels) { setVec2(name, pixels.width(), pixels.height()); }
    /// What one pixel of a picture of that size is of its width and height.
    void setTexelSize(QLatin1StringView name, const QSize &pixels)
    {
        setVec2(name, 1.0 / pixels.width(), 1.0 / pixels.height());
    }
    /// Red, green and blue as 0..1, in the encoding of the colour, and the last component stays. White when invalid.
    void setColor(QLatin1StringView name, const QColor &color);
    void setVec4(QLatin1StringView name, double x, double y, double z, double w);

    /// As the renderer takes it: each field as four floats, in the order of the shader's row.
    QByteArray bytes() const;

private:
    UniformVec4 *field(QLatin1StringView name);

    QString m_shaderId;
    const LibraryShaderRow *m_row;
    QList<UniformVec4> m_values;
};

} // namespace zm
