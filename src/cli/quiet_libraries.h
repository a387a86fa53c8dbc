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
        m_standardError = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        if (const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC); nowhere >= 0 && m_standardError >= 0) {
            dup2(nowhere, STDERR_FILENO);
            close(nowhere);
        }
    }
    ~QuietLibraries()
    {
        if (m_standardError < 0)
            return;
        std::fflush(stderr);
        dup2(m_standardError, STDERR_FILENO);
        close(m_standardError);
    }
    QuietLibraries(const QuietLibraries &) = delete;
    QuietLibraries &operator=(const QuietLibraries &) = delete;

private:
    int m_standardError = -1;
};

} // namespace zm::cli
