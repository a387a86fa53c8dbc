#include "io/pictures/picture_completeness.h"

#include <QtEndian>

#include <cstring>

namespace zm {

namespace {

/// A cursor over a file's bytes. Reading past the end gives zeros and is remembered.
class ByteCursor
{
public:
    explicit ByteCursor(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    bool ranOut() const { return m_ranOut; }
    quint8 byte() { return take(1) ? quint8(m_bytes[m_position - 1]) : 0; }
    quint16 bigEndian16() { return take(2) ? qFromBigEndian<quint16>(m_bytes.data() + m_position - 2) : 0; }
    void skip(qsizetype count) { take(count); }

    /// Moves behind the next byte of that value; runs out when there is none.
    void skipPast(quint8 value)
    {
        const QByteArrayView rest = m_bytes.sliced(m_position);
        const void *found = rest.isEmpty() ? nullptr : std::memchr(rest.data(), value, size_t(rest.size()));
        if (found)
            m_position = static_cast<const char *>(found) - m_bytes.data() + 1;
        else
            m_ranOut = true;
    }

private:
    bool take(qsizetype count)
    {
        if (m_ranOut || count > m_bytes.size() - m_position) {
            m_ranOut = true;
            return false;
        }
        m_position += count;
        return true;
    }

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    bool m_ranOut = false;
};

/// Markers of ITU-T T.81, table B.1.
namespace jpeg {
constexpr quint8 kRestart0 = 0xD0;
constexpr quint8 kRestart7 = 0xD7;
constexpr quint8 kEndOfImage = 0xD9;
constexpr quint8 kStartOfScan = 0xDA;
constexpr quint8 kTemporary = 0x01;

bool standsAlone(quint8 marker)
{
    return marker == kTemporary || (marker >= kRestart0 && marker <= kRestart7);
}

/// The marker that ends the coded data of a scan: the first that is neither a stuffed zero nor a restart.
quint8 markerAfterScan(ByteCursor &cursor)
{
    while (!cursor.ranOut()) {
        cursor.skipPast(0xFF);
        quint8 marker = cursor.byte();
        while (marker == 0xFF && !cursor.ranOut())
            marker = cursor.byte();
        if (marker != 0 && !standsAlone(marker))
            return marker;
    }
    return 0;
}

bool endsEarly(QByteArrayView file)
{
    ByteCursor cursor(file.sliced(2));
    quint8 marker = 0;
    while (!cursor.ranOut()) {
        if (marker == 0) {
            if (cursor.byte() != 0xFF)
                return cursor.ranOut();
            do {
                marker = cursor.byte();
            } while (marker == 0xFF && !cursor.ranOut());
        }
        if (marker == kEndOfImage)
            return false;
        if (!standsAlone(marker))
            cursor.skip(std::max(cursor.bigEndian16() - 2, 0));
        marker = marker == kStartOfScan ? markerAfterScan(cursor) : 0;
    }
    return true;
}
} // namespace jpeg

/// GIF89a: the first frame is what is shown, so its data must be whole.
namespace gif {
qsizetype colorTableBytes(quint8 flags)
{
    return flags & 0x80 ? 3 * (qsizetype(2) << (flags & 0x07)) : 0;
}

void skipDataBlocks(ByteCursor &cursor)
{
    while (const quint8 size = cursor.byte())
        cursor.skip(size);
}

bool endsEarly(QByteArrayView file)
{
    constexpr quint8 extension = 0x21;
    constexpr quint8 frame = 0x2C;
    ByteCursor cursor(file);
    cursor.skip(10);
    const quint8 screenFlags = cursor.byte();
    cursor.skip(2 + colorTableBytes(screenFlags));
    quint8 block = cursor.byte();
    while (block == extension) {
        cursor.skip(1);
        skipDataBlocks(cursor);
        block = cursor.byte();
    }
    if (block == frame) {
        cursor.skip(8);
        const quint8 frameFlags = cursor.byte();
        cursor.skip(colorTableBytes(frameFlags) + 1);
        skipDataBlocks(cursor);
    }
    return cursor.ranOut();
}
} // namespace gif

/// Uncompressed bitmaps with the 40-byte header or a later one; the compressed kinds are rare and left to the decoder.
bool bitmapEndsEarly(QByteArrayView file)
{
    const auto number = [&](qsizetype offset) { return qFromLittleEndian<quint32>(file.data() + offset); };
    if (file.size() < 18)
        return true;
    if (number(14) < 40)
        return false; // the oldest header, in files too small to be cut off unnoticed
    if (file.size() < 54)
        return true;
    const qint64 bitsPerPixel = qFromLittleEndian<quint16>(file.data() + 28);
    if (number(30) != 0 || bitsPerPixel > 32)
        return false;
    const qint64 rowBytes = (number(18) * bitsPerPixel + 31) / 32 * 4;
    const qint64 rows = std::abs(qint64(qint32(number(22))));
    const qint64 availableBytes = file.size() - number(10);
    return rowBytes > 0 && rows > 0 && (availableBytes <= 0 || rows > availableBytes / rowBytes);
}

} // namespace

bool endsBeforePicture(QByteArrayView file)
{
    if (file.startsWith("\xFF\xD8"))
        return jpeg::endsEarly(file);
    if (file.startsWith("GIF8"))
        return gif::endsEarly(file);
    if (file.startsWith("BM"))
        return bitmapEndsEarly(file);
    return false;
}

} // namespace zm
