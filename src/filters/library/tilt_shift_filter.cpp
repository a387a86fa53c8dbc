#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A band of focus over a picture that is otherwise out of focus: full-sized scenes look like models.
Recipe tiltShift()
{
    return RecipePass("tilt-shift")
        .pictureSize("u_size")
        .percent("u_focusPosition", "focusPosition")
        .percent("u_focusWidth", "focusWidth")
        .radians("u_angle", "angle")
        .percent("u_blurStrength", "blurStrength")
        .percent("u_colorPunch", "colorPunch")
        .withLensBlur("blurSize");
}

} // namespace

ZM_LIBRARY_EFFECT(TiltShift, RecipeFilter, u"tilt-shift"_s, tiltShift())

} // namespace zm
