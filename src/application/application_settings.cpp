#include "application/application_settings.h"

#include "application/languages.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr auto kOrganization = "Zelmora"_L1;
constexpr auto kApplication = "ZelmoraAtelier"_L1;

constexpr auto kRulerPlacementKey = "view/rulerPlacement"_L1;
constexpr auto kInspectorPositionKey = "view/inspectorPosition"_L1;
constexpr auto kCanvasClipModeKey = "view/canvasClipMode"_L1;
constexpr auto kDocumentBoundsVisibleKey = "view/documentBoundsVisible"_L1;
constexpr auto kThemeModeKey = "view/themeMode"_L1;
constexpr auto kLanguageKey = "view/language"_L1;
constexpr auto kRecentFilesKey = "files/recentZelmoraFiles"_L1;
constexpr auto kExportFolderKey = "export/lastFolder"_L1;
constexpr auto kImageImportFolderKey = "imageImport/lastFolder"_L1;

constexpr int kBottomAndRight = 2;
constexpr int kRightSide = 1;

int normalizedRulerPlacement(int placement)
{
    return placement >= 0 && placement <= kBottomAndRight ? placement : kBottomAndRight;
}

int normalizedInspectorPosition(int position)
{
    return position == 0 ? 0 : kRightSide;
}

QString normalizedThemeMode(const QString &mode)
{
    const QString lowered = mode.trimmed().toLower();
    return lowered == "light"_L1 || lowered == "dark"_L1 ? lowered : u"system"_s;
}

/// Empty unless the path has the suffix of a document. The file need not exist.
QString normalizedRecentFile(const QString &path)
{
    const QString trimmed = path.trimmed();
    const QFileInfo file(trimmed);
    if (trimmed.isEmpty() || file.suffix().compare("zelmora"_L1, Qt::CaseInsensitive) != 0)
        return {};
    return QDir::cleanPath(file.absoluteFilePath());
}

QStringList normalizedRecentFiles(const QStringList &paths)
{
    QStringList result;
    for (const QString &path : paths) {
        const QString normalized = normalizedRecentFile(path);
        if (normalized.isEmpty() || result.contains(normalized, Qt::CaseInsensitive))
            continue;
        result.append(normalized);
        if (result.size() == ApplicationSettings::kMaximumRecentFiles)
            break;
    }
    return result;
}

/// Empty unless the path is a folder that exists.
QString normalizedFolder(const QString &path)
{
    const QFileInfo folder(path.trimmed());
    return folder.isDir() ? QDir::cleanPath(folder.absoluteFilePath()) : QString();
}

/// The folder of a local file, if it exists.
QString existingFolderOf(const QUrl &fileUrl)
{
    if (!fileUrl.isLocalFile() || fileUrl.toLocalFile().isEmpty())
        return {};
    return normalizedFolder(QFileInfo(fileUrl.toLocalFile()).absolutePath());
}

QString picturesFolder()
{
    return normalizedFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
}

QUrl localUrl(const QString &path)
{
    return path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path);
}

int storedNumber(const QSettings &store, QLatin1StringView key, int fallback)
{
    bool isNumber = false;
    const int number = store.value(key, fallback).toInt(&isNumber);
    return isNumber ? number : fallback;
}

} // namespace

template<typename T>
T ApplicationSettings::read(const T &field) const
{
    const QMutexLocker lock(&m_mutex);
    return field;
}

/// Stores field and key if the value is new; true when the caller has a signal to emit.
template<typename T>
bool ApplicationSettings::change(T &field, const T &value, QLatin1StringView key)
{
    const QMutexLocker lock(&m_mutex);
    if (field == value)
        return false;
    field = value;
    m_store.setValue(key, value);
    return true;
}

