#include "rendering/shader_stage.h"

#include <QCoreApplication>
#include <QFile>
#include <QOpenGLContext>
#include <QStringList>
#include <rhi/qshader.h>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

struct GlslVariantCandidate
{
    QShaderKey key;
    QString label;
};

/// The variants that a context can compile, the best first.
QList<GlslVariantCandidate> glslVariantCandidates(const QOpenGLContext &context)
{
    const auto candidate = [](int version, QShaderVersion::Flags flags, const QString &label) {
        return GlslVariantCandidate{QShaderKey(QShader::GlslShader, QShaderVersion(version, flags)), label};
    };
    if (context.isOpenGLES()) {
        return {candidate(300, QShaderVersion::GlslEs, u"GLSL 300 es"_s),
                candidate(100, QShaderVersion::GlslEs, u"GLSL 100 es"_s)};
    }
    return {candidate(330, {}, u"GLSL 330"_s), candidate(150, {}, u"GLSL 150"_s), candidate(120, {}, u"GLSL 120"_s)};
}

} // namespace

void appendUniformPrefix(QList<QByteArray> &prefixes, const QByteArray &name)
{
    if (!name.isEmpty() && !prefixes.contains(name))
        prefixes.append(name);
}

LoadedShaderStage loadShaderStage(const QString &resourcePath, const QOpenGLContext &context, Error &error)
{
    QFile file(resourcePath);
    if (!file.open(QIODevice::ReadOnly)) {
        error.fail(QCoreApplication::translate("OpenGLProgram", "Could not open %1: %2")
                       .arg(resourcePath, file.errorString()));
        return {};
    }
    const QShader shader = QShader::fromSerialized(file.readAll());
    if (!shader.isValid()) {
        error.fail(QCoreApplication::translate("OpenGLProgram", "Invalid serialized QSB shader: %1").arg(resourcePath));
        return {};
    }

    LoadedShaderStage stage;
    // Both GLSL targets turn a block into a plain struct uniform, whose instance is what the reflection calls the
    // struct name; the block name serves a package that kept real blocks.
    const QList<QShaderDescription::UniformBlock> blocks = shader.description().uniformBlocks();
    for (const QShaderDescription::UniformBlock &block : blocks) {
        appendUniformPrefix(stage.uniformPrefixes, block.structName);
        appendUniformPrefix(stage.uniformPrefixes, block.blockName);
    }

    QStringList triedLabels;
    const QList<GlslVariantCandidate> candidates = glslVariantCandidates(context);
    for (const GlslVariantCandidate &candidate : candidates) {
        triedLabels.append(candidate.label);
        const QByteArray code = shader.shader(candidate.key).shader();
        if (code.isEmpty())
            continue;
        stage.code = code;
        stage.targetLabel = candidate.label;
        return stage;
    }
    error.fail(QCoreApplication::translate("OpenGLProgram", "No compatible GLSL variant in %1. Tried: %2")
                   .arg(resourcePath, triedLabels.join(u", "_s)));
    return {};
}

} // namespace zm
