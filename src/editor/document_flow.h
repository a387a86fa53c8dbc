#pragma once

#include "editor/work_queue.h"

#include <QList>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace zm {

class CommandHistory;
class DocumentFileController;
class EditorController;
class EditorStateModel;
class ExportController;

/// The ways of documents: new, open, save, close, dropped files and files that the system asks to open, with the
/// question about unsaved changes before all that would lose them. It owns no window. What only a window can do goes
/// out as signals, and the window answers by calls; what holds the thread goes through work(). Effects of an action
/// come later, by the event loop, when the dialog or menu that asked for it is gone. Main thread only.
class DocumentFlow : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns the one flow of documents.")
    // Both enumerations have names in common: QML says DocumentFlow.UnsavedAction.OpenDocument.
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    Q_PROPERTY(UnsavedAction pendingUnsavedAction READ pendingUnsavedAction NOTIFY pendingUnsavedActionChanged)
    Q_PROPERTY(QString pendingRecentFilePath READ pendingRecentFilePath NOTIFY pendingUnsavedActionChanged)
    Q_PROPERTY(QUrl pendingOpenFileUrl READ pendingOpenFileUrl NOTIFY pendingUnsavedActionChanged)
    Q_PROPERTY(bool unsavedChangesWarningEnabled READ unsavedChangesWarningEnabled CONSTANT)
    Q_PROPERTY(bool closeConfirmed READ closeConfirmed NOTIFY closeConfirmedChanged)
    Q_PROPERTY(bool applicationFileOpenActive READ applicationFileOpenActive NOTIFY applicationFileOpenChanged)
    Q_PROPERTY(
        bool applicationFileOpenErrorPending READ applicationFileOpenErrorPending NOTIFY applicationFileOpenChanged)
    Q_PROPERTY(QUrl activeApplicationFileOpenUrl READ activeApplicationFileOpenUrl NOTIFY applicationFileOpenChanged)
    Q_PROPERTY(bool applicationFileOpenUiBlocked READ applicationFileOpenUiBlocked WRITE setApplicationFileOpenUiBlocked
                   NOTIFY applicationFileOpenUiBlockedChanged)
    Q_PROPERTY(bool saveInProgress READ saveInProgress NOTIFY saveInProgressChanged)
    Q_PROPERTY(bool saveProgressShown READ saveProgressShown NOTIFY saveProgressShownChanged)
    Q_PROPERTY(zm::WorkQueue *work READ work CONSTANT)

