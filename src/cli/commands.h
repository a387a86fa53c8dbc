#pragma once

#include "cli/console.h"

#include <QStringList>

namespace zm::cli {

/// A subcommand: its usage line and what it does with the words after its name.
struct Command
{
    QString name;
    QString usage;
    QString summary;
    ExitStatus (*run)(const QStringList &words, const QString &usage);
};

ExitStatus runInfo(const QStringList &words, const QString &usage);
ExitStatus runExport(const QStringList &words, const QString &usage);
ExitStatus runConvert(const QStringList &words, const QString &usage);
ExitStatus runApply(const QStringList &words, const QString &usage);
ExitStatus runEffects(const QStringList &words, const QString &usage);
ExitStatus runShapes(const QStringList &words, const QString &usage);

} // namespace zm::cli