/// Rewrites a key whose stored form is not the value's own. A key that is not there stays away.
template<typename T>
void ApplicationSettings::heal(QLatin1StringView key, const T &value)
{
    if (!m_store.contains(key))
        return;
    const QVariant stored = m_store.value(key);
    bool isOwnForm = false;
    if constexpr (std::is_same_v<T, QStringList>)
        isOwnForm = stored.toStringList() == value;
    else
        isOwnForm = stored.toString() == QVariant(value).toString(); // the store may give a number back as a text
    if (!isOwnForm)
        m_store.setValue(key, value);
}

ApplicationSettings::ApplicationSettings(QObject *parent)
    : QObject(parent)
    , m_store(kOrganization, kApplication)
{
    load();
}

QString ApplicationSettings::startLanguage()
{
    const QSettings store(kOrganization, kApplication);
    return resolveLanguage(store.value(kLanguageKey).toString(), QLocale().uiLanguages());
}

void ApplicationSettings::load()
{
    m_rulerPlacement = normalizedRulerPlacement(storedNumber(m_store, kRulerPlacementKey, kBottomAndRight));
    m_inspectorPosition = normalizedInspectorPosition(storedNumber(m_store, kInspectorPositionKey, kRightSide));
    m_canvasClipMode = m_store.value(kCanvasClipModeKey).toBool();
    m_documentBoundsVisible = m_store.value(kDocumentBoundsVisibleKey).toBool();
    m_themeMode = normalizedThemeMode(m_store.value(kThemeModeKey).toString());
    m_recentFilePaths = normalizedRecentFiles(m_store.value(kRecentFilesKey).toStringList());
    m_lastExportFolder = normalizedFolder(m_store.value(kExportFolderKey).toString());
    m_imageImportFolder = normalizedFolder(m_store.value(kImageImportFolderKey).toString());

    const QString storedLanguage = m_store.value(kLanguageKey).toString();
    m_language = resolveLanguage(storedLanguage, QLocale().uiLanguages());
    if (knownLanguage(storedLanguage).isEmpty())
        m_store.remove(kLanguageKey);

    heal(kRulerPlacementKey, m_rulerPlacement);
    heal(kInspectorPositionKey, m_inspectorPosition);
    heal(kCanvasClipModeKey, m_canvasClipMode);
    heal(kDocumentBoundsVisibleKey, m_documentBoundsVisible);
    heal(kThemeModeKey, m_themeMode);
    heal(kLanguageKey, m_language);
    heal(kRecentFilesKey, m_recentFilePaths);
    heal(kExportFolderKey, m_lastExportFolder);
    heal(kImageImportFolderKey, m_imageImportFolder);
}

int ApplicationSettings::rulerPlacement() const
{
    return read(m_rulerPlacement);
}

void ApplicationSettings::setRulerPlacement(int placement)
{
    if (change(m_rulerPlacement, normalizedRulerPlacement(placement), kRulerPlacementKey))
        emit rulerPlacementChanged();
}

int ApplicationSettings::inspectorPosition() const
{
    return read(m_inspectorPosition);
}

void ApplicationSettings::setInspectorPosition(int position)
{
    if (change(m_inspectorPosition, normalizedInspectorPosition(position), kInspectorPositionKey))
        emit inspectorPositionChanged();
}

bool ApplicationSettings::canvasClipMode() const
{
    return read(m_canvasClipMode);
}

void ApplicationSettings::setCanvasClipMode(bool clip)
{
    if (change(m_canvasClipMode, clip, kCanvasClipModeKey))
        emit canvasClipModeChanged();
}

bool ApplicationSettings::documentBoundsVisible() const
{
    return read(m_documentBoundsVisible);
}

void ApplicationSettings::setDocumentBoundsVisible(bool visible)
{
    if (change(m_documentBoundsVisible, visible, kDocumentBoundsVisibleKey))
        emit documentBoundsVisibleChanged();
}

QString ApplicationSettings::themeMode() const
{
    return read(m_themeMode);
}

void ApplicationSettings::setThemeMode(const QString &mode)
{
    if (change(m_themeMode, normalizedThemeMode(mode), kThemeModeKey))
        emit themeModeChanged();
}

QString ApplicationSettings::language() const
{
    return read(m_language);
}

