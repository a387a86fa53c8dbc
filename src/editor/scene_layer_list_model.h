#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

namespace zm {

class Document;

/// The stack of layers as a list, topmost first: row r is the document's object at index count - 1 - r. A change that
/// may concern several rows is told for all of them, but only in the roles that it can touch, so that a list of a
/// hundred rows answers at once.
class SceneLayerListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The list belongs to an adapter of scene objects.")

public:
    enum Role {
        LayerIdRole = Qt::UserRole + 1, ///< text of the object's id, in braces
        NameRole,
        SelectedRole,
        HiddenRole,
        LayerTypeRole, ///< "image", "text", "shape", or "object" for anything else
        HasRasterSelectionRole,
        ThumbnailSourceRole, ///< an address of the provider "layer-thumbnail"; empty while there is no thumbnail
    };
    Q_ENUM(Role)

    /// The document must outlive the model.
    explicit SceneLayerListModel(Document *document, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The look of a layer has a new address, or none when it is empty.
    void setThumbnailSource(const QUuid &layerId, const QString &source);

private:
    void connectDocument();
    int rowOf(qsizetype sceneIndex) const;
    void beginMove(qsizetype fromIndex, qsizetype toIndex);
    void tellAllRows(Role role);

    Document *m_document;
    QHash<QUuid, QString> m_thumbnailSources;
    // Between the two halves of an insertion, a removal or a move no row can be told of.
    bool m_rowsInMotion = false;
};

} // namespace zm
