#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A picture whose signal breaks: lines tear, blocks jump, columns run down.
Recipe signalMelt()
{
    return RecipePass("signal-melt")
        .pictureSize("u_size")
        .percent("u_tearAmount", "tear")
        .diagonalPixels("u_blockSize", "blockSize")
        .diagonalPixels("u_displacement", "displacement")
        .diagonalPixels("u_rgbSplit", "rgbSplit")
        .number("u_seed", "seed")
        .choice("u_mode", "mode");
}

} // namespace

ZM_LIBRARY_EFFECT(SignalMelt, RecipeFilter, u"signal-melt"_s, signalMelt())

} // namespace zm
