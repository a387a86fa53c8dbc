#include "rendering/blur_plan.h"
#include "rendering/opengl_texture_renderer.h"
#include "rendering_support.h"
#include "services/user_notification_center.h"
#include "support/pictures.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <numbers>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

/// A slow convolution in double precision; the nearest pixel stands in beyond the edge. The kernel is that of one
/// direction, of any sum.
QImage convolved(const QImage &picture, const QList<double> &kernel)
{
    const int radius = int(kernel.size()) / 2;
    const double total = std::accumulate(kernel.cbegin(), kernel.cend(), 0.0);
    QImage result(picture.size(), QImage::Format_RGBA8888);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width() * 4; ++x) {
            double sum = 0.0;
            for (int j = -radius; j <= radius; ++j) {
                const uchar *row = picture.constScanLine(std::clamp(y + j, 0, picture.height() - 1));
                for (int i = -radius; i <= radius; ++i) {
                    const int column = std::clamp(x / 4 + i, 0, picture.width() - 1);
                    sum += kernel[j + radius] * kernel[i + radius] * row[column * 4 + x % 4];
                }
            }
            result.scanLine(y)[x] = uchar(std::lround(sum / (total * total)));
        }
    return result;
}

/// Black, and white within `white`.
QImage blackAndWhite(int width, int height, const QRect &white)
{
    QImage picture = plainPicture(width, height, Qt::black);
    QPainter(&picture).fillRect(white, Qt::white);
    return picture;
}

const QImage kWhite = plainPicture(2, 2, Qt::white);
const QByteArray kIdentity = uniformBytes({{1, 1, 1, 1}, {0, 0, 0, 0}});

} // namespace

