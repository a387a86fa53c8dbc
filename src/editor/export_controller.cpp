#include "editor/export_controller.h"

#include "document/document.h"
#include "editor/document_file_controller.h"
#include "editor/export_preview_image_store.h"
#include "io/file_names.h"
#include "io/pictures/exported_effects.h"
#include "scene/scene_renderer.h"

#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QtConcurrentRun>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The name of the lowest picture, as a file name.
QString suggestedName(const Document &document)
{
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        if (const auto *layer = dynamic_cast<const ImageLayer *>(document.objectAt(i)))
            return cleanFileName(layer->name());
    }
    return cleanFileName({});
}

QUrl absoluteUrl(const QString &path)
{
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

} // namespace

template<typename Result>
void ExportController::Job<Result>::cancel() const
{
    if (cancelled)
        cancelled->store(true);
}

template<typename Result>
void ExportController::Job<Result>::cancelAndWait()
{
    watcher.disconnect();
    cancel();
    watcher.waitForFinished();
}

ExportController::ExportController(Document *document, DocumentFileController *fileController,
                                   std::shared_ptr<ExportPreviewImageStore> previewStore, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_fileController(fileController)
    , m_previewStore(std::move(previewStore))
    , m_suggestedName(cleanFileName({}))
{
    m_previewDelay.setSingleShot(true);
    m_previewDelay.setInterval(kPreviewDelayMs);
    connect(&m_previewDelay, &QTimer::timeout, this, &ExportController::startPreview);
    connect(&m_preview.watcher, &QFutureWatcherBase::finished, this, &ExportController::finishPreview);
    connect(&m_sessionSave.watcher, &QFutureWatcherBase::finished, this, &ExportController::finishSessionSave);
    // Another document must not be written over the files of the one before.
    connect(m_fileController, &DocumentFileController::documentReplaced, this, &ExportController::forgetSession);
}

ExportController::~ExportController()
{
    m_preview.cancelAndWait();
    m_sessionSave.cancelAndWait();
}

// Settings

void ExportController::setOutputWidth(int width)
{
    const int side = std::clamp(width, kMinimumExportSide, m_maximumDimension);
    setSize(m_keepAspectRatio ? exportSizeForWidth(m_rectangle, side, m_maximumDimension)
                              : QSize(side, outputHeight()));
}

void ExportController::setOutputHeight(int height)
{
    const int side = std::clamp(height, kMinimumExportSide, m_maximumDimension);
    setSize(m_keepAspectRatio ? exportSizeForHeight(m_rectangle, side, m_maximumDimension)
                              : QSize(outputWidth(), side));
}

void ExportController::setSize(const QSize &size)
{
    if (m_settings.size == size)
        return;
    m_settings.size = size;
    settingChanged(true);
}

void ExportController::setKeepAspectRatio(bool keep)
{
    if (m_keepAspectRatio == keep)
        return;
    m_keepAspectRatio = keep;
    settingChanged(false);
}

void ExportController::setFormatKey(const QString &key)
{
    const QString known = exportFormat(key).key;
    if (m_settings.formatKey == known)
        return;
    m_settings.formatKey = known;
    settingChanged(true);
}

void ExportController::setQuality(int quality)
{
    const int limited = std::clamp(quality, 0, 100);
    if (m_settings.quality == limited)
        return;
    m_settings.quality = limited;
    settingChanged(qualityControlEnabled());
}

void ExportController::setLosslessDocumentFile(bool lossless)
{
    if (m_losslessDocumentFile == lossless)
        return;
    m_losslessDocumentFile = lossless;
    settingChanged(false);
}

void ExportController::settingChanged(bool changesPicture)
{
    emit settingsChanged();
    if (m_open && changesPicture)
        requestPreview();
}

bool ExportController::qualityControlEnabled() const
{
    return exportFormat(m_settings.formatKey).writerFormat != "png";
}

bool ExportController::transparentBackground() const
{
    return exportFormat(m_settings.formatKey).transparent;
}

QString ExportController::defaultSuffix() const
{
    return exportFormat(m_settings.formatKey).suffix;
}

QString ExportController::fileNameFilter() const
{
    return exportFormat(m_settings.formatKey).filterText;
}

QUrl ExportController::suggestedFileUrl() const
{
    const QUrl image = m_fileController->pairedImageUrl();
    const QUrl beside = image.isEmpty() ? m_fileController->documentUrl() : image;
    const QString folder = beside.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
                                            : QFileInfo(beside.toLocalFile()).absolutePath();
    return absoluteUrl(u"%1/%2.%3"_s.arg(folder, m_suggestedName, defaultSuffix()));
}

// The dialog's session

bool ExportController::begin(bool clipToDocument)
{
    const QStringList effects = exportedEffects(*m_document);
    Error error;
    if (!canExportEffects(effects, error))
        return fail(error.message());
    if (m_sessionSaveBusy)
        return fail(tr("Wait for the current save to finish."));
    stopPreview();
    m_open = true;
    m_snapshot = buildSceneSnapshot(*m_document, {}, m_services);
    m_prefersTransparentExport = zm::prefersTransparentExport(effects);
    m_suggestedName = suggestedName(*m_document);
    takeSettings(clipToDocument);
    setLastError({});
    emit settingsChanged();
    requestPreview();
    return true;
}

void ExportController::takeSettings(bool clipToDocument)
{
    m_rectangle = exportRectangle(m_snapshot, clipToDocument);
    m_maximumDimension = std::max(maxTileSize(m_services), kMinimumExportSide);
    if (m_session) {
        m_settings = m_session->settings;
        m_settings.size = repeatedSize(*m_session, m_rectangle, clipToDocument);
        m_keepAspectRatio = m_session->keepAspectRatio;
        m_losslessDocumentFile = m_session->losslessDocumentFile;
    } else {
        m_settings.formatKey = m_prefersTransparentExport ? u"webpTransparent"_s : u"jpeg"_s;
        m_settings.quality = kDefaultExportQuality;
        m_settings.size = defaultExportSize(m_rectangle, m_maximumDimension);
        m_keepAspectRatio = true;
        m_losslessDocumentFile = false;
    }
    m_settings.clipToDocument = clipToDocument;
}

/// The stored size, or where the proportions are no longer those that it was made for, its width alone: a document that
/// was cropped since must not come out distorted.
QSize ExportController::repeatedSize(const SessionExport &session, const QRectF &rectangle, bool clipToDocument) const
{
    const QSize stored = session.settings.size;
    if (session.settings.clipToDocument != clipToDocument
        || (session.keepAspectRatio && session.rectangleSize != rectangle.size()))
        return exportSizeForWidth(rectangle, stored.width(), m_maximumDimension);
    return {std::clamp(stored.width(), kMinimumExportSide, m_maximumDimension),
            std::clamp(stored.height(), kMinimumExportSide, m_maximumDimension)};
}

void ExportController::end()
{
    if (!m_open)
        return;
    m_open = false;
    stopPreview();
    m_snapshot = {};
    emit previewStateChanged();
}

void ExportController::requestPreview()
{
    ++m_sequence;
    m_preview.cancel(); // the result would be dropped
    m_encoded.clear();
    m_previewError.clear();
    m_previewDelay.start();
    emit previewStateChanged();
}

void ExportController::startPreview()
{
    if (m_previewRunning) {
        m_rerun = true;
        return;
    }
    m_previewRunning = true;
    m_preview.cancelled = std::make_shared<std::atomic_bool>(false);
    m_preview.watcher.setFuture(QtConcurrent::run(
        [snapshot = m_snapshot, settings = m_settings, sequence = m_sequence, cancelled = m_preview.cancelled] {
            Preview preview{sequence, {}, {}};
            preview.result = exportPreview(snapshot, settings, preview.error, cancelled.get());
            return preview;
        }));
}

void ExportController::finishPreview()
{
    m_previewRunning = false;
    Preview preview = m_preview.watcher.future().takeResult();
    if (preview.sequence == m_sequence) {
        m_answeredSequence = m_sequence;
        m_previewError = preview.error.message();
        ExportPreview shown = std::move(preview.result).value_or(ExportPreview());
        m_encoded = std::move(shown.bytes);
        showPreview(shown.image);
        emit previewStateChanged();
    }
    // A setting that has not come to rest starts the next one by itself.
    if (std::exchange(m_rerun, false) && !m_previewDelay.isActive())
        startPreview();
}

void ExportController::stopPreview()
{
    ++m_sequence;
    m_previewDelay.stop();
    m_rerun = false;
    m_preview.cancel();
    m_encoded.clear();
    m_previewError.clear();
    showPreview({});
}

void ExportController::showPreview(const QImage &image)
{
    m_previewStore->setImage(image);
    const QUrl source = image.isNull() ? QUrl() : QUrl(u"image://export-preview/%1"_s.arg(m_sequence));
    if (m_previewSource == source)
        return;
    m_previewSource = source;
    emit previewSourceChanged();
}

QString ExportController::encodedSizeText() const
{
    return previewReady() ? QLocale().formattedDataSize(m_encoded.size()) : QString();
}

bool ExportController::exportTo(const QUrl &url)
{
    if (!previewReady())
        return fail(tr("The image preview is not ready."));
    QString path = url.isLocalFile() ? url.toLocalFile() : QString();
    if (path.isEmpty())
        return fail(tr("Only local save destinations are supported."));
    const ExportFormat format = exportFormat(m_settings.formatKey);
    const QString suffix = QFileInfo(path).suffix();
    if (suffix.isEmpty())
        path += u'.' + format.suffix;
    else if (!acceptsSuffix(format, suffix))
        return fail(tr("The filename extension does not match the selected image format: %1").arg(format.filterText));
    const QString documentPath = sidecarPath(path);
    if (documentPath.isEmpty())
        return fail(tr("Choose a filename for the image."));

    Error error;
    if (!writeExportedImage(path, m_encoded, error))
        return fail(error.message());
    const QUrl documentUrl = QUrl::fromLocalFile(documentPath);
    if (!m_fileController->saveTo(documentUrl, !m_losslessDocumentFile))
        return fail(tr("The image was saved, but the editable .zelmora file could not be saved: %1")
                        .arg(m_fileController->lastError()));
    const QUrl imageUrl = absoluteUrl(path);
    m_fileController->setPairedImageUrl(imageUrl);
    m_session = {imageUrl, documentUrl, m_settings, m_rectangle.size(), m_keepAspectRatio, m_losslessDocumentFile};
    end();
    setLastError({});
    setLastExportUrl(imageUrl);
    emit sessionExportStateChanged();
    emit saveSucceeded(imageUrl);
    return true;
}

// Later saves

bool ExportController::saveToSessionExport()
{
    if (!m_session)
        return fail(tr("Choose save settings before saving this image."));
    if (m_open)
        return fail(tr("Close the Export Settings dialog before saving."));
    if (m_sessionSaveBusy)
        return fail(tr("Wait for the current save to finish."));
    if (!m_fileController->saveTo(m_session->documentUrl, !m_session->losslessDocumentFile))
        return failSessionSave(tr("Could not save the editable .zelmora file: %1").arg(m_fileController->lastError()));
    m_fileController->setPairedImageUrl(m_session->imageUrl);

    m_sessionSaveBusy = true;
    m_savingImageUrl = m_session->imageUrl;
    setLastError({});
    emit sessionExportStateChanged();
    SceneSnapshot snapshot = buildSceneSnapshot(*m_document, {}, m_services);
    ExportSettings settings = m_session->settings;
    settings.size =
        repeatedSize(*m_session, exportRectangle(snapshot, settings.clipToDocument), settings.clipToDocument);
    m_sessionSave.cancelled = std::make_shared<std::atomic_bool>(false);
    m_sessionSave.watcher.setFuture(
        QtConcurrent::run([snapshot = std::move(snapshot), settings, cancelled = m_sessionSave.cancelled] {
            SavedImage image;
            image.bytes = exportImage(snapshot, settings, image.error, cancelled.get());
            return image;
        }));
    return true;
}

void ExportController::finishSessionSave()
{
    SavedImage image = m_sessionSave.watcher.future().takeResult();
    if (!image.bytes || image.bytes->isEmpty())
        image.error.fail(tr("The encoder did not produce an image."));
    const bool written =
        !image.error.isSet() && writeWholeFile(m_savingImageUrl.toLocalFile(), *image.bytes, image.error);
    m_sessionSaveBusy = false;
    emit sessionExportStateChanged();
    if (!written) {
        failSessionSave(tr("The editable .zelmora file was saved, but the image could not be updated: %1")
                            .arg(image.error.message()));
        return;
    }
    setLastExportUrl(m_savingImageUrl);
    emit saveSucceeded(m_savingImageUrl);
}

void ExportController::forgetSession()
{
    end();
    if (!m_session)
        return;
    m_session.reset();
    emit sessionExportStateChanged();
}

void ExportController::setLastExportUrl(const QUrl &url)
{
    if (m_lastExportUrl == url)
        return;
    m_lastExportUrl = url;
    emit lastExportUrlChanged();
}

bool ExportController::fail(const QString &message)
{
    setLastError(message);
    return false;
}

bool ExportController::failSessionSave(const QString &message)
{
    setLastError(message);
    emit sessionSaveFailed(message);
    return false;
}

void ExportController::setLastError(const QString &message)
{
    if (m_lastError == message)
        return;
    m_lastError = message;
    emit errorStringChanged();
}

} // namespace zm
