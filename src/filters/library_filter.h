#pragma once

#include "filters/description/filter_definition.h"
#include "filters/filter_render.h"

#include <memory>

/// Defines what makes an effect of library/: `Name` as in ZM_LIBRARY_EFFECTS, its class, and what that is made of.
#define ZM_LIBRARY_EFFECT(Name, Class, ...) \
    std::unique_ptr<Filter> make##Name##Filter() \
    { \
        return std::make_unique<Class>(__VA_ARGS__); \
    }

namespace zm {

/// A filter that is described by a JSON file of the resources and draws with shaders of the library. Concrete classes
/// add render(), and are registered by a line in library/effects.h.
class LibraryFilter : public Filter
{
public:
    /// Reads the description; without one the filter has no id and is not found.
    explicit LibraryFilter(const QString &id)
        : m_definition(loadFilterDefinition(id))
    {
    }

    QString id() const override { return m_definition.id; }
    QString label() const override { return m_definition.label; }
    QString pickerLabel() const override { return m_definition.pickerLabel; }
    QString inspectorLabel() const override { return m_definition.inspectorLabel; }
    FilterCategory category() const override { return m_definition.category; }
    FilterStage stage() const override { return m_definition.stage; }
    FirstRenderLoading firstRenderLoading() const override { return m_definition.firstRenderLoading; }
    FilterFlags flags() const override { return m_definition.flags; }
    int inputImageFormat() const override { return m_definition.inputImageFormat; }
    int outputImageFormat() const override { return m_definition.outputImageFormat; }
    QStringList pickerKeywords() const override { return m_definition.pickerKeywords; }
    QStringList resources() const override { return m_definition.resources; }
    QList<ParameterDefinition> controls() const override { return m_definition.controls; }
    QList<AutoAddFilter> autoAddFilters() const override { return m_definition.autoAddFilters; }
    QList<AutoAddText> autoAddText() const override { return m_definition.autoAddText; }
    std::optional<QColor> preferredBackground() const override { return m_definition.preferredBackground; }

private:
    const FilterDefinition m_definition;
};

} // namespace zm
