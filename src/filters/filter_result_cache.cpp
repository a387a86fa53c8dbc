#include "filters/filter_result_cache.h"

#include <algorithm>

namespace zm {

FilterResultCache::FilterResultCache(qsizetype budget)
    : m_budget(budget)
{
}

FilterResultCache::Beginning FilterResultCache::longestBeginning(const FilterStackKey &key)
{
    auto best = m_entries.end();
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        const qsizetype count = entry->key.instances.size();
        if (entry->key.sourceKey != key.sourceKey || entry->key.size != key.size
            || entry->key.selection != key.selection || count > key.instances.size())
            continue;
        const bool isLonger = best == m_entries.end() || count > best->key.instances.size();
        if (isLonger && std::equal(entry->key.instances.cbegin(), entry->key.instances.cend(), key.instances.cbegin()))
            best = entry;
    }
    if (best == m_entries.end())
        return {};
    m_entries.splice(m_entries.begin(), m_entries, best);
    return {best->key.instances.size(), best->result};
}

void FilterResultCache::insert(const FilterStackKey &key, const FilterRenderResult &result)
{
    const qsizetype bytes = result.image.sizeInBytes();
    if (bytes > m_budget)
        return;
    m_entries.push_front({key, result});
    m_bytes += bytes;
    while (m_bytes > m_budget) {
        m_bytes -= m_entries.back().result.image.sizeInBytes();
        m_entries.pop_back();
    }
}

} // namespace zm
