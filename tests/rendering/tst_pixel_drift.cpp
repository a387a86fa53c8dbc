#include "rendering/opengl_texture_renderer.h"
#include "rendering_support.h"
#include "support/pictures.h"

#include <QTest>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

double luma(QRgb color)
{
    return (0.2126 * qRed(color) + 0.7152 * qGreen(color) + 0.0722 * qBlue(color)) / 255.0;
}

/// Where the blocks of a line begin before it: "Hash without Sine" in the precision of the GPU.
int blockOffset(int line, double seed, int span)
{
    const auto fract = [](float value) { return value - std::floor(value); };
    const float a = fract(float(line) * 0.1031F);
    const float b = fract((float(seed) + 7.13F) * 0.1031F);
    const float sum = a * (b + 33.33F) + b * (a + 33.33F) + a * (a + 33.33F);
    return int(fract((a + sum + b + sum) * (a + sum)) * float(span));
}

/// The same by std::stable_sort, for blocks that are sorted pixel by pixel and so short that no lines share edges.
QImage sortedPicture(const QImage &picture, const PixelDriftSettings &settings)
{
    const double angle = settings.angle * M_PI / 180.0;
    const bool vertical = std::abs(std::sin(angle)) > std::abs(std::cos(angle));
    const double forward = vertical ? std::sin(angle) : std::cos(angle);
    const float slope = float((vertical ? std::cos(angle) : std::sin(angle)) / std::abs(forward));
    const int axis = vertical ? picture.height() : picture.width();
    const auto sideStep = [slope](int along) { return int(std::floor(slope * float(along) + 0.5F)); };
    const int firstAcross = std::max(sideStep(axis - 1), 0) + 1;

    std::map<int, std::map<int, QPoint>> lines; // the places of each line, along it
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const int major = vertical ? y : x;
            const int along = forward < 0.0 ? axis - 1 - major : major;
            lines[(vertical ? x : y) - sideStep(along) + firstAcross][along] = {x, y};
        }

    QImage result = picture;
    const int span = int(settings.streakLength);
    for (const auto &[across, places] : lines) {
        std::vector<QPoint> run;
        const auto finishRun = [&] {
            std::vector<QPoint> sorted = run;
            std::ranges::stable_sort(sorted, {}, [&](const QPoint &place) {
                return luma(picture.pixel(place)) * (settings.descending ? -1.0 : 1.0);
            });
            for (size_t i = 0; i < run.size(); ++i) {
                QColor color = picture.pixelColor(sorted[i]);
                color.setAlpha(qAlpha(picture.pixel(run[i])));
                result.setPixelColor(run[i], color);
            }
            run.clear();
        };
        const int start = places.begin()->first;
        for (const auto &[along, place] : places) {
            const QRgb color = picture.pixel(place);
            if ((along - start + blockOffset(across, settings.seed, span)) % span == 0)
                finishRun();
            if (qAlpha(color) > 0 && luma(color) >= settings.shadowThreshold
                && luma(color) <= settings.highlightThreshold)
                run.push_back(place);
            else
                finishRun();
            if (qAlpha(color) == 0)
                result.setPixel(place, 0);
        }
        finishRun();
    }
    return result;
}

} // namespace

class TestPixelDrift : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_renderer = std::make_unique<OpenGLTextureRenderer>();
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
    }

    /// A quarter of the pixels of these pictures is transparent and breaks runs.
    void runsAreSorted()
    {
        const std::pair<QSize, PixelDriftSettings> cases[] = {
            {{50, 9}, {0.0, false, 20, 0.0, 1.0, 1.0, 23}},   {{9, 50}, {90.0, true, 20, 0.1, 0.8, 1.0, 1}},
            {{47, 31}, {30.0, false, 16, 0.2, 0.9, 1.0, 2}},  {{31, 47}, {250.0, false, 12, 0.2, 0.9, 1.0, 3}},
            {{33, 33}, {135.0, true, 8, 0.0, 1.0, 1.0, 999}}, {{5, 7}, {300.0, false, 2, 0.0, 1.0, 1.0, 5}},
            {{1, 1}, {10.0, false, 20, 0.0, 1.0, 1.0, 5}},
        };
        for (const auto &[size, settings] : cases) {
            const QImage picture = noisePicture(size.width(), size.height(), 7);
            const QImage result = m_renderer->renderPixelDrift(picture, settings);
            QVERIFY2(result == sortedPicture(picture, settings), qPrintable(QString::number(settings.angle)));
        }
    }

    void turningRoundReversesTheWalk()
    {
        const QImage picture = noisePicture(60, 20, 9);
        const auto drifted = [&](const QImage &image, double angle) {
            return m_renderer->renderPixelDrift(image, {angle, false, 30, 0.1, 0.9, 1.0, 23});
        };
        QCOMPARE(drifted(picture, 360.0), drifted(picture, 0.0));
        QCOMPARE(drifted(picture.mirrored(true, false), 180.0), drifted(picture, 0.0).mirrored(true, false));
    }

    void thresholdsThatCrossLeaveThePicture()
    {
        const QImage picture = gradientPicture(40, 30);
        QCOMPARE(m_renderer->renderPixelDrift(picture, {0.0, false, 30, 0.6, 0.4, 1.0, 23}), picture);
    }

    /// A run is sorted from 64 samples, with colours between them: it rises, and starts again at most where the line
    /// is cut into two blocks.
    void longRunsRise()
    {
        const QImage picture = noisePicture(200, 1, 4).convertToFormat(QImage::Format_Grayscale8);
        const QImage result = m_renderer->renderPixelDrift(picture, {0.0, false, 200, 0.0, 1.0, 1.0, 23});
        int falls = 0;
        for (int x = 1; x < result.width(); ++x)
            falls += qRed(result.pixel(x, 0)) < qRed(result.pixel(x - 1, 0)) ? 1 : 0;
        QVERIFY2(falls <= 1, qPrintable(QString::number(falls)));
    }

    /// Few lines at a time, each wrapped over several rows of the texture.
    void batchesShowNoSeam()
    {
        const QImage picture = noisePicture(61, 47, 3);
        OffscreenContext context;
        FilterPassDrawer passes(context, FilterShaderCatalog::instance());
        PixelDriftRenderer small(passes, context, {30, 400});
        for (const double angle : {0.0, 65.0, 205.0, 315.0}) {
            const PixelDriftSettings settings{angle, false, 12, 0.1, 0.9, 1.0, 23};
            QCOMPARE(small.render(picture, settings), m_renderer->renderPixelDrift(picture, settings));
        }
    }

    void failureIsCounted()
    {
        const RenderingWarnings warnings;
        QVERIFY(m_renderer->renderPixelDrift(QImage(), {}).isNull());
        QCOMPARE(m_renderer->failureCount(), 0U);
        const QImage tooLong = plainPicture(m_renderer->maximumTextureSize() + 1, 1, Qt::gray);
        QVERIFY(m_renderer->renderPixelDrift(tooLong, {}).isNull());
        QCOMPARE(m_renderer->failureCount(), 1U);
        QVERIFY(warnings.messages().contains(u"Could not upload source texture"_s));
    }

private:
    std::unique_ptr<OpenGLTextureRenderer> m_renderer;
};

QTEST_MAIN(TestPixelDrift)
#include "tst_pixel_drift.moc"
