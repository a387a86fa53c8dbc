#include "document/document.h"
#include "editor/layer_thumbnail_provider.h"
#include "editor/layer_thumbnail_store.h"
#include "editor/layer_thumbnails.h"
#include "editor/scene_layer_list_model.h"
#include "scene/scene_presentation_model.h"
#include "support/pictures.h"
#include "values/editable_path_builder.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

std::unique_ptr<ImageLayer> plainLayer(const QString &name, int width = 8, int height = 8)
{
    return std::make_unique<ImageLayer>(test::plainPicture(width, height, QColor(200, 100, 50, 128)), name);
}

/// The names as a view has them that follows the row signals and never asks for the whole list again.
class FollowingView : public QObject
{
public:
    explicit FollowingView(const SceneLayerListModel &model)
    {
        const auto name = [&model](int row) { return model.index(row).data(SceneLayerListModel::NameRole).toString(); };
        connect(&model, &SceneLayerListModel::rowsInserted, this,
                [this, name](const QModelIndex &, int first) { names.insert(first, name(first)); });
        connect(&model, &SceneLayerListModel::rowsRemoved, this,
                [this](const QModelIndex &, int first) { names.removeAt(first); });
        connect(&model, &SceneLayerListModel::rowsMoved, this,
                [this](const QModelIndex &, int from, int, const QModelIndex &, int to) {
                    names.move(from, to > from ? to - 1 : to);
                });
    }

    QStringList names;
};

} // namespace

class LayerListTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsShowTheObjectsFromTheTop()
    {
        Document document;
        SceneLayerListModel model(&document);
        auto selectable = plainLayer(u"picture"_s);
        QPainterPath outline;
        outline.addRect(1, 1, 4, 4);
        selectable->setRasterSelection(editablePath(outline));
        const QUuid imageId = document.insertObject(std::move(selectable))->id();
        document.insertObject(std::make_unique<TextLayer>(QList<TextParagraph>{}, 0.0, u"words"_s));
        document.insertObject(std::make_unique<ShapeLayer>(GeneratorGeometry{u"rectangle"_s, {}}, QSizeF(9, 9),
                                                           Stroke{}, Fill(QColor(Qt::red)), u"box"_s));
        document.insertObject(std::make_unique<SceneObject>(u"thing"_s));
        QSignalSpy changes(&model, &SceneLayerListModel::dataChanged);
        document.selectObject(imageId);
        document.setObjectVisible(imageId, false);
        QCOMPARE(changes.size(), 2);
        QCOMPARE(changes[0][0].toModelIndex().row(), 0);
        QCOMPARE(changes[0][1].toModelIndex().row(), 3);

        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList values;
            for (int role = 258; role <= 262; ++role)
                values << model.index(row).data(role).toString();
            rows << values.join(u' ');
        }
        const QStringList expected{u"thing false false object false"_s, u"box false false shape false"_s,
                                   u"words false false text false"_s, u"picture true true image true"_s};
        QCOMPARE(rows, expected);
        QCOMPARE(model.index(3).data(257).toString(), imageId.toString());
    }

    void aViewCanFollowEveryChangeOfTheStack()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        Document document;
        SceneLayerListModel model(&document);
        const QAbstractItemModelTester tester(&model);
        FollowingView view(model);
        const auto anyId = [&] { return document.objectAt(random.bounded(document.objectCount()))->id(); };
        for (int step = 0; step < 300; ++step) {
            const int kind = document.objectCount() < 2 ? 0 : random.bounded(5);
            if (kind < 2)
                document.insertObject(plainLayer(QString::number(step)), random.bounded(document.objectCount() + 1));
            else if (kind == 2)
                document.takeObject(anyId());
            else if (kind == 3)
                document.moveObject(anyId(), random.bounded(document.objectCount()));
            else
                document.selectObject(anyId());
            QStringList names;
            for (qsizetype i = document.objectCount() - 1; i >= 0; --i)
                names << document.objectAt(i)->name();
            QCOMPARE(view.names, names);
        }
        std::vector<std::unique_ptr<SceneObject>> objects;
        objects.push_back(plainLayer(u"lower"_s));
        objects.push_back(plainLayer(u"upper"_s));
        document.replaceContents({10, 10}, Qt::white, std::move(objects));
        QCOMPARE(view.names, QStringList({u"upper"_s, u"lower"_s}));
    }

    void thumbnailsFollowTheLookAlone()
    {
        Document document;
        ScenePresentationModel scene(&document);
        auto store = std::make_shared<LayerThumbnailStore>();
        LayerThumbnails thumbnails(&document, &scene, nullptr, store);
        LayerThumbnailProvider provider(store);
        SceneLayerListModel model(&document);
        connect(&thumbnails, &LayerThumbnails::thumbnailChanged, &model, &SceneLayerListModel::setThumbnailSource);
        const auto source = [&](int row) {
            return model.index(row).data(SceneLayerListModel::ThumbnailSourceRole).toString();
        };
        const auto picture = [&](int row, const QSize &box) {
            return provider.requestImage(source(row).remove(u"image://layer-thumbnail/"_s), nullptr, box);
        };
        const QUuid wide = document.insertObject(plainLayer(u"wide"_s, 3000, 2))->id();
        auto hiddenLayer = plainLayer(u"hidden"_s, 40, 30);
        hiddenLayer->setVisible(false);
        document.insertObject(std::move(hiddenLayer));
        QTRY_VERIFY(!source(0).isEmpty() && !source(1).isEmpty());
        QCOMPARE(picture(0, {400, 400}).size(), QSize(40, 30));
        QCOMPARE(picture(1, {60, 60}).size(), QSize(60, 1));
        QVERIFY(qAbs(picture(1, {60, 60}).pixelColor(30, 0).alpha() - 128) <= 1); // roundings of the reduction

        const QString before = source(1);
        ObjectTransform moved;
        moved.setPosition({50, 20});
        document.setObjectTransform(wide, moved);
        document.setObjectVisible(wide, false);
        QTest::qWait(LayerThumbnails::kDelayMs * 4);
        QCOMPARE(source(1), before);

        document.setObjectVisible(wide, true);
        document.setImageLayerSource(wide, RasterImageSource{test::plainPicture(9, 9, Qt::blue)}, moved,
                                     RasterSurfacePolicy::Fixed);
        QTRY_VERIFY(source(1) != before);
        QCOMPARE(picture(1, {40, 40}).pixelColor(4, 4), QColor(Qt::blue));

        document.takeObject(wide);
        QTRY_VERIFY(store->image(wide).isNull());
    }
};

QTEST_MAIN(LayerListTest)
#include "tst_layer_list.moc"
