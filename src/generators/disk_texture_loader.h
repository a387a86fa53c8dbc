#pragma once

#include "generators/texture_loader.h"

#include <QByteArray>
#include <QCache>
#include <QList>
#include <QMutex>
#include <QStringList>

namespace zm {

/// Why a texture could not be had. The code names the kind and the path, as in "missing:wood/teak.jpg".
struct TextureFailure
{
    QString code;
    QString text; // as shown to the user

    bool operator==(const TextureFailure &) const = default;
};

/// Reads textures from folders, and what no folder has from the resources below ":/textures". Decoded pictures are kept
/// within a budget. The user is told of each failure once.
class DiskTextureLoader : public TextureLoader
{
public:
    /// The folders are searched in their order; blank ones are skipped.
    explicit DiskTextureLoader(const QStringList &searchRoots);

    /// A logical path never leaves the roots: it is relative and has no step upwards.
    static bool isSafePath(const QString &path);

    QStringList searchRoots() const;

    /// Forgets the pictures that were found under the former roots.
    void setSearchRoots(const QStringList &searchRoots);

    QImage loadImage(const QString &path) override;

    /// The bytes of a file; empty if there is none, or nothing in it, which the user has then been told.
    virtual QByteArray loadData(const QString &path);

    /// The bytes of the first of several paths that exists.
    virtual QByteArray loadData(const QStringList &candidates);

    /// All that has failed, in the order of its first time.
    QList<TextureFailure> failures() const;

private:
    QString find(const QString &path, const QStringList &roots) const;
    QByteArray readData(const QString &path, const QString &filePath);
    void report(const QString &code, const QString &text);

    mutable QMutex m_mutex; // guards all below, and is never held while a file is read
    QStringList m_searchRoots;
    QCache<QString, QImage> m_images; // by logical path; costs are kilobytes
    QList<TextureFailure> m_failures;
};

} // namespace zm
