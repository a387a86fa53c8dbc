#pragma once

#include <QSize>

namespace zm {

/// Below this sigma or radius, in pixels, a blur would change nothing that the eye can see; it is skipped.
inline constexpr double kSmallestBlur = 0.5;

/// How a Gaussian is done: at a reduced size, so that its sigma there, and with it the cost of a pixel, stays bounded.
struct BlurPlan
{
    QSize workingSize;
    double workingSigma = 0.0; ///< pixels of the working size
    int kernelRadius = 0;      ///< pixels of the working size

    static BlurPlan make(const QSize &size, double sigma, double maxWorkingSigma);
};

} // namespace zm
