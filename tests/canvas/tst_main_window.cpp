#include "application/application.h"
#include "application/application_context.h"
#include "application/user_notification_center.h"
#include "support/pictures.h"

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QOpenGLContext>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(ZelmoraAtelierPlugin)

using namespace Qt::StringLiterals;
using namespace zm;

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
        const QImage photo = test::plainPicture(2000, 1000, Qt::red);
        for (const QString &name : {u"a.png"_s, u"b.png"_s, u"50%2.png"_s})
            QVERIFY(photo.save(m_folder.filePath(name)));
        QFile bad(m_folder.filePath(u"bad.png"_s));
        QVERIFY(bad.open(QIODevice::WriteOnly) && bad.write("no picture") > 0);
    }

    void init()
    {
        m_context = std::make_unique<ApplicationContext>();
        m_context->applicationSettings.setThemeMode(u"light"_s);
        m_context->applicationSettings.setCanvasClipMode(false);
        m_context->applicationSettings.setDocumentBoundsVisible(false);
        m_opened.clear();
        connect(&m_context->documentFileController, &DocumentFileController::documentReplaced, this, [this] {
            if (const SceneObject *layer = m_context->document.objectAt(0))
                m_opened.append(layer->name());
        });
        m_warnings.clear();
    }

    void cleanup()
    {
        m_engine.reset();
        while (!m_application.takePendingFileOpenRequest().isEmpty()) {
        }
        QVERIFY(m_warnings.isEmpty());
    }

    void emptyWindowGoesFullScreenAndShowsNotifications()
    {
        QVERIFY(openWindow());
        QCOMPARE(m_window->title(), u"Untitled - Zelmora Atelier"_s);
        QCOMPARE(m_window->minimumSize(), QSize(800, 520));
        QVERIFY(item(u"No layer selected"_s));
        QVERIFY(canvas()->hasFocus());
        QTRY_COMPARE(item(u"StatusBar"_s)->height(), 34.0);

        QTest::keyClick(m_window, Qt::Key_F11);
        QTRY_COMPARE(m_window->visibility(), QWindow::FullScreen);
        QTest::keyClick(m_window, Qt::Key_F11);
        QTRY_VERIFY(m_window->visibility() != QWindow::FullScreen);

        UserNotificationCenter::post(u"Shader error"_s, u"Mosaic"_s, 0, 200);
        QTRY_VERIFY(item(u"Shader error"_s)->isVisible());
        QTRY_VERIFY(!item(u"Shader error"_s)->isVisible());
    }

    void requestsAreOpenedInTurnOnceAFailureIsRead()
    {
        for (const QString &name : {u"bad.png"_s, u"a.png"_s, u"b.png"_s})
            m_application.addFileOpenRequest(file(name));
        QVERIFY(openWindow());
        QTRY_VERIFY(item(u"Could not load the selected image file."_s));
        QTest::qWait(100);
        QCOMPARE(m_opened, QStringList());
        QTest::keyClick(m_window, Qt::Key_Return);
        QTRY_COMPARE(m_opened, QStringList({u"a"_s, u"b"_s}));

        m_application.addFileOpenRequest(file(u"a.png"_s));
        QTRY_COMPARE(m_opened.size(), 3);
        QVERIFY(item(u"Layer: 2000 × 1000 px"_s));
        QTRY_COMPARE(zoom(), std::min({1.0, (canvas()->width() - 40) / 2000, (canvas()->height() - 40) / 1000}));
    }

    void droppedFileIsOpenedAndNamedAsItIs()
    {
        QVERIFY(openWindow());
        drop({file(u"50%2.png"_s)});
        QTRY_COMPARE(m_opened, QStringList(u"50%2"_s));
        QCOMPARE(m_window->title(), u"50%2.png - Zelmora Atelier"_s);
    }

    void documentIsOpenedFirstRememberedAndNotOpenedAgain()
    {
        DocumentFileController &files = m_context->documentFileController;
        QVERIFY(files.load(file(u"a.png"_s)) && files.saveAs(file(u"work.Zelmora"_s)));
        QVERIFY(files.resetDocument(100, 100, Qt::white));
        for (const QString &path : m_context->applicationSettings.recentFilePaths())
            m_context->applicationSettings.removeRecentFile(path);
        m_opened.clear();
        QVERIFY(openWindow());
        drop({file(u"b.png"_s), file(u"work.Zelmora"_s)});
        QTRY_COMPARE(m_opened, QStringList(u"a"_s));
        QCOMPARE(m_window->title(), u"work.Zelmora - Zelmora Atelier"_s);
        QCOMPARE(m_context->applicationSettings.recentFilePaths(), QStringList(m_folder.filePath(u"work.Zelmora"_s)));
        m_application.addFileOpenRequest(file(u"work.Zelmora"_s));
        m_application.addFileOpenRequest(file(u"b.png"_s));
        QTRY_COMPARE(m_opened, QStringList({u"a"_s, u"b"_s}));
    }

    void keysAndStatusBarZoom()
    {
        m_context->document.setSize({400, 300});
        QVERIFY(openWindow());
        for (const auto &[key, expected] :
             {std::pair(Qt::Key_Plus, 2.5), std::pair(Qt::Key_Equal, 2.5), std::pair(Qt::Key_Minus, 1.6),
              std::pair(Qt::Key_0, 1.0), std::pair(Qt::Key_1, 1.0)}) {
            QMetaObject::invokeMethod(canvas(), "setZoom", Q_ARG(QVariant, 2.0));
            QTest::keyClick(m_window, key, Qt::ControlModifier);
            QCOMPARE(std::pair(int(key), zoom()), std::pair(int(key), expected));
        }
        const QList<std::pair<QString, double>> clicks{
            {u"+"_s, 1.25}, {u"+"_s, 1.5625}, {u"156%"_s, 1.0}, {u"-"_s, 0.8}};
        for (const auto &[text, expected] : clicks) {
            QQuickItem *button = item(text);
            QVERIFY2(button, qPrintable(text));
            QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier,
                              button->mapToScene({button->width() / 2, button->height() / 2}).toPoint());
            QCOMPARE(zoom(), expected);
        }
        QMetaObject::invokeMethod(canvas(), "setZoom", Q_ARG(QVariant, 48.0));
        QVERIFY(item(u"4800%"_s));
        QVERIFY(!item(u"+"_s)->isEnabled());
    }

    void menuChangesTheSettings()
    {
        QVERIFY(openWindow());
        chooseFromViewMenu({Qt::Key_L});
        QTRY_VERIFY(m_context->applicationSettings.canvasClipMode());
        QVERIFY(m_context->scenePresentationModel.fixedDocumentBounds());
        chooseFromViewMenu({Qt::Key_C});
        QTRY_VERIFY(!m_context->applicationSettings.canvasClipMode());
        chooseFromViewMenu({Qt::Key_B});
        QTRY_VERIFY(m_context->applicationSettings.documentBoundsVisible());
        QVERIFY(m_context->scenePresentationModel.documentBoundsVisible());
        chooseFromViewMenu({Qt::Key_T, Qt::Key_D});
        QTRY_COMPARE(m_context->applicationSettings.themeMode(), u"dark"_s);
        QCOMPARE(m_window->property("palette").value<QObject *>()->property("window").value<QColor>(),
                 QColor(32, 33, 36));
    }

