#pragma once

#include "base/error.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QColor>
#include <QPointF>
#include <QUuid>
#include <QtEndian>

#include <optional>

/// The fields that all records of a document file are made of. Numbers are little-endian, colours four 32-bit floats
/// red, green, blue, alpha of 0..1, texts UTF-8. A record begins as zeros, so that what is reserved stays zero. Offsets
/// are bytes from the start of the record, which the caller has found to be long enough.
namespace zm {

/// The longest text of a file, bytes.
inline constexpr qsizetype kMaximumFileTextSize = 0x1000000;
/// The most effects of a layer, parameters of an effect, contours of a path, and of everything else that is counted.
inline constexpr quint32 kMaximumFileCount = 1'000'000;
/// The longest section, bytes.
inline constexpr qsizetype kMaximumSectionSize = 0x40000000;
/// A key is shorter than this by its terminator, bytes.
inline constexpr qsizetype kKeyFieldSize = 32;

template<typename Number>
Number numberAt(QByteArrayView record, qsizetype offset)
{
    return qFromLittleEndian<Number>(record.data() + offset);
}

inline quint32 u32At(QByteArrayView record, qsizetype offset)
{
    return numberAt<quint32>(record, offset);
}

inline double f64At(QByteArrayView record, qsizetype offset)
{
    return numberAt<double>(record, offset);
}

/// Two numbers, x then y.
inline QPointF pointAt(QByteArrayView record, qsizetype offset)
{
    return {f64At(record, offset), f64At(record, offset + 8)};
}

/// An enumerator that is stored as its value plus the first code. Nothing for a code beyond first and last.
template<typename Enum>
std::optional<Enum> enumAt(QByteArrayView record, qsizetype offset, quint32 first, quint32 last)
{
    const quint32 code = u32At(record, offset);
    if (code < first || code > last)
        return std::nullopt;
    return Enum(code - first);
}

/// Fails for a component that is not within 0..1.
std::optional<QColor> colorAt(QByteArrayView record, qsizetype offset, Error &error);
/// Fails for a null id.
std::optional<QUuid> uuidAt(QByteArrayView record, qsizetype offset, Error &error);
/// Fails for a field of kKeyFieldSize bytes that is not a terminated and padded ASCII key.
std::optional<QString> keyAt(QByteArrayView record, qsizetype offset, Error &error);

template<typename Number>
void setNumber(QByteArray &record, qsizetype offset, Number value)
{
    qToLittleEndian(value, record.data() + offset);
}

inline void setU32(QByteArray &record, qsizetype offset, quint32 value)
{
    setNumber(record, offset, value);
}

inline void setF64(QByteArray &record, qsizetype offset, double value)
{
    setNumber(record, offset, value);
}

void setPoint(QByteArray &record, qsizetype offset, const QPointF &point);
/// An invalid colour is written as transparent.
void setColor(QByteArray &record, qsizetype offset, const QColor &color);
void setUuid(QByteArray &record, qsizetype offset, const QUuid &id);
/// Fails for a key that is empty, too long, or not 7-bit ASCII.
bool setKey(QByteArray &record, qsizetype offset, const QString &key, Error &error);
/// A length in 32 bits; fails for a longer block.
bool setSize(QByteArray &record, qsizetype offset, qsizetype size, Error &error);

/// A cursor on bytes. What is taken is a view of them.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    qsizetype remaining() const { return m_rest.size(); }
    bool atEnd() const { return m_rest.isEmpty(); }
    /// Nothing, with the cursor where it was, when fewer bytes are left.
    std::optional<QByteArrayView> take(quint64 size)
    {
        if (size > quint64(m_rest.size()))
            return std::nullopt;
        const QByteArrayView taken = m_rest.first(qsizetype(size));
        m_rest = m_rest.sliced(qsizetype(size));
        return taken;
    }

private:
    QByteArrayView m_rest;
};

} // namespace zm
