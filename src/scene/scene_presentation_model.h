#pragma once

#include "scene/scene_renderer.h"

#include <QObject>
#include <QTimer>

namespace zm {

class Document;

/// Keeps the picture of a document that the canvas shows: listens to the document, freezes it anew when pixels of a
/// layer may have changed, and composes the tiles of the visible rectangle. Panning, zooming and moving a layer only
/// compose. Belongs to the main thread.
class ScenePresentationModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSizeF documentSize READ documentSize NOTIFY documentSizeChanged)
    Q_PROPERTY(QRectF documentRect READ documentRect NOTIFY documentSizeChanged)
    Q_PROPERTY(QRectF sceneRect READ sceneRect NOTIFY sceneRectChanged)
    Q_PROPERTY(QSizeF minimumSceneSize READ minimumSceneSize WRITE setMinimumSceneSize NOTIFY minimumSceneSizeChanged)
    Q_PROPERTY(QRectF viewportRect READ viewportRect WRITE setViewportRect NOTIFY viewportRectChanged)
    Q_PROPERTY(double renderScale READ renderScale WRITE setRenderScale NOTIFY renderScaleChanged)
    Q_PROPERTY(bool fixedDocumentBounds READ fixedDocumentBounds WRITE setFixedDocumentBounds NOTIFY
                   fixedDocumentBoundsChanged)
    Q_PROPERTY(bool documentBoundsVisible READ documentBoundsVisible WRITE setDocumentBoundsVisible NOTIFY
                   documentBoundsVisibleChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged)
    Q_PROPERTY(QRectF selectionRect READ selectionRect NOTIFY selectionChanged)
    Q_PROPERTY(QSize selectedLayerPixelSize READ selectedLayerPixelSize NOTIFY selectionChanged)
    Q_PROPERTY(
        QUuid suppressedObjectId READ suppressedObjectId WRITE setSuppressedObjectId NOTIFY suppressedObjectIdChanged)

public:
    static constexpr double kMaximumRenderScale = 32.0;
    /// A gesture composes at most once in this time.
    static constexpr int kComposeIntervalMs = 16;

    /// The document must outlive the model.
    explicit ScenePresentationModel(Document *document, QObject *parent = nullptr);

    QSizeF documentSize() const;
    QRectF documentRect() const;
    /// What the tiles show, in document units, as all rectangles here.
    QRectF sceneRect() const { return m_sceneRect; }
    /// The least extent of the scene on the unlimited canvas while there is no viewport.
    QSizeF minimumSceneSize() const { return m_minimumSceneSize; }
    /// The visible part of the scene; empty for the whole of it.
    QRectF viewportRect() const { return m_viewportRect; }
    /// Pixels of a tile for each document unit.
    double renderScale() const { return m_renderScale; }
    /// True clips the picture to the document; false is the unlimited canvas.
    bool fixedDocumentBounds() const { return m_fixedDocumentBounds; }
    bool documentBoundsVisible() const { return m_documentBoundsVisible; }
    /// A layer is selected and in the picture.
    bool hasSelection() const;
    QRectF selectionRect() const { return m_selectionRect; }
    /// After effects; invalid without a selection in the picture.
    QSize selectedLayerPixelSize() const { return m_selectedLayerPixelSize; }
    /// A layer that is left out of the picture because something else draws it; null for none.
    QUuid suppressedObjectId() const { return m_suppressedObjectId; }

    const QList<SceneTile> &tiles() const { return m_tiles; }
    /// The whole picture when it is one tile, else null.
    QImage sceneImage() const { return m_sceneImage; }
    /// Grows with every new set of tiles.
    quint64 revision() const { return m_revision; }
    const SceneSnapshot &snapshot() const { return m_snapshot; }

    /// Null while there is no GPU. Not owned.
    void setRenderServices(const RenderServices *services);
    void setSuppressedObjectId(const QUuid &id);
    void setFixedDocumentBounds(bool fixed);
    void setDocumentBoundsVisible(bool visible);
    /// A negative or non-finite side becomes 0.
    void setMinimumSceneSize(const QSizeF &size);
    /// Limited to kMinimumRenderScale..kMaximumRenderScale; NaN becomes 1.
    void setRenderScale(double scale);
    /// A rectangle under 1 in width or height, or not finite, becomes empty.
    void setViewportRect(const QRectF &rect);
    /// Both as one change, which composes once: a zoom step, which needs the two, is as cheap as a pan step.
    Q_INVOKABLE void setView(const QRectF &viewportRect, double renderScale);

signals:
    void documentSizeChanged();
    void sceneRectChanged();
    void minimumSceneSizeChanged();
    void viewportRectChanged();
    void renderScaleChanged();
    void fixedDocumentBoundsChanged();
    void documentBoundsVisibleChanged();
    void selectionChanged();
    void sceneImageChanged();
    void suppressedObjectIdChanged();

private:
    void connectDocument();
    void rebuildScene();
    void rebuildUnlessSuppressed(const QUuid &id);
    void renderScene();
    void applyTransform(const QUuid &id);
    void refreshSelection();
    QRectF wantedSceneRect() const;

    Document *m_document;
    SceneSnapshot m_snapshot;
    QImage m_sceneImage;
    QList<SceneTile> m_tiles;
    QTimer m_renderTimer;
    QRectF m_sceneRect;
    QSizeF m_minimumSceneSize{0.0, 0.0};
    QRectF m_viewportRect;
    QRectF m_selectionRect;
    QSize m_selectedLayerPixelSize;
    const RenderServices *m_renderServices = nullptr;
    quint64 m_revision = 0;
    double m_renderScale = 1.0;
    QUuid m_suppressedObjectId;
    bool m_fixedDocumentBounds = false;
    bool m_documentBoundsVisible = false;
};

} // namespace zm
