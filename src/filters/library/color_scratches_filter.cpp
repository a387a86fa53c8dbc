#include "filters/craft/tinted_mask_overlay.h"

using namespace Qt::StringLiterals;

namespace zm {

// Scratches, hairs and dust as on worn film, in colours.
ZM_LIBRARY_EFFECT(ColorScratches, TintedMaskOverlayFilter, u"scratch-mask"_s, u"scratch-mask"_s)

} // namespace zm
