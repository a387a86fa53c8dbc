#include "rendering_support.h"

#include "application/user_notification_center.h"
#include "rendering/filter_shader_catalog.h"
#include "rendering/offscreen_context.h"
#include "rendering/opengl_program.h"
#include "rendering/shader_stage.h"

#include <QDirIterator>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLExtraFunctions>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

const auto kQuad = u":/zelmoraatelier/shaders/filter-utils/quad.vert.qsb"_s;
const auto kGaussian = u":/zelmoraatelier/shaders/filter-utils/util_gaussian_blur.frag.qsb"_s;

} // namespace

class TestShaderPackages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!m_context.ensureContext())
            QSKIP("This machine gives no OpenGL 3.3 context.");
        QVERIFY(m_folder.isValid());
    }

    void init() { QVERIFY(m_context.makeCurrent()); }
    void cleanup() { m_context.doneCurrent(); }

    void everyPackageHoldsExactlyTwoTargets()
    {
        const QSet<QShaderKey> expected = {
            QShaderKey(QShader::GlslShader, QShaderVersion(300, QShaderVersion::GlslEs)),
            QShaderKey(QShader::GlslShader, QShaderVersion(330)),
        };
        QStringList found;
        QDirIterator files(u":/zelmoraatelier/shaders"_s, {u"*.qsb"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            const QList<QShaderKey> keys = QShader::fromSerialized(bytes).availableShaders();
            QCOMPARE(QSet<QShaderKey>(keys.cbegin(), keys.cend()), expected);
            QDataStream stream(qUncompress(bytes));
            qint32 version = 0;
            stream >> version;
            QCOMPARE(version, 9);
            found.append(file.fileName());
        }
        QVERIFY(found.contains(kQuad));
        for (const FilterShaderDescriptor &descriptor : FilterShaderCatalog::instance().descriptors())
            QVERIFY2(found.contains(descriptor.fragmentResource), qPrintable(descriptor.fragmentResource));
    }

    void contextGetsItsVariant_data()
    {
        QTest::addColumn<bool>("embedded");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("desktop") << false << u"GLSL 330"_s << "#version 330\n"_ba;
        QTest::newRow("OpenGL ES") << true << u"GLSL 300 es"_s << "#version 300 es\n"_ba;
    }

    void contextGetsItsVariant()
    {
        QFETCH(bool, embedded);
        QFETCH(QString, label);
        QFETCH(QByteArray, head);
        QOpenGLContext context;
        QSurfaceFormat format = m_context.context().format();
        if (embedded) {
            if (QGuiApplication::platformName() == u"offscreen"_s)
                QSKIP("Qt's offscreen platform knows no OpenGL ES and ends the program when asked.");
            format.setRenderableType(QSurfaceFormat::OpenGLES);
            format.setProfile(QSurfaceFormat::NoProfile);
            format.setVersion(3, 0);
        }
        context.setFormat(format);
        if (!context.create() || context.isOpenGLES() != embedded)
            QSKIP("This machine gives no context of this kind.");
        QString error;
        const LoadedShaderStage stage = loadShaderStage(kGaussian, context, error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(stage.targetLabel, label);
        QVERIFY(stage.code.startsWith(head));
        // The instance of the struct comes first: its fields are what a lookup by name finds.
        QCOMPARE(stage.uniformPrefixes.size(), 2);
        QCOMPARE(stage.uniformPrefixes.at(1), "GaussianBlurUniforms"_ba);
    }

    void unreadablePackageIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        QFile gaussian(kGaussian);
        QVERIFY(gaussian.open(QIODevice::ReadOnly));
        const QByteArray good = gaussian.readAll();
        const QString invalid = u"Invalid serialized QSB shader: %1"_s;
        const QString noVariant = u"No compatible GLSL variant in %1. Tried: GLSL 330, GLSL 150, GLSL 120"_s;
        QTest::newRow("missing file") << QByteArray() << u"Could not open %1: No such file or directory"_s;
        QTest::newRow("not a package") << "not a package"_ba << invalid;
        QTest::newRow("cut in the middle") << good.first(good.size() / 2) << invalid;
        QTest::newRow("only a newer version")
            << shaderPackage(QShader::FragmentStage, "#version 460", QShaderVersion(460)) << noVariant;
        QTest::newRow("only for OpenGL ES")
            << shaderPackage(QShader::FragmentStage, "#version 300 es", QShaderVersion(300, QShaderVersion::GlslEs))
            << noVariant;
    }

    void unreadablePackageIsTold()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        const QString path = m_folder.filePath(u"unreadable.qsb"_s);
        QFile::remove(path);
        if (!bytes.isEmpty())
            QVERIFY(writeFile(path, bytes));
        QString told;
        QVERIFY(loadShaderStage(path, m_context.context(), told).code.isEmpty());
        QCOMPARE(told, error.arg(path));
    }

    void olderVariantServesWhenTheBestIsMissing()
    {
        const QString path = m_folder.filePath(u"old.qsb"_s);
        QVERIFY(writeFile(path, shaderPackage(QShader::FragmentStage, "#version 120", QShaderVersion(120))));
        QString error;
        QCOMPARE(loadShaderStage(path, m_context.context(), error).targetLabel, u"GLSL 120"_s);
    }

    void twoUnreadableStagesAreOneReport()
    {
        const RenderingWarnings warnings;
        QSignalSpy toasts(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        QVERIFY(!loadProgram(u"Ghost"_s, u":/a"_s, u":/b"_s, m_context.context(), m_context.functions()));
        QCOMPARE(warnings.messages(),
                 QStringList{u"Unable to load shader for Ghost\nCould not open :/a: No such file or directory\n"
                             "Could not open :/b: No such file or directory"_s});
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(toasts.first(), (QVariantList{u"Shader error"_s, u"Ghost"_s, 0, 3500, false}));
    }

    void brokenProgramIsReported_data()
    {
        QTest::addColumn<QByteArray>("vertex");
        QTest::addColumn<QByteArray>("fragment");
        QTest::addColumn<QString>("report");
        const QByteArray vertex = "#version 330\nin vec2 a_pos; void main() { gl_Position = vec4(a_pos, 0, 1); }";
        const QByteArray fragment = "#version 330\nout vec4 c; void main() { c = vec4(1); }";
        QTest::newRow("vertex stage does not compile")
            << "#version 330\nnonsense"_ba << fragment
            << u"Vertex shader compilation failed for Odd\nProgram: Odd\nStage: vertex\nResource: %1\nTarget: GLSL 330\nLog:\n"_s;
        QTest::newRow("fragment stage does not compile")
            << vertex << "#version 330\nnonsense"_ba
            << u"Fragment shader compilation failed for Odd\nProgram: Odd\nStage: fragment\nResource: %2\nTarget: GLSL 330\nLog:\n"_s;
        QTest::newRow("stages do not fit")
            << vertex << "#version 330\nvec4 missing(); out vec4 c; void main() { c = missing(); }"_ba
            << u"Shader link failed for Odd\nProgram: Odd\nVertex target: GLSL 330\nFragment target: GLSL 330\nLog:\n"_s;
    }

    void brokenProgramIsReported()
    {
        QFETCH(QByteArray, vertex);
        QFETCH(QByteArray, fragment);
        QFETCH(QString, report);
        const QString vertexPath = m_folder.filePath(u"odd.vert.qsb"_s);
        const QString fragmentPath = m_folder.filePath(u"odd.frag.qsb"_s);
        QVERIFY(writeFile(vertexPath, shaderPackage(QShader::VertexStage, vertex)));
        QVERIFY(writeFile(fragmentPath, shaderPackage(QShader::FragmentStage, fragment)));
        const RenderingWarnings warnings;
        QSignalSpy toasts(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        QVERIFY(!loadProgram(u"Odd"_s, vertexPath, fragmentPath, m_context.context(), m_context.functions()));
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(warnings.messages().size(), 1);
        const QString message = warnings.messages().first();
        const QString expected = report.contains(u'%') ? report.replace(u"%1"_s, vertexPath).replace(u"%2"_s, fragmentPath)
                                                       : report;
        QVERIFY2(message.startsWith(expected), qPrintable(message));
        QVERIFY(message.size() > expected.size()); // the compiler's words follow
    }

    void namesAreReportedAsTheProgramHasThem()
    {
        const auto program = gaussianProgram();
        QVERIFY(program);
        QCOMPARE(program->attributeLocation("a_pos"), 0);
        QCOMPARE(program->attributeLocation("position"), -1);
        QCOMPARE(program->uniformLocation("u_sigmaRadius"), -1);
        QVERIFY(program->uniformLocation(program->uniformPrefixes().first() + ".u_sigmaRadius") >= 0);
        for (int round = 0; round < 2; ++round) // the second answer comes from the cache
            QVERIFY(!program->bindUniformBlock("GaussianBlurUniforms", 1));
        QVERIFY(!program->bindUniformBlock({}, 1));
    }

    void repeatedValueDoesNotReachTheDriver()
    {
        const auto program = gaussianProgram();
        QVERIFY(program && program->bind());
        QOpenGLExtraFunctions *gl = m_context.functions();
        GLint id = 0;
        gl->glGetIntegerv(GL_CURRENT_PROGRAM, &id);
        const int location = program->uniformLocation(program->uniformPrefixes().first() + ".u_sigmaRadius");
        const auto inDriver = [&] {
            UniformVec4 value;
            gl->glGetUniformfv(GLuint(id), location, value.data());
            return value;
        };
        const UniformVec4 first = {1, 2, 3, 4};
        const UniformVec4 second = {1, 2, 3, 5};
        const UniformVec4 behindItsBack = {9, 9, 9, 9};
        QVERIFY(program->setUniformValue(location, first));
        QCOMPARE(inDriver(), first);
        gl->glUniform4fv(location, 1, behindItsBack.data());
        QVERIFY(program->setUniformValue(location, first));
        QCOMPARE(inDriver(), behindItsBack);
        QVERIFY(program->setUniformValue(location, second));
        QCOMPARE(inDriver(), second);
        QVERIFY(program->setUniformValue(location, first));
        QCOMPARE(inDriver(), first);
        QVERIFY(!program->setUniformValue(-1, first));
        program->release();
    }

    void emptyProgramAnswersNo()
    {
        OpenGLProgram program(u"Nothing"_s, nullptr, m_context.functions(), {});
        QVERIFY(!program.bind());
        program.release();
        QCOMPARE(program.uniformLocation("u_input"), -1);
        QCOMPARE(program.attributeLocation("a_pos"), -1);
        QVERIFY(!program.bindUniformBlock("LibraryUniforms", 1));
        QVERIFY(!program.setUniformValue(0, 1));
    }

private:
    std::unique_ptr<OpenGLProgram> gaussianProgram()
    {
        return loadProgram(u"Gaussian"_s, kQuad, kGaussian, m_context.context(), m_context.functions());
    }

    QTemporaryDir m_folder;
    OffscreenContext m_context;
};

QTEST_MAIN(TestShaderPackages)
#include "tst_shader_packages.moc"
