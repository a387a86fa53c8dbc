#include "canvas_scene.h"
#include "document/image_layer.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QOpenGLContext>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(ZelmoraAtelierPlugin)

using namespace Qt::StringLiterals;

namespace zm::test {

CanvasScene::CanvasScene()
    : m_model(&m_document)
{
    connect(&m_model, &ScenePresentationModel::sceneImageChanged, this, [this] {
        double pixels = 0.0;
        for (const SceneTile &tile : m_model.tiles())
            pixels += double(tile.image.width()) * tile.image.height();
        m_largestComposition = std::max(m_largestComposition, pixels);
    });
}

void CanvasScene::reset(double width, double height)
{
    m_model.setRenderScale(0.01); // small first: a large view at a large scale is more than memory holds
    m_model.setViewportRect({});
    m_model.setFixedDocumentBounds(false);
    m_model.setDocumentBoundsVisible(false);
    m_document.replaceContents({width, height}, Qt::white, {});
    m_model.setRenderScale(1.0);
    m_largestComposition = 0.0;
}

void CanvasScene::addChecker(int columns, int rows)
{
    QImage picture(columns, rows, QImage::Format_RGBA8888);
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x)
            picture.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::red : Qt::blue);
    }
    auto layer = std::make_unique<ImageLayer>(picture, u"Checker"_s);
    ObjectTransform transform = layer->transform();
    transform.setPosition({-columns / 2.0, -rows / 2.0});
    layer->setTransform(transform);
    m_document.insertObject(std::move(layer));
}

void CanvasScene::setBackground(const QColor &color)
{
    m_document.setBackgroundColor(color);
}

QVariantMap CanvasScene::dragAndDrop(QQuickItem *target, const QList<QUrl> &urls, int actions)
{
    QMimeData data;
    if (urls.isEmpty())
        data.setText(u"text"_s);
    else
        data.setUrls(urls);
    const QPointF point = target->mapToScene({target->width() / 2, target->height() / 2});
    const Qt::DropActions possible(actions);

    QDragEnterEvent enter(point.toPoint(), possible, &data, Qt::LeftButton, Qt::NoModifier);
    QGuiApplication::sendEvent(target->window(), &enter);
    const bool entered = enter.isAccepted();
    const Qt::DropAction action = enter.dropAction();

    QDropEvent drop(point, possible, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QGuiApplication::sendEvent(target->window(), &drop);
    return {{u"entered"_s, entered}, {u"dropped"_s, drop.isAccepted()}, {u"action"_s, int(action)}};
}

void CanvasScene::turnWheelSideways(QQuickItem *target, int delta, int modifiers)
{
    const QPointF point = target->mapToScene({target->width() / 2, target->height() / 2});
    QWheelEvent event(point, target->window()->mapToGlobal(point), {}, QPoint(delta, 0), Qt::NoButton,
                      Qt::KeyboardModifiers(modifiers), Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(target->window(), &event);
}

/// Gives each engine of the QML tests its own scene.
class CanvasTestSetup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
        QQuickStyle::setStyle(u"Fusion"_s);
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        auto *scene = new CanvasScene;
        scene->setParent(engine);
        engine->rootContext()->setContextProperty(u"scene"_s, scene);
        engine->rootContext()->setContextProperty(u"glAvailable"_s, QOpenGLContext().create());
    }
};

} // namespace zm::test

QUICK_TEST_MAIN_WITH_SETUP(canvas, zm::test::CanvasTestSetup)

#include "tst_canvas.moc"
