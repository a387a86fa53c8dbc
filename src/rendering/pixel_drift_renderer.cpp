#include "rendering/pixel_drift_renderer.h"

#include "rendering/image_transfer.h"
#include "rendering/uniform_bytes.h"

#include <QLoggingCategory>
#include <QOpenGLExtraFunctions>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Q_LOGGING_CATEGORY(lcPixelDrift, "zelmoraatelier.rendering.pixel-drift")

constexpr GLuint kUniformBinding = 1;
constexpr int kMaximumBins = 64;   // the shaders walk no further
constexpr int kBytesPerEntry = 16;
constexpr int kLeastRoom = 1 << 20; // entries
constexpr int kPointsAtOnce = 1 << 15;
constexpr int kShortestSpan = 2;    // pixels
constexpr double kGroupsASpan = 40.0; // lines that share block edges are this much narrower than a block is long

/// A number within limits; the fallback for one that is not finite.
double limited(double value, double low, double high, double fallback)
{
    return std::isfinite(value) ? std::clamp(value, low, high) : fallback;
}

/// The parallel lines that cover a picture. A line is walked along the axis that is closer to the drift; `across`
/// counts the lines.
struct DriftLines
{
    DriftLines(const QSize &size, double angleDegrees)
    {
        const double radians = std::fmod(angleDegrees, 360.0) * std::numbers::pi / 180.0;
        const double x = std::cos(radians);
        const double y = std::sin(radians);
        vertical = std::abs(y) > std::abs(x);
        const double major = vertical ? y : x;
        reversed = major < 0.0;
        slope = float((vertical ? x : y) / std::abs(major));
        if (std::abs(slope) < 1e-6F)
            slope = 0.0F; // not a pixel over the longest side
        axisSize = vertical ? size.height() : size.width();
        minorSize = vertical ? size.width() : size.height();
        shift = int(std::floor(slope * float(axisSize - 1) + 0.5F));
        // A line more at either end: the shader may round the last step otherwise.
        acrossOffset = std::max(shift, 0) + 1;
        count = minorSize + std::abs(shift) + 2;
        const double crossing = slope == 0.0F ? axisSize : std::ceil(minorSize / std::abs(double(slope)));
        longest = int(std::min<double>(axisSize, crossing));
    }

    /// Where the pixels of some neighbouring lines lie, in the picture.
    QRect region(int firstLine, int lines) const
    {
        const int low = std::clamp(firstLine - acrossOffset + std::min(shift, 0) - 1, 0, minorSize);
        const int high = std::clamp(firstLine + lines - acrossOffset + std::max(shift, 0) + 1, low, minorSize);
        return vertical ? QRect(low, 0, high - low, axisSize) : QRect(0, low, axisSize, high - low);
    }

    bool vertical = false;
    bool reversed = false; ///< the walk runs against the axis
    float slope = 0.0F;    ///< lines to the side for each step
    int axisSize = 0;
    int minorSize = 0;
    int shift = 0; ///< lines to the side over the whole axis
    int acrossOffset = 0;
    int count = 0;
    int longest = 0; ///< pixels of the longest line
};

/// How the entries of some lines lie in a texture: line by line, of each line block by block.
struct AtlasLayout
{
    AtlasLayout(const DriftLines &lines, double streakLength, const AtlasLimits &limits)
        : span(std::max(int(std::lround(std::min<double>(streakLength, lines.longest))), kShortestSpan))
        , bins(std::min(span, kMaximumBins))
        , blocks((lines.longest - 1 + span) / span + 1)
    {
        const int entriesOfLine = blocks * bins;
        const int widest = std::max(limits.longestSide / bins * bins, bins);
        width = std::min(widest, entriesOfLine);
        const qint64 room = std::min<qint64>(limits.entries, qint64(width) * limits.longestSide);
        linesOfBatch = int(std::clamp<qint64>(room / entriesOfLine, 1, lines.count));
        height = (linesOfBatch * entriesOfLine + width - 1) / width;
    }

    int span;   ///< pixels of a block
    int bins;  ///< entries of a block
    int blocks; ///< of a line
    int width = 0;
    int height = 0;
    int linesOfBatch = 0;
};

