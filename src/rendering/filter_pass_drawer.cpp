#include "rendering/filter_pass_drawer.h"

#include "base/memory_tuning.h"
#include "rendering/image_transfer.h"
#include "rendering/rendering_log.h"
#include "rendering/shader_stage.h"

#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr GLuint kFilterUniformBinding = 1;
constexpr GLint kFloatsPerVertex = 2;
constexpr GLsizei kQuadVertices = 4;
constexpr GLfloat kQuad[kQuadVertices * kFloatsPerVertex] = {-1, -1, 1, -1, -1, 1, 1, 1}; // a triangle strip

QString quadVertexResource()
{
    return u":/zelmoraatelier/shaders/filter-utils/quad.vert.qsb"_s;
}

/// Where a field lies: under its bare name, or inside one of the structs that the program may have made of its block.
int fieldLocation(OpenGLProgram &program, const QByteArray &field, const QList<QByteArray> &prefixes)
{
    int location = program.uniformLocation(field);
    for (qsizetype i = 0; location < 0 && i < prefixes.size(); ++i)
        location = program.uniformLocation(prefixes[i] + '.' + field);
    return location;
}

/// Ties sampler i to texture unit i; false when the program lacks one.
bool assignSamplers(OpenGLProgram &program, const QList<QByteArray> &samplers)
{
    if (samplers.isEmpty())
        return true;
    if (!program.bind())
        return false;
    bool complete = true;
    for (qsizetype i = 0; i < samplers.size(); ++i)
        complete = program.setUniformValue(program.uniformLocation(samplers[i]), int(i)) && complete;
    program.release();
    return complete;
}

} // namespace

FilterPassDrawer::FilterPassDrawer(OffscreenContext &context, const FilterShaderCatalog &catalog)
    : m_context(context)
    , m_catalog(catalog)
{
}

FilterPassDrawer::~FilterPassDrawer()
{
    if (!m_context.exists())
        return;
    const CurrentContext current(m_context);
    if (current) {
        const GLuint buffers[] = {m_quadVertexBuffer, m_filterUniformBuffer};
        functions()->glDeleteBuffers(std::size(buffers), buffers);
        functions()->glDeleteVertexArrays(1, &m_quadVertexArray);
    }
    for (auto &pixel : m_pixels)
        pixel.reset();
    m_filterPrograms.clear();
}

OpenGLProgram *FilterPassDrawer::filterProgram(const QString &shaderId)
{
    FilterProgramEntry &entry = m_filterPrograms[shaderId];
    if (entry.program)
        return entry.program.get();
    if (entry.failed)
        return nullptr;

    const FilterShaderDescriptor *descriptor = m_catalog.find(shaderId);
    if (descriptor && loadEntry(*descriptor, entry))
        return entry.program.get();

    const QByteArray prefixes = entry.program ? entry.program->uniformPrefixes().join(", ") : "<none>"_ba;
    qCWarning(lcTexture) << "Shader interface mismatch for filter utility" << shaderId << "uniform prefixes"
                         << prefixes;
    entry = FilterProgramEntry();
    entry.failed = true;
    return nullptr;
}

bool FilterPassDrawer::loadEntry(const FilterShaderDescriptor &descriptor, FilterProgramEntry &entry)
{
    entry.program = loadProgram(descriptor.label, quadVertexResource(), descriptor.fragmentResource,
                                m_context.context(), functions());
    if (!entry.program)
        return false;
    OpenGLProgram &program = *entry.program;

    QList<QByteArray> candidates;
    for (const QByteArray &name : descriptor.uniformBlockNames)
        appendUniformPrefix(candidates, name);
    for (const QByteArray &prefix : program.uniformPrefixes())
        appendUniformPrefix(candidates, prefix);

    entry.usesUniformBlock = std::any_of(candidates.cbegin(), candidates.cend(), [&](const QByteArray &name) {
        return program.bindUniformBlock(name, kFilterUniformBinding);
    });
    if (!entry.usesUniformBlock) {
        for (const QByteArray &field : descriptor.uniforms)
            entry.uniformLocations.append(fieldLocation(program, field, candidates));
        if (entry.uniformLocations.contains(-1))
            entry.uniformLocations.clear();
    }
    const bool samplersAssigned = assignSamplers(program, descriptor.samplers);
    entry.positionAttribute = program.attributeLocation("a_pos");
    if (entry.positionAttribute < 0)
        entry.positionAttribute = program.attributeLocation("position");

    const bool takesUniforms = !descriptor.uniformBlockNames.isEmpty() || !descriptor.uniforms.isEmpty();
    const bool uniformsFound = entry.usesUniformBlock || entry.uniformLocations.size() == descriptor.uniforms.size();
    return samplersAssigned && entry.positionAttribute >= 0 && (!takesUniforms || uniformsFound);
}

