#include "io/pictures/exported_effects.h"

#include "document/document.h"
#include "filters/filter_registry.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The one effect whose result comes later than it is asked for, and may be missing from a frozen scene.
constexpr QLatin1StringView kStyleTransferId("renaissance");

} // namespace

QStringList exportedEffects(const Document &document)
{
    QStringList ids;
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        const auto *layer = dynamic_cast<const Layer *>(document.objectAt(i));
        if (!layer || !layer->isVisible())
            continue;
        for (const FilterInstance &effect : layer->filters()) {
            if (effect.enabled)
                ids.append(effect.filterId);
        }
    }
    return ids;
}

bool canExportEffects(const QStringList &effectIds, Error &error)
{
    if (!effectIds.contains(kStyleTransferId))
        return true;
    return error.fail(QCoreApplication::translate("zm::ExportController",
                                                  "An enabled style transfer filter cannot be exported yet. Disable or "
                                                  "remove the filter before exporting."));
}

bool prefersTransparentExport(const QStringList &effectIds)
{
    return std::ranges::any_of(effectIds, [](const QString &id) {
        const Filter *filter = FilterRegistry::instance().find(id);
        return filter && filter->flags().testFlag(FilterFlag::PrefersTransparentExport);
    });
}

} // namespace zm
