#pragma once

#include "rendering/texture_edge.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <variant>

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

    /// A Gaussian blur with sigma in pixels of `input`; the input itself when sigma is under 0.5 or not finite.
    Picture gaussianBlur(Picture input, double sigma);
    /// The same without the last step: a picture of a reduced size, for a shader that reads it with linear filtering.
    /// About a third cheaper for large sigmas.
    Picture reducedBlur(Picture input, double sigma, TextureEdge edge = TextureEdge::Clamp);
    /// The mean over a square; the radius, in pixels, is at most 16. The input itself when it is under 0.5 or not
    /// finite.
    Picture boxBlur(Picture input, double radius);

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
    };
    struct Blur
    {
        Picture input;
        double sigma;
        double maximumWorkingSigma;
        TextureEdge edge;
        bool restoreSize;
    };
    struct Step
    {
        QSize size; ///< of the picture that the step makes
        std::variant<Source, Pass, Blur> work;
    };

    /// In the order in which they are carried out; a step reads earlier ones only. The index is the picture.
    const QList<Step> &steps() const { return m_steps; }

private:
    Picture append(const QSize &size, const std::variant<Source, Pass, Blur> &work);
    Picture blur(Picture input, double sigma, double maximumWorkingSigma, TextureEdge edge, bool restoreSize);

    QList<Step> m_steps;
};

} // namespace zm
