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

namespace {

QQuickItem *findItem(QQuickItem *root, const std::function<bool(QQuickItem *)> &matches)
{
    if (matches(root))
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = findItem(child, matches))
            return found;
    }
    return nullptr;
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

public:
    explicit TestMainWindow(Application &application)
        : m_application(application)
    {
    }

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
        const QImage photo = test::plainPicture(2000, 1000, Qt::red);
        for (const QString &name : {u"a.png"_s, u"b.png"_s, u"c.png"_s, u"50%2.png"_s})
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
        connect(&m_context->documentFileController, &DocumentFileController::documentReplaced, this,
                [this] { m_opened.append(m_context->document.objectAt(0)->name()); });
        m_warnings.clear();
    }

    void cleanup()
    {
        m_engine.reset();
        while (!m_application.takePendingFileOpenRequest().isEmpty()) {
        }
        QCOMPARE(m_warnings, QStringList());
    }

    void startsOnAnEmptyDocument()
    {
        openWindow();
        QCOMPARE(m_window->title(), u"Untitled - Zelmora Atelier"_s);
        QCOMPARE(m_window->minimumSize(), QSize(800, 520));
        QVERIFY(itemWithText(u"No layer selected"_s));
        QVERIFY(itemOfType("Canvas_QMLTYPE")->hasFocus());
        QTRY_COMPARE(itemOfType("StatusBar_QMLTYPE")->height(), 34.0);
    }

    void titleNamesTheFileAsItIs()
    {
        m_application.addFileOpenRequest(file(u"50%2.png"_s));
        openWindow();
        QTRY_COMPARE(m_window->title(), u"50%2.png - Zelmora Atelier"_s);
    }

    void requestsAreOpenedOneAfterTheOther()
    {
        m_application.addFileOpenRequest(file(u"a.png"_s));
        m_application.addFileOpenRequest(file(u"b.png"_s));
        openWindow();
        QTRY_COMPARE(m_opened, QStringList({u"a"_s, u"b"_s}));
        m_application.addFileOpenRequest(file(u"c.png"_s));
        QTRY_COMPARE(m_opened.size(), 3);
        QVERIFY(itemWithText(u"Layer: 2000 × 1000 px"_s));
        QTRY_COMPARE(zoom(), std::min({1.0, (canvas()->width() - 40) / 2000, (canvas()->height() - 40) / 1000}));
    }

    void failedRequestIsToldBeforeTheNextIsOpened()
    {
        m_application.addFileOpenRequest(file(u"bad.png"_s));
        m_application.addFileOpenRequest(file(u"b.png"_s));
        openWindow();
        QTRY_VERIFY(itemWithText(u"Could not load the selected image file."_s));
        QTest::qWait(100);
        QCOMPARE(m_opened, QStringList());
        QTest::keyClick(m_window, Qt::Key_Return);
        QTRY_COMPARE(m_opened, QStringList(u"b"_s));
        QCOMPARE(m_window->title(), u"b.png - Zelmora Atelier"_s);
    }

    void droppedFileIsOpened()
    {
        openWindow();
        QMimeData data;
        data.setUrls({file(u"c.png"_s)});
        const QPoint point = canvas()->mapToScene({50, 50}).toPoint();
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &enter);
        QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &drop);
        QTRY_COMPARE(m_opened, QStringList(u"c"_s));
    }

    void viewKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<double>("zoom");
        QTest::newRow("in") << int(Qt::Key_Plus) << 2.5;
        QTest::newRow("in, without Shift") << int(Qt::Key_Equal) << 2.5;
        QTest::newRow("out") << int(Qt::Key_Minus) << 1.6;
        QTest::newRow("fit") << int(Qt::Key_0) << 1.0;
        QTest::newRow("actual size") << int(Qt::Key_1) << 1.0;
    }

    void viewKeys()
    {
        QFETCH(int, key);
        QFETCH(double, zoom);
        m_context->document.setSize({400, 300});
        openWindow();
        QMetaObject::invokeMethod(canvas(), "setZoom", Q_ARG(QVariant, 2.0));
        QTest::keyClick(m_window, Qt::Key(key), Qt::ControlModifier);
        QCOMPARE(this->zoom(), zoom);
    }

    void fullScreenComesAndGoes()
    {
        openWindow();
        QTest::keyClick(m_window, Qt::Key_F11);
        QTRY_COMPARE(m_window->visibility(), QWindow::FullScreen);
        QTest::keyClick(m_window, Qt::Key_F11);
        QTRY_VERIFY(m_window->visibility() != QWindow::FullScreen);
    }

    void statusBarZooms()
    {
        openWindow();
        click(u"+"_s);
        QCOMPARE(zoom(), 1.25);
        click(u"+"_s);
        click(u"156%"_s);
        QCOMPARE(zoom(), 1.0);
        click(u"-"_s);
        QCOMPARE(zoom(), 0.8);
        QMetaObject::invokeMethod(canvas(), "setZoom", Q_ARG(QVariant, 48.0));
        QVERIFY(itemWithText(u"4800%"_s));
        QVERIFY(!itemWithText(u"+"_s)->isEnabled());
    }

    void menuChangesTheSettings()
    {
        openWindow();
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

    void notificationAppearsOverTheCanvas()
    {
        openWindow();
        UserNotificationCenter::post(u"Shader error"_s, u"Mosaic"_s, 0, 200);
        QTRY_VERIFY(itemWithText(u"Shader error"_s)->isVisible());
        QTRY_VERIFY(!itemWithText(u"Shader error"_s)->isVisible());
    }

private:
    void openWindow()
    {
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_engine->setOutputWarningsToStandardError(false);
        connect(m_engine.get(), &QQmlEngine::warnings, this, [this](const QList<QQmlError> &warnings) {
            for (const QQmlError &warning : warnings)
                m_warnings.append(warning.toString());
        });
        setContextProperties(*m_engine->rootContext(), m_application, *m_context);
        m_engine->loadFromModule("ZelmoraAtelier"_L1, "Main"_L1);
        m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().value(0));
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        m_window->requestActivate(); // as the program does once there is something to see
        QVERIFY(QTest::qWaitForWindowActive(m_window));
    }

    QQuickItem *itemOfType(const char *type)
    {
        return findItem(m_window->contentItem(), [type](QQuickItem *item) {
            return QByteArray(item->metaObject()->className()).startsWith(type);
        });
    }

    /// The control or label that says text.
    QQuickItem *itemWithText(const QString &text)
    {
        return findItem(m_window->contentItem(),
                        [&text](QQuickItem *item) { return item->property("text").toString() == text; });
    }

    QQuickItem *canvas() { return itemOfType("Canvas_QMLTYPE"); }
    double zoom() { return canvas()->property("zoom").toDouble(); }

    void click(const QString &text)
    {
        QQuickItem *item = itemWithText(text);
        QVERIFY2(item, qPrintable(text));
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier,
                          item->mapToScene({item->width() / 2, item->height() / 2}).toPoint());
    }

    void chooseFromViewMenu(const QList<Qt::Key> &mnemonics)
    {
        QTest::keyClick(m_window, Qt::Key_V, Qt::AltModifier);
        QTRY_VERIFY(itemWithText(u"Show Document &Bounds"_s)); // the open menu
        for (Qt::Key key : mnemonics) {
            QTest::qWait(50); // a submenu opens
            QTest::keyClick(m_window, key);
        }
        QTRY_VERIFY(!itemWithText(u"Show Document &Bounds"_s));
    }

    QUrl file(const QString &name) const { return QUrl::fromLocalFile(m_folder.filePath(name)); }

    Application &m_application;
    QTemporaryDir m_folder;
    QStringList m_opened;
    std::unique_ptr<ApplicationContext> m_context;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    QStringList m_warnings;
};

int main(int argc, char **argv)
{
    const QTemporaryDir home; // neither the user's settings nor the user's log
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    Application application(argc, argv);
    TestMainWindow test(application);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_main_window.moc"
