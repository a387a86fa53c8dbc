#include "rendering_support.h"

#include "application/user_notification_center.h"
#include "rendering/image_transfer.h"
#include "rendering/multi_scale_blur.h"
#include "rendering/opengl_texture_renderer.h"
#include "support/pictures.h"

#include <QOpenGLExtraFunctions>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <functional>
#include <numbers>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

/// A slow separable convolution in double precision; the nearest pixel stands in beyond the edge.
QImage convolved(const QImage &picture, const QList<double> &kernel)
{
    const int radius = int(kernel.size()) / 2;
    const int width = picture.width();
    const int height = picture.height();
    QList<double> across(qsizetype(width) * height * 4);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int channel = 0; channel < 4; ++channel) {
                double sum = 0.0;
                for (int i = -radius; i <= radius; ++i)
                    sum += kernel[i + radius] * picture.constScanLine(y)[std::clamp(x + i, 0, width - 1) * 4 + channel];
                across[(qsizetype(y) * width + x) * 4 + channel] = sum;
            }
    QImage result(picture.size(), QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y)
        for (int i = 0; i < width * 4; ++i) {
            double sum = 0.0;
            for (int k = -radius; k <= radius; ++k)
                sum += kernel[k + radius] * across[qsizetype(std::clamp(y + k, 0, height - 1)) * width * 4 + i];
            result.scanLine(y)[i] = uchar(std::lround(sum));
        }
    return result;
}

/// Weights of `weight(distance)` out to `radius`, of sum 1.
QList<double> kernelOf(int radius, const std::function<double(int)> &weight)
{
    QList<double> kernel;
    for (int i = -radius; i <= radius; ++i)
        kernel.append(weight(i));
    const double total = std::accumulate(kernel.cbegin(), kernel.cend(), 0.0);
    for (double &value : kernel)
        value /= total;
    return kernel;
}

QImage verticalEdge(int width, int height)
{
    QImage picture = plainPicture(width, height, Qt::black);
    for (int y = 0; y < height; ++y)
        std::fill_n(reinterpret_cast<quint32 *>(picture.scanLine(y)) + width / 2, width - width / 2, 0xffffffffU);
    return picture;
}

FilterShaderDescriptor library(const QString &id, const QString &resource, const QList<QByteArray> &samplers,
                               const QList<QByteArray> &uniforms)
{
    return {u"fx/"_s + id, id, resource, samplers,
            uniforms.isEmpty() ? QList<QByteArray>() : QList<QByteArray>{"LibraryUniforms"}, uniforms};
}

const QByteArray kIdentity = uniformBytes({{1, 1, 1, 1}, {0, 0, 0, 0}});

} // namespace

class TestTextureRenderer : public QObject
{
    Q_OBJECT

public:
    TestTextureRenderer()
    {
        QList<FilterShaderDescriptor> rows = FilterShaderCatalog::instance().descriptors();
        const auto file = [this](const char *name) { return m_folder.filePath(QString::fromLatin1(name)); };
        rows.append({
            library(u"scale"_s, u":/test-shaders/library_scale.frag.qsb"_s, {"u_input"}, {"u_param0", "u_param1"}),
            library(u"masked-mix"_s, u":/test-shaders/library_masked_mix.frag.qsb"_s, {"u_input", "u_soft", "u_mask"},
                    {}),
            library(u"block"_s, file("block.qsb"), {}, {"u_param0"}),
            library(u"broken"_s, file("broken.qsb"), {"u_input"}, {}),
            library(u"lost-field"_s, u":/test-shaders/library_scale.frag.qsb"_s, {"u_input"}, {"u_param0", "u_param7"}),
            library(u"lost-sampler"_s, u":/test-shaders/library_masked_mix.frag.qsb"_s, {"u_input", "u_lost"}, {}),
        });
        m_catalog = std::make_unique<FilterShaderCatalog>(rows);
        m_renderer = std::make_unique<OpenGLTextureRenderer>(*m_catalog);
    }

private slots:
    void initTestCase()
    {
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        // A real uniform block, as the packages of the program do not hold it.
        QVERIFY(writeFile(m_folder.filePath(u"block.qsb"_s),
                          shaderPackage(QShader::FragmentStage,
                                        "#version 330\nlayout(std140) uniform LibraryUniforms { vec4 u_param0; };\n"
                                        "out vec4 c; void main() { c = u_param0; }")));
        QVERIFY(writeFile(m_folder.filePath(u"broken.qsb"_s), "broken"));
    }

