#include "filters/craft/tinted_mask_overlay.h"

using namespace Qt::StringLiterals;

namespace zm {

// Stars, sparkles and confetti.
ZM_LIBRARY_EFFECT(StarMask, TintedMaskOverlayFilter, u"star-mask"_s, u"star-mask"_s)

} // namespace zm
