#pragma once

#include "rendering/uniform_bytes.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QOpenGLShaderProgram>
#include <QString>

#include <memory>

class QOpenGLContext;
class QOpenGLExtraFunctions;

namespace zm {

/// A linked program with what was learned about it, so that a repeated pass asks and sets nothing twice. Belongs to one
/// context: used and destroyed with that context current.
class OpenGLProgram
{
    Q_DECLARE_TR_FUNCTIONS(OpenGLProgram)

public:
    /// `name` is shown to people; `functions` are those of the context in which `program` was linked.
    OpenGLProgram(const QString &name, std::unique_ptr<QOpenGLShaderProgram> program, QOpenGLExtraFunctions *functions,
                  const QList<QByteArray> &uniformPrefixes);

    const QString &name() const { return m_name; }

    /// Names under which uniform data may be reached: of the vertex stage, then of the fragment stage.
    const QList<QByteArray> &uniformPrefixes() const { return m_uniformPrefixes; }

    bool bind();
    void release();

    /// Negative when the program has no such uniform or attribute.
    int uniformLocation(const QByteArray &name);
    int attributeLocation(const QByteArray &name);

    /// False when `name` is not a real uniform block of the program.
    bool bindUniformBlock(const QByteArray &name, unsigned bindingPoint);

    /// False for a negative location. The program must be bound.
    bool setUniformValue(int location, const UniformVec4 &value);
    bool setUniformValue(int location, int value);

private:
    QString m_name;
    std::unique_ptr<QOpenGLShaderProgram> m_program;
    QOpenGLExtraFunctions *m_functions;
    QList<QByteArray> m_uniformPrefixes;
    QHash<QByteArray, int> m_uniformLocations;
    QHash<QByteArray, int> m_attributeLocations;
    QHash<QByteArray, unsigned> m_uniformBlockIndices;
    QHash<int, int> m_intUniformValues;
    QHash<int, UniformVec4> m_vec4UniformValues;
};

/// Links the two packages into a program, with `context` current. A failure gives null, tells the user "Shader error"
/// with `name`, and leaves the details in the log.
std::unique_ptr<OpenGLProgram> loadProgram(const QString &name, const QString &vertexResource,
                                           const QString &fragmentResource, const QOpenGLContext &context,
                                           QOpenGLExtraFunctions *functions);

} // namespace zm
