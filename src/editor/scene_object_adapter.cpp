#include "editor/scene_object_adapter.h"

#include "commands/command_history.h"
#include "commands/object_list_commands.h"
#include "commands/object_property_commands.h"
#include "document/document.h"
#include "values/blend_modes.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

SceneObjectAdapter::SceneObjectAdapter(Document *document, CommandHistory *history, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_history(history)
    , m_layerListModel(document)
{
    connectDocument();
    QCoreApplication::instance()->installEventFilter(this);
}

SceneObjectAdapter::~SceneObjectAdapter() = default;

void SceneObjectAdapter::connectDocument()
{
    // Tells what is said of the selected object, and of no other.
    const auto forward = [this](auto documentSignal, auto ownSignal) {
        connect(m_document, documentSignal, this, [this, ownSignal](const QUuid &id) {
            if (id == selectionId())
                emit(this->*ownSignal)();
        });
    };
    forward(&Document::objectNameChanged, &SceneObjectAdapter::nameChanged);
    forward(&Document::objectVisibilityChanged, &SceneObjectAdapter::visibilityChanged);
    forward(&Document::objectOpacityChanged, &SceneObjectAdapter::appearanceChanged);
    forward(&Document::objectBlendModeChanged, &SceneObjectAdapter::appearanceChanged);
    forward(&Document::objectTransformChanged, &SceneObjectAdapter::transformChanged);
    // The size of the layer may be another.
    forward(&Document::shapeGeometryChanged, &SceneObjectAdapter::transformChanged);
    forward(&Document::textLayerChanged, &SceneObjectAdapter::transformChanged);
    connect(m_document, &Document::imageLayerChanged, this, &SceneObjectAdapter::handleImageLayerChange);
    connect(m_document, &Document::selectionChanged, this, &SceneObjectAdapter::handleSelectionChange);
    connect(m_document, &Document::objectInserted, this, &SceneObjectAdapter::layerOrderChanged);
    connect(m_document, &Document::objectRemoved, this, &SceneObjectAdapter::layerOrderChanged);
    connect(m_document, &Document::objectMoved, this, &SceneObjectAdapter::layerOrderChanged);
}

void SceneObjectAdapter::handleSelectionChange()
{
    m_mergeScope.end();
    m_toldPaintLayer = isPaintLayer();
    emit selectionChanged();
    emit visibilityChanged();
    emit layerOrderChanged();
    emit nameChanged();
    emit appearanceChanged();
    emit transformChanged();
}

void SceneObjectAdapter::handleImageLayerChange(const QUuid &id)
{
    if (id != selectionId())
        return;
    if (isPaintLayer() != m_toldPaintLayer) {
        m_toldPaintLayer = isPaintLayer();
        emit selectionChanged();
    }
    emit transformChanged();
}

bool SceneObjectAdapter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
        emit blendModeOptionsChanged();
    return QObject::eventFilter(watched, event);
}

bool SceneObjectAdapter::hasSelection() const
{
    return !selectionId().isNull();
}

QUuid SceneObjectAdapter::selectionId() const
{
    return m_document->selectedObjectId();
}

ImageLayer *SceneObjectAdapter::selectedImageLayer() const
{
    return m_document->imageLayer(selectionId());
}

bool SceneObjectAdapter::isImageLayer() const
{
    return selectedImageLayer() != nullptr;
}

bool SceneObjectAdapter::isPaintLayer() const
{
    const ImageLayer *layer = selectedImageLayer();
    return layer && layer->rasterSurfacePolicy() == RasterSurfacePolicy::Expanding;
}

bool SceneObjectAdapter::isTextLayer() const
{
    return m_document->textLayer(selectionId()) != nullptr;
}

bool SceneObjectAdapter::canMoveSelectionUp() const
{
    return hasSelection() && m_document->indexOf(selectionId()) < m_document->objectCount() - 1;
}

bool SceneObjectAdapter::canMoveSelectionDown() const
{
    return m_document->indexOf(selectionId()) > 0;
}

