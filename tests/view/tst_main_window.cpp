#include "application/application.h"
#include "services/user_notification_center.h"
#include "support/pictures.h"
#include "view/window_driver.h"

#include <QOpenGLContext>
#include <QQuickItem>
#include <QQuickStyle>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

/// The window as a whole: title, view, menus and what they set.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
        QVERIFY(test::plainPicture(2000, 1000, Qt::red).save(m_folder.filePath(u"50%2.png"_s)));
    }

    void init() { m_driver = std::make_unique<test::WindowDriver>(); }

    void cleanup()
    {
        const bool quiet = m_driver->warnings().isEmpty();
        m_driver.reset();
        QVERIFY(quiet);
    }

    void emptyWindowGoesFullScreenAndShowsNotifications()
    {
        QVERIFY(m_driver->open());
        QQuickWindow *window = m_driver->window();
        QCOMPARE(window->title(), u"Untitled - Zelmora Atelier"_s);
        QCOMPARE(window->minimumSize(), QSize(800, 520));
        QCOMPARE(QQuickStyle::name(), u"Fusion"_s);
        QVERIFY(m_driver->item(u"No layer selected"_s));
        QVERIFY(m_driver->canvas()->hasFocus());
        QTRY_COMPARE(m_driver->item(u"StatusBar"_s)->height(), 34.0);

        m_driver->key(Qt::Key_F11);
        QTRY_COMPARE(window->visibility(), QWindow::FullScreen);
        m_driver->key(Qt::Key_F11);
        QTRY_VERIFY(window->visibility() != QWindow::FullScreen);

        UserNotificationCenter::post(u"Shader error"_s, u"Mosaic"_s, 0, 200);
        QTRY_VERIFY(m_driver->item(u"Shader error"_s));
        QTRY_VERIFY(!m_driver->item(u"Shader error"_s));
    }

    void fileNamedAtTheStartIsOpenedFittedAndNamedAsItIs()
    {
        m_driver->application().addFileOpenRequest(QUrl::fromLocalFile(m_folder.filePath(u"50%2.png"_s)));
        QVERIFY(m_driver->open());
        QTRY_COMPARE(m_driver->window()->title(), u"50%2.png - Zelmora Atelier"_s);
        QVERIFY(m_driver->item(u"Layer: 2000 × 1000 px"_s));
        const QQuickItem *view = m_driver->named(u"Canvas"_s);
        QTRY_COMPARE(m_driver->zoom(), std::min({1.0, (view->width() - 40) / 2000, (view->height() - 40) / 1000}));
        QVERIFY(m_driver->context().editorController.addText());
        QCOMPARE(m_driver->window()->title(), u"50%2.png* - Zelmora Atelier"_s);
    }

    void keysAndStatusBarZoom()
    {
        m_driver->context().document.setSize({400, 300});
        QVERIFY(m_driver->open());
        QQuickItem *canvas = m_driver->canvas();
        for (const auto &[key, expected] :
             {std::pair(Qt::Key_Plus, 2.5), std::pair(Qt::Key_Equal, 2.5), std::pair(Qt::Key_Minus, 1.6),
              std::pair(Qt::Key_0, 1.0), std::pair(Qt::Key_1, 1.0)}) {
            QMetaObject::invokeMethod(canvas, "setZoom", Q_ARG(QVariant, 2.0));
            m_driver->key(key, Qt::ControlModifier);
            QCOMPARE(std::pair(int(key), m_driver->zoom()), std::pair(int(key), expected));
        }
        const QList<std::pair<QString, double>> clicks{
            {u"+"_s, 1.25}, {u"+"_s, 1.5625}, {u"156%"_s, 1.0}, {u"-"_s, 0.8}};
        for (const auto &[text, expected] : clicks) {
            QVERIFY2(m_driver->click(text), qPrintable(text));
            QCOMPARE(m_driver->zoom(), expected);
        }
        QMetaObject::invokeMethod(canvas, "setZoom", Q_ARG(QVariant, 48.0));
        QVERIFY(m_driver->item(u"4800%"_s));
        QVERIFY(!m_driver->item(u"+"_s)->isEnabled());
    }

    void menusChangeTheSettings()
    {
        QVERIFY(m_driver->open());
        ApplicationSettings &settings = m_driver->context().applicationSettings;
        chooseFromViewMenu({Qt::Key_L});
        QTRY_VERIFY(settings.canvasClipMode());
        QVERIFY(m_driver->context().scenePresentationModel.fixedDocumentBounds());
        chooseFromViewMenu({Qt::Key_C});
        QTRY_VERIFY(!settings.canvasClipMode());
        chooseFromViewMenu({Qt::Key_B});
        QTRY_VERIFY(settings.documentBoundsVisible());
        chooseFromViewMenu({Qt::Key_R, Qt::Key_O});
        QTRY_COMPARE(settings.rulerPlacement(), 0);
        chooseFromViewMenu({Qt::Key_T, Qt::Key_D});
        QTRY_COMPARE(settings.themeMode(), u"dark"_s);
        QCOMPARE(m_driver->window()->property("palette").value<QObject *>()->property("window").value<QColor>(),
                 QColor(32, 33, 36));
        // Choosing what is chosen leaves it marked.
        chooseFromViewMenu({Qt::Key_T, Qt::Key_D});
        QTRY_COMPARE(settings.themeMode(), u"dark"_s);
    }

    void inspectorChangesItsSideAndKeepsTheToolsBesideIt()
    {
        QVERIFY(m_driver->open());
        const auto left = [this](const QString &type) { return m_driver->item(type)->mapToScene({0, 0}).x(); };
        for (int round = 0; round < 2; ++round) {
            m_driver->context().applicationSettings.setInspectorPosition(0);
            QTRY_VERIFY(left(u"Inspector"_s) < left(u"ToolRail"_s) + 1e-9 && left(u"Inspector"_s) < 1);
            QTRY_VERIFY(left(u"Canvas"_s) < left(u"ToolRail"_s));
            m_driver->context().applicationSettings.setInspectorPosition(1);
            QTRY_VERIFY(left(u"ToolRail"_s) < 1);
            QTRY_VERIFY(left(u"Inspector"_s) > left(u"Canvas"_s));
        }
    }

    void anotherLanguageAsksForARestart()
    {
        QVERIFY(m_driver->open());
        ApplicationSettings &settings = m_driver->context().applicationSettings;
        settings.setLanguage(u"en"_s);
        for (const QString &language : {u"English"_s, u"Deutsch"_s}) {
            chooseFromViewMenu({Qt::Key_G}, language);
            QTest::qWait(50);
            QVERIFY(!m_driver->shows("languageRestartDialog")); // before the texts have changed
        }
        QCOMPARE(settings.language(), u"de"_s);
        settings.setLanguage(u"en"_s);
    }

private:
    /// By keys, and at last by a click on an entry if one is named.
    void chooseFromViewMenu(const QList<Qt::Key> &mnemonics, const QString &entry = {})
    {
        m_driver->key(Qt::Key_V, Qt::AltModifier);
        QTRY_VERIFY(m_driver->item(u"Show Document Bounds"_s)); // the open menu
        for (Qt::Key key : mnemonics) {
            QTest::qWait(50); // a submenu opens
            m_driver->key(key);
        }
        if (!entry.isEmpty()) {
            QTRY_VERIFY(m_driver->item(entry));
            QVERIFY(m_driver->click(entry));
        }
        QTRY_VERIFY(!m_driver->item(u"Show Document Bounds"_s));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<test::WindowDriver> m_driver;
};

int main(int argc, char **argv)
{
    TestMainWindow test;
    return test::runWindowTest(test, argc, argv);
}

#include "tst_main_window.moc"
