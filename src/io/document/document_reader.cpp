#include "io/document/document_reader.h"

#include "io/document/document_bytes.h"
#include "io/document/document_layout.h"
#include "io/document/file_message.h"

#include <QFuture>
#include <QIODevice>
#include <QSet>
#include <QThreadPool>
#include <QtConcurrent>

#include <deque>

namespace zm {

namespace {

/// Handing a smaller picture to another thread costs more than decoding it, bytes.
constexpr qsizetype kSizeWorthAThread = 0x1000;

struct DecodedLayer
{
    std::optional<LayerRecord> record;
    Error error;
};

struct Section
{
    quint32 type = 0;
    QByteArray payload;
};

/// Decodes sections into layers and hands these on in the order in which they came.
class LayerQueue
{
public:
    LayerQueue(quint32 formatVersion, PixelReading pixels, const LayerSink &sink)
        : m_honourFilterSelectionFlag(formatVersion >= kFilterSelectionFormatVersion)
        , m_pixels(pixels)
        , m_sink(sink)
    {
    }

    bool add(Section section, Error &error)
    {
        const bool large = section.type == quint32(SectionType::ImageLayer)
            && section.payload.size() >= kSizeWorthAThread && m_pixels == PixelReading::Decode;
        if (!large) {
            DecodedLayer layer = decode(section);
            if (m_pending.empty())
                return handOn(std::move(layer), error);
            m_pending.push_back({QtFuture::makeReadyValueFuture(std::move(layer)), false});
            return true;
        }
        // One more than there are threads, so that none waits for the device.
        while (m_byThreads > m_pool.maxThreadCount()) {
            if (!handOnFirst(error))
                return false;
        }
        ++m_byThreads;
        m_pending.push_back(
            {QtConcurrent::run(&m_pool, [this, section = std::move(section)] { return decode(section); }), true});
        return true;
    }

    bool finish(Error &error)
    {
        while (!m_pending.empty()) {
            if (!handOnFirst(error))
                return false;
        }
        return true;
    }

private:
    struct Pending
    {
        QFuture<DecodedLayer> layer;
        bool byThread;
    };

    DecodedLayer decode(const Section &section) const
    {
        DecodedLayer decoded;
        decoded.record =
            decodeLayerRecord(section.type, section.payload, m_honourFilterSelectionFlag, m_pixels, decoded.error);
        return decoded;
    }

    bool handOnFirst(Error &error)
    {
        Pending first = std::move(m_pending.front());
        m_pending.pop_front();
        m_byThreads -= first.byThread ? 1 : 0;
        return handOn(first.layer.takeResult(), error);
    }

    bool handOn(DecodedLayer layer, Error &error)
    {
        if (!layer.record)
            error.fail(layer.error.message());
        const QUuid id = layer.record ? layer.record->id : QUuid();
        if (!layer.record || !m_sink(*std::move(layer.record), error))
            return error.fail(FileMessage::tr("Could not decode a .zelmora layer section."));
        if (m_ids.contains(id))
            return error.fail(FileMessage::tr("The .zelmora file contains a duplicated layer ID."));
        m_ids.insert(id);
        return true;
    }

