#pragma once

#include "base/error.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <utility>

namespace zm::cli {

/// An option "--name", or "--name VALUE" and "--name=VALUE" when it takes one.
struct OptionRule
{
    QString name;
    bool takesValue = false;
};

/// What a command was given: options in any order, then or among them the files. "--" ends the options.
class Arguments
{
public:
    /// The error tells where the words do not keep to the rules.
    Arguments(const QStringList &words, const QList<OptionRule> &rules, Error &error);

    const QStringList &files() const { return m_files; }
    bool has(const QString &option) const { return m_options.contains(option); }
    /// Of an option that was given more than once, the last.
    QString value(const QString &option) const { return values(option).isEmpty() ? QString() : values(option).last(); }
    /// In the order given.
    QStringList values(const QString &option) const { return m_options.value(option); }

    /// All options with their values, in the order given; the value of an option that takes none is empty.
    const QList<std::pair<QString, QString>> &inOrder() const { return m_inOrder; }

    /// The option's whole number, or fallback when it was not given. Fails for a number out of range.
    int number(const QString &option, int fallback, int minimum, int maximum, Error &error) const;

private:
    void take(const QString &option, const QString &value);

    QHash<QString, QStringList> m_options;
    QList<std::pair<QString, QString>> m_inOrder;
    QStringList m_files;
};

} // namespace zm::cli
