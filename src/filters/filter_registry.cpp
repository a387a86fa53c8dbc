#include "filters/filter_registry.h"

#include "filters/library/effects.h"

#include <algorithm>

namespace zm {

#define ZM_DECLARE_EFFECT(Name) std::unique_ptr<Filter> make##Name##Filter();
ZM_LIBRARY_EFFECTS(ZM_DECLARE_EFFECT)
#undef ZM_DECLARE_EFFECT

FilterRegistry::FilterRegistry()
{
#define ZM_MAKE_EFFECT(Name) m_filters.push_back(make##Name##Filter());
    ZM_LIBRARY_EFFECTS(ZM_MAKE_EFFECT)
#undef ZM_MAKE_EFFECT
}

const FilterRegistry &FilterRegistry::instance()
{
    static const FilterRegistry registry;
    return registry;
}

const Filter *FilterRegistry::find(const QString &id) const
{
    if (id.isEmpty())
        return nullptr;
    const auto found =
        std::ranges::find_if(m_filters, [&id](const std::unique_ptr<Filter> &filter) { return filter->id() == id; });
    return found == m_filters.end() ? nullptr : found->get();
}

} // namespace zm
