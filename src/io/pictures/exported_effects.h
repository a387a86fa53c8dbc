#pragma once

#include <QStringList>

namespace zm {

class Document;

/// The ids of the enabled effects on visible layers, from the bottom up: what is hidden is not exported.
QStringList exportedEffects(const Document &document);

/// Empty for effects that an export can show; else a sentence that tells what it cannot.
QString exportRefusal(const QStringList &effectIds);

/// True when one of the effects makes the most of a transparent background.
bool prefersTransparentExport(const QStringList &effectIds);

} // namespace zm
