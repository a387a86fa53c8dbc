#include "blur_bench.h"

#include "rendering/filter_pass_drawer.h"
#include "rendering/image_transfer.h"
#include "rendering/multi_scale_blur.h"
#include "rendering/opengl_texture_renderer.h"

#include <QOpenGLExtraFunctions>

#include <cstring>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kRuns = 7;
constexpr double kWorkingSigma = 10.0; // of gaussianBlur

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

/// The parts of one blur. GL commands run when they like: each part ends with glFinish, so that it pays for itself.
class BlurTimer
{
public:
    BlurTimer()
        : m_passes(m_context, FilterShaderCatalog::instance())
    {
    }

    bool measure(const QImage &picture, double sigma)
    {
        const CurrentContext current(m_context);
        if (!current)
            return false;
        QOpenGLExtraFunctions *gl = m_passes.functions();
        for (int run = 0; run <= kRuns; ++run) {
            QElapsedTimer timer;
            timer.start();
            OwnedTexture texture = uploadTexture(gl, picture, TextureEdge::Clamp);
            gl->glFinish();
            const double uploaded = elapsed(timer);
            const auto blurred = sigma > 0.0
                ? blurTexture(m_passes, texture.name(), picture.size(), sigma, kWorkingSigma, TextureEdge::Clamp, true)
                : copied(texture.name(), picture.size());
            gl->glFinish();
            const double drawn = elapsed(timer);
            if (!blurred)
                return false;
            texture.reset();
            const QImage result = readFramebuffer(gl, *blurred);
            const double read = elapsed(timer);
            if (result.isNull())
                return false;
            if (run == 0) // links the programs
                continue;
            m_upload.append(uploaded);
            m_draw.append(drawn - uploaded);
            m_readback.append(read - drawn);
        }
        return true;
    }

    double upload() const { return median(m_upload); }
    double passes() const { return median(m_draw); }
    double readback() const { return median(m_readback); }

private:
    static double elapsed(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e6; }

    std::unique_ptr<QOpenGLFramebufferObject> copied(GLuint texture, const QSize &size)
    {
        auto target = createFramebuffer(m_passes.functions(), size);
        return m_passes.drawPass(u"textureCopy"_s, {&texture, 1}, target.get()) ? std::move(target) : nullptr;
    }

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
    BlurTimer copy;
    if (!copy.measure(picture, 0.0))
        return {};
    const double copyPass = copy.passes();
    const double memoryCopy = medianMilliseconds(kRuns, [&picture] {
        QImage target(picture.size(), picture.format());
        std::memcpy(target.bits(), picture.constBits(), size_t(picture.sizeInBytes()));
    });

    QList<BenchRow> rows = {
        {u"12 MP memcpy into a new image"_s, memoryCopy, u"floor of a transfer"_s},
        {u"12 MP plain copy pass"_s, copyPass, u"floor of a pass"_s},
    };
    for (const double sigma : {3.0, 40.0}) {
        BlurTimer blur;
        if (!blur.measure(picture, sigma))
            return {};
        const QString name = u"gaussianBlur 12 MP, sigma %1: "_s.arg(sigma);
        const double transfer = blur.upload() + blur.readback();
        rows.append({name + u"upload"_s, blur.upload(), ratio(blur.upload(), memoryCopy, u"memcpy"_s)});
        rows.append({name + u"passes"_s, blur.passes(), ratio(blur.passes(), copyPass, u"copy pass"_s)});
        rows.append({name + u"readback"_s, blur.readback(), ratio(blur.readback(), memoryCopy, u"memcpy"_s)});
        rows.append(
            {name + u"transfer in all"_s, transfer, ratio(transfer, blur.passes(), u"the passes; goal under 0.33"_s)});

        OpenGLTextureRenderer renderer;
        const double whole = medianMilliseconds(kRuns, [&] { renderer.gaussianBlur(picture, sigma); });
        rows.append({name + u"whole call"_s, whole, ratio(whole, transfer + blur.passes(), u"its parts"_s)});
    }
    return rows;
}

} // namespace zm::bench
