#pragma once

#include "commands/state_command.h"

#include <QCoreApplication>

namespace zm {

// Commands of what belongs to the document itself.

/// An invalid colour becomes white. Never merges: a drag of the colour is a preview, and its end is one command.
class SetDocumentBackgroundCommand : public StateCommand<QColor>
{
    Q_DECLARE_TR_FUNCTIONS(SetDocumentBackgroundCommand)

public:
    SetDocumentBackgroundCommand(Document *document, const QColor &color, QUndoCommand *parent = nullptr);

protected:
    void apply(const QColor &color) override;
};

/// Document units; cleaned as Document::setSize does.
class ResizeDocumentCommand : public StateCommand<QSizeF>
{
public:
    ResizeDocumentCommand(Document *document, const QSizeF &size, const QString &text, quint64 mergeKey = 0,
                          QUndoCommand *parent = nullptr);

protected:
    void apply(const QSizeF &size) override;
};

} // namespace zm
