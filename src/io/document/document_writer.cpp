#include "io/document/document_writer.h"

#include "document/document.h"
#include "io/document/document_layout.h"
#include "io/document/file_message.h"
#include "io/document/layer_section.h"

#include <QFuture>
#include <QIODevice>
#include <QSet>
#include <QThreadPool>
#include <QtConcurrent>

#include <cmath>
#include <deque>

namespace zm {

namespace {

bool write(QIODevice &device, QByteArrayView bytes, Error &error)
{
    while (!bytes.isEmpty()) {
        const qint64 written = device.write(bytes.data(), bytes.size());
        if (written < 1)
            return error.fail(FileMessage::tr("Could not write the .zelmora file: %1").arg(device.errorString()));
        bytes = bytes.sliced(written);
    }
    return true;
}

bool writeSection(QIODevice &device, SectionType type, QByteArrayView payload, Error &error)
{
    if (payload.size() > kMaximumSectionSize)
        return error.fail(FileMessage::tr("A .zelmora section is too large."));
    QByteArray header(kSectionHeaderSize, '\0');
    header.replace(0, kSectionMagic.size(), kSectionMagic);
    setU32(header, 4, quint32(type));
    return setSize(header, 8, payload.size(), error) && write(device, header, error) && write(device, payload, error);
}

bool writeHeader(QIODevice &device, const QSize &size, qsizetype sectionCount, Error &error)
{
    QByteArray header(kDocumentHeaderSize, '\0');
    header.replace(0, kDocumentMagic.size(), kDocumentMagic);
    setU32(header, 4, kDocumentFormatVersion);
    setU32(header, 8, quint32(size.width()));
    setU32(header, 12, quint32(size.height()));
    setU32(header, 16, quint32(sectionCount));
    return write(device, header, error);
}

bool writeProperties(QIODevice &device, const QColor &background, Error &error)
{
    QByteArray payload(kPropertiesSize, '\0');
    setU32(payload, 0, kPropertiesPayloadVersion);
    setColor(payload, 4, background);
    return writeSection(device, SectionType::DocumentProperties, payload, error);
}

/// Nothing for a size that a file does not hold: fractions of pixels, too small or too large.
std::optional<QSize> storableSize(const QSizeF &size)
{
    const auto storable = [](double side) {
        return side >= 1.0 && side <= kMaximumDocumentSide && side == std::round(side);
    };
    if (!storable(size.width()) || !storable(size.height()))
        return std::nullopt;
    return size.toSize();
}

/// Encodes the rasters that have no file in the mode yet, in the order of the layers, on as many threads as there are.
/// Each keeps its file, where the writer finds it. One that cannot be encoded fails again, and is told of, when it is
/// written.
class PictureEncoder
{
public:
    PictureEncoder(const Document &document, EmbeddedImageMode mode)
    {
        // Layers that show the same picture share its files.
        QSet<const PictureEncodings *> started;
        for (qsizetype i = 0; i < document.objectCount(); ++i) {
            const auto *layer = dynamic_cast<const ImageLayer *>(document.objectAt(i));
            const RasterImageSource *raster = layer ? layer->rasterSource() : nullptr;
            if (!raster || !fitsWebp(raster->image.size()) || started.contains(raster->encodings.get())
                || !raster->encodings->find(raster->image, mode).isEmpty())
                continue;
            started.insert(raster->encodings.get());
            m_encodings.push_back({i, QtConcurrent::run(&m_pool, [source = *raster, mode] {
                                       Error ignored;
                                       webpFile(source, mode, ignored);
                                   })});
        }
    }
    /// What has not begun is not wanted any more.
    ~PictureEncoder() { m_pool.clear(); }
    PictureEncoder(const PictureEncoder &) = delete;
    PictureEncoder &operator=(const PictureEncoder &) = delete;

    /// Returns when the layer's raster is encoded, if it has one. To be called for one layer after the other.
    void waitFor(qsizetype layerIndex)
    {
        if (m_encodings.empty() || m_encodings.front().layerIndex != layerIndex)
            return;
        m_encodings.front().end.waitForFinished();
        m_encodings.pop_front();
    }

private:
    struct Encoding
    {
        qsizetype layerIndex;
        QFuture<void> end;
    };

    std::deque<Encoding> m_encodings;
    QThreadPool m_pool; // last: its end waits for what still runs
};

bool writeLayers(const Document &document, QIODevice &device, EmbeddedImageMode mode, Error &error)
{
    PictureEncoder pictures(document, mode);
    QSet<QUuid> ids;
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        const auto *layer = dynamic_cast<const Layer *>(document.objectAt(i));
        if (!layer)
            return error.fail(FileMessage::tr("The document contains an unsupported scene object."));
        if (ids.contains(layer->id()))
            return error.fail(FileMessage::tr("The document contains a duplicated layer ID."));
        ids.insert(layer->id());
        pictures.waitFor(i);
        const std::optional<QByteArray> payload = encodeLayerSection(*layer, mode, error);
        if (!payload || !writeSection(device, sectionType(*layer), *payload, error))
            return false;
    }
    return true;
}

} // namespace

bool writeDocumentSections(const Document &document, QIODevice &device, EmbeddedImageMode mode, Error &error)
{
    if (!device.isWritable())
        return error.fail(FileMessage::tr("The destination device is not writable."));
    const std::optional<QSize> size = storableSize(document.size());
    if (!size)
        return error.fail(FileMessage::tr("The document dimensions cannot be stored in .zelmora format."));
    const qsizetype sections = document.objectCount() + 1;
    if (sections > qsizetype(kMaximumSectionCount))
        return error.fail(FileMessage::tr("The document contains too many layers."));
    return writeHeader(device, *size, sections, error) && writeProperties(device, document.backgroundColor(), error)
        && writeLayers(document, device, mode, error);
}

} // namespace zm
