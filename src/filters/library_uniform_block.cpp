#include "filters/library_uniform_block.h"

#include "rendering/library_shader_rows.h"

namespace zm {

LibraryUniformBlock::LibraryUniformBlock(const QString &shaderId)
    : m_shaderId(shaderId)
    , m_row(findLibraryShader(shaderId))
    , m_values(m_row ? m_row->fields.size() : 0, UniformVec4{})
{
}

void LibraryUniformBlock::setFloat(QLatin1StringView name, double value)
{
    if (UniformVec4 *values = field(name))
        values->front() = float(value);
}

void LibraryUniformBlock::setVec2(QLatin1StringView name, double x, double y)
{
    setVec4(name, x, y, 0.0, 0.0);
}

void LibraryUniformBlock::setColor(QLatin1StringView name, const QColor &color)
{
    const QColor valid = color.isValid() ? color : QColor(Qt::white);
    if (UniformVec4 *values = field(name))
        *values = {valid.redF(), valid.greenF(), valid.blueF(), values->back()};
}

void LibraryUniformBlock::setVec4(QLatin1StringView name, double x, double y, double z, double w)
{
    if (UniformVec4 *values = field(name))
        *values = {float(x), float(y), float(z), float(w)};
}

QByteArray LibraryUniformBlock::bytes() const
{
    return QByteArray(reinterpret_cast<const char *>(m_values.constData()), m_values.size() * kUniformVec4Bytes);
}

UniformVec4 *LibraryUniformBlock::field(QLatin1StringView name)
{
    const qsizetype position = m_row ? m_row->fieldPosition(name) : -1;
    Q_ASSERT_X(!m_row || position >= 0, "LibraryUniformBlock", name.latin1());
    return position < 0 ? nullptr : &m_values[position];
}

} // namespace zm