    const bool m_honourFilterSelectionFlag;
    const PixelReading m_pixels;
    const LayerSink &m_sink;
    QSet<QUuid> m_ids;
    std::deque<Pending> m_pending;
    int m_byThreads = 0;
    QThreadPool m_pool; // last: its end waits for what still runs
};

bool isLayer(quint32 type)
{
    return type == quint32(SectionType::ImageLayer) || type == quint32(SectionType::TextLayer)
        || type == quint32(SectionType::ShapeLayer);
}

bool takeProperties(const Section &section, DocumentHeader &header, Error &error)
{
    if (section.type != quint32(SectionType::DocumentProperties))
        return error.fail(FileMessage::tr("The first .zelmora section is not document properties."));
    if (section.payload.size() != kPropertiesSize)
        return error.fail(FileMessage::tr("The document-properties section has an invalid size."));
    if (u32At(section.payload, 0) != kPropertiesPayloadVersion)
        return error.fail(FileMessage::tr("The document-properties payload version is unsupported."));
    const std::optional<QColor> color = colorAt(section.payload, 4, error);
    header.backgroundColor = color.value_or(QColor());
    return color.has_value();
}

/// The section's payload is left out when nobody knows what it is.
std::optional<Section> takeSection(DocumentBytes &bytes, bool first, Error &error)
{
    const std::optional<QByteArray> header = bytes.take(kSectionHeaderSize, error);
    if (!header)
        return std::nullopt;
    Section section{u32At(*header, 4), {}};
    const quint32 size = u32At(*header, 8);
    if (!header->startsWith(kSectionMagic) || size > kMaximumSectionSize)
        return error.fail(FileMessage::tr("A .zelmora section header is invalid."));
    if (!first && !isLayer(section.type)) {
        if (!bytes.skip(size, error))
            return std::nullopt;
        return section;
    }
    const std::optional<QByteArray> payload = bytes.take(size, error);
    if (!payload)
        return std::nullopt;
    section.payload = *payload;
    return section;
}

/// The document's header and the number of its sections.
std::optional<quint32> takeHeader(DocumentBytes &bytes, DocumentHeader &header, Error &error)
{
    const std::optional<QByteArray> record = bytes.take(kDocumentHeaderSize, error);
    if (!record)
        return std::nullopt;
    if (!record->startsWith(kDocumentMagic))
        return error.fail(FileMessage::tr("This is not a .zelmora document."));
    header.formatVersion = u32At(*record, 4);
    if (header.formatVersion < 1 || header.formatVersion > kDocumentFormatVersion)
        return error.fail(FileMessage::tr("This .zelmora format version is not supported."));
    const quint32 width = u32At(*record, 8);
    const quint32 height = u32At(*record, 12);
    if (width < 1 || width > kMaximumDocumentSide || height < 1 || height > kMaximumDocumentSide)
        return error.fail(FileMessage::tr("The .zelmora document dimensions are invalid."));
    header.documentSize = QSizeF(width, height);
    const quint32 sections = u32At(*record, 16);
    if (sections < 1 || sections > kMaximumSectionCount)
        return error.fail(FileMessage::tr("The .zelmora section count is invalid."));
    return sections;
}

/// What comes after the first section, to the end of the file.
bool takeLayers(DocumentBytes &bytes, quint32 count, LayerQueue &layers, Error &containerError, Error &error)
{
    for (quint32 i = 0; i < count; ++i) {
        std::optional<Section> section = takeSection(bytes, false, containerError);
        if (!section)
            return false;
        if (section->type == quint32(SectionType::DocumentProperties))
            return containerError.fail(FileMessage::tr("The .zelmora file contains duplicate document properties."));
        if (isLayer(section->type) && !layers.add(*std::move(section), error))
            return false;
    }
    return true;
}

} // namespace

std::optional<DocumentHeader> readDocumentSections(QIODevice &device, PixelReading pixels, const LayerSink &sink,
                                                   Error &error)
{
    if (!device.isReadable())
        return error.fail(FileMessage::tr("The source device is not readable."));
    DocumentBytes bytes(device,
                        pixels == PixelReading::Skip ? DocumentBytes::Access::View : DocumentBytes::Access::Copy);
    DocumentHeader header;
    const std::optional<quint32> sections = takeHeader(bytes, header, error);
    if (!sections)
        return std::nullopt;
    const std::optional<Section> properties = takeSection(bytes, true, error);
    if (!properties || !takeProperties(*properties, header, error))
        return std::nullopt;

    // Layers of earlier sections may still be decoded when a later section fails: their failures come first.
    LayerQueue layers(header.formatVersion, pixels, sink);
    Error containerError;
    if (!takeLayers(bytes, *sections - 1, layers, containerError, error) && error.isSet())
        return std::nullopt;
    if (!layers.finish(error))
        return std::nullopt;
    if (containerError.isSet())
        return error.fail(containerError.message());
    if (!bytes.atEnd())
        return error.fail(FileMessage::tr("The .zelmora file has trailing data."));
    return header;
}

} // namespace zm
