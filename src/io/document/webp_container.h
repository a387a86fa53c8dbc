#pragma once

#include "io/document/record_fields.h"

#include <QSize>

namespace zm {

// The container of WebP files: a RIFF header, then chunks.

inline constexpr qsizetype kWebpHeaderSize = 12;

/// Views of the file's bytes.
struct WebpChunk
{
    QByteArrayView tag;
    QByteArrayView payload;
    /// Header, payload and pad byte.
    QByteArrayView whole;
};

/// True when the file begins as a WebP and its header tells exactly the size that it has.
bool isWholeWebp(QByteArrayView file);

/// The chunk at the cursor, which stands behind the header or another chunk. Nothing for one that overruns the file.
std::optional<WebpChunk> takeWebpChunk(ByteReader &reader);

/// The picture's size in pixels from the chunk that tells it; nothing for a chunk of another kind or one that is
/// malformed.
std::optional<QSize> canvasOf(const WebpChunk &chunk);

/// The picture's size in pixels as the first chunk tells it, which need not be complete.
std::optional<QSize> webpCanvas(QByteArrayView file);

} // namespace zm
