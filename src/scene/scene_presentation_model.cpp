#include "scene/scene_presentation_model.h"

#include "base/fuzzy.h"
#include "document/document.h"

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

// Room around the document on the unlimited canvas while there is no viewport, both sides together.
constexpr double kSceneMargin = 128.0;

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height());
}

/// Empty, which stands for no viewport, unless it is finite and at least 1 by 1.
QRectF cleanViewport(const QRectF &rect)
{
    const QRectF normalized = rect.normalized();
    return isFinite(normalized) && normalized.width() >= 1.0 && normalized.height() >= 1.0 ? normalized : QRectF();
}

double cleanRenderScale(double scale)
{
    return std::isnan(scale) ? 1.0
                             : std::clamp(scale, kMinimumRenderScale, ScenePresentationModel::kMaximumRenderScale);
}

double nonNegative(double side)
{
    return std::isfinite(side) ? std::max(side, 0.0) : 0.0;
}

} // namespace

ScenePresentationModel::ScenePresentationModel(Document *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    m_renderTimer.setSingleShot(true);
    m_renderTimer.setInterval(kComposeIntervalMs);
    m_renderTimer.setTimerType(Qt::PreciseTimer); // a coarse one may be off by more than a frame
    connect(&m_renderTimer, &QTimer::timeout, this, &ScenePresentationModel::renderScene);
    connectDocument();
    rebuildScene();
}

void ScenePresentationModel::connectDocument()
{
    connect(m_document, &Document::sizeChanged, this, [this] {
        rebuildScene();
        emit documentSizeChanged();
    });
    connect(m_document, &Document::backgroundColorChanged, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::objectInserted, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::objectRemoved, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::objectMoved, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::objectVisibilityChanged, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::objectOpacityChanged, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::objectBlendModeChanged, this, &ScenePresentationModel::rebuildScene);
    connect(m_document, &Document::imageLayerChanged, this, &ScenePresentationModel::rebuildUnlessSuppressed);
    connect(m_document, &Document::layerFiltersChanged, this, &ScenePresentationModel::rebuildUnlessSuppressed);
    connect(m_document, &Document::shapeGeometryChanged, this, &ScenePresentationModel::rebuildUnlessSuppressed);
    connect(m_document, &Document::shapeLayerChanged, this, &ScenePresentationModel::rebuildUnlessSuppressed);
    connect(m_document, &Document::textLayerChanged, this, &ScenePresentationModel::rebuildUnlessSuppressed);
    connect(m_document, &Document::objectTransformChanged, this, &ScenePresentationModel::applyTransform);
    connect(m_document, &Document::selectionChanged, this, &ScenePresentationModel::refreshSelection);
}

QSizeF ScenePresentationModel::documentSize() const
{
    return m_document->size();
}

QRectF ScenePresentationModel::documentRect() const
{
    return m_document->documentRect();
}

bool ScenePresentationModel::hasSelection() const
{
    return !m_document->selectedObjectId().isNull() && !m_selectionRect.isEmpty();
}

void ScenePresentationModel::rebuildScene()
{
    m_renderTimer.stop();
    m_snapshot = buildSceneSnapshot(*m_document, m_suppressedObjectId, m_renderServices);
    renderScene();
}

void ScenePresentationModel::rebuildUnlessSuppressed(const QUuid &id)
{
    if (id != m_suppressedObjectId)
        rebuildScene();
}

void ScenePresentationModel::renderScene()
{
    m_renderTimer.stop();
    const QRectF rect = wantedSceneRect();
    if (!fuzzyEqual(rect, m_sceneRect)) {
        m_sceneRect = rect;
        emit sceneRectChanged();
    }
    m_tiles = renderSceneTiles(m_snapshot, m_sceneRect, m_fixedDocumentBounds, m_renderScale,
                               maxTileSize(m_renderServices), m_documentBoundsVisible);
    m_sceneImage = m_tiles.size() == 1 ? m_tiles.first().image : QImage();
    ++m_revision;
    refreshSelection();
    emit sceneImageChanged();
}

QRectF ScenePresentationModel::wantedSceneRect() const
{
    if (!m_viewportRect.isEmpty())
        return m_viewportRect;
    const QRectF document = zm::documentRect(m_snapshot);
    if (m_fixedDocumentBounds)
        return document;
    QRectF rect(QPointF(), m_minimumSceneSize.expandedTo(document.size() + QSizeF(kSceneMargin, kSceneMargin)));
    rect.moveCenter(document.center());
    return rect;
}

void ScenePresentationModel::applyTransform(const QUuid &id)
{
    const auto item = std::ranges::find(m_snapshot.items, id, &SceneRenderItem::objectId);
    const SceneObject *object = m_document->object(id);
    if (item == m_snapshot.items.end() || !object)
        return;
    item->transform = object->transform();
    refreshSelection();
    if (!m_renderTimer.isActive())
        m_renderTimer.start();
}

void ScenePresentationModel::refreshSelection()
{
    const SceneRenderItem *item = findItem(m_snapshot, m_document->selectedObjectId());
    const QRectF rect = item ? itemBounds(*item) : QRectF();
    const QSize pixelSize = item ? item->image.size() : QSize();
    if (fuzzyEqual(rect, m_selectionRect) && pixelSize == m_selectedLayerPixelSize)
        return;
    m_selectionRect = rect;
    m_selectedLayerPixelSize = pixelSize;
    emit selectionChanged();
}

void ScenePresentationModel::setRenderServices(const RenderServices *services)
{
    if (m_renderServices == services)
        return;
    m_renderServices = services;
    rebuildScene();
}

void ScenePresentationModel::setSuppressedObjectId(const QUuid &id)
{
    if (m_suppressedObjectId == id)
        return;
    m_suppressedObjectId = id;
    rebuildScene();
    emit suppressedObjectIdChanged();
}

void ScenePresentationModel::setFixedDocumentBounds(bool fixed)
{
    if (m_fixedDocumentBounds == fixed)
        return;
    m_fixedDocumentBounds = fixed;
    rebuildScene();
    emit fixedDocumentBoundsChanged();
}

void ScenePresentationModel::setDocumentBoundsVisible(bool visible)
{
    if (m_documentBoundsVisible == visible)
        return;
    m_documentBoundsVisible = visible;
    renderScene();
    emit documentBoundsVisibleChanged();
}

void ScenePresentationModel::setMinimumSceneSize(const QSizeF &size)
{
    const QSizeF clean(nonNegative(size.width()), nonNegative(size.height()));
    if (fuzzyEqual(clean, m_minimumSceneSize))
        return;
    m_minimumSceneSize = clean;
    rebuildScene();
    emit minimumSceneSizeChanged();
}

void ScenePresentationModel::setRenderScale(double scale)
{
    setView(m_viewportRect, scale);
}

void ScenePresentationModel::setViewportRect(const QRectF &rect)
{
    setView(rect, m_renderScale);
}

void ScenePresentationModel::setView(const QRectF &viewportRect, double renderScale)
{
    const QRectF rect = cleanViewport(viewportRect);
    const double scale = cleanRenderScale(renderScale);
    const bool rectChanges = !fuzzyEqual(rect, m_viewportRect);
    const bool scaleChanges = !fuzzyEqual(scale, m_renderScale);
    if (!rectChanges && !scaleChanges)
        return;
    if (rectChanges)
        m_viewportRect = rect;
    if (scaleChanges)
        m_renderScale = scale;
    renderScene();
    if (rectChanges)
        emit viewportRectChanged();
    if (scaleChanges)
        emit renderScaleChanged();
}

} // namespace zm
