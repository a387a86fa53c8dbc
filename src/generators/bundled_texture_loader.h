#pragma once

#include "generators/disk_texture_loader.h"

#include <QHash>

namespace zm {

/// Registers, when a texture is first asked for, the resource bundle of its family: "zelmoraatelier-textures-wood.rcc"
/// for "wood/teak.jpg". Bundles stay registered for the life of the process.
class BundledTextureLoader final : public DiskTextureLoader
{
public:
    BundledTextureLoader(const QStringList &bundleDirectories, const QStringList &searchRoots);

    QImage loadImage(const QString &path) override;
    QByteArray loadData(const QString &path) override;
    QByteArray loadData(const QStringList &candidates) override;

private:
    bool registerBundleOf(const QString &path);

    const QStringList m_bundleDirectories;
    QMutex m_bundleMutex;                    // held while a bundle is registered, so that this happens once
    QHash<QString, bool> m_registeredBundles; // by bundle id; false: there is none, or it is damaged
};

/// Where the program looks for bundles and loose textures: "textures" beside and above it.
QStringList textureBundleDirectories();
QStringList textureSearchRoots();

} // namespace zm
