#include "io/file_names.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr qsizetype kMaximumNameLength = 120;

} // namespace

QString sidecarPath(const QString &imagePath)
{
    const QFileInfo image(imagePath);
    const QString name = image.completeBaseName();
    return name.isEmpty() ? QString() : image.absoluteDir().filePath(name + u'.' + kDocumentSuffix);
}

QString cleanFileName(const QString &name)
{
    static const QRegularExpression forbidden(uR"([<>:"/\\|?*\x00-\x1f])"_s);
    static const QRegularExpression trailing(u"[. ]+$"_s);
    QString clean = name.trimmed().replace(forbidden, u"_"_s).remove(trailing);
    if (clean.isEmpty())
        return kDocumentSuffix;
    clean.truncate(kMaximumNameLength);
    if (clean.back().isHighSurrogate()) // half of a character is no name
        clean.chop(1);
    return clean;
}

} // namespace zm
