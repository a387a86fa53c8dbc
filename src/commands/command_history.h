#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class QUndoCommand;

namespace zm {

class Document;

/// The undo stack of the one document. Its budget is bytes, not steps, and a command may declare itself obsolete, when
/// it is made, run or merged, and then leaves the history. A step of several commands is a parent with children.
/// Signals come after the whole operation, and only for what really changed.
class CommandHistory : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged)
    Q_PROPERTY(QString undoText READ undoText NOTIFY undoTextChanged)
    Q_PROPERTY(QString redoText READ redoText NOTIFY redoTextChanged)
    Q_PROPERTY(bool clean READ isClean NOTIFY cleanChanged)
    Q_PROPERTY(int index READ index NOTIFY indexChanged)

public:
    /// The document must outlive the history: the commands refer to it.
    explicit CommandHistory(Document *document, QObject *parent = nullptr);
    ~CommandHistory() override;

    Document *document() const { return m_document; }

    bool canUndo() const { return m_index > 0; }
    bool canRedo() const { return m_index < count(); }
    /// Empty when there is nothing to undo.
    QString undoText() const;
    /// Empty when there is nothing to redo.
    QString redoText() const;
    /// The document is as it was saved.
    bool isClean() const { return m_cleanIndex >= 0 && m_index == m_cleanIndex; }
    /// The number of commands that are done; those from here on can be redone.
    int index() const { return m_index; }
    int count() const { return int(m_commands.size()); }

    /// Bytes. The budget gives way first by the oldest undo steps, then by the last redo steps, and never by the one
    /// step that can still be undone, which may therefore exceed it.
    qint64 memoryLimit() const { return m_memoryLimit; }
    qint64 memoryUsed() const { return m_memoryUsed; }

    /// Runs the command and keeps it, merges it into the one before, or drops it when it is obsolete.
    void push(std::unique_ptr<QUndoCommand> command);
    /// The document was saved as it is now.
    void setClean();

public slots:
    void undo();
    void redo();
    /// Forgets all; the history is clean afterwards.
    void clear();

signals:
    void canUndoChanged(bool canUndo);
    void canRedoChanged(bool canRedo);
    void undoTextChanged(const QString &undoText);
    void redoTextChanged(const QString &redoText);
    void cleanChanged(bool clean);
    void indexChanged(int index);

private:
    struct HistoryState;

    HistoryState state() const;
    void emitChanges(const HistoryState &before);
    QUndoCommand *commandAt(int position) const;
    void dropRedoCommands();
    bool mergeIntoPrevious(const QUndoCommand &command);
    void removeAt(int position);
    void settle(const HistoryState &before);
    void updateMemoryUsed();
    void trim();

    Document *m_document;
    std::vector<std::unique_ptr<QUndoCommand>> m_commands;
    qint64 m_memoryLimit = 500 * 1024 * 1024;
    qint64 m_memoryUsed = 0;
    int m_index = 0;
    // The index at which the document equals the saved state; -1 when that state cannot be reached any more.
    int m_cleanIndex = 0;
};

} // namespace zm
