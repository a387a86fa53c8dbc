#pragma once

#include "document/image_layer.h"

#include <QStringList>

#include <memory>

class QImageReader;

namespace zm {

class Document;

/// Why a picture file did not become a layer.
enum class ImageImportError {
    None,
    NotAFile,
    CannotOpen,
    InvalidSvg,
    HeifCodecMissing, ///< the platform's decoder is not installed; help can be offered
    CannotDecode,     ///< damaged, cut off, of an unknown kind, or above the pixel limit
    EmptySize,
    DocumentRefused
};

/// The sentence that tells the user about a failed import as a document; empty for None.
QString importErrorText(ImageImportError error);

/// A layer, or the reason why there is none.
struct ImageImportResult
{
    std::unique_ptr<ImageLayer> layer;
    ImageImportError error = ImageImportError::None;
};

/// What a picture file says about itself before its pixels are decoded.
struct ImageFileHeader
{
    QString name;     ///< the name that its layer gets
    bool svg = false;
    QSizeF size;      ///< logical size; of a raster after its orientation is applied
};

/// A picture file's content; a raster still has the pixel format of its reader.
struct DecodedPicture
{
    ImageLayerSource source;
    ImageImportError error = ImageImportError::None;
};

/// Reads a picture: a file whose suffix is "svg" keeps its text, any other is recognised by its content and decoded
/// with its orientation applied. A picture of more than kMaximumRasterPixels is refused before it is decoded. With
/// noHevcCodec every HEIC and HEIF file fails as if its decoder were missing.
DecodedPicture decodePicture(const QString &path, bool noHevcCodec = false);

/// A layer of what was decoded, converted to RGBA8888; hand the picture over, and no second buffer is needed.
ImageImportResult imageLayerFrom(DecodedPicture picture, const QString &name);

/// Both at once, with the name that the file gives.
ImageImportResult importImageLayer(const QString &path, bool noHevcCodec = false);

/// The same checks without decoding. Nothing when they fail, with the reason in error. A raster format that does not
/// tell its size is decoded.
std::optional<ImageFileHeader> readImageFileHeader(const QString &path, ImageImportError *error);

/// Makes the layer the only content of the document, on white, framed exactly, and selects it; the document's sides are
/// whole units. On a failure the document is untouched.
ImageImportError replaceWithImage(Document &document, std::unique_ptr<ImageLayer> layer);

/// The placement that puts the middle of a layer's mapped rectangle on the document's centre.
ObjectTransform framedTransform(ObjectTransform transform, const QSizeF &layerSize);

/// The file's base name, trimmed; "Image" when that is empty.
QString imageLayerName(const QString &path);

/// Patterns such as "*.png" of every picture that can be opened, sorted.
QStringList supportedImageFilePatterns();

/// True for "heic" and "heif" in any case.
bool isHeifFormat(const QByteArray &format);

/// True when the reader of a HEIF picture failed because the platform lacks the decoder, which the image plug-in notes
/// as a property of the reader's device.
bool isHeifDecoderFailure(const QImageReader &reader, const QByteArray &format);

} // namespace zm
