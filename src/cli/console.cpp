#include "cli/console.h"

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

} // namespace

Console::Console()
    : m_showsProgress(isatty(STDERR_FILENO))
{
}

void Console::print(const QString &text)
{
    clearProgress();
    write(stdout, text + u'\n');
}

void Console::fail(const QString &file, const QString &message)
{
    clearProgress();
    m_failed = true;
    write(stderr, u"zelmora: %1: %2\n"_s.arg(file, message));
}

void Console::report(const QString &file, const Error &error)
{
    if (error.isSet())
        fail(file, error.message());
}

void Console::progress(const QString &text)
{
    if (!m_showsProgress)
        return;
    clearProgress();
    // Autowrap (DECAWM) is off meanwhile: a line that went on below could not be cleared.
    write(stderr, u"\x1b[?7l%1\x1b[?7h"_s.arg(text));
    m_progressShown = true;
}

ExitStatus Console::finish()
{
    clearProgress();
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
        fail(u"standard output"_s, u"The result could not be written."_s);
    return m_failed ? Failed : Done;
}

void Console::clearProgress()
{
    if (!m_progressShown)
        return;
    write(stderr, u"\r\x1b[K"_s); // ECMA-48: erase to the end of the line
    m_progressShown = false;
}

ExitStatus wrongUsage(const QString &message, const QString &usage)
{
    write(stderr, u"zelmora: %1\nusage: %2\n"_s.arg(message, usage));
    return WrongUsage;
}

} // namespace zm::cli
