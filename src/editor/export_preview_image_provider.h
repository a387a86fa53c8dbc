#pragma once

#include <QQuickImageProvider>

#include <memory>

namespace zm {

class ExportPreviewImageStore;

/// Gives the interface the picture of the export preview, whatever the id: the number in an address only makes it a new
/// one for every preview. Asked from any thread.
class ExportPreviewImageProvider : public QQuickImageProvider
{
public:
    explicit ExportPreviewImageProvider(std::shared_ptr<const ExportPreviewImageStore> store);

    /// Scaled into requestedSize with its proportions kept, if that has a width and a height.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    std::shared_ptr<const ExportPreviewImageStore> m_store;
};

} // namespace zm
