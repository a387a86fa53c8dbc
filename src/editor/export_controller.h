#pragma once

#include "io/pictures/image_export.h"

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace zm {

class Document;
class DocumentFileController;
class ExportPreviewImageStore;
struct RenderServices;

/// Writes the document as a picture, with the editable document beside it. A first export runs as a dialog's session,
/// begin() to end(), with a live preview whose bytes are what is written; later saves repeat the settings of the last
/// export without one. Rendering and encoding run on a worker; files are written on the main thread, where all else
/// lives. A failure leaves its sentence in errorString.
class ExportController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")
    Q_PROPERTY(int outputWidth READ outputWidth WRITE setOutputWidth NOTIFY settingsChanged)
    Q_PROPERTY(int outputHeight READ outputHeight WRITE setOutputHeight NOTIFY settingsChanged)
    Q_PROPERTY(int maximumDimension READ maximumDimension NOTIFY settingsChanged)
    Q_PROPERTY(bool keepAspectRatio READ keepAspectRatio WRITE setKeepAspectRatio NOTIFY settingsChanged)
    Q_PROPERTY(QString formatKey READ formatKey WRITE setFormatKey NOTIFY settingsChanged)
    Q_PROPERTY(int quality READ quality WRITE setQuality NOTIFY settingsChanged)
    Q_PROPERTY(bool qualityControlEnabled READ qualityControlEnabled NOTIFY settingsChanged)
    Q_PROPERTY(bool losslessDocumentFile READ losslessDocumentFile WRITE setLosslessDocumentFile NOTIFY settingsChanged)
    Q_PROPERTY(bool clipToDocument READ clipToDocument NOTIFY settingsChanged)
    Q_PROPERTY(bool transparentBackground READ transparentBackground NOTIFY settingsChanged)
    Q_PROPERTY(bool prefersTransparentExport READ prefersTransparentExport NOTIFY settingsChanged)
    Q_PROPERTY(QUrl suggestedFileUrl READ suggestedFileUrl NOTIFY settingsChanged)
    Q_PROPERTY(QString defaultSuffix READ defaultSuffix NOTIFY settingsChanged)
    Q_PROPERTY(QString fileNameFilter READ fileNameFilter NOTIFY settingsChanged)
    Q_PROPERTY(bool previewBusy READ previewBusy NOTIFY previewStateChanged)
    Q_PROPERTY(bool previewReady READ previewReady NOTIFY previewStateChanged)
    Q_PROPERTY(QString previewError READ previewError NOTIFY previewStateChanged)
    Q_PROPERTY(QString encodedSizeText READ encodedSizeText NOTIFY previewStateChanged)
    Q_PROPERTY(QUrl previewSource READ previewSource NOTIFY previewSourceChanged)
    Q_PROPERTY(QString errorString READ errorString NOTIFY errorStringChanged)
    Q_PROPERTY(QUrl lastExportUrl READ lastExportUrl NOTIFY lastExportUrlChanged)
    Q_PROPERTY(bool hasSessionExport READ hasSessionExport NOTIFY sessionExportStateChanged)
    Q_PROPERTY(bool sessionSaveBusy READ sessionSaveBusy NOTIFY sessionExportStateChanged)

public:
    /// How long a setting rests before its preview is made.
    static constexpr int kPreviewDelayMs = 180;

    /// Document and controller must outlive this one.
    ExportController(Document *document, DocumentFileController *fileController,
                     std::shared_ptr<ExportPreviewImageStore> previewStore, QObject *parent = nullptr);
    /// Cancels what runs and waits for it; nothing is written any more.
    ~ExportController() override;

    /// Null while there is no GPU. Not owned.
    void setRenderServices(const RenderServices *services) { m_services = services; }

    // Pixels, from kMinimumExportSide to maximumDimension.
    int outputWidth() const { return m_settings.size.width(); }
    void setOutputWidth(int width);
    int outputHeight() const { return m_settings.size.height(); }
    void setOutputHeight(int height);
    /// What the GPU takes as a texture, at most kMaximumExportSide, as of the last begin().
    int maximumDimension() const { return m_maximumDimension; }
    /// A change of one side then brings the other along, by the proportions of what is exported.
    bool keepAspectRatio() const { return m_keepAspectRatio; }
    void setKeepAspectRatio(bool keep);
    /// An unknown key becomes "jpeg".
    QString formatKey() const { return m_settings.formatKey; }
    void setFormatKey(const QString &key);
    /// 0..100.
    int quality() const { return m_settings.quality; }
    void setQuality(int quality);
    bool qualityControlEnabled() const;
    /// The document beside the picture keeps every pixel; else its pictures are compressed.
    bool losslessDocumentFile() const { return m_losslessDocumentFile; }
    void setLosslessDocumentFile(bool lossless);
    bool clipToDocument() const { return m_settings.clipToDocument; }
    bool transparentBackground() const;
    /// An effect that shows asks for a transparent background.
    bool prefersTransparentExport() const { return m_prefersTransparentExport; }

    /// Named after the first picture of the document, beside the file that it is.
    QUrl suggestedFileUrl() const;
    QString defaultSuffix() const;
    QString fileNameFilter() const;

    /// The present settings have no preview yet, but will.
    bool previewBusy() const { return m_open && m_answeredSequence != m_sequence; }
    /// The preview is that of the present settings.
    bool previewReady() const { return m_open && m_answeredSequence == m_sequence && !m_encoded.isEmpty(); }
    QString previewError() const { return m_previewError; }
    /// Of the file, for people; empty unless the preview is ready.
    QString encodedSizeText() const;
    /// A new address for every preview; stays while the next one is made.
    QUrl previewSource() const { return m_previewSource; }

    /// Empty after a success.
    QString errorString() const { return m_lastError; }
    /// The last picture that was written.
    QUrl lastExportUrl() const { return m_lastExportUrl; }
    /// There is an export of this document that saveToSessionExport() can repeat.
    bool hasSessionExport() const { return m_session.has_value(); }
    bool sessionSaveBusy() const { return m_sessionSaveBusy; }

    /// Freezes the scene and starts the first preview. With clip off all that shows is exported, not the document.
    Q_INVOKABLE bool begin(bool clipToDocument);
    /// Ends the session and forgets the preview. A successful exportTo() does it too.
    Q_INVOKABLE void end();
    /// Writes the bytes of the preview, and the document beside them.
    Q_INVOKABLE bool exportTo(const QUrl &url);
    /// Repeats the last export. True once the document is written and the picture is on its way: saveSucceeded or
    /// sessionSaveFailed follows.
    Q_INVOKABLE bool saveToSessionExport();

signals:
    void settingsChanged();
    void previewStateChanged();
    void previewSourceChanged();
    void errorStringChanged();
    void lastExportUrlChanged();
    void sessionExportStateChanged();
    void saveSucceeded(const QUrl &imageUrl);
    void sessionSaveFailed(const QString &message);

private:
    /// How the last export was made.
    struct SessionExport
    {
        QUrl imageUrl;
        QUrl documentUrl;
        ExportSettings settings;
        QSizeF rectangleSize; ///< what was exported, document units
        bool keepAspectRatio = true;
        bool losslessDocumentFile = false;
    };

    /// What the worker answers.
    struct Preview
    {
        quint64 sequence; ///< of the settings that it was asked with
        std::optional<ExportPreview> result;
        Error error;
    };
    struct SavedImage
    {
        std::optional<QByteArray> bytes;
        Error error;
    };

    /// A job of the worker, and the flag that stops it.
    template<typename Result>
    struct Job
    {
        QFutureWatcher<Result> watcher;
        std::shared_ptr<std::atomic_bool> cancelled;

        void cancel() const;
        void cancelAndWait();
    };

    void setSize(const QSize &size);
    QSize repeatedSize(const SessionExport &session, const QRectF &rectangle, bool clipToDocument) const;
    void setLastExportUrl(const QUrl &url);
    void takeSettings(bool clipToDocument);
    void settingChanged(bool changesPicture);
    void requestPreview();
    void startPreview();
    void finishPreview();
    void stopPreview();
    void showPreview(const QImage &image);
    void finishSessionSave();
    void forgetSession();
    bool fail(const QString &message);
    bool failSessionSave(const QString &message);
    void setLastError(const QString &message);

    Document *m_document;
    DocumentFileController *m_fileController;
    std::shared_ptr<ExportPreviewImageStore> m_previewStore;
    const RenderServices *m_services = nullptr;

    ExportSettings m_settings{
        QStringLiteral("jpeg"), kDefaultExportQuality, {kMinimumExportSide, kMinimumExportSide}, true};
    int m_maximumDimension = kMaximumExportSide;
    bool m_keepAspectRatio = true;
    bool m_losslessDocumentFile = false;
    bool m_prefersTransparentExport = false;

    // The dialog's session.
    bool m_open = false;
    SceneSnapshot m_snapshot;
    QRectF m_rectangle{0, 0, 1, 1}; // what is exported, document units
    QString m_suggestedName;
    QTimer m_previewDelay;
    quint64 m_sequence = 0;         // of the present settings
    quint64 m_answeredSequence = 0; // of the last preview
    bool m_previewRunning = false;
    bool m_rerun = false;
    QByteArray m_encoded;
    QString m_previewError;
    QUrl m_previewSource;

    std::optional<SessionExport> m_session;
    QUrl m_savingImageUrl;
    bool m_sessionSaveBusy = false;
    QString m_lastError;
    QUrl m_lastExportUrl;

    Job<Preview> m_preview;
    Job<SavedImage> m_sessionSave;
};

} // namespace zm
