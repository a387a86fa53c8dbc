#include "generators/disk_texture_loader.h"

#include "services/user_notification_center.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr qsizetype kImageBudgetKilobytes = 64 * 1024; // sixteen tiles of 1024 by 1024

QStringList withoutBlanks(QStringList roots)
{
    roots.removeIf([](const QString &root) { return root.trimmed().isEmpty(); });
    return roots;
}

QString searchedText(const QStringList &roots)
{
    return roots.isEmpty() ? u"<none>"_s : roots.join(", "_L1);
}

} // namespace

DiskTextureLoader::DiskTextureLoader(const QStringList &searchRoots)
    : m_searchRoots(withoutBlanks(searchRoots))
    , m_images(kImageBudgetKilobytes)
{
}

bool DiskTextureLoader::isSafePath(const QString &path)
{
    const QString slashed = QDir::fromNativeSeparators(path);
    return !slashed.isEmpty() && QDir::isRelativePath(slashed) && slashed != ".."_L1 && !slashed.startsWith("../"_L1)
        && !slashed.contains("/../"_L1);
}

QStringList DiskTextureLoader::searchRoots() const
{
    const QMutexLocker locker(&m_mutex);
    return m_searchRoots;
}

void DiskTextureLoader::setSearchRoots(const QStringList &searchRoots)
{
    const QMutexLocker locker(&m_mutex);
    m_searchRoots = withoutBlanks(searchRoots);
    m_images.clear();
}

QImage DiskTextureLoader::loadImage(const QString &path)
{
    if (!isSafePath(path)) {
        report(u"invalid:%1"_s.arg(path), TextureLoader::tr("Rejected unsafe texture image path: %1").arg(path));
        return {};
    }
    QStringList roots;
    {
        const QMutexLocker locker(&m_mutex);
        if (const QImage *known = m_images.object(path))
            return *known;
        roots = m_searchRoots;
    }

    const QString filePath = find(path, roots);
    if (filePath.isEmpty()) {
        report(u"missing:%1"_s.arg(path),
               TextureLoader::tr("Texture image not found: %1 (searched: %2)").arg(path, searchedText(roots)));
        return {};
    }
    QImageReader reader(filePath);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull()) {
        const QString reason =
            reader.errorString().isEmpty() ? TextureLoader::tr("unknown image decoder error") : reader.errorString();
        report(u"decode:%1"_s.arg(path),
               TextureLoader::tr("Unable to load texture image %1 from %2: %3").arg(path, filePath, reason));
        return {};
    }
    image.convertTo(QImage::Format_RGBA8888);

    const QMutexLocker locker(&m_mutex);
    if (roots == m_searchRoots) // else it may be another picture by now
        m_images.insert(path, new QImage(image), std::max<qsizetype>(image.sizeInBytes() / 1024, 1));
    return image;
}

QByteArray DiskTextureLoader::loadData(const QString &path)
{
    if (!isSafePath(path)) {
        report(u"data-invalid:%1"_s.arg(path), TextureLoader::tr("Rejected unsafe texture data path: %1").arg(path));
        return {};
    }
    const QStringList roots = searchRoots();
    if (const QString filePath = find(path, roots); !filePath.isEmpty())
        return readData(path, filePath);
    report(u"data-missing:%1"_s.arg(path),
           TextureLoader::tr("Texture data not found: %1 (searched: %2)").arg(path, searchedText(roots)));
    return {};
}

QByteArray DiskTextureLoader::loadData(const QStringList &candidates)
{
    const QStringList roots = searchRoots();
    for (const QString &path : candidates) {
        if (!isSafePath(path))
            report(u"data-invalid:%1"_s.arg(path),
                   TextureLoader::tr("Rejected unsafe texture data path: %1").arg(path));
        else if (const QString filePath = find(path, roots); !filePath.isEmpty())
            return readData(path, filePath);
    }
    const QString names = candidates.join(", "_L1);
    const QString searched = searchedText(roots);
    report(u"data-candidates-missing:%1:%2"_s.arg(names, searched),
           TextureLoader::tr("Texture data not found for any candidate: %1 (searched: %2)").arg(names, searched));
    return {};
}

QList<TextureFailure> DiskTextureLoader::failures() const
{
    const QMutexLocker locker(&m_mutex);
    return m_failures;
}

/// The file or resource of a safe path; empty if there is none.
QString DiskTextureLoader::find(const QString &path, const QStringList &roots) const
{
    for (const QString &root : roots) {
        const QString filePath = root + u'/' + path;
        if (QFileInfo(filePath).isFile())
            return filePath;
    }
    const QString resource = ":/textures/"_L1 + path;
    return QFileInfo(resource).isFile() ? resource : QString();
}

QByteArray DiskTextureLoader::readData(const QString &path, const QString &filePath)
{
    QFile file(filePath);
    QByteArray bytes;
    QString reason;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        bytes.clear();
        reason = file.errorString().isEmpty() ? TextureLoader::tr("unknown read error") : file.errorString();
    } else if (bytes.isEmpty()) {
        reason = TextureLoader::tr("file is empty");
    }
    if (bytes.isEmpty()) {
        report(u"data-read:%1"_s.arg(path),
               TextureLoader::tr("Unable to read texture data %1 from %2: %3").arg(path, filePath, reason));
    }
    return bytes;
}

void DiskTextureLoader::report(const QString &code, const QString &text)
{
    {
        const QMutexLocker locker(&m_mutex);
        const auto isKnown = [&](const TextureFailure &failure) { return failure.code == code; };
        if (std::any_of(m_failures.cbegin(), m_failures.cend(), isKnown))
            return;
        m_failures.append({code, text});
    }
    qCWarning(lcTextures).noquote() << text;
    UserNotificationCenter::post(text);
}

} // namespace zm
