#pragma once

#include <QByteArray>
#include <QImage>
#include <QStringList>
#include <rhi/qshader.h>

namespace zm::test {

/// Collects the warnings of the rendering categories while it lives; everything else goes on to QtTest.
class RenderingWarnings
{
public:
    RenderingWarnings();
    ~RenderingWarnings();
    Q_DISABLE_COPY_MOVE(RenderingWarnings)

    QStringList messages() const;
};

/// A shader package of one stage with the given GLSL for one version, written by hand.
QByteArray shaderPackage(QShader::Stage stage, const QByteArray &glsl,
                         const QShaderVersion &version = QShaderVersion(330));

bool writeFile(const QString &path, const QByteArray &bytes);

} // namespace zm::test
