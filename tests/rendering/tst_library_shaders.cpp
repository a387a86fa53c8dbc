#include "filters/library_uniform_block.h"
#include "rendering/library_shader_rows.h"
#include "rendering/opengl_texture_renderer.h"
#include "rendering_support.h"
#include "support/pictures.h"

#include <QColorSpace>
#include <QColorTransform>
#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

using Rgb = std::array<double, 3>;

const QList<QColor> kColors{Qt::black,      Qt::white,    Qt::red,        Qt::green,     Qt::blue,      {128, 128, 128},
                            {250, 180, 20}, {20, 60, 90}, {200, 40, 160}, {7, 250, 130}, {90, 80, 230}, {60, 30, 10}};

QImage palette()
{
    QImage picture(int(kColors.size()), 1, QImage::Format_RGBA8888);
    for (int x = 0; x < picture.width(); ++x)
        picture.setPixelColor(x, 0, kColors.at(x));
    return picture;
}

Rgb parts(const QColor &color)
{
    return {color.redF(), color.greenF(), color.blueF()};
}

Rgb linearParts(const QColor &color)
{
    const QColorSpace encoded(QColorSpace::SRgb);
    return parts(encoded.transformationToColorSpace(QColorSpace::SRgbLinear).map(color));
}

} // namespace

