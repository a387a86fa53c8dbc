#include "application/application.h"
#include "support/pictures.h"
#include "view/window_driver.h"

#include <QFile>
#include <QOpenGLContext>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

/// New, open, save and close through the window and its dialogs. What becomes of every answer is tested without one.
class TestDocumentFlows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
        for (const QString &name : {u"a.png"_s, u"b.png"_s})
            QVERIFY(test::plainPicture(60, 40, Qt::red).save(m_folder.filePath(name)));
        QFile bad(m_folder.filePath(u"bad.png"_s));
        QVERIFY(bad.open(QIODevice::WriteOnly) && bad.write("no picture") > 0);
    }

    void init()
    {
        m_driver = std::make_unique<test::WindowDriver>();
        QVERIFY(m_driver->open());
    }

    void cleanup()
    {
        const bool quiet = !m_driver || m_driver->warnings().isEmpty();
        m_driver.reset();
        QVERIFY(quiet);
    }

    void newDocumentAsksForItsSizeAtOnce()
    {
        m_driver->key(Qt::Key_N, Qt::ControlModifier);
        QTRY_VERIFY(m_driver->shows("resetBoardDialog"));
        QVERIFY(!m_driver->shows("unsavedChangesDialog"));
        QVERIFY(m_driver->named(u"Width"_s));
        QTest::mouseDClick(m_driver->window(), Qt::LeftButton, {},
                           m_driver->centre(m_driver->named(u"Width"_s)).toPoint());
        for (Qt::Key key : {Qt::Key_3, Qt::Key_2, Qt::Key_1})
            m_driver->key(key);
        QVERIFY(m_driver->click(u"Create"_s));
        QTRY_VERIFY(!m_driver->shows("resetBoardDialog"));
        QCOMPARE(document().size().width(), 321.0);
        QTRY_VERIFY(m_driver->canvas()->hasFocus());
    }

    void unsavedChangesAreAskedAbout_data()
    {
        QTest::addColumn<QKeyCombination>("keys");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("continueText");
        QTest::addColumn<QByteArray>("nextDialog");
        QTest::newRow("new") << (Qt::ControlModifier | Qt::Key_N) << u"Save changes before creating a new document?"_s
                             << u"Create Anyway"_s << QByteArray("resetBoardDialog");
        QTest::newRow("open") << (Qt::ControlModifier | Qt::Key_O) << u"Save changes before opening another document?"_s
                              << u"Open Anyway"_s << QByteArray("documentOpenDialog");
        QTest::newRow("quit") << (Qt::ControlModifier | Qt::Key_Q) << u"Save changes before exiting?"_s
                              << u"Exit Anyway"_s << QByteArray();
    }

    void unsavedChangesAreAskedAbout()
    {
        QFETCH(QKeyCombination, keys);
        QFETCH(QString, question);
        QFETCH(QString, continueText);
        QFETCH(QByteArray, nextDialog);
        makeDirty();
        m_driver->key(keys.key(), keys.keyboardModifiers());
        QTRY_VERIFY(m_driver->item(question));
        m_driver->key(Qt::Key_Escape);
        QTRY_VERIFY(!m_driver->shows("unsavedChangesDialog"));
        QTest::qWait(50);
        QVERIFY(m_driver->window()->isVisible());
        QVERIFY(nextDialog.isEmpty() || !m_driver->shows(nextDialog));

        m_driver->key(keys.key(), keys.keyboardModifiers());
        QTRY_VERIFY(m_driver->item(continueText));
        QVERIFY(m_driver->click(continueText));
        if (nextDialog.isEmpty())
            QTRY_VERIFY(!m_driver->window()->isVisible());
        else
            QTRY_VERIFY(m_driver->shows(nextDialog));
    }

    void windowHandsOnWhatIsAskedOfIt()
    {
        makeDirty();
        QWindow *window = m_driver->window();
        const int newDocument = window->property("newDocumentPendingUnsavedAction").toInt();
        QVERIFY(QMetaObject::invokeMethod(window, "requestUnsavedAction", newDocument, 1, QString(), QUrl()));
        QCOMPARE(window->property("pendingUnsavedAction").toInt(), newDocument);
        QTRY_VERIFY(m_driver->item(u"Create Anyway"_s));
        QMetaObject::invokeMethod(m_driver->dialog("unsavedChangesDialog"), "close");
        QTRY_COMPARE(window->property("pendingUnsavedAction").toInt(), 0);
        QVERIFY(QMetaObject::invokeMethod(window, "executeUnsavedAction", newDocument, QString(), QUrl()));
        QTRY_VERIFY(m_driver->shows("resetBoardDialog"));
    }

    void savesThroughTheDialogsThenWithoutThenCloses()
    {
        const QUrl target = file(u"saved.jpg"_s);
        makeDirty();
        m_driver->key(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(m_driver->shows("exportDialog"));
        QTRY_VERIFY(exporter().previewReady());
        m_driver->key(Qt::Key_Return);
        QVERIFY(m_driver->chooseFile("exportFileDialog", target));
        QTRY_VERIFY(m_driver->item(u"Image exported to %1.\nEditable document saved as saved.zelmora."_s.arg(
            QDir::toNativeSeparators(target.toLocalFile()))));
        QVERIFY(QFile::exists(m_folder.filePath(u"saved.zelmora"_s)));
        QVERIFY(m_driver->context().commandHistory.isClean());

        makeDirty();
        m_driver->window()->close();
        QTRY_VERIFY(m_driver->shows("unsavedChangesDialog"));
        const QDateTime before = QFileInfo(target.toLocalFile()).lastModified();
        QTest::qWait(20); // a file system's clock
        QVERIFY(m_driver->click(u"Save"_s));
        QTRY_VERIFY(!m_driver->window()->isVisible());
        QVERIFY(QFileInfo(target.toLocalFile()).lastModified() > before);
    }

    void failedSaveLeavesTheWindowOpenWithNothingPending()
    {
        const QString folder = m_folder.filePath(u"gone"_s);
        QVERIFY(QDir().mkdir(folder));
        makeDirty();
        saveAs(QUrl::fromLocalFile(folder + u"/x.jpg"_s));
        QVERIFY(QDir(folder).removeRecursively());
        makeDirty();
        m_driver->window()->close();
        QTRY_VERIFY(m_driver->shows("unsavedChangesDialog"));
        QVERIFY(m_driver->click(u"Save"_s));
        QTRY_VERIFY(m_driver->shows("exportErrorDialog"));
        QVERIFY(m_driver->item(u"Unable to Save Image"_s));
        QVERIFY(!m_driver->shows("saveProgressDialog"));
        m_driver->key(Qt::Key_Return);
        QTRY_VERIFY(!m_driver->shows("exportErrorDialog"));
        QVERIFY(m_driver->window()->isVisible());
        QCOMPARE(m_driver->window()->property("pendingUnsavedAction").toInt(), 0);
    }

    void nothingElseHappensBesideAFileDialog()
    {
        makeDirty();
        m_driver->key(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(m_driver->shows("exportDialog"));
        QTRY_VERIFY(exporter().previewReady());
        m_driver->key(Qt::Key_Return);
        QTRY_VERIFY(m_driver->shows("exportFileDialog"));
        const qsizetype before = document().objectCount();
        m_driver->click(m_driver->item(u"Text"_s)); // beside a dialog that may be a window of its own
        m_driver->key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(document().objectCount(), before);
        QMetaObject::invokeMethod(m_driver->dialog("exportFileDialog"), "reject");
        QTRY_VERIFY(!m_driver->shows("exportFileDialog"));
        QTRY_VERIFY(m_driver->named(u"Canvas"_s)->hasActiveFocus());
        QVERIFY(!exporter().previewReady());
        QVERIFY(!exporter().hasSessionExport());
    }

    void everyDialogTellsThatItIsOpen()
    {
        const QObject *dialogs = m_driver->dialog(nullptr);
        QVERIFY(dialogs);
        int count = 0;
        for (int index = 0; index < dialogs->metaObject()->propertyCount(); ++index) {
            const QByteArray name = dialogs->metaObject()->property(index).name();
            if (!name.endsWith("Dialog"))
                continue;
            ++count;
            QVERIFY(exporter().begin(true)); // for the one that shows an export
            QMetaObject::invokeMethod(m_driver->dialog(name), "open");
            QTRY_VERIFY2(m_driver->shows(name), name);
            QVERIFY2(m_driver->window()->property("applicationFileOpenUiBlocked").toBool(), name);
            QMetaObject::invokeMethod(m_driver->dialog(name), "close");
            QTRY_VERIFY2(!m_driver->window()->property("applicationFileOpenUiBlocked").toBool(), name);
        }
        QVERIFY(count >= 13);
    }

    void requestsWaitForDialogs()
    {
        m_driver->key(Qt::Key_N, Qt::ControlModifier);
        QTRY_VERIFY(m_driver->shows("resetBoardDialog"));
        for (const QString &name : {u"a.png"_s, u"bad.png"_s, u"b.png"_s})
            m_driver->application().addFileOpenRequest(file(name));
        QTest::qWait(100);
        QCOMPARE(document().objectCount(), 0);
        m_driver->key(Qt::Key_Escape);
        QTRY_COMPARE(m_driver->layerNames(), QStringList(u"a"_s));
        QTRY_VERIFY(m_driver->item(u"Unable to Open File"_s));
        QCOMPARE(m_driver->layerNames(), QStringList(u"a"_s));
        m_driver->key(Qt::Key_Return);
        QTRY_COMPARE(m_driver->layerNames(), QStringList(u"b"_s));
    }

    void droppedFilesBecomeLayers()
    {
        m_driver->drop({file(u"a.png"_s), file(u"bad.png"_s), file(u"b.png"_s)});
        QTRY_VERIFY(m_driver->shows("imageLoadErrorDialog"));
        QCOMPARE(m_driver->layerNames(), QStringList(u"a"_s));
    }

    void recentFileThatIsGoneLeavesTheMenu()
    {
        makeDirty();
        saveAs(file(u"recent.jpg"_s));
        const QString path = m_folder.filePath(u"recent.zelmora"_s);
        QTRY_COMPARE(m_driver->context().applicationSettings.recentFilePaths(), QStringList(path));
        QVERIFY(m_driver->context().documentFileController.resetDocument(50, 50, Qt::white));
        chooseRecent();
        QTRY_COMPARE(document().objectCount(), 1);
        QVERIFY(m_driver->context().documentFileController.resetDocument(50, 50, Qt::white));
        QVERIFY(QFile::remove(path));
        chooseRecent();
        QTRY_VERIFY(m_driver->shows("documentFileErrorDialog"));
        QCOMPARE(m_driver->context().applicationSettings.recentFilePaths(), QStringList());
    }

    void imageDialogInsertsALayerAndRemembersItsFolder()
    {
        QVERIFY(m_driver->click(u"Image"_s));
        QVERIFY(m_driver->chooseFile("imageFileDialog", file(u"a.png"_s)));
        QTRY_COMPARE(m_driver->layerNames(), QStringList(u"a"_s));
        QCOMPARE(m_driver->context().applicationSettings.imageImportFolderUrl(), QUrl::fromLocalFile(m_folder.path()));
        QVERIFY(!m_driver->context().documentFileController.hasDocumentUrl());
    }

private:
    Document &document() { return m_driver->context().document; }
    ExportController &exporter() { return m_driver->context().exportController; }
    QUrl file(const QString &name) const { return QUrl::fromLocalFile(m_folder.filePath(name)); }
    void makeDirty() { QVERIFY(m_driver->context().editorController.addText()); }

    void saveAs(const QUrl &url)
    {
        QVERIFY(exporter().begin(true));
        QTRY_VERIFY(exporter().previewReady());
        QVERIFY(exporter().exportTo(url));
    }

    void chooseRecent()
    {
        m_driver->key(Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(m_driver->item(u"Open Recent"_s));
        m_driver->key(Qt::Key_R);
        QTRY_VERIFY(m_driver->item(u"1. recent.zelmora"_s));
        m_driver->key(Qt::Key_Return);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<test::WindowDriver> m_driver;
};

int main(int argc, char **argv)
{
    TestDocumentFlows test;
    return test::runWindowTest(test, argc, argv);
}

#include "tst_document_flows.moc"