QString SceneObjectAdapter::name() const
{
    const SceneObject *object = m_document->selectedObject();
    return object ? object->name() : QString();
}

void SceneObjectAdapter::setName(const QString &name)
{
    m_history->push(std::make_unique<RenameSceneObjectCommand>(m_document, selectionId(), name));
}

double SceneObjectAdapter::opacity() const
{
    const SceneObject *object = m_document->selectedObject();
    return object ? object->opacity() : 1.0;
}

void SceneObjectAdapter::setOpacity(double opacity)
{
    if (!std::isfinite(opacity))
        return;
    m_history->push(std::make_unique<SetSceneObjectOpacityCommand>(m_document, selectionId(), opacity,
                                                                   tr("Change Opacity"), m_mergeScope.currentKey()));
}

QString SceneObjectAdapter::blendMode() const
{
    const SceneObject *object = m_document->selectedObject();
    return object ? object->blendMode() : defaultBlendMode();
}

void SceneObjectAdapter::setBlendMode(const QString &blendMode)
{
    m_history->push(std::make_unique<SetSceneObjectBlendModeCommand>(m_document, selectionId(), blendMode));
}

QVariantList SceneObjectAdapter::blendModeOptions() const
{
    QVariantList options;
    for (const BlendMode &mode : blendModes())
        options.append(QVariantMap{{u"text"_s, mode.translatedLabel()}, {u"value"_s, QString(mode.key)}});
    return options;
}

bool SceneObjectAdapter::isHidden() const
{
    const SceneObject *object = m_document->selectedObject();
    return object && !object->isVisible();
}

void SceneObjectAdapter::setHidden(bool hidden)
{
    m_history->push(std::make_unique<SetSceneObjectVisibilityCommand>(m_document, selectionId(), !hidden));
}

ObjectTransform SceneObjectAdapter::selectedTransform() const
{
    const SceneObject *object = m_document->selectedObject();
    return object ? object->transform() : ObjectTransform();
}

QSizeF SceneObjectAdapter::selectedLayerSize() const
{
    const Layer *layer = m_document->layer(selectionId());
    return layer ? layer->renderedContent(m_services).size : QSizeF(0.0, 0.0);
}

void SceneObjectAdapter::setSelectedTransform(const ObjectTransform &transform, const QString &text)
{
    m_history->push(std::make_unique<SetSceneObjectTransformCommand>(m_document, selectionId(), transform, text,
                                                                     m_mergeScope.currentKey()));
}

double SceneObjectAdapter::positionX() const
{
    return selectedTransform().position().x();
}

double SceneObjectAdapter::positionY() const
{
    return selectedTransform().position().y();
}

double SceneObjectAdapter::rotation() const
{
    return selectedTransform().rotation();
}

double SceneObjectAdapter::skewX() const
{
    return selectedTransform().shear().x();
}

double SceneObjectAdapter::skewY() const
{
    return selectedTransform().shear().y();
}

double SceneObjectAdapter::pivotX() const
{
    return selectedTransform().anchor().x();
}

double SceneObjectAdapter::pivotY() const
{
    return selectedTransform().anchor().y();
}

double SceneObjectAdapter::scaleX() const
{
    return selectedTransform().scale().x();
}

double SceneObjectAdapter::scaleY() const
{
    return selectedTransform().scale().y();
}

double SceneObjectAdapter::layerWidth() const
{
    return selectedLayerSize().width() * std::abs(scaleX());
}

double SceneObjectAdapter::layerHeight() const
{
    return selectedLayerSize().height() * std::abs(scaleY());
}

void SceneObjectAdapter::setRotation(double degrees)
{
    if (!std::isfinite(degrees))
        return;
    ObjectTransform transform = selectedTransform();
    transform.setRotation(degrees);
    setSelectedTransform(transform, tr("Rotate Object"));
}

void SceneObjectAdapter::setPosition(Axis axis, double value)
{
    if (!std::isfinite(value))
        return;
    ObjectTransform transform = selectedTransform();
    transform.setPosition(withComponent(transform.position(), axis, value));
    setSelectedTransform(transform, tr("Move Object"));
}