bool FilterPassDrawer::drawPass(const QString &shaderId, std::span<const GLuint> textures,
                                QOpenGLFramebufferObject *target, QByteArrayView uniformBytes, const QRect &area)
{
    OpenGLProgram *program = filterProgram(shaderId);
    if (!program || !target || textures.empty() || std::ranges::find(textures, 0U) != textures.end())
        return false;
    const FilterProgramEntry &entry = m_filterPrograms.at(shaderId);
    createQuad();

    QOpenGLExtraFunctions *gl = functions();
    gl->glBindFramebuffer(GL_FRAMEBUFFER, target->handle());
    const QRect drawn = area.isEmpty() ? QRect({}, target->size()) : area;
    gl->glViewport(drawn.x(), drawn.y(), drawn.width(), drawn.height());
    gl->glDisable(GL_DEPTH_TEST);
    gl->glDisable(GL_BLEND);
    if (!program->bind())
        return false;
    if (!feedUniforms(entry, uniformBytes)) {
        program->release();
        return false;
    }

    for (size_t i = 0; i < textures.size(); ++i) {
        gl->glActiveTexture(GLenum(GL_TEXTURE0 + i));
        gl->glBindTexture(GL_TEXTURE_2D, textures[i]);
    }

    const GLuint attribute = GLuint(entry.positionAttribute);
    gl->glBindVertexArray(m_quadVertexArray);
    gl->glBindBuffer(GL_ARRAY_BUFFER, m_quadVertexBuffer);
    gl->glEnableVertexAttribArray(attribute);
    gl->glVertexAttribPointer(attribute, kFloatsPerVertex, GL_FLOAT, GL_FALSE, 0, nullptr);
    gl->glDrawArrays(GL_TRIANGLE_STRIP, 0, kQuadVertices);
    gl->glDisableVertexAttribArray(attribute);
    gl->glBindBuffer(GL_ARRAY_BUFFER, 0);
    gl->glBindVertexArray(0);

    for (size_t i = textures.size(); i-- > 0;) { // backwards, so that unit 0 stays active
        gl->glActiveTexture(GLenum(GL_TEXTURE0 + i));
        gl->glBindTexture(GL_TEXTURE_2D, 0);
    }
    program->release();
    return true;
}

void FilterPassDrawer::giveMemoryBack()
{
    for (auto &pixel : m_pixels) {
        if (!pixel)
            pixel = createFramebuffer(functions(), {1, 1});
    }
    functions()->glFinish();
    const GLuint name = m_pixels[0] ? m_pixels[0]->texture() : 0;
    drawPass(u"textureCopy"_s, {&name, 1}, m_pixels[1].get());
    functions()->glFinish();
    giveFreedMemoryBack();
}

bool FilterPassDrawer::feedUniforms(const FilterProgramEntry &entry, QByteArrayView uniformBytes)
{
    QOpenGLExtraFunctions *gl = functions();
    if (entry.usesUniformBlock) {
        if (uniformBytes.isEmpty())
            return false;
        gl->glBindBuffer(GL_UNIFORM_BUFFER, m_filterUniformBuffer);
        gl->glBufferData(GL_UNIFORM_BUFFER, uniformBytes.size(), uniformBytes.data(), GL_DYNAMIC_DRAW);
        gl->glBindBufferBase(GL_UNIFORM_BUFFER, kFilterUniformBinding, m_filterUniformBuffer);
        gl->glBindBuffer(GL_UNIFORM_BUFFER, 0);
        return true;
    }
    if (entry.uniformLocations.isEmpty())
        return true;
    if (uniformBytes.size() != entry.uniformLocations.size() * kUniformVec4Bytes)
        return false;
    const char *data = uniformBytes.data();
    for (const int location : entry.uniformLocations) {
        UniformVec4 value;
        std::memcpy(value.data(), data, sizeof(value));
        entry.program->setUniformValue(location, value);
        data += sizeof(value);
    }
    return true;
}

void FilterPassDrawer::createQuad()
{
    if (m_quadVertexArray != 0)
        return;
    QOpenGLExtraFunctions *gl = functions();
    gl->glGenVertexArrays(1, &m_quadVertexArray);
    gl->glGenBuffers(1, &m_quadVertexBuffer);
    gl->glGenBuffers(1, &m_filterUniformBuffer);
    gl->glBindBuffer(GL_ARRAY_BUFFER, m_quadVertexBuffer);
    gl->glBufferData(GL_ARRAY_BUFFER, sizeof(kQuad), kQuad, GL_STATIC_DRAW);
    gl->glBindBuffer(GL_ARRAY_BUFFER, 0);
}

} // namespace zm
