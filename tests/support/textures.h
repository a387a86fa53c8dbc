#pragma once

#include <QString>

namespace zm::test {

/// The folder of the bundles that the build makes; test programs do not lie where a loader looks by itself.
inline QString textureFolder()
{
    return QStringLiteral(TEXTURE_BUNDLES);
}

} // namespace zm::test
