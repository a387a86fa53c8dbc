#include "rendering/filter_shader_catalog.h"

#include "rendering/library_shader_rows.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// A row of the utilities, which all read the one sampler u_input.
FilterShaderDescriptor utility(const QString &id, const char *label, const QString &resourceName,
                               const QList<QByteArray> &uniformBlockNames, const QList<QByteArray> &uniforms)
{
    return {
        .id = id,
        .label = QCoreApplication::translate("FilterShaderCatalog", label),
        .fragmentResource = u":/zelmoraatelier/shaders/filter-utils/%1.frag.qsb"_s.arg(resourceName),
        .samplers = {"u_input"},
        .uniformBlockNames = uniformBlockNames,
        .uniforms = uniforms,
    };
}

QList<FilterShaderDescriptor> utilities()
{
    return {
        utility(u"boxBlur"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Box blur"), u"util_box_blur"_s,
                {"BoxBlurUniforms"}, {"u_dirTexelSizeRadius", "u_radius"}),
        utility(u"gaussianBlur"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Gaussian blur"), u"util_gaussian_blur"_s,
                {"GaussianBlurUniforms"}, {"u_dirTexelSize", "u_sigmaRadius"}),
        utility(u"textureCopy"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Texture copy"), u"util_texture_copy"_s, {},
                {}),
    };
}

FilterShaderDescriptor libraryShader(const LibraryShaderRow &row)
{
    FilterShaderDescriptor descriptor{
        .id = u"fx/%1"_s.arg(row.id),
        .label = row.id,
        .fragmentResource = u":/zelmoraatelier/shaders/library/%1.frag.qsb"_s.arg(row.id),
    };
    for (const QLatin1StringView sampler : row.samplers)
        descriptor.samplers.append(QByteArray(sampler.data(), sampler.size()));
    for (qsizetype i = 0; i < row.fields.size(); ++i)
        descriptor.uniforms.append(u"u_param%1"_s.arg(i).toLatin1());
    if (!descriptor.uniforms.isEmpty())
        descriptor.uniformBlockNames.append("LibraryUniforms"_ba);
    return descriptor;
}

QList<FilterShaderDescriptor> utilitiesAndLibrary()
{
    QList<FilterShaderDescriptor> descriptors = utilities();
    for (const LibraryShaderRow &row : libraryShaderRows())
        descriptors.append(libraryShader(row));
    return descriptors;
}

} // namespace

FilterShaderCatalog::FilterShaderCatalog(const QList<FilterShaderDescriptor> &descriptors)
    : m_descriptors(descriptors)
{
}

const FilterShaderCatalog &FilterShaderCatalog::instance()
{
    static const FilterShaderCatalog catalog(utilitiesAndLibrary());
    return catalog;
}

const FilterShaderDescriptor *FilterShaderCatalog::find(const QString &id) const
{
    const auto found = std::find_if(m_descriptors.cbegin(), m_descriptors.cend(),
                                    [&id](const FilterShaderDescriptor &descriptor) { return descriptor.id == id; });
    return found == m_descriptors.cend() ? nullptr : &*found;
}

} // namespace zm
