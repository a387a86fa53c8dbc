#pragma once

#include <QColor>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace zm {

class CommandHistory;
class Document;
class RuntimeFlags;

/// Which file the document is, for the interface: a document file, and the picture that it is paired with. Opens and
/// saves documents, opens pictures as documents, and starts blank ones. A failure leaves the document as it was and its
/// sentence in lastError. Files are read and written on the calling thread, which is the main one.
class DocumentFileController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")
    Q_PROPERTY(QUrl documentUrl READ documentUrl NOTIFY documentUrlChanged)
    Q_PROPERTY(bool hasDocumentUrl READ hasDocumentUrl NOTIFY documentUrlChanged)
    Q_PROPERTY(QUrl pairedImageUrl READ pairedImageUrl NOTIFY pairedImageUrlChanged)
    Q_PROPERTY(QString displayName READ displayName NOTIFY displayNameChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)
    Q_PROPERTY(bool lastErrorOffersHeifInstallHelp READ lastErrorOffersHeifInstallHelp NOTIFY lastErrorChanged)

public:
    /// The sides of a blank document, in document units.
    static constexpr double kMinimumDocumentSide = 1.0;
    static constexpr double kMaximumDocumentSide = 10'000.0;

    DocumentFileController(Document *document, CommandHistory *commandHistory, QObject *parent = nullptr);

    /// The flags are not owned; without them every one counts as not set.
    void setRuntimeFlags(const RuntimeFlags *flags) { m_runtimeFlags = flags; }

    /// The .zelmora file; empty for a document that was never saved.
    QUrl documentUrl() const { return m_documentUrl; }
    bool hasDocumentUrl() const { return !m_documentUrl.isEmpty(); }
    /// The picture that the document belongs to; empty if none.
    QUrl pairedImageUrl() const { return m_pairedImageUrl; }
    /// Loading finds the pair by its names; a save that made the pair tells it here.
    void setPairedImageUrl(const QUrl &url);
    QString displayName() const;
    /// Empty after a success.
    QString lastError() const { return m_lastError; }
    bool lastErrorOffersHeifInstallHelp() const { return m_lastErrorOffersHeifInstallHelp; }

    /// Starts a blank document with a clean history. Sides are rounded to whole units; an invalid colour becomes white.
    Q_INVOKABLE bool resetDocument(double width, double height, const QColor &backgroundColor);
    /// Opens a local document, or a picture: by the document that lies beside it, or as a new document of one layer.
    /// The history is clean afterwards.
    Q_INVOKABLE bool load(const QUrl &url);
    /// Writes the document where it is. Like saveAs(), without loss.
    Q_INVOKABLE bool save();
    Q_INVOKABLE bool saveAs(const QUrl &url);
    /// Writes the document, all or nothing, and makes the file its own. A name without a suffix gets that of documents.
    /// compressImages embeds pictures with loss. The paired picture stays only if the file is the one it was.
    bool saveTo(const QUrl &url, bool compressImages);

    /// Whether opening the file, or inserting it, is expected to take long enough to show that it runs.
    Q_INVOKABLE bool opensSlowly(const QUrl &url) const;

    /// A local URL as a native path.
    Q_INVOKABLE QString displayPath(const QUrl &url) const;
    /// The last component of the path.
    Q_INVOKABLE QString displayFileName(const QUrl &url) const;

signals:
    void documentUrlChanged();
    void pairedImageUrlChanged();
    void displayNameChanged();
    void documentReplaced();
    void documentLoaded(const QUrl &documentUrl);
    void documentSaved(const QUrl &documentUrl);
    void lastErrorChanged();

private:
    bool loadDocument(const QString &path, const QUrl &pairedImageUrl);
    bool importImage(const QString &path);
    bool isPristine() const;
    bool fail(const QString &message, bool offersHeifInstallHelp = false);
    void finishReplacement(const QUrl &documentUrl, const QUrl &pairedImageUrl);
    void setUrls(const QUrl &documentUrl, const QUrl &pairedImageUrl);
    void setLastError(const QString &message, bool offersHeifInstallHelp);

    Document *m_document;
    CommandHistory *m_commandHistory;
    const RuntimeFlags *m_runtimeFlags = nullptr;
    QUrl m_documentUrl;
    QUrl m_pairedImageUrl;
    QString m_lastError;
    bool m_lastErrorOffersHeifInstallHelp = false;
};

} // namespace zm
