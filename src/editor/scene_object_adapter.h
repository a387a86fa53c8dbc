#pragma once

#include "commands/undo_merge_scope.h"
#include "editor/scene_layer_list_model.h"
#include "editor/transform_edits.h"

#include <QObject>
#include <QSizeF>
#include <QVariantList>

namespace zm {

class CommandHistory;
class ImageLayer;
struct RenderServices;

/// What the inspector shows and edits of the selected object, and the list of all of them. Edits go through the
/// history; a number that is not finite, an unchanged value and an edit without a selection do nothing. Invokables
/// return whether something changed. Ids are texts of a UUID, with or without braces.
class SceneObjectAdapter : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns the adapters of scene objects.")
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged)
    Q_PROPERTY(QUuid selectionId READ selectionId NOTIFY selectionChanged)
    Q_PROPERTY(bool isImageLayer READ isImageLayer NOTIFY selectionChanged)
    Q_PROPERTY(bool isPaintLayer READ isPaintLayer NOTIFY selectionChanged)
    Q_PROPERTY(bool isTextLayer READ isTextLayer NOTIFY selectionChanged)
    Q_PROPERTY(bool canMoveSelectionUp READ canMoveSelectionUp NOTIFY layerOrderChanged)
    Q_PROPERTY(bool canMoveSelectionDown READ canMoveSelectionDown NOTIFY layerOrderChanged)
    Q_PROPERTY(zm::SceneLayerListModel *layerListModel READ layerListModel CONSTANT)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(double opacity READ opacity WRITE setOpacity NOTIFY appearanceChanged)
    Q_PROPERTY(QString blendMode READ blendMode WRITE setBlendMode NOTIFY appearanceChanged)
    Q_PROPERTY(QVariantList blendModeOptions READ blendModeOptions NOTIFY blendModeOptionsChanged)
    Q_PROPERTY(double positionX READ positionX WRITE setPositionX NOTIFY transformChanged)
    Q_PROPERTY(double positionY READ positionY WRITE setPositionY NOTIFY transformChanged)
    Q_PROPERTY(double rotation READ rotation WRITE setRotation NOTIFY transformChanged)
    Q_PROPERTY(double skewX READ skewX WRITE setSkewX NOTIFY transformChanged)
    Q_PROPERTY(double skewY READ skewY WRITE setSkewY NOTIFY transformChanged)
    Q_PROPERTY(double pivotX READ pivotX WRITE setPivotX NOTIFY transformChanged)
    Q_PROPERTY(double pivotY READ pivotY WRITE setPivotY NOTIFY transformChanged)
    Q_PROPERTY(double scaleX READ scaleX WRITE setScaleX NOTIFY transformChanged)
    Q_PROPERTY(double scaleY READ scaleY WRITE setScaleY NOTIFY transformChanged)
    Q_PROPERTY(double layerWidth READ layerWidth WRITE setLayerWidth NOTIFY transformChanged)
    Q_PROPERTY(double layerHeight READ layerHeight WRITE setLayerHeight NOTIFY transformChanged)
    Q_PROPERTY(bool hidden READ isHidden WRITE setHidden NOTIFY visibilityChanged)

