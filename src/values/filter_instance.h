#pragma once

#include "values/parameter_values.h"

#include <QUuid>

namespace zm {

/// One use of an effect on a layer. The effect is named by id, so that a document with an effect that this version does
/// not know still loads and keeps it.
struct FilterInstance
{
    QUuid instanceId;
    QString filterId;
    ParameterValues parameters;
    /// A disabled instance is skipped and keeps its values.
    bool enabled = true;
    /// The result applies inside the layer's raster selection only.
    bool rasterSelectionScoped = false;

    friend bool operator==(const FilterInstance &a, const FilterInstance &b) = default;
};

} // namespace zm
