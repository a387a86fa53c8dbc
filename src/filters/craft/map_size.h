#pragma once

#include <QSize>

namespace zm {

/// The reach of a gradient, in pixels of the map of tones that it is read from, or more: less would show the map's
/// pixels in the lines.
inline constexpr double kGradientReachInMap = 1.6;

/// The size of a map with one pixel for a square of `reduction` pixels of a picture; those at the rim may be cut.
inline QSize mapSize(const QSize &picture, int reduction)
{
    const auto along = [reduction](int length) { return (length + reduction - 1) / reduction; };
    return {along(picture.width()), along(picture.height())};
}

} // namespace zm
