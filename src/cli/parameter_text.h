#pragma once

#include "base/error.h"
#include "values/parameter_definition.h"

#include <QString>

#include <optional>

namespace zm::cli {

/// A control's value as the command line writes it: a number; true or false; a colour #rrggbb or #rrggbbaa, or "none"
/// for a colour that can be off; an option's value; a shape's id; x1,y1,x2,y2 for a gradient; #rrggbb@width for a
/// stroke; x,y,scaleX,scaleY,rotation for a mask; a JSON list of objects for lights. A number is limited and snapped as
/// the control does it. Nothing for a text of another kind and for a button.
std::optional<ParameterValue> parameterValueFromText(const ParameterDefinition &definition, const QString &text);

/// The same for "KEY=VALUE", put into values; the label of a button's preset sets all that the preset does. Fails,
/// without a full stop, when the key is none of the definitions' or the value does not fit.
bool setParameterFromText(ParameterValues &values, const QList<ParameterDefinition> &definitions,
                          const QString &assignment, Error &error);

} // namespace zm::cli
