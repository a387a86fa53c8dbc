#pragma once

#include "commands/undo_memory_cost.h"
#include "document/document.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <memory>

namespace zm {

// Commands of the list of objects. An object that is out of the document is held by the command that took it out, so
// that undo and redo bring back the very same object.

/// Puts an object in and selects it. Index -1 is the top of the stack at the first run, and that place from then on.
class AddSceneObjectCommand : public QUndoCommand, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(AddSceneObjectCommand)

public:
    AddSceneObjectCommand(Document *document, std::unique_ptr<SceneObject> object, qsizetype index = -1,
                          QUndoCommand *parent = nullptr);

    void redo() override;
    /// Does not bring back the selection from before the object came.
    void undo() override;
    qint64 undoMemoryBytes() const override;

private:
    Document *m_document;
    std::unique_ptr<SceneObject> m_object;
    QUuid m_id;
    qsizetype m_index;
};

class RemoveSceneObjectCommand : public QUndoCommand, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(RemoveSceneObjectCommand)

public:
    RemoveSceneObjectCommand(Document *document, const QUuid &id, QUndoCommand *parent = nullptr);

    void redo() override;
    void undo() override;
    qint64 undoMemoryBytes() const override;

private:
    Document *m_document;
    QUuid m_id;
    std::unique_ptr<SceneObject> m_object;
    qsizetype m_index = -1;
};

/// Swaps an object for another with the same id, such as a layer for its pixels. An empty text reads
/// "Rasterize Layer".
class ReplaceSceneObjectCommand : public QUndoCommand, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(ReplaceSceneObjectCommand)

public:
    ReplaceSceneObjectCommand(Document *document, const QUuid &id, std::unique_ptr<SceneObject> replacement,
                              const QString &text, QUndoCommand *parent = nullptr);

    void redo() override { swap(); }
    void undo() override { swap(); }
    qint64 undoMemoryBytes() const override;

private:
    void swap();

    Document *m_document;
    QUuid m_id;
    std::unique_ptr<SceneObject> m_held;
    qsizetype m_index = -1;
};

/// Puts one object in the place of two neighbours. The merged object takes over the lower one's id.
class CollapseLayerDownCommand : public QUndoCommand, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(CollapseLayerDownCommand)

public:
    CollapseLayerDownCommand(Document *document, const QUuid &lowerId, const QUuid &upperId,
                             std::unique_ptr<SceneObject> merged, QUndoCommand *parent = nullptr);

    void redo() override;
    void undo() override;
    qint64 undoMemoryBytes() const override;

private:
    bool areNeighbours() const;

    Document *m_document;
    QUuid m_lowerId;
    QUuid m_upperId;
    QUuid m_previousSelectionId;
    std::unique_ptr<SceneObject> m_merged;
    std::unique_ptr<SceneObject> m_lower;
    std::unique_ptr<SceneObject> m_upper;
    qsizetype m_index = -1;
};

class MoveSceneObjectCommand : public QUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(MoveSceneObjectCommand)

public:
    MoveSceneObjectCommand(Document *document, const QUuid &id, qsizetype toIndex, QUndoCommand *parent = nullptr);

    void redo() override { moveTo(m_toIndex); }
    void undo() override { moveTo(m_fromIndex); }

private:
    void moveTo(qsizetype index);

    Document *m_document;
    QUuid m_id;
    qsizetype m_fromIndex;
    qsizetype m_toIndex;
};

} // namespace zm
