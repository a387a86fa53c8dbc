#pragma once

#include <QFutureWatcher>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <QUuid>

#include <memory>

namespace zm {

class Document;
class LayerThumbnailStore;
class ScenePresentationModel;
struct RenderServices;

/// Keeps a small picture of every layer: its look after effects, upright and without its placement, as the scene model
/// has rendered it anyway, so that no effect runs for a thumbnail. A layer that is not in the scene keeps its last one
/// or shows its content without effects.
///
/// Cost: noticing a change is one comparison of keys a layer, at most once in kDelayMs; reducing runs on a worker, one
/// job at a time. On the main thread only the content of hidden layers that were never shown is drawn, few at a time.
class LayerThumbnails : public QObject
{
    Q_OBJECT

public:
    /// Pixels: a row of 64 on a screen of four pixels a point.
    static constexpr int kMaximumSide = 256;
    /// Changes within this time, such as the steps of a stroke, make one new thumbnail.
    static constexpr int kDelayMs = 100;

    /// Document, scene model and services must outlive this one; services may be null and are those of the scene model.
    LayerThumbnails(Document *document, const ScenePresentationModel *scene, const RenderServices *services,
                    std::shared_ptr<LayerThumbnailStore> store, QObject *parent = nullptr);
    /// Waits for the job that runs.
    ~LayerThumbnails() override;

signals:
    /// A new address under the provider "layer-thumbnail" for every look; empty when there is no thumbnail any more.
    void thumbnailChanged(const QUuid &layerId, const QString &source);

private:
    /// What a thumbnail was made of.
    struct Look
    {
        qint64 imageKey = 0; ///< QImage::cacheKey(), which changes with the pixels
        quint64 contentRevision = 0;
    };
    struct LayerPicture
    {
        QUuid layerId;
        QImage image;
    };

    void requestRefresh();
    void refresh();
    void forget(const QUuid &layerId);
    QList<LayerPicture> takeChangedPictures();
    void publish();

    static QList<LayerPicture> reduced(QList<LayerPicture> pictures);

    Document *m_document;
    const ScenePresentationModel *m_scene;
    const RenderServices *m_services;
    std::shared_ptr<LayerThumbnailStore> m_store;
    QHash<QUuid, Look> m_looks;
    quint64 m_revision = 0; // makes every address a new one
    QTimer m_delay;
    QFutureWatcher<QList<LayerPicture>> m_job;
    bool m_jobRunning = false; // until its results are published, which is later than its end
};

/// The largest size with the picture's proportions that fits the box, at least 1 by 1; never an enlargement.
QSize thumbnailSize(const QSize &picture, const QSize &box);

} // namespace zm
