#pragma once

#include "base/error.h"

#include <QByteArray>

class QIODevice;

namespace zm {

/// Takes bytes from a device one after the other, and fails when it ends before.
class DocumentBytes
{
public:
    /// Whether bytes stay where they are, if the device is a file or a buffer: nobody may shorten it meanwhile.
    enum class Access { Copy, View };

    DocumentBytes(QIODevice &device, Access access);
    ~DocumentBytes();
    DocumentBytes(const DocumentBytes &) = delete;
    DocumentBytes &operator=(const DocumentBytes &) = delete;

    /// The next bytes, which with Access::View hold as long as this object and the device. However large the size,
    /// memory is taken for bytes that are there.
    std::optional<QByteArray> take(qsizetype size, Error &error);
    bool skip(qsizetype size, Error &error);
    bool atEnd();

private:
    Failure fail(Error &error) const;

    QIODevice &m_device;
    uchar *m_mapping = nullptr;
    /// What is left of a device that is viewed.
    std::optional<QByteArrayView> m_view;
};

} // namespace zm
