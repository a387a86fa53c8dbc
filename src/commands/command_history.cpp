#include "commands/command_history.h"

#include "commands/undo_memory_cost.h"

#include <QUndoCommand>

#include <utility>

namespace zm {

namespace {

qint64 commandCost(const QUndoCommand &command)
{
    constexpr qint64 bytesOfCommand = 256;
    qint64 bytes = bytesOfCommand + command.text().size() * qint64(sizeof(QChar));
    if (const auto *cost = dynamic_cast<const UndoMemoryCost *>(&command))
        bytes += cost->undoMemoryBytes();
    for (int i = 0; i < command.childCount(); ++i)
        bytes += commandCost(*command.child(i));
    return bytes;
}

} // namespace

struct CommandHistory::HistoryState
{
    bool canUndo;
    bool canRedo;
    bool clean;
    int index;
    QString undoText;
    QString redoText;
};

CommandHistory::CommandHistory(Document *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
}

CommandHistory::~CommandHistory() = default;

QString CommandHistory::undoText() const
{
    return canUndo() ? commandAt(m_index - 1)->text() : QString();
}

QString CommandHistory::redoText() const
{
    return canRedo() ? commandAt(m_index)->text() : QString();
}

void CommandHistory::push(std::unique_ptr<QUndoCommand> command)
{
    if (!command || command->isObsolete())
        return;
    const HistoryState before = state();
    dropRedoCommands();
    command->redo();
    if (command->isObsolete()) {
        updateMemoryUsed();
        emitChanges(before);
        return;
    }
    if (!mergeIntoPrevious(*command)) {
        m_commands.push_back(std::move(command));
        m_index = count();
    }
    settle(before);
}

void CommandHistory::undo()
{
    if (!canUndo())
        return;
    const HistoryState before = state();
    commandAt(m_index - 1)->undo();
    --m_index;
    if (commandAt(m_index)->isObsolete())
        removeAt(m_index);
    settle(before);
}

void CommandHistory::redo()
{
    if (!canRedo())
        return;
    const HistoryState before = state();
    commandAt(m_index)->redo();
    if (commandAt(m_index)->isObsolete())
        removeAt(m_index);
    else
        ++m_index;
    settle(before);
}

void CommandHistory::clear()
{
    const HistoryState before = state();
    m_commands.clear();
    m_index = 0;
    m_cleanIndex = 0;
    m_memoryUsed = 0;
    emitChanges(before);
}

void CommandHistory::setClean()
{
    const HistoryState before = state();
    m_cleanIndex = m_index;
    emitChanges(before);
}

CommandHistory::HistoryState CommandHistory::state() const
{
    return {canUndo(), canRedo(), isClean(), m_index, undoText(), redoText()};
}

void CommandHistory::emitChanges(const HistoryState &before)
{
    const HistoryState now = state();
    if (now.canUndo != before.canUndo)
        emit canUndoChanged(now.canUndo);
    if (now.canRedo != before.canRedo)
        emit canRedoChanged(now.canRedo);
    if (now.undoText != before.undoText)
        emit undoTextChanged(now.undoText);
    if (now.redoText != before.redoText)
        emit redoTextChanged(now.redoText);
    if (now.clean != before.clean)
        emit cleanChanged(now.clean);
    if (now.index != before.index)
        emit indexChanged(now.index);
}

QUndoCommand *CommandHistory::commandAt(int position) const
{
    return m_commands[size_t(position)].get();
}

void CommandHistory::dropRedoCommands()
{
    m_commands.resize(size_t(m_index));
    if (m_cleanIndex > m_index)
        m_cleanIndex = -1;
}

bool CommandHistory::mergeIntoPrevious(const QUndoCommand &command)
{
    if (command.id() == -1 || m_index == 0)
        return false;
    QUndoCommand *previous = commandAt(m_index - 1);
    if (previous->id() != command.id() || !previous->mergeWith(&command))
        return false;
    // A save in the middle of the gesture stored a state that now lies inside one step.
    if (m_cleanIndex == m_index)
        m_cleanIndex = -1;
    if (previous->isObsolete()) {
        // The document is as it was before the step, so a clean index there stays right.
        m_commands.pop_back();
        --m_index;
    }
    return true;
}

/// Takes out a command that can be redone; the states after it are reached by one step less.
void CommandHistory::removeAt(int position)
{
    m_commands.erase(m_commands.begin() + position);
    if (m_cleanIndex == position + 1)
        m_cleanIndex = -1;
    else if (m_cleanIndex > position + 1)
        --m_cleanIndex;
}

void CommandHistory::settle(const HistoryState &before)
{
    updateMemoryUsed();
    trim();
    emitChanges(before);
}

/// Walks the whole list each time: a command's cost changes when it merges and when it swaps its payload with the
/// document.
void CommandHistory::updateMemoryUsed()
{
    m_memoryUsed = 0;
    for (const std::unique_ptr<QUndoCommand> &command : m_commands)
        m_memoryUsed += commandCost(*command);
}

void CommandHistory::trim()
{
    if (m_memoryLimit < 1)
        return;
    while (m_memoryUsed > m_memoryLimit) {
        if (m_index >= 2) {
            m_commands.erase(m_commands.begin());
            --m_index;
            m_cleanIndex = m_cleanIndex >= 1 ? m_cleanIndex - 1 : -1;
        } else if (canRedo()) {
            removeAt(count() - 1);
        } else {
            return;
        }
        updateMemoryUsed();
    }
}

} // namespace zm
