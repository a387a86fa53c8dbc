#pragma once

#include "rendering/pass_chain.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

namespace zm {

/// The image formats that a filter declares for its pictures. The GPU sees RGBA8888 whatever they say; they decide
/// whether two inputs may share one chain of passes.
struct FilterTextureFormats
{
    int defaultFormat = 0;
    QList<int> inputFormats; ///< one for each input image; a missing one is defaultFormat
    int outputFormat = 0;

    int inputFormat(qsizetype index) const { return inputFormats.value(index, defaultFormat); }
};

/// What filters need from the GPU. Pictures go in as any QImage and come out as RGBA8888 with straight alpha; (0, 0) is
/// the top-left pixel. A null image means failure, which the log and, for a broken shader, a notification tell about.
/// Uniform data are a block of four 32-bit floats for each uniform of the shader's descriptor, in its order.
/// Used on the thread that created the renderer.
class FilterUtilityRenderer
{
public:
    virtual ~FilterUtilityRenderer() = default;

    /// The longest side of a texture in pixels; 0 when no OpenGL context could be had.
    virtual int maximumTextureSize() = 0;

    // PassChain and utility_settings.h tell what the arguments of the following mean.

    virtual QImage colorize(const QImage &image, const QColor &color, double opacity) = 0;
    virtual QImage colorAdjust(const QImage &image, const ColorAdjustment &adjustment) = 0;
    virtual QImage addNoise(const QImage &image, const NoiseSettings &noise) = 0;
    virtual QImage grayscale(const QImage &image, const GrayscaleLevels &levels) = 0;
    virtual QImage toneMap(const QImage &image, const ToneMapColors &colors, double amount) = 0;
    virtual QImage highlightsToAlpha(const QImage &image, const HighlightsToAlphaSettings &settings) = 0;
    virtual QImage fadeOut(const QImage &image, const FadeOutSettings &settings) = 0;
    virtual QImage waterReflection(const QImage &image, const WaterReflectionSettings &settings) = 0;

    /// The mean over a square of 2 * floor(radius) + 1 pixels; the radius is at most 16. Under 0.5, or not finite, the
    /// picture comes back unchanged.
    virtual QImage boxBlur(const QImage &image, double radius) = 0;

    /// A Gaussian blur with sigma in pixels. Under 0.5, or not finite, the picture comes back unchanged.
    virtual QImage gaussianBlur(const QImage &image, double sigma) = 0;

    virtual QImage pixelate(const QImage &image, double blockSize) = 0;
    virtual QImage sobel(const QImage &image, const EdgeDetection &edges) = 0;
    virtual QImage innerShadow(const QImage &image, const QRectF &region, double reach, double strength,
                               const QColor &tint) = 0;
    virtual QImage softBevel(const QImage &image, const QRectF &region, double width, double strength) = 0;
    virtual QImage raise(const QImage &image, const QRectF &region, double bevelSize) = 0;

    /// One pass of the library shader with the bare id. The number of images is that of the shader's samplers.
    virtual QImage renderFilterShader(const QString &shaderId, const QSize &outputSize, const QList<QImage> &images,
                                      const QByteArray &uniformBytes, const FilterTextureFormats &formats) = 0;

    /// Sorts pixels along lines. The picture comes back unchanged with an amount of 0.
    virtual QImage renderPixelDrift(const QImage &image, const PixelDriftSettings &settings) = 0;

    /// One pass of a library shader with the three samplers source, blurred source and blurred mask, in the source's
    /// size. Sigmas are in pixels of their image; a negative or non-finite one counts as 0. Outside the mask is
    /// nothing.
    virtual QImage renderMaskedBlurFilterShader(const QString &shaderId, const QImage &source, double sourceSigma,
                                                const QImage &mask, double maskSigma, const QByteArray &uniformBytes,
                                                const FilterTextureFormats &formats) = 0;

    /// Carries out what `result` needs of a chain, with one upload for each source and one readback.
    virtual QImage renderChain(const PassChain &chain, PassChain::Picture result) = 0;

    /// How many operations have failed since the renderer was made. A result is as good as it can be when the count
    /// did not rise meanwhile.
    virtual quint64 failureCount() const = 0;
};

} // namespace zm
