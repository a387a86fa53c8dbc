#pragma once

#include "filters/filter.h"

#include <QByteArray>

namespace zm {

/// What the JSON file of a library filter tells. An empty id means that there was no such file, or that it does not
/// describe the filter it is named after.
struct FilterDefinition
{
    QString id;
    QString label;
    QString pickerLabel;
    QString inspectorLabel;
    FilterCategory category = FilterCategory::None;
    FilterStage stage = FilterStage::Raster;
    FirstRenderLoading firstRenderLoading = FirstRenderLoading::Delayed;
    FilterFlags flags;
    int inputImageFormat = 0;
    int outputImageFormat = 0;
    QStringList pickerKeywords;
    QStringList resources;
    QList<ParameterDefinition> controls;
    QList<AutoAddFilter> autoAddFilters;
    QList<AutoAddText> autoAddText;
    std::optional<QColor> preferredBackground;
};

/// Reads the text of a JSON file. What people see is translated under "LibraryFilter-" followed by the id. Anything
/// wrong, a name other than `id` too, gives an empty definition; a control of an unknown type is dropped alone.
FilterDefinition filterDefinitionFromJson(const QString &id, const QByteArray &json);

/// The same from the program's resources.
FilterDefinition loadFilterDefinition(const QString &id);

/// The words of two comma-separated lists, trimmed, without empty ones and repeats: to be found in both languages.
QStringList searchWords(const QString &translated, const QString &english);

} // namespace zm
