#pragma once

#include "base/error.h"

#include <QString>

namespace zm::cli {

/// What the program tells the shell.
enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

/// Standard output for results, standard error for failures and, on a terminal only, for progress. Remembers whether
/// something failed.
class Console
{
public:
    Console();

    void print(const QString &text);
    /// One line "zelmora: FILE: MESSAGE".
    void fail(const QString &file, const QString &message);
    /// The same, if the error is set.
    void report(const QString &file, const Error &error);
    /// A line that the next message or progress replaces.
    void progress(const QString &text);
    /// Clears the progress, flushes, and tells Failed when anything failed, the output itself included.
    ExitStatus finish();

private:
    void clearProgress();

    bool m_showsProgress;
    bool m_progressShown = false;
    bool m_failed = false;
};

/// Tells what is wrong with the arguments, and how the command is used.
ExitStatus wrongUsage(const QString &message, const QString &usage);

} // namespace zm::cli