std::unique_ptr<QOpenGLFramebufferObject> createAtlas(const AtlasLayout &layout)
{
    QOpenGLFramebufferObjectFormat format;
    format.setAttachment(QOpenGLFramebufferObject::NoAttachment);
    format.setInternalTextureFormat(GL_RGBA32F);
    auto atlas = std::make_unique<QOpenGLFramebufferObject>(QSize(layout.width, layout.height), format);
    return atlas->isValid() ? std::move(atlas) : nullptr;
}

float flag(bool value)
{
    return value ? 1.0F : 0.0F;
}

} // namespace

PixelDriftRenderer::PixelDriftRenderer(FilterPassDrawer &passes, OffscreenContext &context, const AtlasLimits &limits)
    : m_passes(passes)
    , m_context(context)
    , m_limits(limits)
{
}

PixelDriftRenderer::~PixelDriftRenderer()
{
    if (!m_rankProgram)
        return;
    const CurrentContext current(m_context);
    m_rankProgram.reset();
}

QImage PixelDriftRenderer::render(const QImage &image, const PixelDriftSettings &settings)
{
    const PixelDriftSettings defaults;
    const float amount = float(limited(settings.amount, 0.0, 1.0, defaults.amount));
    const QImage source = image.convertToFormat(QImage::Format_RGBA8888);
    if (source.isNull() || amount <= 0.0F)
        return source;

    const CurrentContext current(m_context);
    if (!current || !m_passes.filterProgram(u"fx/pixel-drift-prepare"_s) || !m_passes.filterProgram(u"fx/pixel-drift"_s)
        || !loadRankProgram())
        return {};
    QOpenGLExtraFunctions *gl = m_context.functions();
    auto picture = createFramebuffer(gl, source.size());
    if (!picture || !fillFramebuffer(gl, *picture, source)) {
        qCWarning(lcPixelDrift) << "Could not upload source texture";
        return {};
    }

    GLint longestSide = 0;
    gl->glGetIntegerv(GL_MAX_TEXTURE_SIZE, &longestSide);
    const DriftLines lines(source.size(), limited(settings.angle, 0.0, 360.0, defaults.angle));
    const double streak = limited(settings.streakLength, kShortestSpan, lines.axisSize, defaults.streakLength);
    // Both atlases together take no more memory than half of a large picture; too small ones would cost time.
    const qsizetype half = source.sizeInBytes() / (4 * kBytesPerEntry);
    const int room = int(std::min<qsizetype>(m_limits.entries, std::max<qsizetype>(half, kLeastRoom)));
    const AtlasLayout layout(lines, streak, {std::min(longestSide, m_limits.longestSide), room});
    auto entries = createAtlas(layout);
    auto sorted = createAtlas(layout);
    const auto output = createFramebuffer(gl, source.size());
    if (!entries || !sorted || !output) {
        qCWarning(lcPixelDrift) << "Could not allocate sorting framebuffers";
        return {};
    }

    const UniformVec4 atlas{float(layout.width), float(layout.height), float(layout.blocks), float(layout.bins)};
    const UniformVec4 blocks{float(layout.span), flag(lines.vertical), float(std::max(1.0, layout.span / kGroupsASpan)),
                             float(limited(settings.seed, -1e6, 1e6, defaults.seed))};
    const UniformVec4 thresholds{float(limited(settings.shadowThreshold, 0.0, 1.0, defaults.shadowThreshold)),
                                 float(limited(settings.highlightThreshold, 0.0, 1.0, defaults.highlightThreshold)),
                                 flag(settings.descending)};
    const UniformVec4 mapping{lines.slope, float(lines.acrossOffset), flag(lines.reversed)};

    bool done = true;
    for (int first = 0; done && first < lines.count; first += layout.linesOfBatch) {
        const int count = std::min(layout.linesOfBatch, lines.count - first);
        const QRect region = lines.region(first, count);
        if (region.isEmpty())
            continue;
        const UniformVec4 batch{float(source.width()), float(source.height()), float(first), float(count)};
        const GLuint inputs[] = {picture->texture(), sorted->texture()};
        done = m_passes.drawPass(u"fx/pixel-drift-prepare"_s, std::span(inputs).first<1>(), entries.get(),
                                 uniformBytes({batch, atlas, blocks, thresholds, mapping}))
            && drawRanks(entries->texture(), sorted.get(), layout.bins, count * layout.blocks * layout.bins);
        gl->glEnable(GL_SCISSOR_TEST); // the shader leaves out the pixels of other batches that lie between these
        gl->glScissor(region.x(), region.y(), region.width(), region.height());
        done = done
            && m_passes.drawPass(u"fx/pixel-drift"_s, inputs, output.get(),
                                 uniformBytes({batch, atlas, blocks, {amount}, mapping}));
        gl->glDisable(GL_SCISSOR_TEST);
    }
    picture.reset();
    entries.reset();
    sorted.reset();
    m_passes.giveMemoryBack();
    const QImage result = done ? readFramebuffer(gl, *output) : QImage();
    gl->glBindFramebuffer(GL_FRAMEBUFFER, 0);
    if (result.isNull())
        qCWarning(lcPixelDrift) << "Pixel drift render failed";
    return result;
}