public:
    /// What waits for the answer about unsaved changes.
    enum class UnsavedAction { None, Close, NewDocument, OpenDocument, OpenRecent, OpenFile, ApplicationFileOpen };
    Q_ENUM(UnsavedAction)

    /// How the question is put.
    enum class UnsavedQuestion { ExitApplication, CreateDocument, OpenDocument };
    Q_ENUM(UnsavedQuestion)

    /// All must outlive the flow.
    DocumentFlow(CommandHistory *history, DocumentFileController *files, EditorController *editor,
                 EditorStateModel *editorState, ExportController *exporter, QObject *parent = nullptr);

    /// Where files wait that the system asks to open. `takeOldest` removes and returns one, or an empty URL. Whoever
    /// adds one calls processFileOpenRequestsLater().
    void setFileOpenRequests(std::function<QUrl()> takeOldest) { m_takeOldestRequest = std::move(takeOldest); }

    UnsavedAction pendingUnsavedAction() const { return m_pending.action; }
    QString pendingRecentFilePath() const { return m_pending.recentFilePath; }
    QUrl pendingOpenFileUrl() const { return m_pending.openFileUrl; }
    bool unsavedChangesWarningEnabled() const { return true; }
    /// The window may close, whatever is unsaved.
    bool closeConfirmed() const { return m_closeConfirmed; }

    /// A file named by the system is being opened.
    bool applicationFileOpenActive() const { return m_applicationFileOpenActive; }
    /// The reason why it could not be opened has not been read yet.
    bool applicationFileOpenErrorPending() const { return m_applicationFileOpenErrorPending; }
    QUrl activeApplicationFileOpenUrl() const { return m_activeApplicationFileOpenUrl; }

    /// A dialog is open, told by the window; such files wait for its end.
    bool applicationFileOpenUiBlocked() const { return m_applicationFileOpenUiBlocked; }
    void setApplicationFileOpenUiBlocked(bool blocked);

    /// A save that repeats the last export is under way.
    bool saveInProgress() const;
    /// The window tells of it.
    bool saveProgressShown() const { return m_saveProgressShown; }

    WorkQueue *work() { return &m_work; }

    // --- Unsaved changes ---

    /// Every way to lose changes goes through here: carries the action out if nothing is unsaved, and asks otherwise.
    /// Ignored while a file of the system is being opened, unless the action is that.
    Q_INVOKABLE void requestUnsavedAction(zm::DocumentFlow::UnsavedAction action,
                                          zm::DocumentFlow::UnsavedQuestion question,
                                          const QString &recentFilePath = {}, const QUrl &openFileUrl = {});
    /// Carries the action out later, and once, if it is asked for again before.
    Q_INVOKABLE void executeUnsavedAction(zm::DocumentFlow::UnsavedAction action, const QString &recentFilePath = {},
                                          const QUrl &openFileUrl = {});
    Q_INVOKABLE void clearPendingUnsavedAction();
    /// The changes are saved or given up.
    Q_INVOKABLE void continuePendingUnsavedAction();
    /// The question was dismissed, or the save after it failed.
    Q_INVOKABLE void abandonPendingUnsavedAction();
    /// Whether the window closes now. If it does not, it was told why, or the user is being asked.
    Q_INVOKABLE bool requestClose();

    // --- New and open ---

    Q_INVOKABLE void requestNewDocument();
    Q_INVOKABLE void requestOpenDocument();
    /// An absolute path among the recent files.
    Q_INVOKABLE void requestOpenRecent(const QString &path);
    /// `applicationRequest` for a file that the system asked for.
    Q_INVOKABLE void requestOpenFile(const QUrl &url, bool applicationRequest);
    Q_INVOKABLE void loadDocumentFile(const QUrl &url);
    /// From the file dialog, which then opens in the folder of a picture.
    Q_INVOKABLE void loadChosenFile(const QUrl &url);
    Q_INVOKABLE void loadRecentDocument(const QString &path);
    /// The user has read why a file could not be opened.
    Q_INVOKABLE void openErrorRead();

    // --- Files that the system asks to open ---

    /// Takes the oldest request, if nothing stands in the way. Whatever ends a request calls this again.
    Q_INVOKABLE void processPendingApplicationFileOpenRequest();
    Q_INVOKABLE void finishApplicationFileOpenRequest();

    // --- Saving. Clip is as in ExportController::begin(). ---

    /// Repeats the last export, or asks for the first one. One that is being asked for goes on instead.
    Q_INVOKABLE void saveDocument(bool clipToDocument);
    Q_INVOKABLE void saveDocumentAs(bool clipToDocument);
    /// Writes what the export dialog has prepared.
    Q_INVOKABLE void exportTo(const QUrl &url);
    /// It was given up in its dialog, or no file was chosen for it.
    Q_INVOKABLE void cancelExport();

    // --- Layers from files ---

    Q_INVOKABLE void insertImage(const QUrl &url);
    /// Opens the first document among them; without one, adds the pictures in their order up to the first that fails.
    Q_INVOKABLE void handleDroppedFiles(const QList<QUrl> &urls);

public slots:
    void processFileOpenRequestsLater();

signals:
    void pendingUnsavedActionChanged();
    void closeConfirmedChanged();
    void applicationFileOpenChanged();
    void applicationFileOpenUiBlockedChanged();
    void saveInProgressChanged();
    void saveProgressShownChanged();

    // What the window is asked to do.
    void unsavedQuestionRequested(zm::DocumentFlow::UnsavedQuestion question);
    void newDocumentDialogRequested();
    void openDialogRequested();
    void exportDialogRequested();
    void closeRequested();
    void raiseRequested();

    // What the window tells the user of.
    void documentOpened();
    void openFailed();
    void insertFailed();
    void saveFailed();
    void saved(const QUrl &imageUrl);
    void closeRefusedWhileSaving();

    // What is worth remembering.
    void imageImported(const QUrl &url);
    void imageExported(const QUrl &url);
    void recentFileFailed(const QString &path);

private:
    struct Action
    {
        UnsavedAction action = UnsavedAction::None;
        QString recentFilePath;
        QUrl openFileUrl;
    };

    void setPending(const Action &action);
    void executeDueActions();
    void commitTextEditing();
    bool addImage(const QUrl &url);
    void openExportDialog(bool clipToDocument);
    void saveSessionExport();
    void setSaveProgressShown(bool shown);
    void finishSave(const QUrl &imageUrl);
    void failSave();

    CommandHistory *m_history;
    DocumentFileController *m_files;
    EditorController *m_editor;
    EditorStateModel *m_editorState;
    ExportController *m_exporter;
    std::function<QUrl()> m_takeOldestRequest;
    WorkQueue m_work;

    Action m_pending;
    QList<Action> m_due; // for the next turn of the event loop, one of a kind
    bool m_closeConfirmed = false;
    bool m_applicationFileOpenActive = false;
    bool m_applicationFileOpenErrorPending = false;
    QUrl m_activeApplicationFileOpenUrl;
    bool m_applicationFileOpenUiBlocked = false;
    bool m_processingDue = false;
    bool m_exportAskedFor = false; // its dialog is open, or that for its file
    bool m_saveProgressShown = false;
};

} // namespace zm
