#include "view/window_driver.h"

#include "application/application.h"

#include <QAccessible>
#include <QDropEvent>
#include <QMimeData>
#include <QQuickItem>
#include <QSignalBlocker>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(ZelmoraAtelierPlugin)

using namespace Qt::StringLiterals;

namespace zm::test {

namespace {

QString withoutMnemonic(QString text)
{
    return text.remove(u'&');
}

/// Of a control; the label beside it may say the same.
QString accessibleName(QQuickItem *item)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(item);
    return interface && interface->role() != QAccessible::StaticText ? interface->text(QAccessible::Name) : QString();
}

} // namespace

WindowDriver::WindowDriver()
    : m_context(std::make_unique<ApplicationContext>())
{
    m_context->applicationSettings.setThemeMode(u"light"_s);
    m_context->applicationSettings.setCanvasClipMode(false);
    m_context->applicationSettings.setDocumentBoundsVisible(false);
    m_context->applicationSettings.setRulerPlacement(2);
    m_context->applicationSettings.setInspectorPosition(1);
    for (const QString &path : m_context->applicationSettings.recentFilePaths())
        m_context->applicationSettings.removeRecentFile(path);
}

WindowDriver::~WindowDriver()
{
    m_engine.reset(); // the window goes before what it shows
    while (!application().takePendingFileOpenRequest().isEmpty()) {
    }
}

Application &WindowDriver::application() const
{
    return *static_cast<Application *>(qApp);
}

bool WindowDriver::open()
{
    m_engine = std::make_unique<QQmlApplicationEngine>();
    QObject::connect(m_engine.get(), &QQmlEngine::warnings, m_engine.get(),
                     [this](const QList<QQmlError> &warnings) { m_warnings += warnings; });
    prepareEngine(*m_engine, application(), *m_context);
    m_engine->loadFromModule("ZelmoraAtelier"_L1, "Main"_L1);
    m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().value(0));
    if (!m_window || !QTest::qWaitForWindowExposed(m_window))
        return false;
    m_window->requestActivate(); // as the program does once there is something to see
    return QTest::qWaitForWindowActive(m_window);
}

QStringList WindowDriver::layerNames() const
{
    QStringList names;
    for (qsizetype index = 0; index < m_context->document.objectCount(); ++index)
        names.append(m_context->document.objectAt(index)->name());
    return names;
}

QQuickItem *WindowDriver::itemWhere(const std::function<bool(QQuickItem *)> &matches) const
{
    QQuickItem *found = nullptr;
    for (QList<QQuickItem *> items{m_window->contentItem()}; !items.isEmpty();) {
        QQuickItem *item = items.takeFirst();
        if (!item->isVisible())
            continue;
        if (matches(item))
            found = item;
        items = item->childItems() + items;
    }
    return found;
}

QQuickItem *WindowDriver::item(const QString &textOrType) const
{
    return itemWhere([&textOrType](QQuickItem *item) {
        return withoutMnemonic(item->property("text").toString()) == textOrType
            || QString::fromLatin1(item->metaObject()->className()).startsWith(textOrType + u"_QMLTYPE"_s);
    });
}

QQuickItem *WindowDriver::named(const QString &name) const
{
    return itemWhere([&name](QQuickItem *item) { return accessibleName(item) == name; });
}

QQuickItem *WindowDriver::tab(const QString &text) const
{
    return itemWhere([&text](QQuickItem *item) {
        return item->inherits("QQuickTabButton") && item->property("text").toString() == text;
    });
}

double WindowDriver::zoom() const
{
    return canvas()->property("zoom").toDouble();
}

QObject *WindowDriver::dialog(const char *name) const
{
    for (QList<QQuickItem *> items{m_window->contentItem()}; !items.isEmpty();) {
        QQuickItem *item = items.takeFirst();
        if (QByteArray(item->metaObject()->className()).startsWith("WindowDialogs_QMLTYPE"))
            return name ? item->property(name).value<QObject *>() : item;
        items = item->childItems() + items;
    }
    return nullptr;
}

bool WindowDriver::shows(const char *dialogName) const
{
    const QObject *shown = dialog(dialogName);
    return shown && shown->property("visible").toBool();
}

QPointF WindowDriver::centre(QQuickItem *item) const
{
    return item->mapToScene({item->width() / 2, item->height() / 2});
}

void WindowDriver::click(QQuickItem *item, Qt::MouseButton button) const
{
    QTest::mouseClick(m_window, button, Qt::NoModifier, centre(item).toPoint());
}

bool WindowDriver::click(const QString &text) const
{
    QQuickItem *target = item(text);
    if (target)
        click(target);
    return target;
}

void WindowDriver::drag(const QPointF &from, const QPointF &to) const
{
    QTest::mousePress(m_window, Qt::LeftButton, Qt::NoModifier, from.toPoint());
    constexpr int kSteps = 8;
    for (int step = 1; step <= kSteps; ++step) {
        QTest::mouseMove(m_window, (from + (to - from) * step / kSteps).toPoint());
        QTest::qWait(5);
    }
    QTest::mouseRelease(m_window, Qt::LeftButton, Qt::NoModifier, to.toPoint());
}

void WindowDriver::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_window, key, modifiers);
}

void WindowDriver::drop(const QList<QUrl> &urls) const
{
    QMimeData data;
    data.setUrls(urls);
    const QPoint point = canvas()->mapToScene({50, 50}).toPoint();
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &enter);
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &drop);
}

bool WindowDriver::chooseFile(const char *dialogName, const QUrl &file) const
{
    if (!QTest::qWaitFor([&] { return shows(dialogName); }))
        return false;
    QObject *fileDialog = dialog(dialogName);
    const bool accepted =
        fileDialog->setProperty("selectedFile", file) && QMetaObject::invokeMethod(fileDialog, "accepted");
    {
        const QSignalBlocker silent(fileDialog); // closed like this it would also tell of a rejection
        QMetaObject::invokeMethod(fileDialog, "close");
    }
    return accepted && QMetaObject::invokeMethod(fileDialog, "visibleChanged");
}

int runWindowTest(QObject &test, int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("QT_QUICK_CONTROLS_STYLE", "Material"); // as the user of another program may have set it
    QAccessible::setActive(true);                   // as with a screen reader
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    Application application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}

} // namespace zm::test