void SceneObjectAdapter::setSkew(Axis axis, double degrees)
{
    if (!std::isfinite(degrees))
        return;
    ObjectTransform transform = selectedTransform();
    transform.setShear(withComponent(transform.shear(), axis, degrees));
    setSelectedTransform(transform, tr("Skew Object"));
}

void SceneObjectAdapter::setPivot(Axis axis, double fraction)
{
    if (!std::isfinite(fraction))
        return;
    const ObjectTransform transform = selectedTransform();
    setSelectedTransform(withAnchor(transform, withComponent(transform.anchor(), axis, fraction),
                                    QRectF(QPointF(), selectedLayerSize())),
                         tr("Set Transform Pivot"));
}

void SceneObjectAdapter::setScale(Axis axis, double scale, bool preserveAspect)
{
    if (std::isfinite(scale))
        setSelectedTransform(withScale(selectedTransform(), axis, scale, preserveAspect), tr("Scale Object"));
}

void SceneObjectAdapter::setSide(Axis axis, double length, bool preserveAspect)
{
    const double side = along(selectedLayerSize(), axis);
    if (side <= 0.0 || !std::isfinite(length))
        return;
    const double sign = along(selectedTransform().scale(), axis);
    setScale(axis, std::copysign(std::max(length, 1.0) / side, sign), preserveAspect);
}

void SceneObjectAdapter::mirrorHorizontal()
{
    ObjectTransform transform = selectedTransform();
    transform.setScale({-transform.scale().x(), transform.scale().y()});
    setSelectedTransform(transform, tr("Flip Horizontally"));
}

void SceneObjectAdapter::mirrorVertical()
{
    ObjectTransform transform = selectedTransform();
    transform.setScale({transform.scale().x(), -transform.scale().y()});
    setSelectedTransform(transform, tr("Flip Vertically"));
}

bool SceneObjectAdapter::selectLayer(const QString &layerId)
{
    const QUuid id = QUuid::fromString(layerId);
    return !id.isNull() && m_document->selectObject(id);
}

bool SceneObjectAdapter::moveSelectionUp()
{
    return canMoveSelectionUp() && moveObject(selectionId(), m_document->indexOf(selectionId()) + 1);
}

bool SceneObjectAdapter::moveSelectionDown()
{
    return canMoveSelectionDown() && moveObject(selectionId(), m_document->indexOf(selectionId()) - 1);
}

bool SceneObjectAdapter::moveLayerToListIndex(const QString &layerId, int displayIndex)
{
    const QUuid id = QUuid::fromString(layerId);
    const qsizetype count = m_document->objectCount();
    const qsizetype sceneIndex = m_document->indexOf(id);
    if (count < 2 || sceneIndex < 0)
        return false;
    const qsizetype row = count - 1 - sceneIndex;
    const qsizetype gap = std::clamp<qsizetype>(displayIndex, 0, count);
    // The rows above a lower gap move up by one when the layer leaves its row.
    const qsizetype newRow = std::clamp<qsizetype>(row < gap ? gap - 1 : gap, 0, count - 1);
    return newRow != row && moveObject(id, count - 1 - newRow);
}

bool SceneObjectAdapter::moveObject(const QUuid &id, qsizetype toIndex)
{
    m_history->push(std::make_unique<MoveSceneObjectCommand>(m_document, id, toIndex));
    return m_document->indexOf(id) == toIndex;
}

bool SceneObjectAdapter::setLayerHidden(const QString &layerId, bool hidden)
{
    const SceneObject *object = m_document->object(QUuid::fromString(layerId));
    if (!object || object->isVisible() != hidden)
        return false;
    m_history->push(std::make_unique<SetSceneObjectVisibilityCommand>(m_document, object->id(), !hidden));
    return true;
}

bool SceneObjectAdapter::deleteSelection()
{
    if (!hasSelection())
        return false;
    m_history->push(std::make_unique<RemoveSceneObjectCommand>(m_document, selectionId()));
    return true;
}

} // namespace zm
