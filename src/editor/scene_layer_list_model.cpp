#include "editor/scene_layer_list_model.h"

#include "document/document.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

QString layerTypeName(const SceneObject &object)
{
    if (const auto *layer = dynamic_cast<const Layer *>(&object)) {
        switch (layer->layerType()) {
        case LayerType::Image:
            return u"image"_s;
        case LayerType::Text:
            return u"text"_s;
        case LayerType::Shape:
            return u"shape"_s;
        }
    }
    return u"object"_s;
}

bool hasRasterSelection(const SceneObject &object)
{
    const auto *layer = dynamic_cast<const ImageLayer *>(&object);
    return layer && layer->hasRasterSelection();
}

} // namespace

SceneLayerListModel::SceneLayerListModel(Document *document, QObject *parent)
    : QAbstractListModel(parent)
    , m_document(document)
{
    connectDocument();
}

void SceneLayerListModel::connectDocument()
{
    connect(m_document, &Document::objectAboutToBeInserted, this, [this](qsizetype index) {
        m_rowsInMotion = true;
        const int row = int(m_document->objectCount() - index);
        beginInsertRows({}, row, row);
    });
    connect(m_document, &Document::objectInserted, this, [this] {
        endInsertRows();
        m_rowsInMotion = false;
    });
    connect(m_document, &Document::objectAboutToBeRemoved, this, [this](qsizetype index) {
        m_rowsInMotion = true;
        beginRemoveRows({}, rowOf(index), rowOf(index));
    });
    connect(m_document, &Document::objectRemoved, this, [this] {
        endRemoveRows();
        m_rowsInMotion = false;
    });
    connect(m_document, &Document::objectAboutToBeMoved, this, &SceneLayerListModel::beginMove);
    connect(m_document, &Document::objectMoved, this, [this] {
        endMoveRows();
        m_rowsInMotion = false;
    });
    connect(m_document, &Document::selectionChanged, this, [this] { tellAllRows(SelectedRole); });
    connect(m_document, &Document::objectNameChanged, this, [this] { tellAllRows(NameRole); });
    connect(m_document, &Document::objectVisibilityChanged, this, [this] { tellAllRows(HiddenRole); });
    connect(m_document, &Document::imageLayerChanged, this, [this] { tellAllRows(HasRasterSelectionRole); });
}

int SceneLayerListModel::rowOf(qsizetype sceneIndex) const
{
    return int(m_document->objectCount() - 1 - sceneIndex);
}

void SceneLayerListModel::beginMove(qsizetype fromIndex, qsizetype toIndex)
{
    m_rowsInMotion = true;
    const int from = rowOf(fromIndex);
    const int to = rowOf(toIndex);
    // The target is the row in front of which the moved one goes, counted before it leaves.
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
}

void SceneLayerListModel::tellAllRows(Role role)
{
    if (m_rowsInMotion || rowCount() == 0)
        return;
    emit dataChanged(index(0), index(rowCount() - 1), {role});
}

int SceneLayerListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_document->objectCount());
}

QVariant SceneLayerListModel::data(const QModelIndex &index, int role) const
{
    const SceneObject *object =
        checkIndex(index, CheckIndexOption::IndexIsValid) ? m_document->objectAt(rowOf(index.row())) : nullptr;
    if (!object)
        return {};
    switch (role) {
    case LayerIdRole:
        return object->id().toString();
    case NameRole:
        return object->name();
    case SelectedRole:
        return object->id() == m_document->selectedObjectId();
    case HiddenRole:
        return !object->isVisible();
    case LayerTypeRole:
        return layerTypeName(*object);
    case HasRasterSelectionRole:
        return hasRasterSelection(*object);
    case ThumbnailSourceRole:
        return m_thumbnailSources.value(object->id());
    default:
        return {};
    }
}

QHash<int, QByteArray> SceneLayerListModel::roleNames() const
{
    return {{LayerIdRole, "layerId"},
            {NameRole, "name"},
            {SelectedRole, "selected"},
            {HiddenRole, "hidden"},
            {LayerTypeRole, "layerType"},
            {HasRasterSelectionRole, "hasRasterSelection"},
            {ThumbnailSourceRole, "thumbnailSource"}};
}

void SceneLayerListModel::setThumbnailSource(const QUuid &layerId, const QString &source)
{
    if (source.isEmpty())
        m_thumbnailSources.remove(layerId);
    else
        m_thumbnailSources.insert(layerId, source);
    const qsizetype sceneIndex = m_document->indexOf(layerId);
    if (sceneIndex < 0 || m_rowsInMotion)
        return;
    const QModelIndex row = index(rowOf(sceneIndex));
    emit dataChanged(row, row, {ThumbnailSourceRole});
}

} // namespace zm
