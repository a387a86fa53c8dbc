#include "commands/command_history.h"
#include "document/document.h"
#include "editor/document_file_controller.h"
#include "editor/document_flow.h"
#include "editor/editor_controller.h"
#include "editor/editor_state_model.h"
#include "editor/export_controller.h"
#include "editor/export_preview_image_store.h"
#include "support/pictures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

using Action = DocumentFlow::UnsavedAction;
using Mode = EditorStateModel::EditorMode;

/// A flow with real controllers, in the place of whose window stands a list of what it was asked for.
struct Fixture
{
    QTemporaryDir folder;
    Document document;
    CommandHistory history{&document};
    DocumentFileController files{&document, &history};
    EditorController editor{&document, &history};
    EditorStateModel state;
    ExportController exporter{&document, &files, std::make_shared<ExportPreviewImageStore>()};
    DocumentFlow flow{&history, &files, &editor, &state, &exporter};
    QList<QUrl> requests;
    QStringList asked; // of the window, in order

    Fixture()
    {
        flow.setFileOpenRequests([this] { return requests.isEmpty() ? QUrl() : requests.takeFirst(); });
        note(&DocumentFlow::newDocumentDialogRequested, u"new dialog"_s);
        note(&DocumentFlow::openDialogRequested, u"open dialog"_s);
        note(&DocumentFlow::exportDialogRequested, u"export dialog"_s);
        note(&DocumentFlow::closeRequested, u"close"_s);
        note(&DocumentFlow::raiseRequested, u"raise"_s);
        note(&DocumentFlow::documentOpened, u"opened"_s);
        note(&DocumentFlow::openFailed, u"open failed"_s);
        note(&DocumentFlow::insertFailed, u"insert failed"_s);
        note(&DocumentFlow::saveFailed, u"save failed"_s);
        note(&DocumentFlow::closeRefusedWhileSaving, u"close refused"_s);
        const auto noteFile = [this](const QString &what) {
            return [this, what](const QUrl &url) { asked.append(what + u' ' + url.fileName()); };
        };
        QObject::connect(&flow, &DocumentFlow::saved, noteFile(u"saved"_s));
        QObject::connect(&flow, &DocumentFlow::imageImported, noteFile(u"imported"_s));
        QObject::connect(&flow, &DocumentFlow::imageExported, noteFile(u"exported"_s));
        QObject::connect(&flow, &DocumentFlow::recentFileFailed,
                         [this](const QString &path) { asked.append(u"forget "_s + QFileInfo(path).fileName()); });
        QObject::connect(
            &flow, &DocumentFlow::unsavedQuestionRequested, [this](DocumentFlow::UnsavedQuestion question) {
                asked.append(QStringList({u"ask: exit"_s, u"ask: create"_s, u"ask: open"_s}).at(int(question)));
            });
        for (const QString &name : {u"a.png"_s, u"b.png"_s})
            test::plainPicture(60, 40, Qt::red).save(path(name));
        QFile bad(path(u"bad.png"_s));
        if (bad.open(QIODevice::WriteOnly))
            bad.write("no picture");
        Document other;
        CommandHistory otherHistory(&other);
        DocumentFileController(&other, &otherHistory).saveAs(url(u"other.zelmora"_s));
    }

    void note(void (DocumentFlow::*signal)(), const QString &what)
    {
        QObject::connect(&flow, signal, [this, what] { asked.append(what); });
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(path(name)); }
    QList<QUrl> urls(const QStringList &names) const
    {
        QList<QUrl> all;
        for (const QString &name : names)
            all.append(url(name));
        return all;
    }

    QStringList layerNames() const
    {
        QStringList names;
        for (qsizetype index = 0; index < document.objectCount(); ++index)
            names.append(document.objectAt(index)->name());
        return names;
    }

