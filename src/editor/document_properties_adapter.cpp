#include "editor/document_properties_adapter.h"

#include "base/fuzzy.h"
#include "base/sanitize.h"
#include "commands/command_history.h"
#include "commands/document_commands.h"
#include "commands/object_property_commands.h"
#include "document/document.h"
#include "scene/scene_snapshot.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

/// Rounded out to whole units from the document's corner: the grid of its pixels lies half a unit off where a side is
/// odd, and what fits once must fit ever after. For the same reason what placing a layer loses to rounding, less than
/// a millionth, does not count.
QRectF fittingRect(const QRectF &content, const QPointF &documentCorner)
{
    constexpr double kTolerance = 1e-6;
    const QRectF bounds = content.translated(-documentCorner);
    const QPointF topLeft(std::floor(bounds.left() + kTolerance), std::floor(bounds.top() + kTolerance));
    const QPointF bottomRight(std::ceil(bounds.right() - kTolerance), std::ceil(bounds.bottom() - kTolerance));
    return {topLeft + documentCorner, sizeOfAtLeastOne({bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y()})};
}

} // namespace

DocumentPropertiesAdapter::DocumentPropertiesAdapter(Document *document, CommandHistory *history, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_history(history)
{
    connect(document, &Document::sizeChanged, this, &DocumentPropertiesAdapter::sizeChanged);
    connect(document, &Document::backgroundColorChanged, this, [this] {
        // The picker does not block the window: an undo or another document settles the colour, and then there is
        // nothing to go back to.
        if (!m_showingBackground)
            m_backgroundBeforePicker.reset();
        emit backgroundColorChanged();
    });
}

double DocumentPropertiesAdapter::workareaWidth() const
{
    return m_document->size().width();
}

void DocumentPropertiesAdapter::setWorkareaWidth(double width)
{
    if (std::isfinite(width))
        resize({width, workareaHeight()});
}

double DocumentPropertiesAdapter::workareaHeight() const
{
    return m_document->size().height();
}

void DocumentPropertiesAdapter::setWorkareaHeight(double height)
{
    if (std::isfinite(height))
        resize({workareaWidth(), height});
}

QColor DocumentPropertiesAdapter::backgroundColor() const
{
    return m_document->backgroundColor();
}

void DocumentPropertiesAdapter::resize(const QSizeF &size)
{
    m_history->push(
        std::make_unique<ResizeDocumentCommand>(m_document, size, tr("Resize Document"), m_mergeScope.currentKey()));
}

bool DocumentPropertiesAdapter::fitWorkareaToContent()
{
    const SceneSnapshot snapshot = buildSceneSnapshot(*m_document, {}, m_services);
    const bool showsSomething =
        std::ranges::any_of(snapshot.items, [](const SceneRenderItem &item) { return !itemBounds(item).isEmpty(); });
    const QRectF document = m_document->documentRect();
    const QRectF bounds = fittingRect(unitedItemBounds(snapshot), document.topLeft());
    if (!showsSomething || fuzzyEqual(bounds, document))
        return false;
    auto step = std::make_unique<QUndoCommand>(tr("Fit Document Bounds to Content"));
    // The document stays centred on the origin, so its content moves there. The children belong to the step.
    new ResizeDocumentCommand(m_document, bounds.size(), tr("Resize Document"), 0, step.get());
    for (qsizetype i = 0; i < m_document->objectCount(); ++i) {
        const SceneObject *object = m_document->objectAt(i);
        ObjectTransform transform = object->transform();
        transform.setPosition(transform.position() - bounds.center());
        new SetSceneObjectTransformCommand(m_document, object->id(), transform, tr("Move Object"), 0, step.get());
    }
    m_history->push(std::move(step));
    return true;
}

void DocumentPropertiesAdapter::setBackgroundColorFromPicker(const QColor &color, ColorChange::ChangeReason reason)
{
    if (reason == ColorChange::ChangeReason::DialogSelection && color.isValid()) {
        if (!m_backgroundBeforePicker)
            m_backgroundBeforePicker = m_document->backgroundColor();
        showBackground(color);
        return;
    }
    // The step has to lead from the document's own colour to the accepted one.
    endBackgroundPreview();
    if (reason == ColorChange::ChangeReason::DialogAccepted && color.isValid())
        m_history->push(std::make_unique<SetDocumentBackgroundCommand>(m_document, color));
}

void DocumentPropertiesAdapter::showBackground(const QColor &color)
{
    const QScopedValueRollback guard(m_showingBackground, true);
    m_document->setBackgroundColor(color);
}

void DocumentPropertiesAdapter::endBackgroundPreview()
{
    if (m_backgroundBeforePicker)
        showBackground(*m_backgroundBeforePicker);
    m_backgroundBeforePicker.reset();
}

} // namespace zm
