#pragma once

#include "rendering/filter_pass_drawer.h"
#include "rendering/pass_chain.h"

namespace zm {

/// Carries a chain out and reads `result` back; null when a pass does not fit its shader, a program is broken, or the
/// driver refuses memory. A shader that cannot be had costs no transfer. Textures are let go of after their last use.
QImage runPassChain(FilterPassDrawer &passes, OffscreenContext &context, const PassChain &chain,
                    PassChain::Picture result);

} // namespace zm