class TestLibraryShaders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_catalog = std::make_unique<FilterShaderCatalog>(
            FilterShaderCatalog::instance().descriptors()
            + QList<FilterShaderDescriptor>{{u"fx/snippets"_s,
                                             u"snippets"_s,
                                             u":/test-shaders/library_snippets.frag.qsb"_s,
                                             {"u_input"},
                                             {"LibraryUniforms"},
                                             {"u_param0"}}});
        m_renderer = std::make_unique<OpenGLTextureRenderer>(*m_catalog);
    }

    void namesHavePositions()
    {
        QCOMPARE(libraryShaderRows().size(), 90);
        QSet<QLatin1StringView> ids;
        for (const LibraryShaderRow &row : libraryShaderRows()) {
            ids.insert(row.id);
            QCOMPARE(findLibraryShader(QString(row.id)), &row);
            for (const QList<QLatin1StringView> &names : {row.samplers, row.fields}) {
                QCOMPARE(QSet<QLatin1StringView>(names.cbegin(), names.cend()).size(), names.size());
                for (const QLatin1StringView name : names)
                    QVERIFY2(name.startsWith("u_"_L1), name.latin1());
            }
        }
        QCOMPARE(ids.size(), 90);
        QVERIFY(!findLibraryShader(u"fx/bevel"));
        QCOMPARE(findLibraryShader(u"relight")->fieldPosition("u_lightShape7"_L1), 24);
    }

    /// A shader that does not declare exactly what its row says would get values meant for other fields.
    void packagesDeclareWhatTheirRowsSay()
    {
        const QDir folder(u":/zelmoraatelier/shaders/library"_s);
        for (const QString &name : folder.entryList({u"*.frag.qsb"_s})) {
            const QString id = name.chopped(9);
            if (id == "pixel-drift-rank"_L1) // has a vertex stage of its own, and no row
                continue;
            const LibraryShaderRow *row = findLibraryShader(id);
            QVERIFY2(row, qPrintable(id));
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QShaderDescription description = QShader::fromSerialized(file.readAll()).description();
            QStringList samplers;
            for (const QShaderDescription::InOutVariable &sampler : description.combinedImageSamplers())
                samplers.append(QString::fromLatin1(sampler.name));
            samplers.sort();
            QStringList expected(row->samplers.cbegin(), row->samplers.cend());
            expected.sort();
            QVERIFY2(samplers == expected, qPrintable(id));
            const QList<QShaderDescription::UniformBlock> blocks = description.uniformBlocks();
            QVERIFY2(blocks.size() == (row->fields.isEmpty() ? 0 : 1), qPrintable(id));
            if (blocks.isEmpty())
                continue;
            QCOMPARE(blocks.first().blockName, "LibraryUniforms"_ba);
            QVERIFY2(blocks.first().members.size() == row->fields.size(), qPrintable(id));
            for (qsizetype i = 0; i < row->fields.size(); ++i) {
                QCOMPARE(blocks.first().members.at(i).name, "u_param"_ba + QByteArray::number(i));
                QCOMPARE(blocks.first().members.at(i).type, QShaderDescription::Vec4);
            }
        }
    }

    /// A name that stood for another position would draw with another control's value.
    void sourcesNameTheirFieldsAsTheirRowsDo()
    {
        static const QRegularExpression definition(u"^#define (u_\\w+) u_param(\\d+)\\b"_s,
                                                   QRegularExpression::MultilineOption);
        const QDir folder(QStringLiteral(LIBRARY_SHADERS));
        const QStringList sources = folder.entryList({u"*.frag"_s});
        QVERIFY(sources.size() > 50);
        for (const QString &name : sources) {
            const LibraryShaderRow *row = findLibraryShader(QStringView(name).chopped(5));
            if (!row) // of pixel-drift-rank
                continue;
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString source = QString::fromUtf8(file.readAll());
            QStringList names;
            for (const QRegularExpressionMatch &match : definition.globalMatch(source)) {
                QCOMPARE(match.captured(2).toInt(), names.size());
                names.append(match.captured(1));
            }
            QCOMPARE(names, QStringList(row->fields.cbegin(), row->fields.cend()));
            // Beyond the block and the names nothing speaks of positions.
            QVERIFY2(source.lastIndexOf("u_param"_L1) <= source.indexOf("\n\n"_L1, source.lastIndexOf("#define u_"_L1)),
                     qPrintable(name));
        }
    }

    void blockIsFilledByName()
    {
        LibraryUniformBlock block(u"vignette"_s); // u_strength, u_mask_invert, u_tint
        QCOMPARE(block.bytes(), QByteArray(3 * kUniformVec4Bytes, '\0'));
        block.setVec4("u_strength"_L1, 1, 2, 3, 4);
        block.setFloat("u_strength"_L1, 0.25);
        block.setVec4("u_mask_invert"_L1, 1, 2, 3, 4);
        block.setVec2("u_mask_invert"_L1, 7, 8);
        block.setColor("u_tint"_L1, QColor(255, 0, 51, 10));
        QCOMPARE(block.bytes(), uniformBytes({{0.25F, 2, 3, 4}, {7, 8, 0, 0}, {1, 0, QColor(0, 0, 51).blueF(), 0}}));
        block.setColor("u_tint"_L1, QColor());
        QCOMPARE(block.bytes().last(kUniformVec4Bytes), uniformBytes({{1, 1, 1, 0}}));
        LibraryUniformBlock unknown(u"nowhere"_s);
        unknown.setFloat("u_strength"_L1, 1);
        QCOMPARE(unknown.bytes(), QByteArray());
    }

    void coloursAreConverted()
    {
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        const auto same = [](const QColor &color) { return parts(color); };
        const QList<std::pair<int, std::function<Rgb(const QColor &)>>> cases{
            {0, [](const QColor &c) { return Rgb{std::max(c.hsvHueF(), 0.0F), c.hsvSaturationF(), c.valueF()}; }},
            {1, same},
            {2, [](const QColor &c) { return Rgb{std::max(c.hslHueF(), 0.0F), c.hslSaturationF(), c.lightnessF()}; }},
            {3, same},
            {4, linearParts},
            {5, same},
            {7, same},
        };
        for (const auto &[which, expected] : cases) {
            const QImage result = show(which, palette());
            for (int x = 0; x < result.width(); ++x)
                for (int i = 0; i < 3; ++i) {
                    const double difference = parts(result.pixelColor(x, 0)).at(i) - expected(kColors.at(x)).at(i);
                    QVERIFY2(std::abs(difference) <= 1.2 / 255.0,
                             qPrintable(u"%1 of %2 by %3"_s.arg(which).arg(kColors.at(x).name()).arg(difference)));
                }
        }
        // The primaries, as CSS Color 4 lists them.
        const QImage lab = show(6, palette());
        const QList<Rgb> primaries{{0.628, 0.225, 0.126}, {0.866, -0.234, 0.179}, {0.452, -0.032, -0.312}};
        for (int i = 0; i < 3; ++i) {
            const Rgb got = parts(lab.pixelColor(2 + i, 0));
            for (int part = 0; part < 3; ++part)
                QCOMPARE_LE(std::abs(got.at(part) - (part > 0 ? 0.5 : 0.0) - primaries.at(i).at(part)), 1.2 / 255.0);
        }
    }

    void noiseIsEvenAndSeeded()
    {
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        const QImage canvas = plainPicture(256, 256, Qt::white);
        for (const int which : {10, 11, 12, 13, 14, 15}) {
            const QImage noise = show(which, canvas, 3.0F);
            QCOMPARE(show(which, canvas, 3.0F), noise);
            QVERIFY(show(which, canvas, 4.0F) != noise);
            double sum = 0.0;
            double squares = 0.0;
            int step = 0;
            for (int y = 0; y < 256; ++y)
                for (int x = 1; x < 256; ++x) {
                    const int value = qRed(noise.pixel(x, y));
                    sum += value / 255.0;
                    squares += std::pow(value / 255.0, 2.0);
                    step = std::max(step, std::abs(value - qRed(noise.pixel(x - 1, y))));
                }
            const double mean = sum / (256 * 255);
            const double deviation = std::sqrt(squares / (256 * 255) - mean * mean);
            QCOMPARE_LE(std::abs(mean - 0.5), 0.02);
            if (which < 12) // white noise: a flat distribution over 0..1
                QCOMPARE_LE(std::abs(deviation - std::sqrt(1.0 / 12.0)), 0.01);
            else
                QVERIFY(deviation > 0.08 && step < 90); // forms of eight pixels, without seams between cells
        }
    }

    void cellsAreConsistent()
    {
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        const QImage canvas = plainPicture(256, 256, Qt::white);
        QCOMPARE(show(30, canvas, 5.0F), canvas);
        const QImage shapes = show(31, canvas, 5.0F);
        QVERIFY(!shapes.isNull());
        QSet<int> borders;
        for (int x = 0; x < 256; ++x)
            borders.insert(qRed(shapes.pixel(x, 100)));
        QVERIFY(borders.contains(0) && borders.contains(255));
    }

    void hiddenColoursNeverShow()
    {
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        QImage picture = plainPicture(16, 16, QColor(0, 255, 0, 0));
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 8; ++x)
                picture.setPixelColor(x, y, QColor(255, 0, 0));
        const QImage smooth = show(20, picture, 0.0F, 0.4F / 16);
        QCOMPARE(smooth.pixelColor(7, 4), QColor(255, 0, 0, 153)); // a shift of 0.4 leaves 0.6 of it
        const QImage opaque = noisePicture(16, 16, 3).convertToFormat(QImage::Format_RGBX8888);
        QCOMPARE_LE(maximumDifference(show(20, opaque), opaque), 1);
        QCOMPARE_LE(maximumDifference(show(21, opaque), opaque), 1); // passes through the pixels
        for (int x = 0; x < 16; ++x)
            QCOMPARE(qGreen(smooth.pixel(x, 8)), 0);
    }

    void directionsFollowContours()
    {
        if (m_renderer->maximumTextureSize() == 0)
            QSKIP("This machine gives no OpenGL 3.3 context.");
        for (const double angle : {0.0, 0.4, 1.2, 2.0, 2.9}) {
            QImage waves(64, 64, QImage::Format_RGBA8888);
            for (int y = 0; y < 64; ++y)
                for (int x = 0; x < 64; ++x) {
                    const double across = x * std::cos(angle) + y * std::sin(angle);
                    const int grey = int(std::lround(127.5 + 120.0 * std::sin(0.15 * across)));
                    waves.setPixelColor(x, y, QColor(grey, grey, grey));
                }
            const QImage directions = show(22, waves);
            const QImage gradients = show(23, waves);
            for (int i = 4; i < 60; ++i) {
                const Rgb direction = parts(directions.pixelColor(i, 63 - i));
                const double x = 2.0 * direction[0] - 1.0;
                const double y = 2.0 * direction[1] - 1.0;
                QCOMPARE_LE(std::abs(x * std::cos(angle) + y * std::sin(angle)), 0.08); // eight bits, twice
                QVERIFY(direction[2] > 0.9);
                const Rgb gradient = parts(gradients.pixelColor(i, i));
                const double slope = std::cos(0.15 * i * (std::cos(angle) + std::sin(angle)));
                if (std::abs(slope) > 0.3)
                    QVERIFY(slope
                                * ((2.0 * gradient[0] - 1.0) * std::cos(angle)
                                   + (2.0 * gradient[1] - 1.0) * std::sin(angle))
                            > std::abs(slope) * 0.95);
            }
        }
    }

private:
    /// What a snippet makes of the picture.
    QImage show(int which, const QImage &picture, float seed = 0.0F, float shift = 0.0F)
    {
        return m_renderer->renderFilterShader(u"snippets"_s, picture.size(), {picture},
                                              uniformBytes({{float(which), seed, shift, 0.0F}}), {});
    }

    std::unique_ptr<FilterShaderCatalog> m_catalog;
    std::unique_ptr<OpenGLTextureRenderer> m_renderer;
};

QTEST_MAIN(TestLibraryShaders)
#include "tst_library_shaders.moc"