private:
    [[nodiscard]] bool openWindow()
    {
        m_engine = std::make_unique<QQmlApplicationEngine>();
        connect(m_engine.get(), &QQmlEngine::warnings, this,
                [this](const QList<QQmlError> &warnings) { m_warnings += warnings; });
        addImageProviders(*m_engine, *m_context);
        setContextProperties(*m_engine->rootContext(), m_application, *m_context);
        m_engine->loadFromModule("ZelmoraAtelier"_L1, "Main"_L1);
        m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().value(0));
        if (!m_window || !QTest::qWaitForWindowExposed(m_window))
            return false;
        m_window->requestActivate(); // as the program does once there is something to see
        return QTest::qWaitForWindowActive(m_window);
    }

    void drop(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        const QPoint point = canvas()->mapToScene({50, 50}).toPoint();
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &enter);
        QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &drop);
    }

    /// The control or label that says a text, or the one of a QML type.
    QQuickItem *item(const QString &textOrType)
    {
        for (QList<QQuickItem *> items{m_window->contentItem()}; !items.isEmpty();) {
            QQuickItem *item = items.takeFirst();
            if (item->property("text").toString() == textOrType
                || QString::fromLatin1(item->metaObject()->className()).startsWith(textOrType + u"_QMLTYPE"_s))
                return item;
            items = item->childItems() + items;
        }
        return nullptr;
    }

    QQuickItem *canvas() { return item(u"Canvas"_s); }
    double zoom() { return canvas()->property("zoom").toDouble(); }

    void chooseFromViewMenu(const QList<Qt::Key> &mnemonics)
    {
        QTest::keyClick(m_window, Qt::Key_V, Qt::AltModifier);
        QTRY_VERIFY(item(u"Show Document &Bounds"_s)); // the open menu
        for (Qt::Key key : mnemonics) {
            QTest::qWait(50); // a submenu opens
            QTest::keyClick(m_window, key);
        }
        QTRY_VERIFY(!item(u"Show Document &Bounds"_s));
    }

    QUrl file(const QString &name) const { return QUrl::fromLocalFile(m_folder.filePath(name)); }

    Application &m_application = *static_cast<Application *>(qApp);
    QTemporaryDir m_folder;
    QStringList m_opened;
    std::unique_ptr<ApplicationContext> m_context;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    QList<QQmlError> m_warnings; // which are also printed
};

int main(int argc, char **argv)
{
    const QTemporaryDir home; // neither the user's settings nor the user's log
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    Application application(argc, argv);
    TestMainWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_main_window.moc"
