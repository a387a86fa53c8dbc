#include "rendering/offscreen_context.h"
#include "rendering/opengl_program.h"
#include "rendering/shader_stage.h"
#include "rendering_support.h"
#include "services/user_notification_center.h"

#include <QDirIterator>
#include <QGuiApplication>
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
    }

    void init() { QVERIFY(m_context.makeCurrent()); }
    void cleanup() { m_context.doneCurrent(); }

    void everyPackageHoldsExactlyTwoTargets()
    {
        const QSet<QShaderKey> expected = {
            QShaderKey(QShader::GlslShader, QShaderVersion(300, QShaderVersion::GlslEs)),
            QShaderKey(QShader::GlslShader, QShaderVersion(330)),
        };
        QDirIterator files(u":/zelmoraatelier/shaders"_s, {u"*.qsb"_s}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(files.hasNext());
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
        }
    }

    void contextGetsItsVariant_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("desktop") << u"GLSL 330"_s << "#version 330\n"_ba;
        QTest::newRow("OpenGL ES") << u"GLSL 300 es"_s << "#version 300 es\n"_ba;
    }

    void contextGetsItsVariant()
    {
        QFETCH(QByteArray, head);
        const bool embedded = head.contains("es");
        QSurfaceFormat format = m_context.context().format();
        if (embedded) {
            if (QGuiApplication::platformName() == u"offscreen"_s)
                QSKIP("Qt's offscreen platform knows no OpenGL ES and ends the program when asked.");
            format.setRenderableType(QSurfaceFormat::OpenGLES);
            format.setProfile(QSurfaceFormat::NoProfile);
            format.setVersion(3, 0);
        }
        QOpenGLContext context;
        context.setFormat(format);
        if (!context.create() || context.isOpenGLES() != embedded)
            QSKIP("This machine gives no context of this kind.");
        Error error;
        const LoadedShaderStage stage = loadShaderStage(kGaussian, context, error);
        QCOMPARE(error.message(), QString());
        QTEST(stage.targetLabel, "label");
        QVERIFY(stage.code.startsWith(head));
        // The instance of the struct comes first: its fields are what a lookup by name finds.
        QCOMPARE(stage.uniformPrefixes.size(), 2);
        QCOMPARE(stage.uniformPrefixes.at(1), "GaussianBlurUniforms"_ba);
    }

    void unfitPackageIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("label");
        const auto only = [](int version, QShaderVersion::Flags flags = {}) {
            return shaderPackage(QShader::FragmentStage, "#version", QShaderVersion(version, flags));
        };
        const QString invalid = u"Invalid serialized QSB shader: %1"_s;
        const QString noVariant = u"No compatible GLSL variant in %1. Tried: GLSL 330, GLSL 150, GLSL 120"_s;
        QTest::newRow("missing") << QByteArray() << u"Could not open %1: No such file or directory"_s << QString();
        QTest::newRow("not a package") << "not a package"_ba << invalid << QString();
        QTest::newRow("cut in the middle") << only(330).first(only(330).size() / 2) << invalid << QString();
        QTest::newRow("only newer") << only(460) << noVariant << QString();
        QTest::newRow("only for OpenGL ES") << only(300, QShaderVersion::GlslEs) << noVariant << QString();
        QTest::newRow("older serves") << only(120) << QString() << u"GLSL 120"_s;
    }

    void unfitPackageIsTold()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        const QString path = m_folder.filePath(u"unfit.qsb"_s);
        QVERIFY(bytes.isEmpty() || writeFile(path, bytes));
        Error told;
        const LoadedShaderStage stage = loadShaderStage(path, m_context.context(), told);
        QCOMPARE(told.message(), error.replace(u"%1"_s, path));
        QTEST(stage.targetLabel, "label");
        QCOMPARE(stage.code.isEmpty(), told.isSet());
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
        const QByteArray misfit = "#version 330\nvec4 missing(); out vec4 c; void main() { c = missing(); }";
        const QByteArray nonsense = "#version 330\nnonsense";
        const QString uncompiled = u"%1 shader compilation failed for Odd\nProgram: Odd\nStage: %2\nResource: "_s
            + m_folder.path() + u"/%2.qsb\nTarget: GLSL 330\nLog:\n"_s;
        const QString unlinked =
            u"Shader link failed for Odd\nProgram: Odd\nVertex target: GLSL 330\nFragment target: GLSL 330\nLog:\n"_s;
        QTest::newRow("vertex") << nonsense << misfit << uncompiled.arg(u"Vertex"_s, u"vertex"_s);
        QTest::newRow("fragment") << vertex << nonsense << uncompiled.arg(u"Fragment"_s, u"fragment"_s);
        QTest::newRow("stages do not fit") << vertex << misfit << unlinked;
    }

    void brokenProgramIsReported()
    {
        QFETCH(QByteArray, vertex);
        QFETCH(QByteArray, fragment);
        QFETCH(QString, report);
        const QString vertexPath = m_folder.filePath(u"vertex.qsb"_s);
        const QString fragmentPath = m_folder.filePath(u"fragment.qsb"_s);
        QVERIFY(writeFile(vertexPath, shaderPackage(QShader::VertexStage, vertex)));
        QVERIFY(writeFile(fragmentPath, shaderPackage(QShader::FragmentStage, fragment)));
        const RenderingWarnings warnings;
        QSignalSpy toasts(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        QVERIFY(!loadProgram(u"Odd"_s, vertexPath, fragmentPath, m_context.context(), m_context.functions()));
        QCOMPARE(toasts.size(), 1);
        QCOMPARE(warnings.messages().size(), 1);
        const QString message = warnings.messages().first();
        QVERIFY2(message.startsWith(report), qPrintable(message));
        QVERIFY(message.size() > report.size()); // the compiler's words follow
    }

    void programKnowsItsNamesAndSendsOnlyChangedValues()
    {
        const auto program = loadProgram(u"Gaussian"_s, kQuad, kGaussian, m_context.context(), m_context.functions());
        QVERIFY(program && program->bind());
        QCOMPARE(program->attributeLocation("a_pos"), 0);
        QCOMPARE(program->attributeLocation("position"), -1);
        QCOMPARE(program->uniformLocation("u_sigmaRadius"), -1);
        for (int round = 0; round < 2; ++round) // the second answer comes from the cache
            QVERIFY(!program->bindUniformBlock("GaussianBlurUniforms", 1));

        const int location = program->uniformLocation(program->uniformPrefixes().first() + ".u_sigmaRadius");
        QOpenGLExtraFunctions *gl = m_context.functions();
        GLint id = 0;
        gl->glGetIntegerv(GL_CURRENT_PROGRAM, &id);
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
        QVERIFY(!program->setUniformValue(-1, first));
        program->release();
    }

    void emptyProgramAnswersNo()
    {
        OpenGLProgram program(u"Nothing"_s, nullptr, m_context.functions(), {});
        QVERIFY(!program.bind());
        program.release();
        QCOMPARE(program.uniformLocation("u_input"), -1);
        QVERIFY(!program.bindUniformBlock("LibraryUniforms", 1));
        QVERIFY(!program.setUniformValue(0, 1));
    }

private:
    QTemporaryDir m_folder;
    OffscreenContext m_context;
};

QTEST_MAIN(TestShaderPackages)
#include "tst_shader_packages.moc"
