#include "canvas/editor_canvas_item.h"

#include "base/fuzzy.h"

#include <QQuickWindow>
#include <QSGSimpleTextureNode>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zm {

namespace {

constexpr double kMinimumViewScale = 0.01;
constexpr double kMaximumFilteringScale = 64.0;

/// One texture node for each tile of one revision, laid out for one view scale.
class EditorCanvasTilesNode final : public QSGNode
{
public:
    quint64 revision = 0;
    double viewScale = 1.0;
};

double sanitizedScale(double scale)
{
    return std::isfinite(scale) ? std::clamp(scale, kMinimumViewScale, kMaximumFilteringScale) : 1.0;
}

QSGSimpleTextureNode *createTileNode(QQuickWindow *window, const SceneTile &tile, const QPointF &sceneOrigin,
                                     double viewScale)
{
    const double tileScale = sanitizedScale(tile.scale);
    // Tiles are rendered at the density of the screen, up to a limit; beyond it their pixels are to stay hard.
    const bool magnified = sanitizedScale(viewScale * window->effectiveDevicePixelRatio()) > tileScale;

    auto *node = new QSGSimpleTextureNode;
    node->setTexture(window->createTextureFromImage(tile.image, QQuickWindow::TextureHasAlphaChannel));
    node->setOwnsTexture(true);
    node->setFiltering(magnified ? QSGTexture::Nearest : QSGTexture::Linear);
    node->setRect(QRectF((tile.sceneRect.topLeft() - sceneOrigin) * viewScale,
                         QSizeF(tile.image.size()) / tileScale * viewScale));
    return node;
}

} // namespace

EditorCanvasItem::EditorCanvasItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

EditorCanvasItem::~EditorCanvasItem() = default;

void EditorCanvasItem::setSceneModel(ScenePresentationModel *model)
{
    if (m_sceneModel == model)
        return;
    disconnect(m_imageConnection);
    disconnect(m_destroyedConnection);
    m_sceneModel = model;
    m_modelReplaced = true; // another model may have reached the same revision
    if (model) {
        m_imageConnection =
            connect(model, &ScenePresentationModel::sceneImageChanged, this, &EditorCanvasItem::takeTiles);
        m_destroyedConnection = connect(model, &QObject::destroyed, this, [this] {
            m_sceneModel = nullptr;
            takeTiles();
            emit sceneModelChanged();
        });
    }
    takeTiles();
    emit sceneModelChanged();
}

void EditorCanvasItem::setViewScale(double scale)
{
    const double cleaned = std::isfinite(scale) ? std::max(scale, kMinimumViewScale) : 1.0;
    if (fuzzyEqual(m_viewScale, cleaned))
        return;
    m_viewScale = cleaned;
    update();
    emit viewScaleChanged();
}

void EditorCanvasItem::takeTiles()
{
    m_tiles = m_sceneModel ? m_sceneModel->tiles() : QList<SceneTile>();
    m_sceneRect = m_sceneModel ? m_sceneModel->sceneRect() : QRectF();
    m_revision = m_sceneModel ? m_sceneModel->revision() : 0;
    update();
}

QSGNode *EditorCanvasItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *current = static_cast<EditorCanvasTilesNode *>(old);
    if (!window() || m_tiles.isEmpty()) {
        delete current;
        return nullptr;
    }
    const bool sameModel = !std::exchange(m_modelReplaced, false);
    if (current && sameModel && current->revision == m_revision && fuzzyEqual(current->viewScale, m_viewScale))
        return current;
    delete current;

    auto *node = new EditorCanvasTilesNode;
    node->revision = m_revision;
    node->viewScale = m_viewScale;
    for (const SceneTile &tile : std::as_const(m_tiles)) {
        if (!tile.image.isNull())
            node->appendChildNode(createTileNode(window(), tile, m_sceneRect.topLeft(), m_viewScale));
    }
    return node;
}

} // namespace zm
