#include "io/pictures/software_tag.h"

#include "io/document/webp_container.h"

#include <QtEndian>

#include <optional>

namespace zm {

namespace {

constexpr QByteArrayView kExifPrefix("Exif\0\0", 6);

void append16(QByteArray &bytes, quint16 value)
{
    value = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&value), 2);
}

void append24(QByteArray &bytes, quint32 value)
{
    value = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&value), 3);
}

void append32(QByteArray &bytes, quint32 value)
{
    value = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&value), 4);
}

QByteArray printableAscii(const QString &text)
{
    QByteArray result;
    const QByteArray utf8 = text.toUtf8();
    for (const char c : utf8) {
        if (c != 0)
            result.append(c >= 32 && c <= 126 ? c : '?');
    }
    return result.isEmpty() ? QByteArrayLiteral("Zelmora Atelier") : result;
}

/// A little-endian TIFF with the one entry Software (TIFF 6.0, tag 305).
QByteArray exifBlock(const QString &softwareName)
{
    constexpr quint16 softwareTag = 0x0131;
    constexpr quint16 asciiType = 2;
    constexpr quint32 offsetOfText = 26;
    const QByteArray text = printableAscii(softwareName) + '\0';
    QByteArray block("II");
    append16(block, 42);
    append32(block, 8);
    append16(block, 1);
    append16(block, softwareTag);
    append16(block, asciiType);
    append32(block, quint32(text.size()));
    const bool fitsInline = text.size() <= 4;
    if (fitsInline)
        block.append(text.leftJustified(4, '\0'));
    else
        append32(block, offsetOfText);
    append32(block, 0);
    if (!fitsInline)
        block.append(text);
    return block;
}

bool tagJpeg(QByteArray &file, const QByteArray &block)
{
    constexpr quint8 app0 = 0xE0;
    constexpr quint8 app1 = 0xE1;
    constexpr quint8 startOfScan = 0xDA;
    const qsizetype length = 2 + kExifPrefix.size() + block.size();
    if (!file.startsWith("\xFF\xD8") || length >= 65'536)
        return false;
    QByteArray segment("\xFF\xE1");
    segment.append(char(length >> 8)).append(char(length & 0xFF)).append(kExifPrefix).append(block);

    struct Range
    {
        qsizetype begin;
        qsizetype size;
    };
    QList<Range> oldBlocks;
    qsizetype insertAt = 2;
    qsizetype position = 2;
    for (;;) {
        if (file.size() - position < 4 || quint8(file[position]) != 0xFF)
            return false;
        const quint8 marker = quint8(file[position + 1]);
        const qsizetype size = 2 + qFromBigEndian<quint16>(file.constData() + position + 2);
        if (size < 4 || size > file.size() - position)
            return false;
        if (marker == startOfScan)
            break;
        if (marker == app0 && insertAt == position)
            insertAt += size; // JFIF wants its own segment first
        const auto payload = QByteArrayView(file).sliced(position + 4, size - 4);
        if (marker == app1 && payload.startsWith(kExifPrefix))
            oldBlocks.append({position, size});
        position += size;
    }
    for (auto old = oldBlocks.crbegin(); old != oldBlocks.crend(); ++old)
        file.remove(old->begin, old->size);
    file.insert(insertAt, segment);
    return true;
}

std::optional<QList<WebpChunk>> webpChunks(QByteArrayView file)
{
    QList<WebpChunk> chunks;
    for (ByteReader rest(file.sliced(kWebpHeaderSize)); !rest.atEnd();) {
        const std::optional<WebpChunk> chunk = takeWebpChunk(rest);
        if (!chunk)
            return std::nullopt;
        chunks.append(*chunk);
    }
    return chunks;
}

bool tagWebp(QByteArray &file, const QByteArray &block)
{
    constexpr quint8 exifFlag = 8;
    if (!isWholeWebp(file))
        return false;
    const std::optional<QList<WebpChunk>> chunks = webpChunks(file);
    if (!chunks)
        return false;

    quint8 flags = exifFlag;
    bool hasExtendedHeader = false;
    std::optional<QSize> canvas;
    for (const WebpChunk &chunk : *chunks) {
        if (chunk.tag == "ALPH" || chunk.tag == "VP8L")
            flags |= 16;
        else if (chunk.tag == "ICCP")
            flags |= 32;
        else if (chunk.tag == "XMP ")
            flags |= 4;
        else if (chunk.tag == "ANIM" || chunk.tag == "ANMF")
            flags |= 2;
        const bool extended = chunk.tag == "VP8X";
        hasExtendedHeader |= extended;
        const std::optional<QSize> told = canvasOf(chunk);
        if (extended && !told)
            return false;
        if (told && (extended || !canvas))
            canvas = told;
    }
    if (!canvas)
        return false;

    QByteArray tagged("RIFF\0\0\0\0WEBP", 12);
    tagged.reserve(file.size() + block.size() + 32);
    if (!hasExtendedHeader) {
        tagged.append("VP8X");
        append32(tagged, 10);
        append32(tagged, flags);
        append24(tagged, quint32(canvas->width() - 1));
        append24(tagged, quint32(canvas->height() - 1));
    }
    for (const WebpChunk &chunk : *chunks) {
        if (chunk.tag == "EXIF")
            continue;
        const qsizetype begin = tagged.size();
        tagged.append(chunk.whole);
        if (chunk.tag == "VP8X")
            tagged[begin + 8] = char(tagged[begin + 8] | exifFlag);
    }
    tagged.append("EXIF");
    append32(tagged, quint32(block.size()));
    tagged.append(block);
    if (block.size() & 1)
        tagged.append('\0');
    qToLittleEndian(quint32(tagged.size() - 8), tagged.data() + 4);
    file = std::move(tagged);
    return true;
}

} // namespace

bool embedSoftwareTag(QByteArray &encodedFile, const QByteArray &formatName, const QString &softwareName)
{
    if (formatName == "jpeg")
        return tagJpeg(encodedFile, exifBlock(softwareName));
    if (formatName == "webp")
        return tagWebp(encodedFile, exifBlock(softwareName));
    return false;
}

} // namespace zm
