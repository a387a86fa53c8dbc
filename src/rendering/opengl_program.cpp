#include "rendering/opengl_program.h"

#include "rendering/shader_stage.h"
#include "services/user_notification_center.h"

#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Q_LOGGING_CATEGORY(lcProgram, "zelmoraatelier.rendering.opengl.program")

constexpr int kShaderErrorDurationMs = 3500;

/// The details go to the log; the user learns which program failed.
void reportFailure(const QString &title, const QString &programName, const QString &detail)
{
    qCWarning(lcProgram).noquote() << title << "for" << programName + u'\n' + detail;
    UserNotificationCenter::post(OpenGLProgram::tr("Shader error"), programName, 0, kShaderErrorDurationMs);
}

QString logOr(const QString &log, const QString &placeholder)
{
    const QString trimmed = log.trimmed();
    return trimmed.isEmpty() ? placeholder : trimmed;
}

bool compileStage(QOpenGLShaderProgram &program, QOpenGLShader::ShaderType type, const LoadedShaderStage &stage,
                  const QString &resource, const QString &programName)
{
    if (program.addShaderFromSourceCode(type, stage.code))
        return true;
    const bool isVertex = type == QOpenGLShader::Vertex;
    const QString detail =
        OpenGLProgram::tr("Program: %1\nStage: %2\nResource: %3\nTarget: %4\nLog:\n%5")
            .arg(programName, isVertex ? OpenGLProgram::tr("vertex") : OpenGLProgram::tr("fragment"), resource,
                 stage.targetLabel.isEmpty() ? OpenGLProgram::tr("<none>") : stage.targetLabel,
                 logOr(program.log(), OpenGLProgram::tr("<empty compiler log>")));
    reportFailure(isVertex ? OpenGLProgram::tr("Vertex shader compilation failed")
                           : OpenGLProgram::tr("Fragment shader compilation failed"),
                  programName, detail);
    return false;
}

} // namespace

OpenGLProgram::OpenGLProgram(const QString &name, std::unique_ptr<QOpenGLShaderProgram> program,
                             QOpenGLExtraFunctions *functions, const QList<QByteArray> &uniformPrefixes)
    : m_name(name)
    , m_program(std::move(program))
    , m_functions(functions)
    , m_uniformPrefixes(uniformPrefixes)
{
}

bool OpenGLProgram::bind()
{
    return m_program && m_program->bind();
}

void OpenGLProgram::release()
{
    if (m_program)
        m_program->release();
}

int OpenGLProgram::uniformLocation(const QByteArray &name)
{
    if (!m_program)
        return -1;
    const auto known = m_uniformLocations.constFind(name);
    if (known != m_uniformLocations.cend())
        return *known;
    return *m_uniformLocations.insert(name, m_program->uniformLocation(name.constData()));
}

int OpenGLProgram::attributeLocation(const QByteArray &name)
{
    if (!m_program)
        return -1;
    const auto known = m_attributeLocations.constFind(name);
    if (known != m_attributeLocations.cend())
        return *known;
    return *m_attributeLocations.insert(name, m_program->attributeLocation(name.constData()));
}

bool OpenGLProgram::bindUniformBlock(const QByteArray &name, unsigned bindingPoint)
{
    if (!m_program || !m_functions || name.isEmpty())
        return false;
    auto known = m_uniformBlockIndices.constFind(name);
    if (known == m_uniformBlockIndices.cend()) {
        const unsigned index = m_functions->glGetUniformBlockIndex(m_program->programId(), name.constData());
        known = m_uniformBlockIndices.insert(name, index);
    }
    if (*known == GL_INVALID_INDEX)
        return false;
    m_functions->glUniformBlockBinding(m_program->programId(), *known, bindingPoint);
    return true;
}

bool OpenGLProgram::setUniformValue(int location, const UniformVec4 &value)
{
    if (location < 0 || !m_program)
        return false;
    const auto known = m_vec4UniformValues.constFind(location);
    if (known != m_vec4UniformValues.cend() && *known == value)
        return true;
    m_program->setUniformValue(location, value[0], value[1], value[2], value[3]);
    m_vec4UniformValues.insert(location, value);
    return true;
}

bool OpenGLProgram::setUniformValue(int location, int value)
{
    if (location < 0 || !m_program)
        return false;
    const auto known = m_intUniformValues.constFind(location);
    if (known != m_intUniformValues.cend() && *known == value)
        return true;
    m_program->setUniformValue(location, value);
    m_intUniformValues.insert(location, value);
    return true;
}

std::unique_ptr<OpenGLProgram> loadProgram(const QString &name, const QString &vertexResource,
                                           const QString &fragmentResource, const QOpenGLContext &context,
                                           QOpenGLExtraFunctions *functions)
{
    QStringList errors;
    const auto load = [&](const QString &resource) {
        Error error;
        const LoadedShaderStage stage = loadShaderStage(resource, context, error);
        if (stage.code.isEmpty())
            errors.append(error.message());
        return stage;
    };
    const LoadedShaderStage vertex = load(vertexResource);
    const LoadedShaderStage fragment = load(fragmentResource);
    if (!errors.isEmpty()) {
        reportFailure(OpenGLProgram::tr("Unable to load shader"), name, errors.join(u'\n'));
        return nullptr;
    }

    auto program = std::make_unique<QOpenGLShaderProgram>();
    if (!compileStage(*program, QOpenGLShader::Vertex, vertex, vertexResource, name)
        || !compileStage(*program, QOpenGLShader::Fragment, fragment, fragmentResource, name))
        return nullptr;
    if (!program->link()) {
        const QString detail = OpenGLProgram::tr("Program: %1\nVertex target: %2\nFragment target: %3\nLog:\n%4")
                                   .arg(name, vertex.targetLabel, fragment.targetLabel,
                                        logOr(program->log(), OpenGLProgram::tr("<empty linker log>")));
        reportFailure(OpenGLProgram::tr("Shader link failed"), name, detail);
        return nullptr;
    }

    QList<QByteArray> prefixes = vertex.uniformPrefixes;
    for (const QByteArray &prefix : fragment.uniformPrefixes)
        appendUniformPrefix(prefixes, prefix);
    qCDebug(lcProgram) << "Loaded shader program" << name << "vertex target" << vertex.targetLabel << "fragment target"
                       << fragment.targetLabel;
    return std::make_unique<OpenGLProgram>(name, std::move(program), functions, prefixes);
}

} // namespace zm
