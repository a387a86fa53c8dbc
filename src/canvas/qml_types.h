#pragma once

#include "scene/scene_presentation_model.h"

#include <QtQml/qqmlregistration.h>

namespace zm {

// What the core makes without knowing QML, named for QML here. Its objects come to QML as context properties.
struct ScenePresentationModelForeign
{
    Q_GADGET
    QML_FOREIGN(zm::ScenePresentationModel)
    QML_NAMED_ELEMENT(ScenePresentationModel)
    QML_UNCREATABLE("The application owns the one scene model.")
};

} // namespace zm
