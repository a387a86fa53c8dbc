#include "editor/notice_catalog_model.h"

#include <QCoreApplication>
#include <QFile>

#include <webp/encode.h>

#ifdef __GLIBC__
#include <gnu/libc-version.h>
#endif

using namespace Qt::StringLiterals;

namespace zm {

namespace {

QString ownLicense()
{
    QFile file(u":/zelmoraatelier/LICENSE"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString webpVersion()
{
    const int packed = WebPGetEncoderVersion(); // one byte each for major, minor and revision
    return u"%1.%2.%3"_s.arg(packed >> 16).arg((packed >> 8) & 0xff).arg(packed & 0xff);
}

QString lines(const QStringList &parts)
{
    return parts.join(u'\n');
}

} // namespace

NoticeCatalogModel::NoticeCatalogModel(QObject *parent)
    : QAbstractListModel(parent)
{
    const auto identifier = [](const QString &spdx) { return tr("SPDX identifier: %1").arg(spdx); };
    const auto fullText = [](const QString &path) { return tr("Full text on Debian: %1").arg(path); };
    const auto notices = [](const QString &path) { return tr("Copyright notices on Debian: %1").arg(path); };

    m_notices = {
        {u"Zelmora Atelier"_s, QCoreApplication::applicationVersion(), tr("MIT License"), {}, ownLicense()},
        {u"Qt"_s, QString::fromLatin1(qVersion()), tr("GNU Lesser General Public License, version 3"),
         QUrl(u"https://www.qt.io/"_s),
         lines({tr("Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can "
                   "be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, "
                   "Quick Layouts, Quick Dialogs, and the plug-ins for picture formats."),
                tr("Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 "
                   "and zlib. Their notices stand with Qt's own."),
                QString(), identifier(u"LGPL-3.0-only"_s),
                fullText(u"/usr/share/common-licenses/LGPL-3, /usr/share/common-licenses/GPL-3"_s),
                notices(u"/usr/share/doc/libqt6core6t64/copyright"_s)})},
        {u"libwebp"_s, webpVersion(), tr("BSD 3-Clause License"), QUrl(u"https://developers.google.com/speed/webp"_s),
         lines({tr("Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part "
                   "libsharpyuv."),
                QString(), identifier(u"BSD-3-Clause"_s), fullText(u"/usr/share/doc/libwebp7/copyright"_s)})},
        {u"libglvnd"_s,
         {},
         tr("MIT License"),
         QUrl(u"https://gitlab.freedesktop.org/glvnd/libglvnd"_s),
         lines({tr("Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically."),
                QString(), identifier(u"MIT"_s), fullText(u"/usr/share/doc/libglvnd0/copyright"_s)})},
#ifdef _GLIBCXX_RELEASE
        {u"libstdc++ and libgcc"_s, QString::number(_GLIBCXX_RELEASE),
         tr("GNU General Public License, version 3 or later, with the GCC Runtime Library Exception"),
         QUrl(u"https://gcc.gnu.org/"_s),
         lines({tr("The C++ standard library and the support routines of the compiler, linked dynamically. The "
                   "exception lets programs under any license use them."),
                QString(), identifier(u"GPL-3.0-or-later WITH GCC-exception-3.1"_s),
                fullText(u"/usr/share/common-licenses/GPL-3"_s), notices(u"/usr/share/doc/libstdc++6/copyright"_s)})},
#endif
#ifdef __GLIBC__
        {u"GNU C Library"_s, QString::fromLatin1(gnu_get_libc_version()),
         tr("GNU Lesser General Public License, version 2.1 or later"), QUrl(u"https://sourceware.org/glibc/"_s),
         lines({tr("The C library of the system, linked dynamically."), QString(), identifier(u"LGPL-2.1-or-later"_s),
                fullText(u"/usr/share/common-licenses/LGPL-2.1"_s), notices(u"/usr/share/doc/libc6/copyright"_s)})},
#endif
    };
}

int NoticeCatalogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_notices.size());
}

QVariant NoticeCatalogModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Notice &notice = m_notices.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return notice.name;
    case VersionRole:
        return notice.version;
    case LicenseNameRole:
        return notice.licenseName;
    case HomePageRole:
        return notice.homePage;
    case TextRole:
        return notice.text;
    default:
        return {};
    }
}

QHash<int, QByteArray> NoticeCatalogModel::roleNames() const
{
    return {{NameRole, "name"},
            {VersionRole, "version"},
            {LicenseNameRole, "licenseName"},
            {HomePageRole, "homePage"},
            {TextRole, "text"}};
}

} // namespace zm
