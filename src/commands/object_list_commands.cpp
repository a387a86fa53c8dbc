#include "commands/object_list_commands.h"

namespace zm {

namespace {

qint64 bytesOf(const std::unique_ptr<SceneObject> &held)
{
    return held ? held->memoryBytes() : 0;
}

QString nameOr(const SceneObject *object, const QString &fallback)
{
    return object && !object->name().isEmpty() ? object->name() : fallback;
}

} // namespace

AddSceneObjectCommand::AddSceneObjectCommand(Document *document, std::unique_ptr<SceneObject> object, qsizetype index,
                                             QUndoCommand *parent)
    : QUndoCommand(tr("Add %1").arg(nameOr(object.get(), tr("Object"))), parent)
    , m_document(document)
    , m_object(std::move(object))
    , m_id(m_object ? m_object->id() : QUuid())
    , m_index(index)
{
    setObsolete(!m_object);
}

void AddSceneObjectCommand::redo()
{
    if (m_index == -1)
        m_index = m_document->objectCount();
    if (m_document->insertObject(std::move(m_object), m_index))
        m_document->selectObject(m_id);
    else
        setObsolete(true);
}

void AddSceneObjectCommand::undo()
{
    m_object = m_document->takeObject(m_id);
    if (!m_object)
        setObsolete(true);
}

qint64 AddSceneObjectCommand::undoMemoryBytes() const
{
    return bytesOf(m_object);
}

RemoveSceneObjectCommand::RemoveSceneObjectCommand(Document *document, const QUuid &id, QUndoCommand *parent)
    : QUndoCommand(tr("Remove %1").arg(nameOr(document->object(id), tr("Object"))), parent)
    , m_document(document)
    , m_id(id)
{
    setObsolete(!document->object(id));
}

void RemoveSceneObjectCommand::redo()
{
    m_object = m_document->takeObject(m_id, &m_index);
    if (!m_object)
        setObsolete(true);
}

void RemoveSceneObjectCommand::undo()
{
    if (m_document->insertObject(std::move(m_object), m_index))
        m_document->selectObject(m_id);
    else
        setObsolete(true);
}

qint64 RemoveSceneObjectCommand::undoMemoryBytes() const
{
    return bytesOf(m_object);
}

ReplaceSceneObjectCommand::ReplaceSceneObjectCommand(Document *document, const QUuid &id,
                                                     std::unique_ptr<SceneObject> replacement, const QString &text,
                                                     QUndoCommand *parent)
    : QUndoCommand(text.isEmpty() ? tr("Rasterize Layer") : text, parent)
    , m_document(document)
    , m_id(id)
    , m_held(std::move(replacement))
{
    setObsolete(!document->object(id) || !m_held || m_held->id() != id);
}

void ReplaceSceneObjectCommand::swap()
{
    qsizetype index = -1;
    std::unique_ptr<SceneObject> taken = isObsolete() ? nullptr : m_document->takeObject(m_id, &index);
    if (!taken) {
        setObsolete(true);
        return;
    }
    if (m_index == -1)
        m_index = index;
    if (m_document->insertObject(std::move(m_held), m_index)) {
        m_held = std::move(taken);
    } else {
        m_document->insertObject(std::move(taken), index); // the layer must not go with the step
        setObsolete(true);
    }
    m_document->selectObject(m_id);
}

qint64 ReplaceSceneObjectCommand::undoMemoryBytes() const
{
    return bytesOf(m_held);
}

CollapseLayerDownCommand::CollapseLayerDownCommand(Document *document, const QUuid &lowerId, const QUuid &upperId,
                                                   std::unique_ptr<SceneObject> merged, QUndoCommand *parent)
    : QUndoCommand(tr("Combine Layers"), parent)
    , m_document(document)
    , m_lowerId(lowerId)
    , m_upperId(upperId)
    , m_previousSelectionId(document->selectedObjectId())
    , m_merged(std::move(merged))
{
    setObsolete(!areNeighbours() || !m_merged || m_merged->id() != lowerId);
}

bool CollapseLayerDownCommand::areNeighbours() const
{
    const qsizetype lowerIndex = m_document->indexOf(m_lowerId);
    return lowerIndex >= 0 && m_document->indexOf(m_upperId) == lowerIndex + 1;
}

void CollapseLayerDownCommand::redo()
{
    if (isObsolete() || !m_merged || !areNeighbours()) {
        setObsolete(true);
        return;
    }
    m_upper = m_document->takeObject(m_upperId);
    m_lower = m_document->takeObject(m_lowerId, &m_index);
    if (m_document->insertObject(std::move(m_merged), m_index))
        m_document->selectObject(m_lowerId);
    else
        setObsolete(true);
}

void CollapseLayerDownCommand::undo()
{
    if (isObsolete())
        return;
    m_merged = m_document->takeObject(m_lowerId);
    if (!m_merged || !m_document->insertObject(std::move(m_lower), m_index)
        || !m_document->insertObject(std::move(m_upper), m_index + 1)) {
        setObsolete(true);
        return;
    }
    const bool canReselect = m_previousSelectionId.isNull() || m_document->object(m_previousSelectionId);
    m_document->selectObject(canReselect ? m_previousSelectionId : m_upperId);
}

qint64 CollapseLayerDownCommand::undoMemoryBytes() const
{
    return bytesOf(m_merged) + bytesOf(m_lower) + bytesOf(m_upper);
}

MoveSceneObjectCommand::MoveSceneObjectCommand(Document *document, const QUuid &id, qsizetype toIndex,
                                               QUndoCommand *parent)
    : QUndoCommand(parent)
    , m_document(document)
    , m_id(id)
    , m_fromIndex(document->indexOf(id))
    , m_toIndex(toIndex)
{
    // A higher index is nearer the top.
    setText(m_fromIndex < m_toIndex ? tr("Move Layer Up") : tr("Move Layer Down"));
    setObsolete(m_fromIndex < 0 || toIndex < 0 || toIndex >= document->objectCount() || toIndex == m_fromIndex);
}

void MoveSceneObjectCommand::moveTo(qsizetype index)
{
    if (!m_document->moveObject(m_id, index))
        setObsolete(true);
}

} // namespace zm
