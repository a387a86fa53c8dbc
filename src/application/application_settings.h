#pragma once

#include <QMutex>
#include <QObject>
#include <QSettings>
#include <QStringList>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// What survives between runs: view options, language, recent documents, last folders. Every change is written at
/// once. Usable from any thread; signals are emitted without the lock, so a slot may call back. A damaged store is
/// put in order by the constructor.
class ApplicationSettings : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns the one store of settings.")
    Q_PROPERTY(int rulerPlacement READ rulerPlacement WRITE setRulerPlacement NOTIFY rulerPlacementChanged)
    Q_PROPERTY(int inspectorPosition READ inspectorPosition WRITE setInspectorPosition NOTIFY inspectorPositionChanged)
    Q_PROPERTY(bool canvasClipMode READ canvasClipMode WRITE setCanvasClipMode NOTIFY canvasClipModeChanged)
    Q_PROPERTY(bool documentBoundsVisible READ documentBoundsVisible WRITE setDocumentBoundsVisible NOTIFY
                   documentBoundsVisibleChanged)
    Q_PROPERTY(QString themeMode READ themeMode WRITE setThemeMode NOTIFY themeModeChanged)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(QStringList availableLanguages READ availableLanguages CONSTANT)
    Q_PROPERTY(QStringList recentFilePaths READ recentFilePaths NOTIFY recentFilePathsChanged)
    Q_PROPERTY(QUrl lastExportFolderUrl READ lastExportFolderUrl NOTIFY lastExportFolderChanged)
    Q_PROPERTY(QUrl imageImportFolderUrl READ imageImportFolderUrl NOTIFY imageImportFolderChanged)

public:
    static constexpr int kMaximumRecentFiles = 5;

    explicit ApplicationSettings(QObject *parent = nullptr);

    /// The language to start in, read from the store before any settings object exists. Writes nothing.
    static QString startLanguage();

    /// 0 off, 1 top and left, 2 bottom and right. Anything else becomes 2.
    int rulerPlacement() const;
    void setRulerPlacement(int placement);

    /// 0 left, 1 right. Anything else becomes 1.
    int inspectorPosition() const;
    void setInspectorPosition(int position);

    bool canvasClipMode() const;
    void setCanvasClipMode(bool clip);

    bool documentBoundsVisible() const;
    void setDocumentBoundsVisible(bool visible);

    /// "light", "dark" or "system", which anything else becomes.
    QString themeMode() const;
    void setThemeMode(const QString &mode);

    /// A code of the language table. The setter ignores what is not in it.
    QString language() const;
    void setLanguage(const QString &language);
    QStringList availableLanguages() const;

    /// Absolute clean paths of documents, newest first. A file that has gone stays until it is removed.
    QStringList recentFilePaths() const;

    /// The stored folder, or an empty URL.
    QUrl lastExportFolderUrl() const;

    /// The stored folder, else the user's pictures folder; empty if neither exists.
    QUrl imageImportFolderUrl() const;

    Q_INVOKABLE QString languageDisplayName(const QString &language) const;

    /// Empty unless the path names a document by its suffix.
    Q_INVOKABLE QUrl recentFileUrl(const QString &filePath) const;
    Q_INVOKABLE QString recentFileDisplayName(const QString &filePath) const;
    Q_INVOKABLE void removeRecentFile(const QString &filePath);

    /// The suggested file name within the last export folder, the pictures folder or its own folder, whichever exists
    /// first; the URL itself when it is not local or there is no such folder.
    Q_INVOKABLE QUrl exportFileUrl(const QUrl &suggestedFileUrl) const;

    /// Empty for a URL that is not local.
    Q_INVOKABLE QUrl folderUrlForFileUrl(const QUrl &fileUrl) const;
    Q_INVOKABLE void rememberExportFolder(const QUrl &fileUrl);
    Q_INVOKABLE void rememberImageImportFolder(const QUrl &fileUrl);

public slots:
    /// Puts a local document first among the recent files.
    void addRecentFile(const QUrl &fileUrl);

signals:
    void rulerPlacementChanged();
    void inspectorPositionChanged();
    void canvasClipModeChanged();
    void documentBoundsVisibleChanged();
    void themeModeChanged();
    void languageChanged();
    void recentFilePathsChanged();
    void lastExportFolderChanged();
    void imageImportFolderChanged();

private:
    template<typename T>
    T read(const T &field) const;
    template<typename T>
    bool change(T &field, const T &value, QLatin1StringView key);
    template<typename T>
    void heal(QLatin1StringView key, const T &value);
    void load();

    mutable QMutex m_mutex; // guards all below
    QSettings m_store;
    int m_rulerPlacement = 0;
    int m_inspectorPosition = 0;
    bool m_canvasClipMode = false;
    bool m_documentBoundsVisible = false;
    QString m_themeMode;
    QString m_language;
    QStringList m_recentFilePaths;
    QString m_lastExportFolder;
    QString m_imageImportFolder;
};

} // namespace zm
