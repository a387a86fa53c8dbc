#include "application/languages.h"

#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

struct Language
{
    QStringView code;
    QStringView displayName;
};

constexpr std::array<Language, 19> kLanguages{{
    {u"en", u"English"},
    {u"da", u"Dansk"},
    {u"de", u"Deutsch"},
    {u"es", u"Español"},
    {u"fil", u"Filipino"},
    {u"fr", u"Français"},
    {u"it", u"Italiano"},
    {u"nl", u"Nederlands"},
    {u"nb", u"Norsk bokmål"},
    {u"pl", u"Polski"},
    {u"pt_PT", u"Português (Portugal)"},
    {u"sv", u"Svenska"},
    {u"tr", u"Türkçe"},
    {u"el", u"Ελληνικά"},
    {u"ru", u"Русский"},
    {u"hi", u"हिन्दी"},
    {u"ja", u"日本語"},
    {u"zh_CN", u"简体中文"},
    {u"ko", u"한국어"},
}};

} // namespace

QStringList languageCodes()
{
    QStringList codes;
    for (const Language &language : kLanguages)
        codes.append(language.code.toString());
    return codes;
}

QString languageDisplayName(const QString &code)
{
    const auto row = std::ranges::find(kLanguages, QStringView(code), &Language::code);
    return row == kLanguages.end() ? code : row->displayName.toString();
}

QString knownLanguage(const QString &code)
{
    const QString wanted = code.trimmed();
    for (const Language &language : kLanguages) {
        if (language.code.compare(wanted, Qt::CaseInsensitive) == 0)
            return language.code.toString();
    }
    return {};
}

QString languageForLocale(const QString &localeName)
{
    const QLocale locale(localeName);
    const QString fullName = locale.name();
    const QString languageCode = QLocale::languageToCode(locale.language());
    const QString anyTerritory = languageCode + u'_';

    const auto firstRow = [&locale](auto &&matches) -> QString {
        for (const Language &language : kLanguages) {
            if (matches(language.code) && QLocale(language.code).script() == locale.script())
                return language.code.toString();
        }
        return {};
    };
    if (const QString code = firstRow([&](QStringView row) { return row == fullName; }); !code.isEmpty())
        return code;
    if (const QString code = firstRow([&](QStringView row) { return row == languageCode; }); !code.isEmpty())
        return code;
    if (const QString code = firstRow([&](QStringView row) { return row.startsWith(anyTerritory); }); !code.isEmpty())
        return code;
    return kSourceLanguage;
}

QString resolveLanguage(const QString &stored, const QStringList &systemLanguages)
{
    if (const QString code = knownLanguage(stored); !code.isEmpty())
        return code;
    return systemLanguages.isEmpty() ? QString(kSourceLanguage) : languageForLocale(systemLanguages.first());
}

} // namespace zm