    void readbackGivesTheBytesOfToImage()
    {
        OffscreenContext context;
        FilterPassDrawer passes(context, *m_catalog);
        const CurrentContext current(context);
        QVERIFY(bool(current));
        const QImage picture = noisePicture(37, 21, 1);
        const OwnedTexture texture = uploadTexture(passes.functions(), picture, TextureEdge::Clamp);
        const auto target = createFramebuffer(passes.functions(), picture.size());
        const GLuint name = texture.name();
        QVERIFY(passes.drawPass(u"textureCopy"_s, {&name, 1}, target.get()));
        QImage converted = target->toImage(false);
        QVERIFY(converted.reinterpretAsFormat(converted.format() == QImage::Format_ARGB32_Premultiplied
                                                  ? QImage::Format_ARGB32 : QImage::Format_RGBA8888));
        QCOMPARE(readFramebuffer(passes.functions(), *target), converted.convertToFormat(QImage::Format_RGBA8888));
    }

    void everyShaderOfTheCatalogueFitsItsDescription()
    {
        OffscreenContext context;
        FilterPassDrawer passes(context, FilterShaderCatalog::instance());
        const CurrentContext current(context);
        for (const FilterShaderDescriptor &descriptor : FilterShaderCatalog::instance().descriptors())
            QVERIFY2(passes.filterProgram(descriptor.id), qPrintable(descriptor.id));
    }

