#pragma once

#include "rendering/texture_edge.h"
#include "rendering/utility_settings.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QSize>
#include <QString>

#include <variant>

class QRectF;

namespace zm {

/// Several passes over pictures, as a plan: pictures go up once, what passes make stays on the GPU until the last pass
/// that reads it is done, and only the last result comes back. A value without any GPU state; FilterUtilityRenderer
/// carries it out. The result is the same, bit for bit, as with a picture read back after every pass.
class PassChain
{
public:
    /// A picture of this chain: a source, or what a pass makes. Valid for the chain that gave it.
    enum class Picture : qsizetype {};

    /// A picture to upload, as RGBA8888 with straight alpha.
    Picture source(const QImage &image, TextureEdge edge = TextureEdge::Clamp);

    /// One pass of the catalogue's shader with this full id, into a picture of `size` pixels. Inputs go to the shader's
    /// samplers in order; `uniforms` hold a vec4 for each of its uniforms.
    Picture shader(const QString &shaderId, const QSize &size, const QList<Picture> &inputs,
                   const QByteArray &uniforms = {});
    /// The same for a library shader, by its bare id.
    Picture libraryShader(const QString &shaderId, const QSize &size, const QList<Picture> &inputs,
                          const QByteArray &uniforms);

    /// Keeps only the red of what a pass makes, in a quarter of the memory: later passes read it as grey with alpha 1,
    /// and keep no more of a blur of it. Nothing is lost where a shader writes an opaque grey or its readers use only
    /// red. Not for the result of a chain.
    Picture keepRed(Picture picture);

    /// A picture and a map, a pixel of one a pixel of the other, in one picture for shaders with a single sampler;
    /// common/stacked.glsl reads it. The map lies below the picture, or beside it where `maximumSide` pixels, a
    /// texture's longest side, leave no room below. Of no size, so that the chain fails, when neither way has room.
    Picture stacked(Picture picture, Picture map, int maximumSide);

    /// A Gaussian blur with sigma in pixels of `input`; the input itself when sigma is under 0.5 or not finite.
    Picture gaussianBlur(Picture input, double sigma);
    /// The same without the last step: a picture of a reduced size, for a shader that reads it with linear filtering.
    /// About a third cheaper for large sigmas. In that picture sigma is at most `workingSigma` pixels.
    Picture reducedBlur(Picture input, double sigma, TextureEdge edge = TextureEdge::Clamp, double workingSigma = 4.0);
    /// The mean over a square; the radius, in pixels, is at most 16. The input itself when it is under 0.5 or not
    /// finite.
    Picture boxBlur(Picture input, double radius);

    // The utilities. Where the numbers leave nothing to do, the input itself; senseless ones count as
    // utility_settings.h tells, of the bare ones as nothing to do. Alpha stays unless told otherwise.

    /// Lays a colour over the picture; an invalid one is red. Opacity 0..1.
    Picture colorize(Picture input, const QColor &color, double opacity);
    Picture colorAdjust(Picture input, const ColorAdjustment &adjustment);
    Picture addNoise(Picture input, const NoiseSettings &noise);
    Picture grayscale(Picture input, const GrayscaleLevels &levels);
    /// The amount is the share of the recoloured picture, 0..1; a non-finite one is 1.
    Picture toneMap(Picture input, const ToneMapColors &colors, double amount);
    /// Shrinks alpha.
    Picture highlightsToAlpha(Picture input, const HighlightsToAlphaSettings &settings);
    /// Changes alpha.
    Picture fadeOut(Picture input, const FadeOutSettings &settings);
    /// A larger picture with the reflection, transparent beyond both; no side grows past the driver's maximum. The
    /// input itself when there is no room.
    Picture waterReflection(Picture input, const WaterReflectionSettings &settings, int maximumTextureSize);
    /// Squares of whole pixels with the colour and alpha of their middle.
    Picture pixelate(Picture input, double blockSize);
    Picture sobel(Picture input, const EdgeDetection &edges);

    // Frames within a region in pixels, whose y is counted from the picture's last row. An empty region is the whole
    // picture. Widths are pixels, strengths 0..1.

    /// An invalid tint is black.
    Picture innerShadow(Picture input, const QRectF &region, double reach, double strength, const QColor &tint);
    Picture softBevel(Picture input, const QRectF &region, double width, double strength);
    Picture raise(Picture input, const QRectF &region, double bevelSize);

    QSize size(Picture picture) const;

    // What the renderer reads.

    struct Source
    {
        QImage image;
        TextureEdge edge;
    };
    struct Pass
    {
        QString shaderId;
        QList<Picture> inputs;
        QByteArray uniforms;
        TextureEdge edge = TextureEdge::Clamp; ///< of the picture that it makes
        bool keepsRedOnly = false;
    };
    struct Stack
    {
        QList<Picture> inputs; ///< the picture and the map
        QPoint mapOrigin;
    };
    struct Step
    {
        QSize size; ///< of the picture that the step makes
        std::variant<Source, Pass, Stack> work;
    };

    /// In the order in which they are carried out; a step reads earlier ones only. The index is the picture.
    const QList<Step> &steps() const { return m_steps; }

private:
    Picture append(const QSize &size, const std::variant<Source, Pass, Stack> &work);
    Picture blur(Picture input, double sigma, double maximumWorkingSigma, TextureEdge edge, bool restoreSize);

    QList<Step> m_steps;
};

} // namespace zm
