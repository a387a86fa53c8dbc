#include "editor/document_file_controller.h"

#include "commands/command_history.h"
#include "document/document.h"
#include "io/document_opening.h"
#include "io/file_names.h"
#include "io/opening_estimate.h"
#include "io/pictures/image_import.h"
#include "services/runtime_flags.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

bool isValidSide(double side)
{
    // NaN fails both comparisons.
    return side >= DocumentFileController::kMinimumDocumentSide && side <= DocumentFileController::kMaximumDocumentSide;
}

/// Empty for a URL that is not a local file.
QString localPath(const QUrl &url)
{
    return url.isLocalFile() ? url.toLocalFile() : QString();
}

QUrl absoluteUrl(const QString &path)
{
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

} // namespace

DocumentFileController::DocumentFileController(Document *document, CommandHistory *commandHistory, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_commandHistory(commandHistory)
{
}

QString DocumentFileController::displayName() const
{
    if (m_documentUrl.isEmpty())
        return m_pairedImageUrl.isEmpty() ? tr("Untitled") : displayFileName(m_pairedImageUrl);
    const QString fileName = displayFileName(m_documentUrl);
    return m_pairedImageUrl.isEmpty() ? fileName : tr("%1 (%2)").arg(fileName, displayPath(m_pairedImageUrl));
}

bool DocumentFileController::resetDocument(double width, double height, const QColor &backgroundColor)
{
    if (!isValidSide(width) || !isValidSide(height))
        return fail(tr("Enter a valid width and height."));
    const QColor color = backgroundColor.isValid() ? backgroundColor : QColor(Qt::white);
    if (!m_document->replaceContents(QSizeF(std::round(width), std::round(height)), color, {}))
        return fail(tr("Could not create a new document."));
    finishReplacement({}, {});
    return true;
}

bool DocumentFileController::load(const QUrl &url)
{
    const QString path = localPath(url);
    if (path.isEmpty())
        return fail(tr("Only local files are supported."));
    if (hasDocumentSuffix(path))
        return loadDocument(path, {});
    const QString sidecar = QFileInfo(path).isFile() ? sidecarPath(path) : QString();
    return QFileInfo(sidecar).isFile() ? loadDocument(sidecar, absoluteUrl(path)) : importImage(path);
}

bool DocumentFileController::opensSlowly(const QUrl &url) const
{
    return url.isLocalFile() && zm::opensSlowly(url.toLocalFile());
}

bool DocumentFileController::loadDocument(const QString &path, const QUrl &pairedImageUrl)
{
    Error error;
    std::optional<LoadedDocument> loaded = ZelmoraDocumentIO::readDocumentFile(path, error);
    if (!loaded || !replaceWithLoaded(*m_document, *std::move(loaded), error))
        return fail(error.message());
    finishReplacement(absoluteUrl(path), pairedImageUrl);
    emit documentLoaded(m_documentUrl);
    return true;
}

bool DocumentFileController::save()
{
    if (m_documentUrl.isEmpty())
        return fail(tr("Choose a file name before saving the document."));
    return saveAs(m_documentUrl);
}

bool DocumentFileController::saveAs(const QUrl &url)
{
    return saveTo(url, false);
}

bool DocumentFileController::saveTo(const QUrl &url, bool compressImages)
{
    QString path = localPath(url);
    if (path.isEmpty())
        return fail(tr("Only local files are supported."));
    if (QFileInfo(path).suffix().isEmpty())
        path += u'.' + kDocumentSuffix;
    Error error;
    if (!ZelmoraDocumentIO::writeDocumentFile(*m_document, path, compressImages, error))
        return fail(error.message());
    m_commandHistory->setClean();
    const QUrl savedUrl = absoluteUrl(path);
    setUrls(savedUrl, savedUrl == m_documentUrl ? m_pairedImageUrl : QUrl());
    setLastError({}, false);
    emit documentSaved(savedUrl);
    return true;
}

bool DocumentFileController::importImage(const QString &path)
{
    const bool wasPristine = isPristine();
    ImageImportResult result = importImageLayer(path, m_runtimeFlags && m_runtimeFlags->noHevcCodec());
    ImageImportError error = result.error;
    const bool isRaster = result.layer && result.layer->isRaster();
    if (error == ImageImportError::None)
        error = replaceWithImage(*m_document, std::move(result.layer));
    if (error != ImageImportError::None)
        return fail(importErrorText(error), error == ImageImportError::HeifCodecMissing);
    finishReplacement({}, isRaster && wasPristine ? absoluteUrl(path) : QUrl());
    return true;
}

bool DocumentFileController::isPristine() const
{
    return m_documentUrl.isEmpty() && m_pairedImageUrl.isEmpty() && m_document->objectCount() == 0
        && m_commandHistory->isClean();
}

void DocumentFileController::finishReplacement(const QUrl &documentUrl, const QUrl &pairedImageUrl)
{
    m_commandHistory->clear();
    setUrls(documentUrl, pairedImageUrl);
    setLastError({}, false);
    emit documentReplaced();
}

void DocumentFileController::setPairedImageUrl(const QUrl &url)
{
    setUrls(m_documentUrl, url);
}

void DocumentFileController::setUrls(const QUrl &documentUrl, const QUrl &pairedImageUrl)
{
    const bool movesDocument = m_documentUrl != documentUrl;
    const bool movesImage = m_pairedImageUrl != pairedImageUrl;
    m_documentUrl = documentUrl;
    m_pairedImageUrl = pairedImageUrl;
    if (movesDocument)
        emit documentUrlChanged();
    if (movesImage)
        emit pairedImageUrlChanged();
    if (movesDocument || movesImage)
        emit displayNameChanged();
}

bool DocumentFileController::fail(const QString &message, bool offersHeifInstallHelp)
{
    setLastError(message, offersHeifInstallHelp);
    return false;
}

void DocumentFileController::setLastError(const QString &message, bool offersHeifInstallHelp)
{
    if (m_lastError == message && m_lastErrorOffersHeifInstallHelp == offersHeifInstallHelp)
        return;
    m_lastError = message;
    m_lastErrorOffersHeifInstallHelp = offersHeifInstallHelp;
    emit lastErrorChanged();
}

QString DocumentFileController::displayPath(const QUrl &url) const
{
    return url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()) : url.toDisplayString();
}

QString DocumentFileController::displayFileName(const QUrl &url) const
{
    return url.isLocalFile() ? QFileInfo(url.toLocalFile()).fileName() : url.fileName();
}

} // namespace zm
