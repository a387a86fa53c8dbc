#pragma once

#include <QQuickImageProvider>

#include <memory>

namespace zm {

class ExportPreviewImageStore;

/// Gives the interface the picture of the export preview. The number in an address only makes it a new one for every
/// preview; a rectangle in pixels may follow, as in "image://export-preview/7/0,1024,512,512", and asks for that part.
/// Asked from any thread.
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
