#pragma once

#include "values/editable_path.h"

#include <QImage>
#include <QRectF>

namespace zm {

/// Limits an effect to a selection: `before` outside, `after` inside, both weighed with their alpha along the soft
/// edge. The pictures are RGBA8888 of one size and cover `bounds`, in the units of the selection.
QImage blendedInSelection(const QImage &before, const QImage &after, const EditablePath &selection,
                          const QRectF &bounds);

} // namespace zm