class TestTextureRenderer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString scale = u":/test-shaders/library_scale.frag.qsb"_s;
        const QString mix = u":/test-shaders/library_masked_mix.frag.qsb"_s;
        const QList<QByteArray> block{"LibraryUniforms"};
        m_catalog = std::make_unique<FilterShaderCatalog>(
            FilterShaderCatalog::instance().descriptors()
            + QList<FilterShaderDescriptor>{
                {u"fx/scale"_s, u"scale"_s, scale, {"u_input"}, block, {"u_param0", "u_param1"}},
                {u"fx/masked-mix"_s, u"masked-mix"_s, mix, {"u_input", "u_soft", "u_mask"}, {}, {}},
                {u"fx/block"_s, u"block"_s, m_folder.filePath(u"block.qsb"_s), {}, block, {"u_param0"}},
                {u"fx/broken"_s, u"broken"_s, m_folder.filePath(u"broken.qsb"_s), {"u_input"}, {}, {}},
                {u"fx/lost-field"_s, u"lost-field"_s, scale, {"u_input"}, block, {"u_param0", "u_param7"}},
                {u"fx/lost-sampler"_s, u"lost-sampler"_s, mix, {"u_input", "u_lost"}, {}, {}},
            });
        m_renderer = std::make_unique<OpenGLTextureRenderer>(*m_catalog);
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        // A real uniform block, as the packages of the program do not hold it.
        QVERIFY(writeFile(m_folder.filePath(u"block.qsb"_s),
                          shaderPackage(QShader::FragmentStage,
                                        "#version 330\nlayout(std140) uniform LibraryUniforms { vec4 u_param0; };\n"
                                        "out vec4 c; void main() { c = u_param0; }")));
        QVERIFY(writeFile(m_folder.filePath(u"broken.qsb"_s), "broken"));
    }

    void everyShaderOfTheCatalogueLoads()
    {
        OffscreenContext context;
        FilterPassDrawer passes(context, FilterShaderCatalog::instance());
        const CurrentContext current(context);
        QVERIFY(bool(current));
        for (const FilterShaderDescriptor &descriptor : FilterShaderCatalog::instance().descriptors()) {
            // The table of the library names shaders before their effects are there.
            if (descriptor.id.startsWith("fx/"_L1) && !QFile::exists(descriptor.fragmentResource))
                continue;
            QVERIFY2(passes.filterProgram(descriptor.id), qPrintable(descriptor.id));
        }
    }

    void pictureComesBackUntouched()
    {
        const QImage wide = noisePicture(20, 9, 5);
        const QImage longRows(wide.constBits(), 13, 9, wide.bytesPerLine(), QImage::Format_RGBA8888);
        const QImage premultiplied = gradientPicture(8, 5).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        for (const QImage &picture : {noisePicture(1, 5000, 2), noisePicture(37, 11, 4), premultiplied, longRows}) {
            const QImage result = m_renderer->renderFilterShader(u"scale"_s, picture.size(), {picture}, kIdentity, {});
            QCOMPARE(result.format(), QImage::Format_RGBA8888);
            // Exact: transparent pixels keep their colour and the first row stays first.
            QCOMPARE(result, picture.convertToFormat(QImage::Format_RGBA8888));
        }
    }

    /// Two shaders: one takes the fields of a struct, the other a block.
    void uniformsAreFedAfresh()
    {
        for (const QColor &color : {QColor(51, 102, 204, 0), QColor(255, 0, 51, 153), QColor(255, 0, 51, 153)}) {
            const UniformVec4 value = {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
            const QImage expected = plainPicture(3, 2, color);
            const QByteArray fields = uniformBytes({{0, 0, 0, 0}, value});
            QCOMPARE(m_renderer->renderFilterShader(u"scale"_s, {3, 2}, {kWhite}, fields, {}), expected);
            QCOMPARE(m_renderer->renderFilterShader(u"block"_s, {3, 2}, {}, uniformBytes({value}), {}), expected);
        }
    }

    void blursMatchTheirDefinitions()
    {
        for (const auto &[sigma, width] : {std::pair(0.5, 31), {2.7, 40}, {10.0, 33}, {5.0, 3}}) {
            const QImage picture = noisePicture(width, 23, 7);
            const int radius = int(std::ceil(3.0 * sigma));
            QList<double> kernel;
            for (int i = -radius; i <= radius; ++i)
                kernel.append(std::exp(-0.5 * i * i / (sigma * sigma)));
            // A rounding in each pass, and the eight bits in which drivers weigh the two pixels of a linear read.
            QCOMPARE_LE(maximumDifference(m_renderer->gaussianBlur(picture, sigma), convolved(picture, kernel)), 2);
        }
        const QImage picture = noisePicture(50, 23, 8);
        for (const auto &[radius, reach] : {std::pair(2.9, 2), {100.0, 16}}) {
            const QImage expected = convolved(picture, QList<double>(2 * reach + 1, 1.0));
            // A rounding in each pass.
            QCOMPARE_LE(maximumDifference(m_renderer->boxBlur(picture, radius), expected), 1);
        }
    }

    void largeSigmaWorksAtAReducedSize()
    {
        const QList<std::pair<BlurPlan, BlurPlan>> cases{
            {BlurPlan::make({9, 8}, 10.0, 10.0), {{9, 8}, 10.0, 30}}, // at the limit
            {BlurPlan::make({5, 3}, 8.0, 4.0), {{3, 2}, 4.0, 12}}, // half rounds up
            {BlurPlan::make({3, 2000}, 500.0, 10.0), {{1, 40}, 10.0, 30}}, // never empty
            {BlurPlan::make({8, 8}, 1.0, 0.0), {{4, 4}, 0.5, 2}}, // limit is raised
        };
        for (const auto &[plan, expected] : cases) {
            QCOMPARE(plan.workingSize, expected.workingSize);
            QCOMPARE(plan.workingSigma, expected.workingSigma);
            QCOMPARE(plan.kernelRadius, expected.kernelRadius);
        }
    }

    void largeSigmaGivesTheProfileOfAnEdge()
    {
        const double sigma = 40.0;
        const QImage blurred = m_renderer->gaussianBlur(blackAndWhite(500, 60, {250, 0, 250, 60}), sigma);
        QCOMPARE(blurred.size(), QSize(500, 60));
        for (int x = 0; x < 500; ++x) {
            const double expected = 255.0 * 0.5 * (1.0 + std::erf((x - 249.5) / (sigma * std::numbers::sqrt2)));
            const int got = qRed(blurred.pixel(x, 30));
            // Seven roundings, and a kernel cut at three sigma, whose tails hold 0.3 %.
            QCOMPARE_LE(std::abs(got - expected), 3.0);
            QCOMPARE_LE(std::abs(got - (255 - qRed(blurred.pixel(499 - x, 30)))), 2);
        }
        for (const QSize size : {QSize(1, 1), QSize(1, 5000), QSize(333, 77)}) {
            const QImage plain = plainPicture(size.width(), size.height(), QColor(200, 40, 90, 128));
            QCOMPARE_LE(maximumDifference(m_renderer->gaussianBlur(plain, 97.0), plain), 1);
        }
    }

    void brokenPackageIsLoadedOnce()
    {
        QSignalSpy toasts(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        const RenderingWarnings warnings;
        QVERIFY(m_renderer->renderFilterShader(u"broken"_s, {2, 2}, {kWhite}, {}, {}).isNull());
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(toasts.first().at(1).toString(), u"broken"_s);
        const QStringList told = warnings.messages();
        QCOMPARE(told.size(), 2);
        QCOMPARE(told.last(),
                 u"Shader interface mismatch for filter utility \"fx/broken\" uniform prefixes \"<none>\""_s);
        QVERIFY(m_renderer->renderFilterShader(u"broken"_s, {2, 2}, {kWhite}, {}, {}).isNull());
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(warnings.messages(), told);
    }

    void wrongInvocationIsRefused()
    {
        const QString mismatch =
            u"Filter shader invocation mismatch \"scale\" samplers expected 1 got %1 uniforms expected 2 got %2"_s;
        const QString lost = u"Shader interface mismatch for filter utility \"fx/lost-%1\" uniform prefixes "_s;
        const QList<std::tuple<QString, int, int, QString>> cases{
            {u"nowhere"_s, 1, 0, u"Unknown filter shader \"nowhere\""_s},
            {u"scale"_s, 2, 32, mismatch.arg(2).arg(2)},
            {u"scale"_s, 1, 36, mismatch.arg(1).arg(2)},
            {u"lost-field"_s, 1, 32, lost.arg(u"field"_s)},
            {u"lost-sampler"_s, 2, 0, lost.arg(u"sampler"_s) + u'"'},
        };
        for (const auto &[shader, images, bytes, warning] : cases) {
            const RenderingWarnings warnings;
            const QList<QImage> pictures(images, kWhite);
            QVERIFY(m_renderer->renderFilterShader(shader, {2, 2}, pictures, QByteArray(bytes, '\0'), {}).isNull());
            QCOMPARE(warnings.messages().size(), 1);
            QCOMPARE(warnings.messages().first().left(warning.size()), warning);
        }
        const RenderingWarnings warnings;
        QVERIFY(m_renderer->renderMaskedBlurFilterShader(u"scale"_s, kWhite, 1, kWhite, 1, kIdentity, {}).isNull());
        QCOMPARE(warnings.messages(),
                 QStringList{u"Masked blur shader invocation mismatch \"scale\" samplers expected 1 got 3 uniforms "
                             "expected 2 got 2"_s});
    }

    void senselessAmountsAndPicturesAreHarmless()
    {
        const QImage picture = noisePicture(4, 4, 9);
        for (const double amount : {0.49, -3.0, std::nan(""), double(INFINITY)}) {
            QCOMPARE(m_renderer->gaussianBlur(picture, amount).constBits(), picture.constBits());
            QCOMPARE(m_renderer->boxBlur(picture, amount).constBits(), picture.constBits());
        }
        const RenderingWarnings warnings;
        const QImage tooWide = plainPicture(m_renderer->maximumTextureSize() + 1, 1, Qt::white);
        for (const auto &[size, input] :
             {std::pair(QSize(2, 2), QImage()), {QSize(0, 2), kWhite}, {QSize(2, 2), tooWide}})
            QVERIFY(m_renderer->renderFilterShader(u"scale"_s, size, {input}, kIdentity, {}).isNull());
        for (const QImage &impossible : {tooWide, QImage()})
            QVERIFY(m_renderer->gaussianBlur(impossible, 3.0).isNull());
        QVERIFY(m_renderer->boxBlur({}, 5.0).isNull());
        QVERIFY(maskedMix({}, 1.0, kWhite, 1.0, {}).isNull());
        QVERIFY(maskedMix(kWhite, 1.0, {}, 1.0, {}).isNull());
        QCOMPARE(m_renderer->renderFilterShader(u"scale"_s, {2, 2}, {kWhite}, kIdentity, {}), kWhite);
    }

    void maskedBlurMixesUnderTheMask()
    {
        const QImage source = blackAndWhite(64, 16, {32, 0, 32, 16});
        const QRect upper(0, 0, 64, 8);
        const QRect lower(0, 8, 64, 8);
        const QImage mixed = maskedMix(source, 3.0, blackAndWhite(64, 16, upper), -1.0, {});
        QCOMPARE_LE(maximumDifference(mixed.copy(upper), m_renderer->gaussianBlur(source, 3.0).copy(upper)), 1);
        QCOMPARE(mixed.copy(lower), source.copy(lower));
    }

    void maskedBlurOfAPairOfFormatsGivesTheSamePicture()
    {
        const QImage source = gradientPicture(80, 60);
        const QImage mask = blackAndWhite(80, 60, {40, 30, 2, 1});
        const QImage apart = maskedMix(source, 3.0, mask, 2.0, {.defaultFormat = 0, .inputFormats = {0, 1}});
        QVERIFY(!apart.isNull());
        const QImage together = maskedMix(source, 3.0, mask, 2.0, {.defaultFormat = 1, .inputFormats = {1}});
        QCOMPARE_LE(maximumDifference(apart, together), 1);
    }

    void nothingLiesBeyondTheMask()
    {
        // Stripes blur to an even grey: a black stripe shows that grey times the blurred mask.
        QImage stripes = plainPicture(65, 65, Qt::black);
        for (int x = 1; x < stripes.width(); x += 2)
            QPainter(&stripes).fillRect(x, 0, 1, 65, Qt::white);
        const double sigma = 4.0; // the largest that is done at full size
        const QImage mixed = maskedMix(stripes, sigma, plainPicture(65, 65, Qt::white), sigma, {});
        QVERIFY(std::abs(qRed(mixed.pixel(32, 32)) - 127.5) <= 2.0);
        // In the outermost row the kernel keeps its middle and one of its two halves.
        const double middle = 1.0 / (sigma * std::sqrt(2.0 * std::numbers::pi));
        const double expected = 127.5 * (1.0 + middle) / 2.0;
        for (const int y : {0, 64})
            QVERIFY(std::abs(qRed(mixed.pixel(32, y)) - expected) <= 2.0);
    }

private:
    QImage maskedMix(const QImage &source, double sourceSigma, const QImage &mask, double maskSigma,
                     const FilterTextureFormats &formats)
    {
        return m_renderer->renderMaskedBlurFilterShader(u"masked-mix"_s, source, sourceSigma, mask, maskSigma, {},
                                                        formats);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<FilterShaderCatalog> m_catalog;
    std::unique_ptr<OpenGLTextureRenderer> m_renderer;
};

QTEST_MAIN(TestTextureRenderer)
#include "tst_texture_renderer.moc"
