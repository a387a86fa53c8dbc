#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace zm {

class ShapeGenerator;

/// What can be inserted from the shape picker, as a list and in groups by category, narrowed by a filter. Texts are
/// asked for anew each time, in the language of the moment.
class ShapePickerModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QVariantList categoryGroups READ categoryGroups NOTIFY filterChanged)

public:
    enum Role {
        GeneratorIdRole = Qt::UserRole + 1,
        DisplayNameRole,
        PreviewSourceRole,
        ItemKindRole, ///< "shape"
        CategoryRole
    };

    explicit ShapePickerModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// An item stays when the filter occurs, in any case, in its name, id, category or one of its keywords.
    QString filter() const { return m_filter; }
    void setFilter(const QString &filter);

    /// Maps of a category and its items, each item a map of what the roles give and its keywords. No group is empty.
    QVariantList categoryGroups() const;

    /// The address of a shape's picture; empty for an unknown id.
    Q_INVOKABLE QString shapeIconSource(const QString &generatorId) const;

signals:
    void filterChanged();

private:
    QList<const ShapeGenerator *> m_shapes; // those that pass the filter
    QString m_filter;
};

} // namespace zm
