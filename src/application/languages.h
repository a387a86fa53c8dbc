#pragma once

#include <QString>
#include <QStringList>

namespace zm {

/// The language that the interface is written in. It needs no catalogue.
inline constexpr QLatin1StringView kSourceLanguage("en");

/// The codes of all languages of the interface, in the order in which they are offered.
QStringList languageCodes();

/// The language's name in the language itself; a code that is not in the table is returned as it is.
QString languageDisplayName(const QString &code);

/// The table's form of a code, found without regard to case and blanks around it; empty if it is not in the table.
QString knownLanguage(const QString &code);

/// The language for an entry of QLocale::uiLanguages such as "pt-BR": a row of the same script with the same
/// language and territory, or the same language, or any territory of that language. Otherwise the source language.
QString languageForLocale(const QString &localeName);

/// The language to start in: the stored one if it is known, else that of the system's first language.
QString resolveLanguage(const QString &stored, const QStringList &systemLanguages);

} // namespace zm
