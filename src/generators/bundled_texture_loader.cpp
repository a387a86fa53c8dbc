#include "generators/bundled_texture_loader.h"

#include <QDir>
#include <QFileInfo>
#include <QResource>

using namespace Qt::StringLiterals;

namespace zm {

BundledTextureLoader::BundledTextureLoader(const QStringList &bundleDirectories, const QStringList &searchRoots)
    : DiskTextureLoader(searchRoots)
    , m_bundleDirectories(bundleDirectories)
{
}

QImage BundledTextureLoader::loadImage(const QString &path)
{
    registerBundleOf(path);
    return DiskTextureLoader::loadImage(path);
}

QByteArray BundledTextureLoader::loadData(const QString &path)
{
    registerBundleOf(path);
    return DiskTextureLoader::loadData(path);
}

QByteArray BundledTextureLoader::loadData(const QStringList &candidates)
{
    for (const QString &path : candidates)
        registerBundleOf(path);
    return DiskTextureLoader::loadData(candidates);
}

/// False when the path has no family, or its family no usable bundle; a loose file may still serve.
bool BundledTextureLoader::registerBundleOf(const QString &path)
{
    const qsizetype familyLength = path.lastIndexOf(u'/');
    if (familyLength <= 0 || !isSafePath(path))
        return false;
    const QString id = path.first(familyLength).replace(u'/', u'-');

    const QMutexLocker locker(&m_bundleMutex);
    if (const auto known = m_registeredBundles.constFind(id); known != m_registeredBundles.cend())
        return *known;
    bool registered = false;
    for (const QString &directory : m_bundleDirectories) {
        if (directory.trimmed().isEmpty())
            continue;
        const QString filePath = directory + "/zelmoraatelier-textures-%1.rcc"_L1.arg(id);
        if (!QFileInfo(filePath).isFile())
            continue;
        registered = QResource::registerResource(filePath);
        if (!registered)
            qCWarning(lcTextures).noquote()
                << TextureLoader::tr("Unable to register texture resource bundle: %1").arg(filePath);
        break;
    }
    m_registeredBundles.insert(id, registered);
    return registered;
}

QStringList textureBundleDirectories()
{
    QStringList directories;
    for (const auto relative : {"textures"_L1, "../textures"_L1, "../Resources/textures"_L1})
        directories.append(QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + relative));
    return directories;
}

QStringList textureSearchRoots()
{
    return textureBundleDirectories() << u"C:/projects/ZelmoraAtelier/textures"_s;
}

} // namespace zm