bool PixelDriftRenderer::loadRankProgram()
{
    if (m_rankProgram || m_rankProgramFailed)
        return m_rankProgram != nullptr;

    constexpr QLatin1StringView package(":/zelmoraatelier/shaders/library/pixel-drift-rank.%1.qsb");
    m_rankProgram = loadProgram(u"pixel-drift-rank"_s, package.arg("vert"_L1), package.arg("frag"_L1),
                                m_context.context(), m_context.functions());
    bool complete = m_rankProgram && m_rankProgram->bind();
    if (complete) {
        const bool usesBlock = m_rankProgram->bindUniformBlock("LibraryUniforms"_ba, kUniformBinding);
        m_rankLayoutLocation = m_rankProgram->uniformLocation("u_param0"_ba);
        for (const QByteArray &prefix : m_rankProgram->uniformPrefixes()) {
            if (m_rankLayoutLocation < 0)
                m_rankLayoutLocation = m_rankProgram->uniformLocation(prefix + ".u_param0");
        }
        complete = m_rankProgram->setUniformValue(m_rankProgram->uniformLocation("u_atlas"_ba), 0)
            && (usesBlock || m_rankLayoutLocation >= 0);
        m_rankProgram->release();
    }
    if (complete)
        return true;
    qCWarning(lcPixelDrift) << "Rank shader interface mismatch";
    m_rankProgram.reset();
    m_rankProgramFailed = true;
    return false;
}

bool PixelDriftRenderer::drawRanks(GLuint atlas, QOpenGLFramebufferObject *target, int bins, int entries)
{
    QOpenGLExtraFunctions *gl = m_context.functions();
    gl->glBindFramebuffer(GL_FRAMEBUFFER, target->handle());
    gl->glViewport(0, 0, target->width(), target->height());
    gl->glDisable(GL_DEPTH_TEST);
    gl->glDisable(GL_BLEND);
    if (!m_rankProgram->bind())
        return false;
    const UniformVec4 layout{float(target->width()), float(target->height()), 0.0F, float(bins)};
    GLuint buffer = 0;
    if (m_rankLayoutLocation >= 0) {
        m_rankProgram->setUniformValue(m_rankLayoutLocation, layout);
    } else {
        gl->glGenBuffers(1, &buffer);
        gl->glBindBuffer(GL_UNIFORM_BUFFER, buffer);
        gl->glBufferData(GL_UNIFORM_BUFFER, sizeof(layout), layout.data(), GL_STREAM_DRAW);
        gl->glBindBufferBase(GL_UNIFORM_BUFFER, kUniformBinding, buffer);
    }
    GLuint noAttributes = 0; // a core context draws nothing without a vertex array
    gl->glGenVertexArrays(1, &noAttributes);
    gl->glBindVertexArray(noAttributes);
    gl->glActiveTexture(GL_TEXTURE0);
    gl->glBindTexture(GL_TEXTURE_2D, atlas);
    // In parts: a software driver keeps some hundred bytes for each waiting point, and draws those of one part while
    // it ranks the next.
    for (int first = 0; first < entries; first += kPointsAtOnce) {
        gl->glDrawArrays(GL_POINTS, first, std::min(entries - first, kPointsAtOnce));
        gl->glFlush();
    }
    gl->glBindTexture(GL_TEXTURE_2D, 0);
    gl->glBindVertexArray(0);
    gl->glDeleteVertexArrays(1, &noAttributes);
    gl->glDeleteBuffers(1, &buffer);
    m_rankProgram->release();
    return true;
}

} // namespace zm
