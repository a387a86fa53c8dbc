#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QUuid>
#include <QtEndian>

namespace zm::test {

/// Bytes of a document file as its tables tell them, little-endian and one field after the other:
/// FileBytes().u32(1).uuid(id).key("amount").f64(0.5).
class FileBytes
{
public:
    FileBytes() = default;
    FileBytes(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    FileBytes &u32(quint32 value) { return number(value); }
    FileBytes &i64(qint64 value) { return number(value); }
    FileBytes &f32(float value) { return number(value); }
    FileBytes &f64(double value) { return number(value); }
    FileBytes &point(double x, double y) { return f64(x).f64(y); }
    FileBytes &color(float red, float green, float blue, float alpha = 1.0F)
    {
        return f32(red).f32(green).f32(blue).f32(alpha);
    }
    FileBytes &uuid(const QUuid &id) { return bytes(id.toRfc4122()); }
    /// A text without its length.
    FileBytes &text(const QString &text) { return bytes(text.toUtf8()); }
    /// A field of 32 bytes.
    FileBytes &key(const QByteArray &key) { return bytes(key.leftJustified(32, '\0')); }
    /// Reserved bytes.
    FileBytes &zeros(qsizetype count) { return bytes(QByteArray(count, '\0')); }
    FileBytes &bytes(const QByteArray &bytes)
    {
        m_bytes += bytes;
        return *this;
    }

    /// Writes the piece over what stands at the offset; the size grows only when the piece ends behind it.
    FileBytes &patch(qsizetype offset, const QByteArray &piece)
    {
        m_bytes.replace(offset, piece.size(), piece);
        return *this;
    }
    FileBytes &cut(qsizetype size)
    {
        m_bytes.truncate(size);
        return *this;
    }

    qsizetype size() const { return m_bytes.size(); }
    operator QByteArray() const { return m_bytes; }

private:
    template<typename Number>
    FileBytes &number(Number value)
    {
        const qsizetype offset = m_bytes.size();
        m_bytes.resize(offset + qsizetype(sizeof(Number)));
        qToLittleEndian(value, m_bytes.data() + offset);
        return *this;
    }

    QByteArray m_bytes;
};

} // namespace zm::test
