#pragma once

#include <QImage>

namespace zm {

/// How a canvas is covered with broad brush strokes that lie side by side.
struct BrushCoverageSettings
{
    double strokes = 9.0; ///< across the canvas
    double directionDegrees = 0.0; ///< clockwise from a stroke to the right
    double margin = 0.03; ///< room that the strokes leave at the border on average, of the diagonal
    double roughness = 0.5; ///< 0, even ends and sides, to 1, ragged ones
    double dryness = 0.5; ///< 0, a full brush, to 1, one that runs out of paint
    quint32 seed = 0;
};

/// The coverage as Format_Grayscale8: of these proportions, at a moderate size that is the same for all large pictures.
QImage brushCoverage(const QSize &pictureSize, const BrushCoverageSettings &settings);

} // namespace zm