public:
    /// Both must outlive the adapter.
    SceneObjectAdapter(Document *document, CommandHistory *history, QObject *parent = nullptr);
    ~SceneObjectAdapter() override;

    /// Null while there is no GPU; those of the scene model, for both ask layers for their content. Not owned.
    void setRenderServices(const RenderServices *services) { m_services = services; }

    bool hasSelection() const;
    QUuid selectionId() const;
    /// True for a paint layer, too.
    bool isImageLayer() const;
    bool isPaintLayer() const;
    bool isTextLayer() const;
    bool canMoveSelectionUp() const;
    bool canMoveSelectionDown() const;
    SceneLayerListModel *layerListModel() { return &m_layerListModel; }

    QString name() const;
    void setName(const QString &name);
    /// 0..1, to which the setter limits.
    double opacity() const;
    void setOpacity(double opacity);
    QString blendMode() const;
    void setBlendMode(const QString &blendMode);
    /// Maps of "text" and "value" in the order of the menu.
    QVariantList blendModeOptions() const;
    bool isHidden() const;
    void setHidden(bool hidden);

    // The transform, limited as ObjectTransform tells: document units, degrees, a pivot in fractions of the object's
    // box, and scales of which a negative one is mirrored.
    double positionX() const;
    void setPositionX(double x) { setPosition(Axis::X, x); }
    double positionY() const;
    void setPositionY(double y) { setPosition(Axis::Y, y); }
    double rotation() const;
    void setRotation(double degrees);
    double skewX() const;
    void setSkewX(double degrees) { setSkew(Axis::X, degrees); }
    double skewY() const;
    void setSkewY(double degrees) { setSkew(Axis::Y, degrees); }
    /// Another pivot leaves the object where it shows; its position changes along.
    double pivotX() const;
    void setPivotX(double fraction) { setPivot(Axis::X, fraction); }
    double pivotY() const;
    void setPivotY(double fraction) { setPivot(Axis::Y, fraction); }
    double scaleX() const;
    void setScaleX(double scale) { setScale(Axis::X, scale, false); }
    double scaleY() const;
    void setScaleY(double scale) { setScale(Axis::Y, scale, false); }
    /// Document units: the sides of the layer's own box, before effects, as its scale draws them; turning and skewing
    /// do not count. Setters change the scale, keep it mirrored, and raise a side to at least 1.
    double layerWidth() const;
    void setLayerWidth(double width) { setSide(Axis::X, width, false); }
    double layerHeight() const;
    void setLayerHeight(double height) { setSide(Axis::Y, height, false); }

    /// All changes from here to endInspectorEdit() are one undo step, as far as they change one thing of one object.
    /// A change of the selection ends it, too.
    Q_INVOKABLE void beginInspectorEdit() { m_mergeScope.begin(); }
    Q_INVOKABLE void endInspectorEdit() { m_mergeScope.end(); }

    // These change both scales by one factor.
    Q_INVOKABLE void setLayerWidthPreservingAspect(double width) { setSide(Axis::X, width, true); }
    Q_INVOKABLE void setLayerHeightPreservingAspect(double height) { setSide(Axis::Y, height, true); }
    Q_INVOKABLE void setScaleXPreservingAspect(double scale) { setScale(Axis::X, scale, true); }
    Q_INVOKABLE void setScaleYPreservingAspect(double scale) { setScale(Axis::Y, scale, true); }

    /// Mirrors the object about its pivot, in its own axes.
    Q_INVOKABLE void mirrorHorizontal();
    Q_INVOKABLE void mirrorVertical();

    /// No undo step, as the selection is not part of the document.
    Q_INVOKABLE bool selectLayer(const QString &layerId);
    Q_INVOKABLE bool moveSelectionUp();
    Q_INVOKABLE bool moveSelectionDown();
    /// Moves a layer into the gap before row displayIndex of the list; the gap after the last row is the row count,
    /// and what lies beyond counts as the nearest gap.
    Q_INVOKABLE bool moveLayerToListIndex(const QString &layerId, int displayIndex);
    Q_INVOKABLE bool setLayerHidden(const QString &layerId, bool hidden);
    Q_INVOKABLE bool deleteSelection();

    /// Listens to the application for another language.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void selectionChanged();
    void visibilityChanged();
    void layerOrderChanged();
    void nameChanged();
    void appearanceChanged();
    void transformChanged();
    void blendModeOptionsChanged();

protected:
    Document *document() const { return m_document; }
    CommandHistory *history() const { return m_history; }
    /// Of the edit that the inspector brackets; its key is 0 outside one.
    const UndoMergeScope &mergeScope() const { return m_mergeScope; }

private:
    void connectDocument();
    void handleSelectionChange();
    void handleImageLayerChange(const QUuid &id);
    ImageLayer *selectedImageLayer() const;
    ObjectTransform selectedTransform() const;
    QSizeF selectedLayerSize() const;
    void setSelectedTransform(const ObjectTransform &transform, const QString &text);
    void setPosition(Axis axis, double value);
    void setSkew(Axis axis, double degrees);
    void setPivot(Axis axis, double fraction);
    void setScale(Axis axis, double scale, bool preserveAspect);
    void setSide(Axis axis, double length, bool preserveAspect);
    bool moveObject(const QUuid &id, qsizetype toIndex);

    Document *m_document;
    CommandHistory *m_history;
    const RenderServices *m_services = nullptr;
    SceneLayerListModel m_layerListModel;
    UndoMergeScope m_mergeScope;
    // As last told: a rasterised paint layer stays selected and becomes another kind.
    bool m_toldPaintLayer = false;
};

} // namespace zm
