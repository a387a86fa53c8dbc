#pragma once

#include "filters/filter_render.h"
#include "values/editable_path.h"
#include "values/filter_instance.h"

#include <list>

namespace zm {

/// What a filtered picture depends on: the source picture and the filters that have run over it.
struct FilterStackKey
{
    /// QImage::cacheKey() of the source: a serial number that changes with its pixels.
    qint64 sourceKey = 0;
    QSizeF size;
    std::optional<EditablePath> selection;
    /// The instances that have run, in order. What they are called in the document is left out.
    QList<FilterInstance> instances;

    friend bool operator==(const FilterStackKey &a, const FilterStackKey &b) = default;
};

/// Finished pictures of filter stacks and of their beginnings, so that a change of one instance renders that one and
/// those after it only. Holds at most a budget of bytes, and lets go of what was longest not asked for. Used on the
/// thread that evaluates stacks.
class FilterResultCache
{
public:
    explicit FilterResultCache(qsizetype budget = kDefaultBudget);

    /// The result of the longest beginning of the stack that is at hand; the number of its instances is 0 when none is.
    struct Beginning
    {
        qsizetype count = 0;
        FilterRenderResult result;
    };
    Beginning longestBeginning(const FilterStackKey &key);

    /// A picture larger than the budget is not kept.
    void insert(const FilterStackKey &key, const FilterRenderResult &result);

    qsizetype byteCount() const { return m_bytes; }

    static constexpr qsizetype kDefaultBudget = qsizetype(512) * 1024 * 1024;

private:
    struct Entry
    {
        FilterStackKey key;
        FilterRenderResult result;
    };

    const qsizetype m_budget;
    qsizetype m_bytes = 0;
    std::list<Entry> m_entries; ///< last used first
};

} // namespace zm
