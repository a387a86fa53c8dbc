#include "editor/document_flow.h"

#include "commands/command_history.h"
#include "editor/document_file_controller.h"
#include "editor/editor_controller.h"
#include "editor/editor_state_model.h"
#include "editor/export_controller.h"
#include "io/document_opening.h"

#include <algorithm>
#include <utility>

namespace zm {

DocumentFlow::DocumentFlow(CommandHistory *history, DocumentFileController *files, EditorController *editor,
                           EditorStateModel *editorState, ExportController *exporter, QObject *parent)
    : QObject(parent)
    , m_history(history)
    , m_files(files)
    , m_editor(editor)
    , m_editorState(editorState)
    , m_exporter(exporter)
{
    connect(m_exporter, &ExportController::saveSucceeded, this, &DocumentFlow::finishSave);
    connect(m_exporter, &ExportController::sessionSaveFailed, this, &DocumentFlow::failSave);
    connect(m_exporter, &ExportController::sessionExportStateChanged, this, &DocumentFlow::saveInProgressChanged);
    connect(&m_work, &WorkQueue::finished, this, &DocumentFlow::processFileOpenRequestsLater);
}

void DocumentFlow::setApplicationFileOpenUiBlocked(bool blocked)
{
    if (m_applicationFileOpenUiBlocked == blocked)
        return;
    m_applicationFileOpenUiBlocked = blocked;
    emit applicationFileOpenUiBlockedChanged();
    processFileOpenRequestsLater();
}

bool DocumentFlow::saveInProgress() const
{
    return m_exporter->sessionSaveBusy() || m_saveProgressShown;
}

// --- Unsaved changes ---

void DocumentFlow::requestUnsavedAction(UnsavedAction action, UnsavedQuestion question, const QString &recentFilePath,
                                        const QUrl &openFileUrl)
{
    if (m_applicationFileOpenActive && action != UnsavedAction::ApplicationFileOpen)
        return;
    if (!unsavedChangesWarningEnabled() || m_history->isClean()) {
        clearPendingUnsavedAction();
        executeUnsavedAction(action, recentFilePath, openFileUrl);
        return;
    }
    setPending({action, recentFilePath, openFileUrl});
    emit unsavedQuestionRequested(question);
}

void DocumentFlow::executeUnsavedAction(UnsavedAction action, const QString &recentFilePath, const QUrl &openFileUrl)
{
    m_due.removeIf([action](const Action &due) { return due.action == action; });
    m_due.append({action, recentFilePath, openFileUrl});
    QMetaObject::invokeMethod(this, &DocumentFlow::executeDueActions, Qt::QueuedConnection);
}

void DocumentFlow::executeDueActions()
{
    const QList<Action> due = std::exchange(m_due, {});
    for (const Action &action : due) {
        switch (action.action) {
        case UnsavedAction::None:
            break;
        case UnsavedAction::Close:
            m_closeConfirmed = true;
            emit closeConfirmedChanged();
            emit closeRequested();
            break;
        case UnsavedAction::NewDocument:
            emit newDocumentDialogRequested();
            break;
        case UnsavedAction::OpenDocument:
            emit openDialogRequested();
            break;
        case UnsavedAction::OpenRecent:
            loadRecentDocument(action.recentFilePath);
            break;
        case UnsavedAction::OpenFile:
        case UnsavedAction::ApplicationFileOpen:
            loadDocumentFile(action.openFileUrl);
            break;
        }
    }
}

void DocumentFlow::setPending(const Action &action)
{
    m_pending = action;
    emit pendingUnsavedActionChanged();
}

void DocumentFlow::clearPendingUnsavedAction()
{
    if (m_pending.action != UnsavedAction::None)
        setPending({});
}

void DocumentFlow::continuePendingUnsavedAction()
{
    const Action pending = m_pending;
    clearPendingUnsavedAction();
    executeUnsavedAction(pending.action, pending.recentFilePath, pending.openFileUrl);
    processFileOpenRequestsLater();
}

void DocumentFlow::abandonPendingUnsavedAction()
{
    const bool fileOpenWasPending = m_pending.action == UnsavedAction::ApplicationFileOpen;
    clearPendingUnsavedAction();
    if (fileOpenWasPending)
        finishApplicationFileOpenRequest();
    else
        processFileOpenRequestsLater();
}

bool DocumentFlow::requestClose()
{
    if (saveInProgress()) {
        emit closeRefusedWhileSaving();
        return false;
    }
    if (!unsavedChangesWarningEnabled())
        return true;
    commitTextEditing();
    if (m_closeConfirmed || m_history->isClean())
        return true;
    requestUnsavedAction(UnsavedAction::Close, UnsavedQuestion::ExitApplication);
    return false;
}

// --- New and open ---

void DocumentFlow::requestNewDocument()
{
    commitTextEditing();
    requestUnsavedAction(UnsavedAction::NewDocument, UnsavedQuestion::CreateDocument);
}

void DocumentFlow::requestOpenDocument()
{
    commitTextEditing();
    requestUnsavedAction(UnsavedAction::OpenDocument, UnsavedQuestion::OpenDocument);
}

void DocumentFlow::requestOpenRecent(const QString &path)
{
    commitTextEditing();
    requestUnsavedAction(UnsavedAction::OpenRecent, UnsavedQuestion::OpenDocument, path);
}

void DocumentFlow::requestOpenFile(const QUrl &url, bool applicationRequest)
{
    if ((m_applicationFileOpenActive && !applicationRequest) || saveInProgress())
        return;
    commitTextEditing();
    requestUnsavedAction(applicationRequest ? UnsavedAction::ApplicationFileOpen : UnsavedAction::OpenFile,
                         UnsavedQuestion::OpenDocument, {}, url);
}

void DocumentFlow::loadDocumentFile(const QUrl &url)
{
    const auto load = [this, url] {
        const bool requested = m_applicationFileOpenActive && url == m_activeApplicationFileOpenUrl;
        if (m_files->load(url)) {
            emit documentOpened();
            if (requested)
                finishApplicationFileOpenRequest();
        } else {
            m_applicationFileOpenErrorPending = requested;
            emit applicationFileOpenChanged();
            emit openFailed();
        }
    };
    m_work.append(load, m_files->opensSlowly(url));
}

void DocumentFlow::loadChosenFile(const QUrl &url)
{
    const auto load = [this, url] {
        if (!m_files->load(url)) {
            emit openFailed();
            return;
        }
        if (!m_files->hasDocumentUrl())
            emit imageImported(url);
        emit documentOpened();
    };
    m_work.append(load, m_files->opensSlowly(url));
}

void DocumentFlow::loadRecentDocument(const QString &path)
{
    const QUrl url = QUrl::fromLocalFile(path);
    const auto load = [this, url, path] {
        if (m_files->load(url)) {
            emit documentOpened();
        } else {
            emit recentFileFailed(path);
            emit openFailed();
        }
    };
    m_work.append(load, m_files->opensSlowly(url));
}

void DocumentFlow::openErrorRead()
{
    if (m_applicationFileOpenErrorPending)
        finishApplicationFileOpenRequest();
}

// --- Files that the system asks to open ---

void DocumentFlow::processFileOpenRequestsLater()
{
    if (std::exchange(m_processingDue, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_processingDue = false;
            processPendingApplicationFileOpenRequest();
        },
        Qt::QueuedConnection);
}

void DocumentFlow::processPendingApplicationFileOpenRequest()
{
    if (m_applicationFileOpenActive || m_pending.action != UnsavedAction::None || saveInProgress()
        || m_applicationFileOpenUiBlocked || m_work.isRunning())
        return;
    const QUrl url = m_takeOldestRequest ? m_takeOldestRequest() : QUrl();
    if (url.isEmpty())
        return;
    emit raiseRequested();
    if (m_history->isClean() && url == m_files->documentUrl()) { // it is open as it is
        processFileOpenRequestsLater();
        return;
    }
    m_applicationFileOpenActive = true;
    m_activeApplicationFileOpenUrl = url;
    emit applicationFileOpenChanged();
    requestOpenFile(url, true);
}

void DocumentFlow::finishApplicationFileOpenRequest()
{
    m_applicationFileOpenActive = false;
    m_applicationFileOpenErrorPending = false;
    m_activeApplicationFileOpenUrl.clear();
    emit applicationFileOpenChanged();
    processFileOpenRequestsLater();
}

// --- Saving ---

void DocumentFlow::saveDocument(bool clipToDocument)
{
    commitTextEditing();
    if (m_exportAskedFor)
        return;
    if (m_exporter->hasSessionExport())
        saveSessionExport();
    else
        openExportDialog(clipToDocument);
}

void DocumentFlow::saveDocumentAs(bool clipToDocument)
{
    commitTextEditing();
    if (!m_exportAskedFor)
        openExportDialog(clipToDocument);
}

void DocumentFlow::openExportDialog(bool clipToDocument)
{
    m_exportAskedFor = m_exporter->begin(clipToDocument);
    if (m_exportAskedFor)
        emit exportDialogRequested();
    else
        failSave();
}

void DocumentFlow::saveSessionExport()
{
    setSaveProgressShown(true); // before the document is written, which takes the thread
    const auto save = [this] {
        if (!m_exporter->saveToSessionExport())
            failSave();
    };
    m_work.append(save, true);
}

void DocumentFlow::setSaveProgressShown(bool shown)
{
    if (m_saveProgressShown == shown)
        return;
    m_saveProgressShown = shown;
    emit saveProgressShownChanged();
    emit saveInProgressChanged();
}

void DocumentFlow::finishSave(const QUrl &imageUrl)
{
    setSaveProgressShown(false);
    if (m_pending.action != UnsavedAction::None && m_history->isClean()) {
        continuePendingUnsavedAction();
        return;
    }
    clearPendingUnsavedAction();
    emit saved(imageUrl);
    processFileOpenRequestsLater();
}

void DocumentFlow::failSave()
{
    setSaveProgressShown(false);
    emit saveFailed();
    abandonPendingUnsavedAction();
}

void DocumentFlow::exportTo(const QUrl &url)
{
    const auto write = [this, url] {
        m_exportAskedFor = false;
        if (m_exporter->exportTo(url)) {
            emit imageExported(url);
        } else {
            m_exporter->end();
            failSave();
        }
    };
    m_work.append(write, true);
}

void DocumentFlow::cancelExport()
{
    m_exportAskedFor = false;
    m_exporter->end();
    abandonPendingUnsavedAction();
}

// --- Layers from files ---

void DocumentFlow::insertImage(const QUrl &url)
{
    const auto insert = [this, url] {
        addImage(url);
        m_editorState->activateTransformMode();
    };
    m_work.append(insert, m_files->opensSlowly(url));
}

void DocumentFlow::handleDroppedFiles(const QList<QUrl> &urls)
{
    if (m_applicationFileOpenActive || m_applicationFileOpenUiBlocked)
        return;
    const auto document = std::ranges::find_if(urls, [](const QUrl &url) { return hasDocumentSuffix(url.fileName()); });
    if (document != urls.end()) {
        requestOpenFile(*document, false);
        return;
    }
    commitTextEditing();
    const auto insert = [this, urls] {
        const auto failed = std::ranges::find_if_not(urls, [this](const QUrl &url) { return addImage(url); });
        if (failed != urls.begin())
            m_editorState->activateTransformMode();
    };
    const bool slow =
        urls.size() > 1 || std::ranges::any_of(urls, [this](const QUrl &url) { return m_files->opensSlowly(url); });
    m_work.append(insert, slow);
}

bool DocumentFlow::addImage(const QUrl &url)
{
    const bool added = m_editor->addImage(url);
    if (added)
        emit imageImported(url);
    else
        emit insertFailed();
    return added;
}

void DocumentFlow::commitTextEditing()
{
    if (m_editorState->textEditActive())
        m_editorState->activateTransformMode();
}

} // namespace zm
