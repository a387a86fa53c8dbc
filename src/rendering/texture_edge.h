#pragma once

namespace zm {

/// What a shader reads beside the picture.
enum class TextureEdge {
    Clamp = 0,            ///< the nearest pixel of the picture
    TransparentBorder = 1 ///< nothing
};

} // namespace zm