    /// Lets all happen that does not wait for a person, with the frames that a window would draw.
    void settle()
    {
        constexpr int kEnoughTurns = 8; // one thing leads to another
        for (int quietTurns = 0; quietTurns < kEnoughTurns; ++quietTurns) {
            QCoreApplication::processEvents();
            if (flow.work()->isRunning() || exporter.sessionSaveBusy())
                quietTurns = 0;
            flow.work()->carryOutNext();
        }
    }

    QStringList takeAsked()
    {
        settle();
        return std::exchange(asked, {});
    }

    void makeDirty() { editor.addText(); }

    /// The document is out.png and out.zelmora, so that a save asks for no file.
    bool saveFirst()
    {
        flow.saveDocument(true);
        exporter.setFormatKey(u"png"_s);
        if (!QTest::qWaitFor([this] { return exporter.previewReady(); }))
            return false;
        flow.exportTo(url(u"out.png"_s));
        return takeAsked() == QStringList({u"export dialog"_s, u"saved out.png"_s, u"exported out.png"_s});
    }

    /// Puts a folder where a file is written, so that writing fails.
    void block(const QString &name)
    {
        QFile::remove(path(name));
        QDir().mkpath(path(name) + u"/x"_s);
    }

    void askSystem(const QStringList &names)
    {
        requests += urls(names);
        flow.processFileOpenRequestsLater();
    }

    void request(Action action)
    {
        switch (action) {
        case Action::None:
            break;
        case Action::Close:
            if (flow.requestClose())
                asked.append(u"close"_s);
            break;
        case Action::NewDocument:
            flow.requestNewDocument();
            break;
        case Action::OpenDocument:
            flow.requestOpenDocument();
            break;
        case Action::OpenRecent:
            flow.requestOpenRecent(path(u"other.zelmora"_s));
            break;
        case Action::OpenFile:
            flow.requestOpenFile(url(u"other.zelmora"_s), false);
            break;
        case Action::ApplicationFileOpen:
            askSystem({u"other.zelmora"_s});
            break;
        }
    }
};

} // namespace

class DocumentFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void everyActionUnderEveryAnswer_data()
    {
        QTest::addColumn<Action>("action");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("effect");
        QTest::addRow("close") << Action::Close << u"ask: exit"_s << u"close"_s;
        QTest::addRow("new") << Action::NewDocument << u"ask: create"_s << u"new dialog"_s;
        QTest::addRow("open") << Action::OpenDocument << u"ask: open"_s << u"open dialog"_s;
        QTest::addRow("recent") << Action::OpenRecent << u"ask: open"_s << u"opened"_s;
        QTest::addRow("file") << Action::OpenFile << u"ask: open"_s << u"opened"_s;
        QTest::addRow("system") << Action::ApplicationFileOpen << u"ask: open"_s << u"opened"_s;
    }

    void everyActionUnderEveryAnswer()
    {
        QFETCH(const Action, action);
        QFETCH(const QString, question);
        QFETCH(const QString, effect);
        const bool opens = effect == u"opened"_s;
        const bool bySystem = action == Action::ApplicationFileOpen;

        const struct
        {
            const char *name;
            std::function<void(Fixture &)> give;
            QStringList answered; // before the effect
            bool goesOn;
            bool saves;
        } answers[] = {
            {"continue", [](Fixture &f) { f.flow.continuePendingUnsavedAction(); }, {}, true, false},
            {"dismiss", [](Fixture &f) { f.flow.abandonPendingUnsavedAction(); }, {}, false, false},
            {"save", [](Fixture &f) { f.flow.saveDocument(true); }, {}, true, true},
            {"save, and the document fails",
             [](Fixture &f) {
                 f.block(u"out.zelmora"_s);
                 f.flow.saveDocument(true);
             },
             {u"save failed"_s},
             false,
             true},
            {"save, and the picture fails",
             [](Fixture &f) {
                 f.block(u"out.png"_s);
                 f.flow.saveDocument(true);
             },
             {u"save failed"_s},
             false,
             true},
        };
        for (const auto &answer : answers) {
            Fixture fixture;
            QVERIFY(!answer.saves || fixture.saveFirst());
            const QUrl before = fixture.files.documentUrl();
            fixture.makeDirty();
            fixture.request(action);
            QCOMPARE(fixture.takeAsked(), bySystem ? QStringList({u"raise"_s, question}) : QStringList(question));
            QCOMPARE(fixture.flow.pendingUnsavedAction(), action);
            QCOMPARE(fixture.flow.applicationFileOpenActive(), bySystem);
            QCOMPARE(fixture.flow.pendingRecentFilePath(),
                     action == Action::OpenRecent ? fixture.path(u"other.zelmora"_s) : QString());
            QCOMPARE(fixture.flow.pendingOpenFileUrl(),
                     opens && action != Action::OpenRecent ? fixture.url(u"other.zelmora"_s) : QUrl());

            answer.give(fixture);
            QStringList told = fixture.takeAsked();
            told.removeDuplicates(); // a failed save may be told twice
            QVERIFY2(told == answer.answered + (answer.goesOn ? QStringList(effect) : QStringList()),
                     qPrintable(QLatin1StringView(answer.name) + u": "_s + told.join(u", "_s)));
            QCOMPARE(fixture.flow.pendingUnsavedAction(), Action::None);
            QCOMPARE(fixture.flow.closeConfirmed(), answer.goesOn && action == Action::Close);
            QCOMPARE(fixture.flow.applicationFileOpenActive(), false);
            QCOMPARE(fixture.flow.activeApplicationFileOpenUrl(), QUrl());
            QCOMPARE(fixture.files.documentUrl(), opens && answer.goesOn ? fixture.url(u"other.zelmora"_s) : before);
            QCOMPARE(fixture.flow.saveInProgress(), false);
        }
    }

    void cleanDocumentIsNotAskedAbout_data() { everyActionUnderEveryAnswer_data(); }

    void cleanDocumentIsNotAskedAbout()
    {
        QFETCH(const Action, action);
        QFETCH(const QString, effect);
        Fixture fixture;
        fixture.request(action);
        QStringList expected(effect);
        if (action == Action::ApplicationFileOpen)
            expected.prepend(u"raise"_s);
        QCOMPARE(fixture.takeAsked(), expected);
    }

    void effectsComeLaterAndOnce()
    {
        Fixture fixture;
        fixture.flow.requestNewDocument();
        fixture.flow.requestNewDocument();
        fixture.flow.requestOpenRecent(fixture.path(u"gone.zelmora"_s));
        fixture.flow.requestOpenRecent(fixture.path(u"other.zelmora"_s));
        QCOMPARE(fixture.asked, QStringList());
        QCoreApplication::processEvents();
        QCOMPARE(fixture.asked, QStringList(u"new dialog"_s));
        QVERIFY(fixture.flow.work()->isRunning()); // and waits for a frame
        QVERIFY(!fixture.files.hasDocumentUrl());
        QCOMPARE(fixture.takeAsked(), QStringList({u"new dialog"_s, u"opened"_s}));
    }

    void workIsCarriedOutInTurn()
    {
        WorkQueue queue;
        QStringList done;
        QObject::connect(&queue, &WorkQueue::finished, [&done] { done.append(u"finished"_s); });
        queue.append(
            [&] {
                queue.append([&done] { done.append(u"second"_s); }, true);
                queue.carryOutNext(); // not within another
                done.append(queue.isSlow() ? u"slow"_s : u"first"_s);
            },
            false);
        queue.carryOutNext();
        QCOMPARE(done, QStringList(u"first"_s));
        QVERIFY(queue.isRunning() && queue.isSlow());
        queue.carryOutNext();
        queue.carryOutNext();
        QCOMPARE(done, QStringList({u"first"_s, u"second"_s, u"finished"_s}));
    }

    void systemRequestsComeOneAfterAnother()
    {
        Fixture fixture;
        fixture.askSystem({u"a.png"_s, u"bad.png"_s, u"b.png"_s});
        QCOMPARE(fixture.takeAsked(), QStringList({u"raise"_s, u"opened"_s, u"raise"_s, u"open failed"_s}));
        QVERIFY(fixture.flow.applicationFileOpenErrorPending());
        QCOMPARE(fixture.flow.activeApplicationFileOpenUrl(), fixture.url(u"bad.png"_s));
        QCOMPARE(fixture.layerNames(), QStringList(u"a"_s));
        fixture.flow.openErrorRead();
        QCOMPARE(fixture.takeAsked(), QStringList({u"raise"_s, u"opened"_s}));
        QCOMPARE(fixture.layerNames(), QStringList(u"b"_s));

        fixture.makeDirty();
        fixture.askSystem({u"a.png"_s, u"other.zelmora"_s});
        QCOMPARE(fixture.takeAsked(), QStringList({u"raise"_s, u"ask: open"_s}));
        fixture.flow.requestNewDocument(); // nobody else's turn
        fixture.flow.requestOpenFile(fixture.url(u"b.png"_s), false);
        fixture.flow.handleDroppedFiles(fixture.urls({u"b.png"_s}));
        QCOMPARE(fixture.takeAsked(), QStringList());
        fixture.flow.abandonPendingUnsavedAction();
        QCOMPARE(fixture.takeAsked(), QStringList({u"raise"_s, u"ask: open"_s}));
        fixture.flow.continuePendingUnsavedAction();
        QCOMPARE(fixture.takeAsked(), QStringList(u"opened"_s));
        QCOMPARE(fixture.files.documentUrl(), fixture.url(u"other.zelmora"_s));

        fixture.askSystem({u"other.zelmora"_s}); // is open as it is
        QCOMPARE(fixture.takeAsked(), QStringList(u"raise"_s));
        fixture.makeDirty();
        fixture.askSystem({u"other.zelmora"_s});
        QCOMPARE(fixture.takeAsked(), QStringList({u"raise"_s, u"ask: open"_s}));
    }

    void systemRequestsWaitForWhatIsUnderWay_data()
    {
        QTest::addColumn<std::function<void(Fixture &)>>("begin");
        QTest::addColumn<std::function<void(Fixture &)>>("end");
        using Step = std::function<void(Fixture &)>;
        const Step nothing = [](Fixture &) {};
        QTest::newRow("dialog") << Step([](Fixture &f) { f.flow.setApplicationFileOpenUiBlocked(true); })
                                << Step([](Fixture &f) { f.flow.setApplicationFileOpenUiBlocked(false); });
        QTest::newRow("question") << Step([](Fixture &f) {
            f.makeDirty();
            f.flow.requestNewDocument();
            f.history.undo();
        }) << Step([](Fixture &f) { f.flow.abandonPendingUnsavedAction(); });
        QTest::newRow("work") << Step([](Fixture &f) { f.flow.insertImage(f.url(u"bad.png"_s)); }) << nothing;
        QTest::newRow("save") << Step([](Fixture &f) { f.flow.saveDocument(true); }) << nothing;
    }

    void systemRequestsWaitForWhatIsUnderWay()
    {
        QFETCH(const std::function<void(Fixture &)>, begin);
        QFETCH(const std::function<void(Fixture &)>, end);
        Fixture fixture;
        QVERIFY(fixture.saveFirst());
        begin(fixture);
        fixture.askSystem({u"other.zelmora"_s});
        QCoreApplication::processEvents();
        QCOMPARE(fixture.requests.size(), 1);
        end(fixture);
        const QStringList told = fixture.takeAsked();
        QVERIFY2(told.endsWith(u"opened"_s), qPrintable(told.join(u", "_s)));
        QCOMPARE(fixture.files.documentUrl(), fixture.url(u"other.zelmora"_s));
    }

    void closingWaitsForASaveAndCommitsText()
    {
        Fixture fixture;
        QVERIFY(fixture.saveFirst());
        fixture.flow.saveDocument(true);
        QVERIFY(fixture.flow.saveProgressShown());
        QVERIFY(!fixture.flow.requestClose());
        fixture.flow.requestOpenFile(fixture.url(u"other.zelmora"_s), false); // waits for nothing: it is dropped
        QCOMPARE(fixture.takeAsked(), QStringList({u"close refused"_s, u"saved out.png"_s}));
        fixture.state.setMode(Mode::TextEdit);
        QVERIFY(fixture.flow.requestClose());
        QCOMPARE(fixture.state.mode(), Mode::Transform);

        fixture.makeDirty();
        QVERIFY(!fixture.flow.requestClose());
        fixture.flow.continuePendingUnsavedAction();
        QCOMPARE(fixture.takeAsked(), QStringList({u"ask: exit"_s, u"close"_s}));
        QVERIFY(fixture.flow.requestClose());
    }

    void exportThatIsGivenUpGivesUpWhatWaitedForIt()
    {
        Fixture fixture;
        fixture.makeDirty();
        const auto askToClose = [&fixture] {
            QVERIFY(!fixture.flow.requestClose());
            fixture.flow.saveDocument(true);
            QTRY_VERIFY(fixture.exporter.previewReady());
            QCOMPARE(fixture.takeAsked(), QStringList({u"ask: exit"_s, u"export dialog"_s}));
            QCOMPARE(fixture.flow.pendingUnsavedAction(), Action::Close);
        };
        askToClose();
        fixture.flow.cancelExport();
        QCOMPARE(fixture.takeAsked(), QStringList());
        QCOMPARE(fixture.flow.pendingUnsavedAction(), Action::None);
        QVERIFY(!fixture.exporter.previewReady());

        askToClose();
        fixture.flow.exportTo(fixture.url(u"no/such/folder/x.jpg"_s));
        QCOMPARE(fixture.takeAsked(), QStringList(u"save failed"_s));
        QCOMPARE(fixture.flow.pendingUnsavedAction(), Action::None);
        QVERIFY(!fixture.exporter.previewReady());

        askToClose();
        fixture.flow.saveDocument(true); // as the answer to a second question beside the file dialog
        fixture.flow.exportTo(fixture.url(u"x.jpg"_s));
        QCOMPARE(fixture.takeAsked(), QStringList({u"exported x.jpg"_s, u"close"_s}));
        fixture.flow.saveDocumentAs(true);
        QTRY_VERIFY(fixture.exporter.previewReady());
        fixture.flow.exportTo(fixture.url(u"no/such/folder/x.jpg"_s));
        QCOMPARE(fixture.takeAsked(), QStringList({u"export dialog"_s, u"save failed"_s}));
        fixture.flow.saveDocument(true); // where the good one went
        QCOMPARE(fixture.takeAsked(), QStringList(u"saved x.jpg"_s));
    }

    void changesMadeDuringASaveAreAskedAboutAgain()
    {
        Fixture fixture;
        QVERIFY(fixture.saveFirst());
        fixture.makeDirty();
        QVERIFY(!fixture.flow.requestClose());
        fixture.flow.saveDocument(true);
        fixture.flow.work()->carryOutNext();
        QVERIFY(fixture.exporter.sessionSaveBusy());
        fixture.makeDirty();
        QCOMPARE(fixture.takeAsked(), QStringList({u"ask: exit"_s, u"saved out.png"_s}));
        QCOMPARE(fixture.flow.pendingUnsavedAction(), Action::None);
        QVERIFY(!fixture.flow.requestClose());
    }

    void droppedFilesBecomeLayersOrTheDocument_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("layers");
        QTest::addColumn<QStringList>("told");
        QTest::addColumn<bool>("selects");
        QTest::newRow("pictures") << QStringList{u"a.png"_s, u"b.png"_s} << QStringList{u"a"_s, u"b"_s}
                                  << QStringList{u"imported a.png"_s, u"imported b.png"_s} << true;
        QTest::newRow("up to the first that fails")
            << QStringList{u"a.png"_s, u"bad.png"_s, u"b.png"_s} << QStringList(u"a"_s)
            << QStringList{u"imported a.png"_s, u"insert failed"_s} << true;
        QTest::newRow("failure first") << QStringList{u"bad.png"_s, u"b.png"_s} << QStringList()
                                       << QStringList(u"insert failed"_s) << false;
        QTest::newRow("nothing") << QStringList() << QStringList() << QStringList() << false;
        QTest::newRow("document among pictures") << QStringList{u"a.png"_s, u"Two.ZELMORA"_s, u"other.zelmora"_s}
                                                 << QStringList() << QStringList(u"opened"_s) << false;
    }

    void droppedFilesBecomeLayersOrTheDocument()
    {
        QFETCH(const QStringList, names);
        QFETCH(const QStringList, layers);
        QFETCH(const QStringList, told);
        QFETCH(const bool, selects);
        Fixture fixture;
        QVERIFY(QFile::copy(fixture.path(u"other.zelmora"_s), fixture.path(u"Two.ZELMORA"_s)));
        fixture.flow.setApplicationFileOpenUiBlocked(true);
        fixture.flow.handleDroppedFiles(fixture.urls(names)); // a dialog is open
        QCOMPARE(fixture.takeAsked(), QStringList());
        fixture.flow.setApplicationFileOpenUiBlocked(false);
        fixture.state.setMode(Mode::Crop);
        fixture.flow.handleDroppedFiles(fixture.urls(names));
        QCOMPARE(fixture.takeAsked(), told);
        QCOMPARE(fixture.layerNames(), layers);
        QCOMPARE(fixture.state.mode(), selects ? Mode::Transform : Mode::Crop);
        QCOMPARE(fixture.files.documentUrl(),
                 told == QStringList(u"opened"_s) ? fixture.url(u"Two.ZELMORA"_s) : QUrl());
    }

    void filesOfDialogsAndMenusAreRemembered()
    {
        Fixture fixture;
        fixture.flow.loadChosenFile(fixture.url(u"a.png"_s));
        QCOMPARE(fixture.takeAsked(), QStringList({u"imported a.png"_s, u"opened"_s}));
        fixture.flow.loadChosenFile(fixture.url(u"other.zelmora"_s));
        QCOMPARE(fixture.takeAsked(), QStringList(u"opened"_s)); // among the recent files
        fixture.flow.loadChosenFile(fixture.url(u"bad.png"_s));
        QCOMPARE(fixture.takeAsked(), QStringList(u"open failed"_s));
        fixture.flow.requestOpenRecent(fixture.path(u"gone.zelmora"_s));
        QCOMPARE(fixture.takeAsked(), QStringList({u"forget gone.zelmora"_s, u"open failed"_s}));
        QCOMPARE(fixture.files.documentUrl(), fixture.url(u"other.zelmora"_s));

        for (const auto &[name, told] :
             {std::pair(u"a.png"_s, u"imported a.png"_s), std::pair(u"bad.png"_s, u"insert failed"_s)}) {
            fixture.state.setMode(Mode::Crop);
            fixture.flow.insertImage(fixture.url(name));
            QCOMPARE(fixture.takeAsked(), QStringList(told));
            QCOMPARE(fixture.state.mode(), Mode::Transform);
        }
        QCOMPARE(fixture.layerNames(), QStringList(u"a"_s));
    }
};

QTEST_MAIN(DocumentFlowTest)

#include "tst_document_flow.moc"
