#pragma once

#include "filters/filter.h"

#include <memory>
#include <vector>

namespace zm {

/// One instance of every filter. Made at first use.
class FilterRegistry
{
public:
    static const FilterRegistry &instance();

    const std::vector<std::unique_ptr<Filter>> &filters() const { return m_filters; }
    /// Null for an unknown id.
    const Filter *find(const QString &id) const;

private:
    FilterRegistry();

    std::vector<std::unique_ptr<Filter>> m_filters;
};

} // namespace zm
