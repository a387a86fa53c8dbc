#pragma once

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
    Arguments(const QStringList &words, const QList<OptionRule> &rules);

    /// Empty when the words keep to the rules; else the first thing wrong.
    QString problem() const { return m_problem; }
    const QStringList &files() const { return m_files; }
    bool has(const QString &option) const { return m_options.contains(option); }
    /// Of an option that was given more than once, the last.
    QString value(const QString &option) const { return values(option).isEmpty() ? QString() : values(option).last(); }
    /// In the order given.
    QStringList values(const QString &option) const { return m_options.value(option); }

    /// All options with their values, in the order given; the value of an option that takes none is empty.
    const QList<std::pair<QString, QString>> &inOrder() const { return m_inOrder; }

    /// The option's whole number, or fallback when it was not given; a number out of range becomes a problem.
    int number(const QString &option, int fallback, int minimum, int maximum);

private:
    void take(const QString &option, const QString &value);
    void note(const QString &problem);

    QHash<QString, QStringList> m_options;
    QList<std::pair<QString, QString>> m_inOrder;
    QStringList m_files;
    QString m_problem;
};

} // namespace zm::cli
