#include "io/document/webp_container.h"

#include <algorithm>

namespace zm {

namespace {

constexpr qsizetype kChunkHeaderSize = 8;

bool hasWebpHeader(QByteArrayView file)
{
    return file.size() >= kWebpHeaderSize && file.startsWith("RIFF") && file.sliced(8, 4) == "WEBP";
}

int little24(QByteArrayView bytes, qsizetype offset)
{
    return numberAt<quint16>(bytes, offset) | int(quint8(bytes[offset + 2])) << 16;
}

} // namespace

bool isWholeWebp(QByteArrayView file)
{
    return hasWebpHeader(file) && u32At(file, 4) == quint64(file.size() - kChunkHeaderSize);
}

std::optional<WebpChunk> takeWebpChunk(ByteReader &reader)
{
    const std::optional<QByteArrayView> header = reader.take(kChunkHeaderSize);
    if (!header)
        return std::nullopt;
    const quint64 size = u32At(*header, 4);
    const std::optional<QByteArrayView> padded = reader.take(size + (size & 1));
    if (!padded)
        return std::nullopt;
    return WebpChunk{header->first(4), padded->first(qsizetype(size)), {header->data(), padded->end()}};
}

std::optional<QSize> canvasOf(const WebpChunk &chunk)
{
    const QByteArrayView data = chunk.payload;
    if (chunk.tag == "VP8X" && data.size() == 10)
        return QSize(little24(data, 4) + 1, little24(data, 7) + 1);
    if (chunk.tag == "VP8 " && data.size() >= 10 && data.sliced(3).startsWith("\x9D\x01\x2A")) {
        const QSize size(numberAt<quint16>(data, 6) & 0x3FFF, numberAt<quint16>(data, 8) & 0x3FFF);
        if (!size.isEmpty())
            return size;
    }
    if (chunk.tag == "VP8L" && data.size() >= 5 && data[0] == 0x2F) {
        const quint32 bits = u32At(data, 1);
        return QSize(int(bits & 0x3FFF) + 1, int((bits >> 14) & 0x3FFF) + 1);
    }
    return std::nullopt;
}

std::optional<QSize> webpCanvas(QByteArrayView file)
{
    if (!hasWebpHeader(file) || file.size() < kWebpHeaderSize + kChunkHeaderSize)
        return std::nullopt;
    const QByteArrayView chunk = file.sliced(kWebpHeaderSize);
    const QByteArrayView rest = chunk.sliced(kChunkHeaderSize);
    const qsizetype size = std::min(qsizetype(u32At(chunk, 4)), rest.size());
    return canvasOf({chunk.first(4), rest.first(size), {}});
}

} // namespace zm
