#include "canvas/editor_canvas_item.h"
#include "document/document.h"
#include "scene/scene_presentation_model.h"

#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGSimpleTextureNode>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

struct TileNode
{
    QRectF rect;
    QSize textureSize;
    QSGTexture::Filtering filtering;
};

/// Notes what the real item gives to the scene graph.
class ProbedItem : public EditorCanvasItem
{
public:
    const QSGNode *node = nullptr;
    QList<TileNode> tiles;
    int passes = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override
    {
        QSGNode *result = EditorCanvasItem::updatePaintNode(old, data);
        ++passes;
        tiles.clear();
        for (QSGNode *child = result ? result->firstChild() : nullptr; child; child = child->nextSibling()) {
            auto *tile = static_cast<QSGSimpleTextureNode *>(child);
            tiles.append({tile->rect(), tile->texture()->textureSize(), tile->filtering()});
        }
        node = result;
        return result;
    }
};

} // namespace

class TestEditorCanvasItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    }

    void init()
    {
        m_window = std::make_unique<QQuickWindow>();
        m_window->resize(320, 240);
        m_window->setColor(Qt::black);
        m_item = new ProbedItem;
        m_item->setParentItem(m_window->contentItem());
        m_item->setSize({320, 240});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup()
    {
        delete m_item;
        m_window.reset();
    }

    void tileLiesWhereTheSceneRectanglePutsIt_data()
    {
        QTest::addColumn<QRectF>("viewport");
        QTest::addColumn<double>("renderScale");
        QTest::addColumn<double>("viewScale");
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<int>("filtering");
        const int linear = QSGTexture::Linear;
        const int nearest = QSGTexture::Nearest;
        QTest::newRow("same scale, enlarged")
            << QRectF(-50, -40, 100, 80) << 2.0 << 2.0 << QRectF(0, 0, 200, 160) << linear;
        QTest::newRow("tiles too coarse") << QRectF(-5, -4, 10, 8) << 2.0 << 8.0 << QRectF(0, 0, 80, 64) << nearest;
        QTest::newRow("tiles finer than the view")
            << QRectF(-50, -40, 100, 80) << 2.0 << 1.0 << QRectF(0, 0, 100, 80) << linear;
        // The tile is snapped outward to whole pixels, so it begins left of the item.
        QTest::newRow("between pixels") << QRectF(-50.25, -40.5, 100, 80) << 2.0 << 2.0 << QRectF(-0.5, 0, 201, 160)
                                        << linear;
        QTest::newRow("view scale beyond what filtering compares")
            << QRectF(-1, -1, 2, 2) << 32.0 << 100.0 << QRectF(0, 0, 200, 200) << nearest;
    }

    void tileLiesWhereTheSceneRectanglePutsIt()
    {
        QFETCH(QRectF, viewport);
        QFETCH(double, renderScale);
        QFETCH(double, viewScale);
        QFETCH(QRectF, rect);
        QFETCH(int, filtering);
        Document document;
        ScenePresentationModel model(&document);
        model.setViewportRect(viewport);
        model.setRenderScale(renderScale);
        m_item->setSceneModel(&model);
        m_item->setViewScale(viewScale);
        m_window->grabWindow();

        QCOMPARE(m_item->tiles.size(), 1);
        const QRectF actual = m_item->tiles[0].rect; // the scene graph's rectangles are floats
        QCOMPARE(actual.toRect(), rect.toRect());
        QVERIFY(qAbs(actual.x() - rect.x()) < 0.001);
        QCOMPARE(int(m_item->tiles[0].filtering), filtering);
    }

    void severalTilesMeetWithoutAGap()
    {
        Document document;
        ScenePresentationModel model(&document);
        model.setViewportRect({-4500, -2, 9000, 4});
        m_item->setSceneModel(&model);
        m_item->setViewScale(0.125);
        m_window->grabWindow();

        QCOMPARE(m_item->tiles.size(), 2);
        QCOMPARE(m_item->tiles[0].textureSize, QSize(8192, 4));
        QCOMPARE(m_item->tiles[1].textureSize, QSize(808, 4));
        QCOMPARE(m_item->tiles[0].rect, QRectF(0, 0, 1024, 0.5));
        QCOMPARE(m_item->tiles[1].rect, QRectF(1024, 0, 101, 0.5));
    }

    void nodeIsKeptUntilTheTilesOrTheScaleChange()
    {
        Document document;
        ScenePresentationModel model(&document);
        m_item->setSceneModel(&model);
        m_window->grabWindow();
        const QSGNode *first = m_item->node;
        QVERIFY(first);

        const int passes = m_item->passes;
        m_item->update();
        m_window->grabWindow();
        QVERIFY(m_item->passes > passes);
        QCOMPARE(m_item->node, first);

        m_item->setViewScale(2.0);
        m_window->grabWindow();
        QCOMPARE(m_item->tiles[0].rect.width(), 2.0 * m_item->tiles[0].textureSize.width());

        document.setSize({10, 10});
        m_window->grabWindow();
        QCOMPARE(m_item->tiles[0].textureSize, QSize(138, 138)); // 64 units of margin on each side

        // Another model may stand at the very same revision.
        Document larger;
        ScenePresentationModel other(&larger);
        larger.setSize({20, 10});
        QCOMPARE(other.revision(), model.revision());
        m_item->setSceneModel(&other);
        m_window->grabWindow();
        QCOMPARE(m_item->tiles[0].textureSize, QSize(148, 138));
    }

    void withoutAModelNothingIsShown()
    {
        QSignalSpy spy(m_item, &EditorCanvasItem::sceneModelChanged);
        {
            Document document;
            ScenePresentationModel model(&document);
            m_item->setSceneModel(&model);
            m_item->setSceneModel(&model);
            QCOMPARE(m_window->grabWindow().pixelColor(5, 5), QColor(Qt::white));
            QCOMPARE(spy.size(), 1);
        }
        QVERIFY(!m_item->sceneModel());
        QCOMPARE(spy.size(), 2);
        QCOMPARE(m_window->grabWindow().pixelColor(5, 5), QColor(Qt::black));
        QVERIFY(!m_item->node);
    }

    void viewScaleIsCleaned()
    {
        m_item->setViewScale(-3.0);
        QCOMPARE(m_item->viewScale(), 0.01);
        QSignalSpy spy(m_item, &EditorCanvasItem::viewScaleChanged);
        m_item->setViewScale(0.0);
        QCOMPARE(spy.size(), 0);
        m_item->setViewScale(qQNaN());
        QCOMPARE(m_item->viewScale(), 1.0);
    }

private:
    std::unique_ptr<QQuickWindow> m_window;
    ProbedItem *m_item = nullptr;
};

QTEST_MAIN(TestEditorCanvasItem)
#include "tst_editor_canvas_item.moc"
