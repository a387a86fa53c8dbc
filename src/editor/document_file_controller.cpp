#include "editor/document_file_controller.h"

#include "application/runtime_flags.h"
#include "commands/command_history.h"
#include "document/document.h"
#include "io/image_import.h"

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

} // namespace

DocumentFileController::DocumentFileController(Document *document, CommandHistory *commandHistory, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_commandHistory(commandHistory)
{
}

QString DocumentFileController::displayName() const
{
    return m_pairedImageUrl.isEmpty() ? tr("Untitled") : displayFileName(m_pairedImageUrl);
}

QString DocumentFileController::supportedImageFilePatterns() const
{
    return zm::supportedImageFilePatterns().join(u' ');
}

bool DocumentFileController::resetDocument(double width, double height, const QColor &backgroundColor)
{
    if (!isValidSide(width) || !isValidSide(height))
        return fail(tr("Enter a valid width and height."));
    const QColor color = backgroundColor.isValid() ? backgroundColor : QColor(Qt::white);
    if (!m_document->replaceContents(QSizeF(std::round(width), std::round(height)), color, {}))
        return fail(tr("Could not create a new document."));
    finishReplacement({});
    return true;
}

bool DocumentFileController::load(const QUrl &url)
{
    const QString path = url.isLocalFile() ? url.toLocalFile() : QString();
    if (path.isEmpty())
        return fail(tr("Only local files are supported."));
    return importImage(path);
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
    const QUrl pairedImageUrl =
        isRaster && wasPristine ? QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()) : QUrl();
    finishReplacement(pairedImageUrl);
    return true;
}

bool DocumentFileController::isPristine() const
{
    return m_pairedImageUrl.isEmpty() && m_document->objectCount() == 0 && m_commandHistory->isClean();
}

void DocumentFileController::finishReplacement(const QUrl &pairedImageUrl)
{
    m_commandHistory->clear();
    if (m_pairedImageUrl != pairedImageUrl) {
        m_pairedImageUrl = pairedImageUrl;
        emit pairedImageUrlChanged();
        emit displayNameChanged();
    }
    setError({}, false);
    emit documentReplaced();
}

bool DocumentFileController::fail(const QString &message, bool offersHeifInstallHelp)
{
    setError(message, offersHeifInstallHelp);
    return false;
}

void DocumentFileController::setError(const QString &message, bool offersHeifInstallHelp)
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