    void pictureComesBackUntouched_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::newRow("one pixel") << noisePicture(1, 1, 1);
        QTest::newRow("one column") << noisePicture(1, 5000, 2);
        QTest::newRow("one row") << noisePicture(5000, 1, 3);
        QTest::newRow("odd sides") << noisePicture(37, 11, 4);
        QTest::newRow("premultiplied") << gradientPicture(8, 5).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        static const QImage wide = noisePicture(20, 9, 5);
        QTest::newRow("rows longer than the picture")
            << QImage(wide.constBits(), 13, 9, wide.bytesPerLine(), QImage::Format_RGBA8888);
    }

    void pictureComesBackUntouched()
    {
        QFETCH(QImage, picture);
        const QImage result = m_renderer->renderFilterShader(u"scale"_s, picture.size(), {picture}, kIdentity, {});
        QCOMPARE(result.format(), QImage::Format_RGBA8888);
        // Exact: transparent pixels keep their colour and the first row stays first.
        QCOMPARE(result, picture.convertToFormat(QImage::Format_RGBA8888));
    }

    void uniformsAreFedAfresh_data()
    {
        QTest::addColumn<QString>("shader");
        QTest::newRow("by fields of a struct") << u"scale"_s;
        QTest::newRow("by a block") << u"block"_s;
    }

    void uniformsAreFedAfresh()
    {
        QFETCH(QString, shader);
        const bool isBlock = shader == u"block"_s;
        const QList<QImage> images = isBlock ? QList<QImage>() : QList<QImage>{plainPicture(2, 2, Qt::black)};
        for (const QColor &color : {QColor(51, 102, 204, 0), QColor(255, 0, 51, 153), QColor(255, 0, 51, 153)}) {
            const UniformVec4 value = {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
            const QByteArray bytes = isBlock ? uniformBytes({value}) : uniformBytes({{0, 0, 0, 0}, value});
            const QImage result = m_renderer->renderFilterShader(shader, {3, 2}, images, bytes, {});
            QCOMPARE(result.size(), QSize(3, 2));
            QCOMPARE(maximumDifference(result, plainPicture(3, 2, color)), 0);
        }
    }

    void gaussianMatchesTheDefinition_data()
    {
        QTest::addColumn<double>("sigma");
        QTest::addColumn<QSize>("size");
        QTest::newRow("smallest") << 0.5 << QSize(31, 17);
        QTest::newRow("one") << 1.0 << QSize(31, 17);
        QTest::newRow("fractional") << 2.7 << QSize(40, 33);
        QTest::newRow("largest at full size") << 10.0 << QSize(61, 43);
        QTest::newRow("narrower than the kernel") << 5.0 << QSize(3, 50);
        QTest::newRow("one pixel") << 3.0 << QSize(1, 1);
    }

    void gaussianMatchesTheDefinition()
    {
        QFETCH(double, sigma);
        QFETCH(QSize, size);
        const QImage picture = noisePicture(size.width(), size.height(), 7);
        const QList<double> kernel = kernelOf(int(std::ceil(3.0 * sigma)), [sigma](int distance) {
            return std::exp(-0.5 * distance * distance / (sigma * sigma));
        });
        // A rounding in each pass, and the eight bits in which drivers weigh the two pixels of a linear read.
        QVERIFY(maximumDifference(m_renderer->gaussianBlur(picture, sigma), convolved(picture, kernel)) <= 2);
    }

    void boxMatchesTheDefinition_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("reach");
        QTest::newRow("one") << 1.0 << 1;
        QTest::newRow("fraction is dropped") << 2.9 << 2;
        QTest::newRow("largest") << 16.0 << 16;
        QTest::newRow("limited to the largest") << 100.0 << 16;
    }

    void boxMatchesTheDefinition()
    {
        QFETCH(double, radius);
        QFETCH(int, reach);
        const QImage picture = noisePicture(50, 23, 8);
        const QImage expected = convolved(picture, kernelOf(reach, [](int) { return 1.0; }));
        QVERIFY(maximumDifference(m_renderer->boxBlur(picture, radius), expected) <= 1); // a rounding in each pass
    }

    void senselessAmountLeavesThePicture()
    {
        const QImage picture = noisePicture(4, 4, 9);
        for (const double amount : {0.49, 0.0, -3.0, std::nan(""), double(INFINITY)}) {
            QCOMPARE(m_renderer->gaussianBlur(picture, amount).constBits(), picture.constBits());
            QCOMPARE(m_renderer->boxBlur(picture, amount).constBits(), picture.constBits());
        }
        QCOMPARE(m_renderer->gaussianBlur(picture.convertToFormat(QImage::Format_ARGB32), 0.0), picture);
        QVERIFY(m_renderer->gaussianBlur({}, 5.0).isNull());
        QVERIFY(m_renderer->boxBlur({}, 5.0).isNull());
    }

    void largeSigmaWorksAtAReducedSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("sigma");
        QTest::addColumn<double>("limit");
        QTest::addColumn<QSize>("workingSize");
        QTest::addColumn<double>("workingSigma");
        QTest::addColumn<int>("radius");
        QTest::newRow("quarter") << QSize(1000, 800) << 40.0 << 10.0 << QSize(250, 200) << 10.0 << 30;
        QTest::newRow("at the limit") << QSize(1000, 800) << 10.0 << 10.0 << QSize(1000, 800) << 10.0 << 30;
        QTest::newRow("small") << QSize(9, 7) << 1.0 << 10.0 << QSize(9, 7) << 1.0 << 3;
        QTest::newRow("half rounds away from zero") << QSize(5, 3) << 8.0 << 4.0 << QSize(3, 2) << 4.0 << 12;
        QTest::newRow("never empty") << QSize(3, 2000) << 500.0 << 10.0 << QSize(1, 40) << 10.0 << 30;
        QTest::newRow("limit is raised to the smallest blur") << QSize(8, 8) << 1.0 << 0.0 << QSize(4, 4) << 0.5 << 2;
    }

    void largeSigmaWorksAtAReducedSize()
    {
        QFETCH(QSize, size);
        QFETCH(double, sigma);
        QFETCH(double, limit);
        const BlurPlan plan = BlurPlan::make(size, sigma, limit);
        QTEST(plan.workingSize, "workingSize");
        QTEST(plan.workingSigma, "workingSigma");
        QTEST(plan.kernelRadius, "radius");
    }

    void largeSigmaGivesTheProfileOfAnEdge()
    {
        const double sigma = 40.0;
        const QImage picture = verticalEdge(500, 60);
        const QImage blurred = m_renderer->gaussianBlur(picture, sigma);
        QCOMPARE(blurred.size(), picture.size());
        for (int x = 0; x < blurred.width(); ++x) {
            const double distance = x + 0.5 - blurred.width() / 2.0;
            const double expected = 255.0 * 0.5 * (1.0 + std::erf(distance / (sigma * std::numbers::sqrt2)));
            const int got = qRed(blurred.pixel(x, 30));
            // Seven roundings, and a kernel cut at three sigma, whose tails hold 0.3 %.
            QVERIFY2(std::abs(got - expected) <= 3.0, qPrintable(u"%1: %2 not %3"_s.arg(x).arg(got).arg(expected)));
            const int mirrored = 255 - qRed(blurred.pixel(blurred.width() - 1 - x, 30));
            QVERIFY2(std::abs(got - mirrored) <= 2, qPrintable(u"%1: %2 and %3"_s.arg(x).arg(got).arg(mirrored)));
        }
    }

    void largeSigmaKeepsAPlainPicture_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(1, 1), QSize(1, 5000), QSize(333, 77)})
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }

    void largeSigmaKeepsAPlainPicture()
    {
        QFETCH(QSize, size);
        const QImage picture = plainPicture(size.width(), size.height(), QColor(200, 40, 90, 128));
        QVERIFY(maximumDifference(m_renderer->gaussianBlur(picture, 97.0), picture) <= 1);
    }

    void brokenPackageIsLoadedOnce()
    {
        const QImage picture = plainPicture(2, 2, Qt::white);
        QSignalSpy toasts(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        const RenderingWarnings warnings;
        QVERIFY(m_renderer->renderFilterShader(u"broken"_s, {2, 2}, {picture}, {}, {}).isNull());
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(toasts.first().at(1).toString(), u"broken"_s);
        const QStringList told = warnings.messages();
        QCOMPARE(told.size(), 2);
        QCOMPARE(told.last(), u"Shader interface mismatch for filter utility \"fx/broken\" uniform prefixes \"<none>\""_s);
        // A package mended meanwhile would load: it is not looked at again.
        QVERIFY(QFile::remove(m_folder.filePath(u"broken.qsb"_s)));
        QVERIFY(QFile::copy(u":/zelmoraatelier/shaders/filter-utils/util_texture_copy.frag.qsb"_s,
                            m_folder.filePath(u"broken.qsb"_s)));
        QVERIFY(m_renderer->renderFilterShader(u"broken"_s, {2, 2}, {picture}, {}, {}).isNull());
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(warnings.messages(), told);
    }

    void wrongInvocationIsRefused_data()
    {
        QTest::addColumn<QString>("shader");
        QTest::addColumn<int>("images");
        QTest::addColumn<int>("bytes");
        QTest::addColumn<QString>("warning");
        const QString mismatch = u"Filter shader invocation mismatch \"scale\" samplers expected 1 got %1 uniforms expected 2 got %2"_s;
        QTest::newRow("unknown id") << u"ghost"_s << 1 << 0 << u"Unknown filter shader \"ghost\""_s;
        QTest::newRow("a picture too many") << u"scale"_s << 2 << 32 << mismatch.arg(2).arg(2);
        QTest::newRow("no picture") << u"scale"_s << 0 << 32 << mismatch.arg(0).arg(2);
        QTest::newRow("a uniform too few") << u"scale"_s << 1 << 16 << mismatch.arg(1).arg(1);
        QTest::newRow("part of a uniform") << u"scale"_s << 1 << 36 << mismatch.arg(1).arg(2);
        QTest::newRow("field that the shader lacks") << u"lost-field"_s << 1 << 32
            << u"Shader interface mismatch for filter utility \"fx/lost-field\" uniform prefixes "_s;
        QTest::newRow("sampler that the shader lacks") << u"lost-sampler"_s << 2 << 0
            << u"Shader interface mismatch for filter utility \"fx/lost-sampler\" uniform prefixes \"\""_s;
    }

    void wrongInvocationIsRefused()
    {
        QFETCH(QString, shader);
        QFETCH(int, images);
        QFETCH(int, bytes);
        QFETCH(QString, warning);
        const RenderingWarnings warnings;
        const QList<QImage> pictures(images, plainPicture(2, 2, Qt::white));
        QVERIFY(m_renderer->renderFilterShader(shader, {2, 2}, pictures, QByteArray(bytes, '\0'), {}).isNull());
        QCOMPARE(warnings.messages().size(), 1);
        QVERIFY2(warnings.messages().first().startsWith(warning), qPrintable(warnings.messages().first()));
    }

    void impossiblePicturesFailQuietly()
    {
        const QImage picture = plainPicture(2, 2, Qt::white);
        QVERIFY(m_renderer->renderFilterShader(u"scale"_s, {2, 2}, {QImage()}, kIdentity, {}).isNull());
        QVERIFY(m_renderer->renderFilterShader(u"scale"_s, {0, 2}, {picture}, kIdentity, {}).isNull());
        const RenderingWarnings warnings;
        const QImage tooWide = plainPicture(m_renderer->maximumTextureSize() + 1, 1, Qt::white);
        QVERIFY(m_renderer->renderFilterShader(u"scale"_s, {2, 2}, {tooWide}, kIdentity, {}).isNull());
        QVERIFY(m_renderer->gaussianBlur(tooWide, 3.0).isNull());
        QCOMPARE(m_renderer->renderFilterShader(u"scale"_s, {2, 2}, {picture}, kIdentity, {}), picture);
    }

    void maskedBlurMixesUnderTheMask()
    {
        const QImage source = verticalEdge(64, 16);
        const QImage blurred = m_renderer->gaussianBlur(source, 3.0);
        QImage mask = plainPicture(64, 16, Qt::black);
        for (int y = 0; y < 8; ++y)
            std::memset(mask.scanLine(y), 0xff, size_t(mask.bytesPerLine()));
        const QImage mixed = maskedMix(source, 3.0, mask, -1.0, {});
        const QRect upper(0, 0, 64, 8);
        const QRect lower(0, 8, 64, 8);
        QVERIFY(maximumDifference(mixed.copy(upper), blurred.copy(upper)) <= 1);
        QCOMPARE(mixed.copy(lower), source.copy(lower));
    }

    void maskedBlurOfAPairOfFormatsGivesTheSamePicture()
    {
        const QImage source = gradientPicture(80, 60);
        QImage mask = plainPicture(80, 60, Qt::black);
        mask.setPixelColor(40, 30, Qt::white);
        mask.setPixelColor(41, 30, Qt::white);
        const FilterTextureFormats twoFormats = {.defaultFormat = 0, .inputFormats = {0, 1}, .outputFormat = 0};
        const FilterTextureFormats twiceTheDefault = {.defaultFormat = 1, .inputFormats = {1}, .outputFormat = 0};
        const QImage apart = maskedMix(source, 3.0, mask, 2.0, twoFormats);
        QVERIFY(!apart.isNull());
        QVERIFY(maximumDifference(apart, maskedMix(source, 3.0, mask, 2.0, twiceTheDefault)) <= 1);
    }

    void nothingLiesBeyondTheMask()
    {
        // Stripes blur to an even grey: a black stripe shows that grey times the blurred mask.
        QImage stripes = plainPicture(65, 65, Qt::black);
        for (int x = 1; x < stripes.width(); x += 2)
            for (int y = 0; y < stripes.height(); ++y)
                stripes.setPixelColor(x, y, Qt::white);
        const double sigma = 4.0; // the largest that is done at full size
        const QImage mixed = maskedMix(stripes, sigma, plainPicture(65, 65, Qt::white), sigma, {});
        QVERIFY(std::abs(qRed(mixed.pixel(32, 32)) - 127.5) <= 2.0);
        // In the outermost row the kernel keeps its middle and one of its two halves.
        const double middle = 1.0 / (sigma * std::sqrt(2.0 * std::numbers::pi));
        const double expected = 127.5 * (1.0 + middle) / 2.0;
        for (const int y : {0, 64})
            QVERIFY(std::abs(qRed(mixed.pixel(32, y)) - expected) <= 2.0);
    }

    void maskedBlurRefusesAnotherShape()
    {
        const QImage picture = plainPicture(2, 2, Qt::white);
        const RenderingWarnings warnings;
        QVERIFY(m_renderer->renderMaskedBlurFilterShader(u"scale"_s, picture, 1, picture, 1, kIdentity, {}).isNull());
        QCOMPARE(warnings.messages(),
                 QStringList{u"Masked blur shader invocation mismatch \"scale\" samplers expected 1 got 3 uniforms "
                             "expected 2 got 2"_s});
        QVERIFY(maskedMix({}, 1.0, picture, 1.0, {}).isNull());
        QVERIFY(maskedMix(picture, 1.0, {}, 1.0, {}).isNull());
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
