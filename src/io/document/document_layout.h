#pragma once

#include <QByteArrayView>
#include <QtTypes>

/// How a document file is put together: a header, then sections, each with a header of its own. The first section holds
/// the properties of the document, every other one a layer.
namespace zm {

inline constexpr QByteArrayView kDocumentMagic("ZMDC");
inline constexpr QByteArrayView kSectionMagic("ZMSC");
inline constexpr quint32 kDocumentFormatVersion = 5;
/// The first version that tells whether an effect is limited to the selection.
inline constexpr quint32 kFilterSelectionFormatVersion = 4;
/// Pixels.
inline constexpr quint32 kMaximumDocumentSide = 1'000'000;
inline constexpr quint32 kMaximumSectionCount = 100'000;
inline constexpr quint32 kPropertiesPayloadVersion = 1;

// Bytes.
inline constexpr qsizetype kDocumentHeaderSize = 128;
inline constexpr qsizetype kSectionHeaderSize = 32;
inline constexpr qsizetype kPropertiesSize = 32;

} // namespace zm
