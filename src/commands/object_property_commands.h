#pragma once

#include "commands/state_command.h"

#include <QCoreApplication>

namespace zm {

// Commands of what all scene objects have. A merge key of 0 stands for an edit outside any gesture.

class RenameSceneObjectCommand : public StateCommand<QString>
{
    Q_DECLARE_TR_FUNCTIONS(RenameSceneObjectCommand)

public:
    RenameSceneObjectCommand(Document *document, const QUuid &objectId, const QString &name,
                             QUndoCommand *parent = nullptr);

protected:
    void apply(const QString &name) override;
};

/// An empty key becomes "source-over".
class SetSceneObjectBlendModeCommand : public StateCommand<QString>
{
    Q_DECLARE_TR_FUNCTIONS(SetSceneObjectBlendModeCommand)

public:
    SetSceneObjectBlendModeCommand(Document *document, const QUuid &objectId, const QString &blendMode,
                                   QUndoCommand *parent = nullptr);

protected:
    void apply(const QString &blendMode) override;
};

class SetSceneObjectVisibilityCommand : public StateCommand<bool>
{
    Q_DECLARE_TR_FUNCTIONS(SetSceneObjectVisibilityCommand)

public:
    SetSceneObjectVisibilityCommand(Document *document, const QUuid &objectId, bool visible,
                                    QUndoCommand *parent = nullptr);

protected:
    void apply(const bool &visible) override;
};

/// Opacity is limited to 0..1.
class SetSceneObjectOpacityCommand : public StateCommand<double>
{
public:
    SetSceneObjectOpacityCommand(Document *document, const QUuid &objectId, double opacity, const QString &text,
                                 quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

protected:
    void apply(const double &opacity) override;
};

class SetSceneObjectTransformCommand : public StateCommand<ObjectTransform>
{
public:
    SetSceneObjectTransformCommand(Document *document, const QUuid &objectId, const ObjectTransform &transform,
                                   const QString &text, quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

protected:
    void apply(const ObjectTransform &transform) override;
};

} // namespace zm
