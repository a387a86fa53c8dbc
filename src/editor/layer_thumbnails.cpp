#include "editor/layer_thumbnails.h"

#include "document/document.h"
#include "editor/layer_thumbnail_store.h"
#include "scene/scene_presentation_model.h"

#include <QElapsedTimer>
#include <QtConcurrentRun>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Averaging every pixel of a large picture takes ten times as long as sampling this many a side for each pixel of
// the thumbnail, and looks the same.
constexpr int kSamplesPerPixel = 4;

// A quarter of a frame: what drawing the content of hidden layers may take of the main thread at a time.
constexpr int kHiddenLayersMs = 4;

QImage reducedPicture(const QImage &image)
{
    if (image.isNull())
        return image;
    const QSize size = thumbnailSize(image.size(), {LayerThumbnails::kMaximumSide, LayerThumbnails::kMaximumSide});
    const QSize sampled = (size * kSamplesPerPixel).boundedTo(image.size());
    return image.scaled(sampled, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString thumbnailAddress(const QUuid &layerId, quint64 revision)
{
    return u"image://layer-thumbnail/%1/%2"_s.arg(layerId.toString(QUuid::WithoutBraces)).arg(revision);
}

} // namespace

LayerThumbnails::LayerThumbnails(Document *document, const ScenePresentationModel *scene,
                                 const RenderServices *services, std::shared_ptr<LayerThumbnailStore> store,
                                 QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_scene(scene)
    , m_services(services)
    , m_store(std::move(store))
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelayMs);
    connect(&m_delay, &QTimer::timeout, this, &LayerThumbnails::refresh);
    connect(&m_job, &QFutureWatcherBase::finished, this, &LayerThumbnails::publish);
    // At once: another object may come with the same id, as it does when a file is opened again.
    connect(document, &Document::objectRemoved, this, [this](qsizetype, const QUuid &id) { forget(id); });
    connect(scene, &ScenePresentationModel::sceneImageChanged, this, &LayerThumbnails::requestRefresh);
    requestRefresh();
}

LayerThumbnails::~LayerThumbnails()
{
    m_job.waitForFinished();
}

void LayerThumbnails::requestRefresh()
{
    if (!m_delay.isActive())
        m_delay.start();
}

void LayerThumbnails::refresh()
{
    if (m_jobRunning)
        return; // its end asks again
    const QList<LayerPicture> pictures = takeChangedPictures();
    if (pictures.isEmpty())
        return;
    m_jobRunning = true;
    m_job.setFuture(QtConcurrent::run(&LayerThumbnails::reduced, pictures));
}

void LayerThumbnails::forget(const QUuid &layerId)
{
    if (!m_looks.remove(layerId))
        return;
    m_store->remove(layerId);
    emit thumbnailChanged(layerId, {});
}

QList<LayerThumbnails::LayerPicture> LayerThumbnails::takeChangedPictures()
{
    QList<LayerPicture> pictures;
    QElapsedTimer clock;
    clock.start();
    for (qsizetype i = 0; i < m_document->objectCount(); ++i) {
        const auto *layer = dynamic_cast<const Layer *>(m_document->objectAt(i));
        if (!layer)
            continue;
        const auto known = m_looks.constFind(layer->id());
        QImage image;
        if (const SceneRenderItem *item = findItem(m_scene->snapshot(), layer->id())) {
            if (known != m_looks.cend() && known->imageKey == item->image.cacheKey())
                continue;
            image = item->image;
        } else {
            if (known != m_looks.cend() && known->contentRevision == layer->contentRevision())
                continue;
            if (clock.elapsed() >= kHiddenLayersMs)
                continue; // the end of the job asks again
            image = layer->renderedContent(m_services).image;
        }
        m_looks.insert(layer->id(), {image.cacheKey(), layer->contentRevision()});
        pictures.append({layer->id(), image});
    }
    return pictures;
}

QList<LayerThumbnails::LayerPicture> LayerThumbnails::reduced(QList<LayerPicture> pictures)
{
    for (LayerPicture &picture : pictures)
        picture.image = reducedPicture(picture.image);
    return pictures;
}

void LayerThumbnails::publish()
{
    m_jobRunning = false;
    for (const LayerPicture &picture : m_job.result()) {
        if (!m_looks.contains(picture.layerId))
            continue;
        m_store->setImage(picture.layerId, picture.image);
        emit thumbnailChanged(picture.layerId,
                              picture.image.isNull() ? QString() : thumbnailAddress(picture.layerId, ++m_revision));
    }
    requestRefresh();
}

QSize thumbnailSize(const QSize &picture, const QSize &box)
{
    if (picture.width() <= box.width() && picture.height() <= box.height())
        return picture;
    return picture.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace zm
