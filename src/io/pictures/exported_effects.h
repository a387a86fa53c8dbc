#pragma once

#include "base/error.h"

#include <QStringList>

namespace zm {

class Document;

/// The ids of the enabled effects on visible layers, from the bottom up: what is hidden is not exported.
QStringList exportedEffects(const Document &document);

/// False for effects that an export cannot show.
bool canExportEffects(const QStringList &effectIds, Error &error);

/// True when one of the effects makes the most of a transparent background.
bool prefersTransparentExport(const QStringList &effectIds);

} // namespace zm
