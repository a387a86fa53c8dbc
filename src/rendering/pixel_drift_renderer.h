#pragma once

#include "rendering/filter_pass_drawer.h"
#include "rendering/utility_settings.h"

#include <QImage>

#include <memory>

namespace zm {

/// How large the textures may become in which pixels are sorted. They hold 16 bytes an entry, and there are two.
struct AtlasLimits
{
    int longestSide = 1 << 14; ///< the driver's own limit holds too
    int entries = 1 << 21;     ///< 32 MB a texture
};

/// Pixel sorting on the GPU. Runs of pixels become entries of a float texture, the rank of each entry within its run
/// is counted, and a draw of points moves every entry to its rank. Lines are done in batches that fit the textures.
/// Context and drawer outlive it.
class PixelDriftRenderer
{
public:
    PixelDriftRenderer(FilterPassDrawer &passes, OffscreenContext &context, const AtlasLimits &limits = {});
    ~PixelDriftRenderer();
    Q_DISABLE_COPY_MOVE(PixelDriftRenderer)

    /// As RGBA8888 with straight alpha. Null when it failed, which the log tells about.
    QImage render(const QImage &image, const PixelDriftSettings &settings);

private:
    bool loadRankProgram();
    bool drawRanks(GLuint atlas, QOpenGLFramebufferObject *target, int bins, int entries);

    FilterPassDrawer &m_passes;
    OffscreenContext &m_context;
    const AtlasLimits m_limits;
    std::unique_ptr<OpenGLProgram> m_rankProgram;
    int m_rankLayoutLocation = -1; ///< negative when the program takes a block
    bool m_rankProgramFailed = false;
};

} // namespace zm
