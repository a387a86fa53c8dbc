#include "effects_bench.h"

#include "filters/filter_registry.h"
#include "filters/filter_result_cache.h"
#include "filters/filter_stack.h"
#include "generators/bundled_texture_loader.h"
#include "pictures.h"
#include "rendering/opengl_texture_renderer.h"

#include <QCoreApplication>
#include <QFile>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr double kBytesPerKilobyte = 1024.0;

/// The most memory that the process has had since the mark was set, in kilobytes.
class PeakMemory
{
public:
    PeakMemory()
    {
        malloc_trim(0);
        QFile mark(u"/proc/self/clear_refs"_s);
        if (mark.open(QIODevice::WriteOnly))
            mark.write("5"); // resets the peak of the resident size
        m_before = kilobytes("VmRSS:");
    }
    double growth() const { return kilobytes("VmHWM:") - m_before; }

private:
    static double kilobytes(QByteArrayView key)
    {
        QFile status(u"/proc/self/status"_s);
        if (!status.open(QIODevice::ReadOnly))
            return 0.0;
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith(key))
                return line.sliced(key.size()).trimmed().split(' ').first().toDouble();
        }
        return 0.0;
    }

    double m_before = 0.0;
};

FilterInstance instance(const QString &filterId)
{
    return {QUuid::createUuid(), filterId, {}, true, false};
}

class EffectsBench
{
public:
    bool isPossible() { return m_renderer.maximumTextureSize() > 0; }

    /// Of the effects whose id contains `part`.
    QList<BenchRow> costs(const QSize &size, int runs, const QString &part)
    {
        const QImage picture = photograph(size);
        const double megapixels = double(size.width()) * size.height() / 1e6;
        const double copy = medianMilliseconds(runs, [&] {
            PassChain chain;
            m_renderer.renderChain(chain, chain.shader(u"textureCopy"_s, size, {chain.source(picture)}));
        });
        QList<BenchRow> rows;
        QList<double> multiples;
        for (const auto &filter : FilterRegistry::instance().filters()) {
            if (!filter->id().contains(part))
                continue;
            evaluate(photograph({64, 64}), filter->id()); // links the programs
            const PeakMemory peak;
            evaluate(picture, filter->id());
            const double pictures = peak.growth() * kBytesPerKilobyte / double(picture.sizeInBytes());
            const double time = medianMilliseconds(runs, [&] { evaluate(picture, filter->id()); });
            multiples.append(time / copy);
            rows.append({u"%1 MP %2"_s.arg(megapixels, 0, 'f', 0).arg(filter->id()), time,
                         u"%1 x a copy, %2 MP/s, peak %3 pictures above the input"_s.arg(time / copy, 0, 'f', 1)
                             .arg(megapixels / time * 1000.0, 0, 'f', 0)
                             .arg(pictures, 0, 'f', 1)});
        }
        if (rows.isEmpty())
            return {};
        std::ranges::sort(rows, std::greater(), &BenchRow::medianMs);
        std::ranges::sort(multiples);
        const QString name = u"%1 MP "_s.arg(megapixels, 0, 'f', 0);
        rows.prepend({name + u"upload, copy pass, readback"_s, copy,
                      u"floor; the median effect is %1 x, goal under 4; the dearest %2 x, goal 40"_s
                          .arg(multiples[multiples.size() / 2], 0, 'f', 1)
                          .arg(multiples.last(), 0, 'f', 1)});
        return rows;
    }

    /// What moving a slider costs, beside the one effect that it belongs to.
    BenchRow sliderOfTheLastOfFour()
    {
        const QImage picture = photograph({4000, 3000});
        FilterResultCache cache;
        const RenderServices services{&m_textures, &m_renderer, &m_renderer, &cache};
        QList<FilterInstance> stack{instance(u"vignette"_s), instance(u"bevel"_s), instance(u"fade-image"_s),
                                    instance(u"bevel"_s)};
        double value = 1.0;
        const double moved = medianMilliseconds(5, [&] {
            stack.last().parameters.set(u"size"_s, value += 1.0);
            evaluateFilterStack(picture, picture.size(), stack, &services, {}, 1);
        });
        const double alone = medianMilliseconds(5, [&] { evaluate(picture, u"bevel"_s); });
        return {u"12 MP, a slider of the last of four effects"_s, moved,
                u"%1 x that effect alone"_s.arg(moved / alone, 0, 'f', 2)};
    }

private:
    void evaluate(const QImage &picture, const QString &filterId)
    {
        evaluateFilterStack(picture, picture.size(), {instance(filterId)}, &m_services, {}, 1);
    }

    BundledTextureLoader m_textures{textureBundleDirectories(), textureSearchRoots()};
    OpenGLTextureRenderer m_renderer;
    const RenderServices m_services{&m_textures, &m_renderer, &m_renderer};
};

} // namespace

QList<BenchRow> benchEffects()
{
    EffectsBench bench;
    if (!bench.isPossible())
        return {};
    const QString part = QCoreApplication::arguments().value(2);
    QList<BenchRow> rows =
        bench.costs({1200, 834}, 5, part) + bench.costs({4000, 3000}, 3, part) + bench.costs({6000, 4000}, 1, part);
    if (part.isEmpty())
        rows.append(bench.sliderOfTheLastOfFour());
    return rows;
}

} // namespace zm::bench
