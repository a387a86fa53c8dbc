#include "rendering_support.h"

#include <QFile>
#include <QRandomGenerator>

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

QImage noisePicture(int width, int height, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage picture(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        uchar *pixel = picture.scanLine(y);
        for (int x = 0; x < width; ++x, pixel += 4) {
            for (int channel = 0; channel < 4; ++channel)
                pixel[channel] = uchar(random.bounded(256));
            if (random.bounded(4) == 0)
                pixel[3] = 0;
        }
    }
    return picture;
}

} // namespace zm::test
