#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QStringView>

namespace zm {

/// What is fixed about a library shader: the names behind its samplers and behind the positions of its uniforms.
struct LibraryShaderRow
{
    QLatin1StringView id;              ///< bare, the base name of the shader's source
    QList<QLatin1StringView> samplers; ///< in the order in which textures are bound
    QList<QLatin1StringView> fields;   ///< field i is the member u_param<i>, a vec4

    /// -1 for an unknown name.
    qsizetype fieldPosition(QLatin1StringView name) const { return fields.indexOf(name); }
};

/// The table of all library shaders, built at first use.
const QList<LibraryShaderRow> &libraryShaderRows();

/// Null for an unknown id.
const LibraryShaderRow *findLibraryShader(QStringView bareId);

} // namespace zm
