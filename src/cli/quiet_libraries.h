#pragma once

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace zm::cli {

/// While it lives, what codecs and drivers write to standard error by themselves goes nowhere: that stream belongs to
/// the program's own lines.
class QuietLibraries
{
public:
    QuietLibraries()
    {
        std::fflush(stderr);
        const int standardError = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        if (standardError < 0)
            return;
        s_standardError = standardError;
        if (const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC); nowhere >= 0) {
            dup2(nowhere, STDERR_FILENO);
            close(nowhere);
        }
    }
    ~QuietLibraries()
    {
        if (s_standardError == STDERR_FILENO)
            return;
        std::fflush(stderr);
        dup2(s_standardError, STDERR_FILENO);
        close(s_standardError);
        s_standardError = STDERR_FILENO;
    }
    QuietLibraries(const QuietLibraries &) = delete;
    QuietLibraries &operator=(const QuietLibraries &) = delete;

    /// Where last words can still be read, also while the libraries are quiet.
    static int standardError() { return s_standardError; }

private:
    inline static int s_standardError = STDERR_FILENO; // one stream, so one object at a time
};

} // namespace zm::cli
