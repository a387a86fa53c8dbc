#include "rendering_support.h"

#include <QFile>

namespace zm::test {

namespace {

QStringList collected;
QtMessageHandler previousHandler = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg && QByteArrayView(context.category).startsWith("zelmoraatelier.rendering"))
        collected.append(message);
    else if (previousHandler)
        previousHandler(type, context, message);
}

} // namespace

RenderingWarnings::RenderingWarnings()
{
    collected.clear();
    previousHandler = qInstallMessageHandler(collect);
}

RenderingWarnings::~RenderingWarnings()
{
    qInstallMessageHandler(previousHandler);
}

QStringList RenderingWarnings::messages() const
{
    return collected;
}

QByteArray shaderPackage(QShader::Stage stage, const QByteArray &glsl, const QShaderVersion &version)
{
    QShader shader;
    shader.setStage(stage);
    shader.setShader(QShaderKey(QShader::GlslShader, version), QShaderCode(glsl));
    return shader.serialized();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace zm::test
