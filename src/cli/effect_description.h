#pragma once

#include "filters/filter.h"

#include <QJsonObject>

namespace zm::cli {

/// What there is to know of an effect before using it: names, flags, and the controls with their limits. Values are
/// written as --set takes them; group is the heading under which the effect is offered.
QJsonObject effectDescription(const Filter &filter, const QString &group);

} // namespace zm::cli
