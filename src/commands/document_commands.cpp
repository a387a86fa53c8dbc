#include "commands/document_commands.h"

namespace zm {

SetDocumentBackgroundCommand::SetDocumentBackgroundCommand(Document *document, const QColor &color,
                                                           QUndoCommand *parent)
    : StateCommand(document, QUuid(), document->backgroundColor(), cleanBackgroundColor(color),
                   tr("Change Document Background"), parent)
{
}

void SetDocumentBackgroundCommand::apply(const QColor &color)
{
    document()->setBackgroundColor(color);
}

ResizeDocumentCommand::ResizeDocumentCommand(Document *document, const QSizeF &size, const QString &text,
                                             quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, QUuid(), document->size(), cleanDocumentSize(size), text, parent, MergeId::ResizeDocument,
                   mergeKey)
{
}

void ResizeDocumentCommand::apply(const QSizeF &size)
{
    document()->setSize(size);
}

} // namespace zm
