#pragma once

#include "commands/command_history.h"
#include "scene/scene_presentation_model.h"
#include "services/runtime_flags.h"
#include "services/user_notification_center.h"

#include <QtQml/qqmlregistration.h>

namespace zm {

// What the core makes without knowing QML, named for QML here. The application owns the one object of each.

struct CommandHistoryForeign
{
    Q_GADGET
    QML_FOREIGN(zm::CommandHistory)
    QML_NAMED_ELEMENT(CommandHistory)
    QML_UNCREATABLE("The application owns the one history.")
};

struct RuntimeFlagsForeign
{
    Q_GADGET
    QML_FOREIGN(zm::RuntimeFlags)
    QML_NAMED_ELEMENT(RuntimeFlags)
    QML_UNCREATABLE("The application owns the flags.")
};

struct ScenePresentationModelForeign
{
    Q_GADGET
    QML_FOREIGN(zm::ScenePresentationModel)
    QML_NAMED_ELEMENT(ScenePresentationModel)
    QML_UNCREATABLE("The application owns the one scene model.")
};

struct UserNotificationCenterForeign
{
    Q_GADGET
    QML_FOREIGN(zm::UserNotificationCenter)
    QML_NAMED_ELEMENT(UserNotificationCenter)
    QML_UNCREATABLE("There is one for the whole process.")
};

} // namespace zm
