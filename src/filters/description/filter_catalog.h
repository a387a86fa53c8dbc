#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

namespace zm {

class Filter;

/// A heading of the picker and the effects under it, in the order in which they are offered.
struct FilterCategoryGroup
{
    /// English; groupTitle() translates it.
    const char *title;
    QString iconName;
    QStringList filterIds;
};

/// Which effects are offered, grouped how and in what order: one table for text layers, one for all others.
class FilterCatalog
{
public:
    static const QList<FilterCategoryGroup> &imageGroups();
    static const QList<FilterCategoryGroup> &textGroups();

    static QString groupTitle(const FilterCategoryGroup &group);

    /// The filters of a group that are offered: those of the registry that are not experimental.
    static QList<const Filter *> offeredFilters(const FilterCategoryGroup &group);
};

} // namespace zm
