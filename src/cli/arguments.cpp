#include "cli/arguments.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

Arguments::Arguments(const QStringList &words, const QList<OptionRule> &rules, Error &error)
{
    bool optionsEnded = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (optionsEnded || word == "-"_L1 || !word.startsWith(u'-')) {
            m_files.append(word);
            continue;
        }
        if (word == "--"_L1) {
            optionsEnded = true;
            continue;
        }
        const qsizetype equals = word.indexOf(u'=');
        const QString name = equals < 0 ? word : word.first(equals);
        const auto rule =
            std::find_if(rules.begin(), rules.end(), [&](const OptionRule &known) { return known.name == name; });
        if (rule == rules.end())
            error.fail(u"unknown option %1"_s.arg(name));
        else if (!rule->takesValue && equals >= 0)
            error.fail(u"%1 takes no value"_s.arg(name));
        else if (!rule->takesValue)
            take(name, {});
        else if (equals >= 0)
            take(name, word.sliced(equals + 1));
        else if (i + 1 < words.size())
            take(name, words[++i]);
        else
            error.fail(u"%1 needs a value"_s.arg(name));
    }
}

void Arguments::take(const QString &option, const QString &value)
{
    m_options[option].append(value);
    m_inOrder.append({option, value});
}

int Arguments::number(const QString &option, int fallback, int minimum, int maximum, Error &error) const
{
    if (!has(option))
        return fallback;
    bool isNumber = false;
    const int number = value(option).toInt(&isNumber);
    if (isNumber && number >= minimum && number <= maximum)
        return number;
    error.fail(u"%1 takes a whole number from %2 to %3"_s.arg(option).arg(minimum).arg(maximum));
    return fallback;
}

} // namespace zm::cli
