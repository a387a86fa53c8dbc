#include "io/document/document_bytes.h"

#include "io/document/file_message.h"

#include <QBuffer>
#include <QFileDevice>

#include <algorithm>

namespace zm {

namespace {

constexpr qsizetype kFirstBlock = 0x10000;

} // namespace

DocumentBytes::DocumentBytes(QIODevice &device, Access access)
    : m_device(device)
{
    if (access == Access::Copy)
        return;
    if (auto *file = qobject_cast<QFileDevice *>(&device); file && !file->isSequential()) {
        const qint64 size = file->size() - file->pos();
        m_mapping = size > 0 ? file->map(file->pos(), size) : nullptr;
        if (m_mapping)
            m_view = QByteArrayView(m_mapping, size);
    } else if (const auto *buffer = qobject_cast<QBuffer *>(&device)) {
        m_view = QByteArrayView(buffer->data()).sliced(std::min<qint64>(buffer->pos(), buffer->data().size()));
    }
}

DocumentBytes::~DocumentBytes()
{
    if (m_mapping)
        static_cast<QFileDevice &>(m_device).unmap(m_mapping);
}

std::optional<QByteArray> DocumentBytes::take(qsizetype size, Error &error)
{
    if (m_view) {
        if (size > m_view->size())
            return fail(error);
        const QByteArrayView taken = m_view->first(size);
        m_view = m_view->sliced(size);
        return QByteArray::fromRawData(taken.data(), size);
    }
    // A sequential device does not tell what is to come, so that the room for it grows as it comes.
    const qsizetype known = m_device.isSequential() ? kFirstBlock : m_device.bytesAvailable();
    QByteArray bytes;
    for (qsizetype filled = 0; filled < size;) {
        if (filled == bytes.size())
            bytes.resize(std::min(size, std::max({known, 2 * filled, kFirstBlock})));
        const qint64 read = m_device.read(bytes.data() + filled, bytes.size() - filled);
        if (read < 1)
            return fail(error);
        filled += read;
    }
    return bytes;
}

bool DocumentBytes::skip(qsizetype size, Error &error)
{
    while (size > 0) {
        const qsizetype block = m_view ? size : std::min(size, kFirstBlock);
        if (!take(block, error))
            return false;
        size -= block;
    }
    return true;
}

bool DocumentBytes::atEnd()
{
    char byte = 0;
    return m_view ? m_view->isEmpty() : m_device.read(&byte, 1) < 1;
}

Failure DocumentBytes::fail(Error &error) const
{
    return error.fail(FileMessage::tr("The .zelmora file is truncated or unreadable: %1").arg(m_device.errorString()));
}

} // namespace zm
