#include "filters/description/filter_pictures.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr qsizetype kLongestFileName = 80;

QString cleanedFileName(const QString &name)
{
    static const QRegularExpression unusual(u"[^A-Za-z0-9._-]+"_s);
    QString cleaned = name.trimmed();
    if (cleaned.isEmpty())
        cleaned = u"default"_s;
    return cleaned.replace(unusual, u"_"_s).first(std::min(cleaned.size(), kLongestFileName));
}

QString generatedPicture(QLatin1StringView folder, const QString &name, const QString &fallback)
{
    const QString file = u":/zelmoraatelier/generated/%1/%2.webp"_s.arg(folder, cleanedFileName(name));
    return QFile::exists(file) ? u"qrc"_s + file : fallback;
}

QString iconSource(QLatin1StringView name)
{
    return u"qrc:/icons/zelmoraatelier/24x24/%1.svg"_s.arg(name);
}

} // namespace

QString filterThumbnailSource(const QString &filterId)
{
    return generatedPicture("filter-picker-thumbnails"_L1, filterId, iconSource("magic_wand"_L1));
}

QString filterPreviewSource(const QString &filterId)
{
    constexpr QLatin1StringView withPreview[] = {"color-adjust"_L1, "relight"_L1, "renaissance"_L1, "shadow"_L1,
                                                 "sharpen"_L1};
    const bool hasPreview = std::ranges::find(withPreview, filterId) != std::end(withPreview);
    return hasPreview ? generatedPicture("filter-previews"_L1, filterId, {}) : QString();
}

QString texturePreviewSource(const QString &option)
{
    return generatedPicture("filter-textures"_L1, option, iconSource("magic_wand"_L1));
}

} // namespace zm
