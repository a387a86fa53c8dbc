#pragma once

#include "base/error.h"

#include <QByteArray>
#include <QList>
#include <QString>

class QOpenGLContext;

namespace zm {

/// One stage of a shader package, as GLSL text for a context.
struct LoadedShaderStage
{
    QByteArray code;                   ///< GLSL source; empty means that the read failed
    QList<QByteArray> uniformPrefixes; ///< names under which the uniform data may be reached, without duplicates
    QString targetLabel;               ///< the chosen variant, such as "GLSL 330"
};

/// Appends `name` unless it is empty or already there.
void appendUniformPrefix(QList<QByteArray> &prefixes, const QByteArray &name);

/// Reads the package at `resourcePath` (the serialized form of QShader) and picks the first GLSL variant that suits
/// `context`. A failure leaves `code` empty.
LoadedShaderStage loadShaderStage(const QString &resourcePath, const QOpenGLContext &context, Error &error);

} // namespace zm
