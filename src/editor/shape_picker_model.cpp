#include "editor/shape_picker_model.h"

#include "editor/shape_preview_image_provider.h"
#include "generators/shape_generator.h"
#include "generators/shape_generator_registry.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// In the order of their category. The star's own id is "star5", so it is found among the dynamic shapes.
constexpr std::array<QLatin1StringView, 10> kBasicShapes{
    "rounded-rect"_L1, "ellipse"_L1, "triangle"_L1,    "polygon"_L1, "vignette"_L1,
    "diamond"_L1,      "rhombus"_L1, "half-circle"_L1, "star"_L1,    "arrow-right"_L1};

bool isBasic(const ShapeGenerator &shape)
{
    return std::ranges::find(kBasicShapes, shape.id()) != kBasicShapes.end();
}

QString categoryOf(const ShapeGenerator &shape)
{
    return isBasic(shape) ? ShapePickerModel::tr("Basic") : ShapePickerModel::tr("Dynamic");
}

/// Category by category.
QList<const ShapeGenerator *> allShapes()
{
    const ShapeGeneratorRegistry &registry = ShapeGeneratorRegistry::instance();
    QList<const ShapeGenerator *> shapes;
    for (const QLatin1StringView id : kBasicShapes) {
        if (const ShapeGenerator *shape = registry.find(id))
            shapes.append(shape);
    }
    for (const auto &shape : registry.generators()) {
        if (!isBasic(*shape))
            shapes.append(shape.get());
    }
    return shapes;
}

bool matches(const ShapeGenerator &shape, const QString &filter)
{
    const QString texts[] = {shape.label(), shape.id(), categoryOf(shape)};
    return std::ranges::any_of(texts,
                               [&filter](const QString &text) { return text.contains(filter, Qt::CaseInsensitive); });
}

QVariant valueOf(const ShapeGenerator &shape, int role)
{
    switch (role) {
    case ShapePickerModel::GeneratorIdRole:
        return shape.id();
    case Qt::DisplayRole:
    case ShapePickerModel::DisplayNameRole:
        return shape.label();
    case ShapePickerModel::PreviewSourceRole:
        return shapePreviewSource(shape.id());
    case ShapePickerModel::ItemKindRole:
        return u"shape"_s;
    case ShapePickerModel::CategoryRole:
        return categoryOf(shape);
    default:
        return {};
    }
}

} // namespace

ShapePickerModel::ShapePickerModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_shapes(allShapes())
{
}

int ShapePickerModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shapes.size());
}

QVariant ShapePickerModel::data(const QModelIndex &index, int role) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid) ? valueOf(*m_shapes.at(index.row()), role) : QVariant();
}

QHash<int, QByteArray> ShapePickerModel::roleNames() const
{
    return {{GeneratorIdRole, "generatorId"},
            {DisplayNameRole, "displayName"},
            {PreviewSourceRole, "previewSource"},
            {ItemKindRole, "itemKind"},
            {CategoryRole, "category"}};
}

void ShapePickerModel::setFilter(const QString &filter)
{
    if (m_filter == filter)
        return;
    beginResetModel();
    m_filter = filter;
    m_shapes = allShapes();
    m_shapes.removeIf([&filter](const ShapeGenerator *shape) { return !matches(*shape, filter); });
    endResetModel();
    emit filterChanged();
}

QVariantList ShapePickerModel::categoryGroups() const
{
    const QHash<int, QByteArray> roles = roleNames();
    QVariantList groups;
    QVariantList items;
    for (qsizetype i = 0; i < m_shapes.size(); ++i) {
        const ShapeGenerator &shape = *m_shapes.at(i);
        QVariantMap item{{u"keywords"_s, QStringList()}};
        for (const auto &[role, name] : roles.asKeyValueRange())
            item.insert(QString::fromLatin1(name), valueOf(shape, role));
        items.append(item);
        const QString category = categoryOf(shape);
        if (i + 1 < m_shapes.size() && categoryOf(*m_shapes.at(i + 1)) == category)
            continue;
        groups.append(QVariantMap{{u"category"_s, category}, {u"items"_s, std::exchange(items, {})}});
    }
    return groups;
}

QString ShapePickerModel::shapeIconSource(const QString &generatorId) const
{
    return ShapeGeneratorRegistry::instance().find(generatorId) ? shapePreviewSource(generatorId) : QString();
}

} // namespace zm
