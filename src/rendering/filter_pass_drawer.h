#pragma once

#include "rendering/filter_shader_catalog.h"
#include "rendering/offscreen_context.h"
#include "rendering/opengl_program.h"

#include <QByteArrayView>
#include <QList>
#include <QRect>
#include <QString>
#include <qopengl.h>

#include <map>
#include <memory>
#include <span>

class QOpenGLFramebufferObject;

namespace zm {

/// Draws the shaders of a catalogue over whole framebuffers. Programs are linked at first use and kept; one that failed
/// is never tried again. Context and catalogue outlive it.
class FilterPassDrawer
{
public:
    FilterPassDrawer(OffscreenContext &context, const FilterShaderCatalog &catalog);
    ~FilterPassDrawer();
    Q_DISABLE_COPY_MOVE(FilterPassDrawer)

    const FilterShaderCatalog &catalog() const { return m_catalog; }
    QOpenGLExtraFunctions *functions() const { return m_context.functions(); }

    // From here on the context is current.

    /// Links the shader if it is not yet; null when it is unknown, broken, or does not declare what the catalogue says.
    OpenGLProgram *filterProgram(const QString &shaderId);

    /// Draws over all of `target`, or over `area` of it, without blending. Texture i is bound to the catalogue's
    /// sampler i; `uniformBytes` hold a vec4 for each of its uniforms. False, with nothing drawn, when anything does
    /// not fit.
    bool drawPass(const QString &shaderId, std::span<const GLuint> textures, QOpenGLFramebufferObject *target,
                  QByteArrayView uniformBytes = {}, const QRect &area = {});

    /// Finishes what was drawn and gives the memory of deleted textures back to the system. A software driver holds on
    /// to what its last draw used until the next one, and the C library finds a place for a picture among freed ones
    /// only if it is no smaller. Costs the page faults of the next pictures.
    void giveMemoryBack();

private:
    struct FilterProgramEntry
    {
        std::unique_ptr<OpenGLProgram> program;
        int positionAttribute = -1;
        QList<int> uniformLocations; ///< in catalogue order; empty when a block is used
        bool usesUniformBlock = false;
        bool failed = false;
    };

    bool loadEntry(const FilterShaderDescriptor &descriptor, FilterProgramEntry &entry);
    bool feedUniforms(const FilterProgramEntry &entry, QByteArrayView uniformBytes);
    void createQuad();

    OffscreenContext &m_context;
    const FilterShaderCatalog &m_catalog;
    std::map<QString, FilterProgramEntry> m_filterPrograms;
    std::unique_ptr<QOpenGLFramebufferObject> m_pixels[2]; ///< one pixel each
    GLuint m_quadVertexArray = 0;
    GLuint m_quadVertexBuffer = 0;
    GLuint m_filterUniformBuffer = 0;
};

} // namespace zm
