#pragma once

#include <QQuickImageProvider>

#include <memory>

namespace zm {

class LayerThumbnailStore;

/// Gives the interface the looks of layers, whose addresses LayerThumbnails makes: "<layer id>/<number>", where the
/// number only makes the address new. Asked from any thread; fast, for the store holds small pictures alone.
class LayerThumbnailProvider : public QQuickImageProvider
{
public:
    explicit LayerThumbnailProvider(std::shared_ptr<const LayerThumbnailStore> store);

    /// Reduced into requestedSize, in device pixels, with its proportions and transparency kept; not enlarged. One
    /// transparent pixel for a layer that has no thumbnail any more, since its row may ask once more while it goes.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    std::shared_ptr<const LayerThumbnailStore> m_store;
};

} // namespace zm
