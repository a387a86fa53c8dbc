#pragma once

#include "cli/console.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace zm::cli {

/// One input of a batch and where its result goes.
struct Job
{
    QString input;
    QString output;
};

/// Whether a result may take the place of the very input that it was made from.
enum class OwnInput { Protected, Replaceable };

/// Makes the folder, with those above it, unless it is there.
bool makeFolder(const QString &folder, Error &error);

/// One output in the folder, which is made, for each input, under the input's base name. An output that is an input, or
/// that an earlier input has taken, is a failure of that input: a batch must not lose a picture. Without the folder
/// there are no jobs.
QList<Job> jobsInto(const QString &folder, const QString &suffix, const QStringList &inputs, OwnInput ownInput,
                    Console &console);

/// What went wrong with the one file and with the other.
struct JobErrors
{
    Error input;
    Error output;
};

/// Does one job after the other, showing which, and reports what fails.
void runJobs(const QList<Job> &jobs, Console &console, const std::function<void(const Job &, JobErrors &)> &run);

} // namespace zm::cli
