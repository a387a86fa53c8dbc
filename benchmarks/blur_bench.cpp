#include "blur_bench.h"

#include "rendering/filter_pass_drawer.h"
#include "rendering/image_transfer.h"
#include "rendering/opengl_texture_renderer.h"

#include <QOpenGLExtraFunctions>

#include <cstring>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kRuns = 7;

QImage noisePicture()
{
    QImage picture(4000, 3000, QImage::Format_RGBA8888);
    quint32 state = 1;
    for (int y = 0; y < picture.height(); ++y) {
        auto *pixel = reinterpret_cast<quint32 *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            state = state * 1664525U + 1013904223U; // the generator of Numerical Recipes
            pixel[x] = state;
        }
    }
    return picture;
}

double median(QList<double> times)
{
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

/// The parts of one copy. GL commands run when they like: each part ends with glFinish, so that it pays for itself.
class CopyTimer
{
public:
    CopyTimer()
        : m_passes(m_context, FilterShaderCatalog::instance())
    {
    }

    bool measure(const QImage &picture)
    {
        const CurrentContext current(m_context);
        if (!current)
            return false;
        QOpenGLExtraFunctions *gl = m_passes.functions();
        for (int run = 0; run <= kRuns; ++run) {
            QElapsedTimer timer;
            timer.start();
            auto source = createFramebuffer(gl, picture.size());
            const bool filled = source && fillFramebuffer(gl, *source, picture);
            gl->glFinish();
            const double uploaded = elapsed(timer);
            const auto target = createFramebuffer(gl, picture.size());
            const GLuint name = source ? source->texture() : 0;
            const bool done = filled && m_passes.drawPass(u"textureCopy"_s, {&name, 1}, target.get());
            gl->glFinish();
            const double drawn = elapsed(timer);
            source.reset();
            if (!done || readFramebuffer(gl, *target).isNull())
                return false;
            if (run == 0) // links the programs
                continue;
            m_upload.append(uploaded);
            m_draw.append(drawn - uploaded);
            m_readback.append(elapsed(timer) - drawn);
        }
        return true;
    }

    double upload() const { return median(m_upload); }
    double pass() const { return median(m_draw); }
    double readback() const { return median(m_readback); }

private:
    static double elapsed(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e6; }

    OffscreenContext m_context;
    FilterPassDrawer m_passes;
    QList<double> m_upload, m_draw, m_readback;
};

QString ratio(double value, double floor, const QString &floorName)
{
    return u"%1 x %2"_s.arg(value / floor, 0, 'f', 2).arg(floorName);
}

} // namespace

QList<BenchRow> benchBlur()
{
    const QImage picture = noisePicture();
    CopyTimer copy;
    if (!copy.measure(picture))
        return {};
    const double transfer = copy.upload() + copy.readback();
    const double memoryCopy = medianMilliseconds(kRuns, [&picture] {
        QImage target(picture.size(), picture.format());
        std::memcpy(target.bits(), picture.constBits(), size_t(picture.sizeInBytes()));
    });

    QList<BenchRow> rows = {
        {u"12 MP memcpy into a new image"_s, memoryCopy, u"floor of a transfer"_s},
        {u"12 MP plain copy pass"_s, copy.pass(), u"floor of a pass"_s},
        {u"12 MP upload"_s, copy.upload(), ratio(copy.upload(), memoryCopy, u"memcpy"_s)},
        {u"12 MP readback"_s, copy.readback(), ratio(copy.readback(), memoryCopy, u"memcpy"_s)},
    };
    OpenGLTextureRenderer renderer;
    for (const double sigma : {3.0, 40.0}) {
        renderer.gaussianBlur(picture, sigma); // links the programs
        const double passes = medianMilliseconds(kRuns, [&] { renderer.gaussianBlur(picture, sigma); }) - transfer;
        rows.append({u"gaussianBlur 12 MP, sigma %1, without the transfer"_s.arg(sigma), passes,
                     ratio(passes, copy.pass(), u"copy pass"_s)
                         + u"; the transfer is %1 of it, goal under 0.33"_s.arg(transfer / passes, 0, 'f', 2)});
    }
    return rows;
}

} // namespace zm::bench
