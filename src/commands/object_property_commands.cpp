#include "commands/object_property_commands.h"

namespace zm {

RenameSceneObjectCommand::RenameSceneObjectCommand(Document *document, const QUuid &objectId, const QString &name,
                                                   QUndoCommand *parent)
    : StateCommand(document, objectId, stateOf(document->object(objectId), &SceneObject::name), name,
                   tr("Rename Object"), parent)
{
}

void RenameSceneObjectCommand::apply(const QString &name)
{
    document()->setObjectName(objectId(), name);
}

SetSceneObjectBlendModeCommand::SetSceneObjectBlendModeCommand(Document *document, const QUuid &objectId,
                                                               const QString &blendMode, QUndoCommand *parent)
    : StateCommand(document, objectId, stateOf(document->object(objectId), &SceneObject::blendMode),
                   blendMode.isEmpty() ? defaultBlendMode() : blendMode, tr("Change Blend Mode"), parent)
{
}

void SetSceneObjectBlendModeCommand::apply(const QString &blendMode)
{
    document()->setObjectBlendMode(objectId(), blendMode);
}

SetSceneObjectVisibilityCommand::SetSceneObjectVisibilityCommand(Document *document, const QUuid &objectId,
                                                                 bool visible, QUndoCommand *parent)
    : StateCommand(document, objectId, stateOf(document->object(objectId), &SceneObject::isVisible), visible,
                   visible ? tr("Show Layer") : tr("Hide Layer"), parent)
{
}

void SetSceneObjectVisibilityCommand::apply(const bool &visible)
{
    document()->setObjectVisible(objectId(), visible);
}

SetSceneObjectOpacityCommand::SetSceneObjectOpacityCommand(Document *document, const QUuid &objectId, double opacity,
                                                           const QString &text, quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, objectId, stateOf(document->object(objectId), &SceneObject::opacity),
                   cleanOpacity(opacity), text, parent, MergeId::Opacity, mergeKey)
{
}

void SetSceneObjectOpacityCommand::apply(const double &opacity)
{
    document()->setObjectOpacity(objectId(), opacity);
}

SetSceneObjectTransformCommand::SetSceneObjectTransformCommand(Document *document, const QUuid &objectId,
                                                               const ObjectTransform &transform, const QString &text,
                                                               quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, objectId, stateOf(document->object(objectId), &SceneObject::transform), transform, text,
                   parent, MergeId::Transform, mergeKey)
{
}

void SetSceneObjectTransformCommand::apply(const ObjectTransform &transform)
{
    document()->setObjectTransform(objectId(), transform);
}

} // namespace zm