void ApplicationSettings::setLanguage(const QString &language)
{
    const QString known = knownLanguage(language);
    if (!known.isEmpty() && change(m_language, known, kLanguageKey))
        emit languageChanged();
}

QStringList ApplicationSettings::availableLanguages() const
{
    return languageCodes();
}

QString ApplicationSettings::languageDisplayName(const QString &language) const
{
    return zm::languageDisplayName(language);
}

QStringList ApplicationSettings::recentFilePaths() const
{
    return read(m_recentFilePaths);
}

QUrl ApplicationSettings::recentFileUrl(const QString &filePath) const
{
    return localUrl(normalizedRecentFile(filePath));
}

QString ApplicationSettings::recentFileDisplayName(const QString &filePath) const
{
    const QString fileName = QFileInfo(filePath).fileName();
    return fileName.isEmpty() ? filePath : fileName;
}

void ApplicationSettings::addRecentFile(const QUrl &fileUrl)
{
    const QString path = fileUrl.isLocalFile() ? normalizedRecentFile(fileUrl.toLocalFile()) : QString();
    if (path.isEmpty())
        return;
    // Built under the lock, so that two threads cannot drop each other's file.
    {
        const QMutexLocker lock(&m_mutex);
        const QStringList paths = normalizedRecentFiles(QStringList(path) + m_recentFilePaths);
        if (paths == m_recentFilePaths)
            return;
        m_recentFilePaths = paths;
        m_store.setValue(kRecentFilesKey, paths);
    }
    emit recentFilePathsChanged();
}

void ApplicationSettings::removeRecentFile(const QString &filePath)
{
    const QString path = normalizedRecentFile(filePath);
    {
        const QMutexLocker lock(&m_mutex);
        const auto isPath = [&path](const QString &entry) { return entry.compare(path, Qt::CaseInsensitive) == 0; };
        if (m_recentFilePaths.removeIf(isPath) == 0)
            return;
        m_store.setValue(kRecentFilesKey, m_recentFilePaths);
    }
    emit recentFilePathsChanged();
}

QUrl ApplicationSettings::lastExportFolderUrl() const
{
    return localUrl(read(m_lastExportFolder));
}

QUrl ApplicationSettings::imageImportFolderUrl() const
{
    const QString stored = normalizedFolder(read(m_imageImportFolder));
    return localUrl(stored.isEmpty() ? picturesFolder() : stored);
}

QUrl ApplicationSettings::exportFileUrl(const QUrl &suggestedFileUrl) const
{
    const QString fileName = suggestedFileUrl.fileName();
    if (!suggestedFileUrl.isLocalFile() || fileName.isEmpty())
        return suggestedFileUrl;
    QString folder = normalizedFolder(read(m_lastExportFolder));
    if (folder.isEmpty())
        folder = picturesFolder();
    if (folder.isEmpty())
        folder = existingFolderOf(suggestedFileUrl);
    return folder.isEmpty() ? suggestedFileUrl : QUrl::fromLocalFile(QDir(folder).filePath(fileName));
}

QUrl ApplicationSettings::folderUrlForFileUrl(const QUrl &fileUrl) const
{
    if (!fileUrl.isLocalFile() || fileUrl.toLocalFile().isEmpty())
        return {};
    return QUrl::fromLocalFile(QFileInfo(fileUrl.toLocalFile()).absolutePath());
}

void ApplicationSettings::rememberExportFolder(const QUrl &fileUrl)
{
    const QString folder = existingFolderOf(fileUrl);
    if (!folder.isEmpty() && change(m_lastExportFolder, folder, kExportFolderKey))
        emit lastExportFolderChanged();
}

void ApplicationSettings::rememberImageImportFolder(const QUrl &fileUrl)
{
    const QString folder = existingFolderOf(fileUrl);
    if (!folder.isEmpty() && change(m_imageImportFolder, folder, kImageImportFolderKey))
        emit imageImportFolderChanged();
}

} // namespace zm
