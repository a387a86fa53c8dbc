#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace zm {

/// What the renderer must know of a fragment shader: where it is and which names it declares.
struct FilterShaderDescriptor
{
    QString id;                          ///< of utilities the bare name, of library shaders "fx/<id>"
    QString label;                       ///< display name of the program in messages
    QString fragmentResource;
    QList<QByteArray> samplers;          ///< in the order in which textures are bound
    QList<QByteArray> uniformBlockNames; ///< none for a shader without uniform data
    QList<QByteArray> uniforms;          ///< fields of the block in order, each a vec4
};

/// The fixed table of fragment shaders that the renderer can draw with.
class FilterShaderCatalog
{
public:
    explicit FilterShaderCatalog(const QList<FilterShaderDescriptor> &descriptors);

    /// The shaders of the program, built at first use.
    static const FilterShaderCatalog &instance();

    /// Null for an unknown id.
    const FilterShaderDescriptor *find(const QString &id) const;

    const QList<FilterShaderDescriptor> &descriptors() const { return m_descriptors; }

private:
    const QList<FilterShaderDescriptor> m_descriptors;
};

} // namespace zm
