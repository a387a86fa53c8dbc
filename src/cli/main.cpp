// zelmora: the editor's core without a window, for scripts and batches.

#include "base/memory_tuning.h"
#include "cli/commands.h"
#include "cli/platform.h"
#include "cli/quiet_libraries.h"
#include "io/image_allocation.h"

#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using namespace zm::cli;

QList<Command> commands()
{
    return {
        {u"info"_s, u"zelmora info [--json] [--no-digest] FILE..."_s,
         u"Tells what files hold; --json tells all of it, for programs. --no-digest leaves out the digests of pixels, "
         "which are then not decoded."_s,
         runInfo},
        {u"export"_s,
         u"zelmora export [--quality N] [--width N] [--height N] [--max-side N] [--transparent] [--unclipped] "
         "INPUT OUTPUT\n"
         "       zelmora export [options] --into DIR [--format jpeg|webp|webpTransparent|png|pngTransparent] "
         "INPUT..."_s,
         u"Writes flattened pictures of documents and pictures; an output's suffix (jpg, webp, png) gives its "
         "format. --into makes its folder."_s,
         runExport},
        {u"convert"_s,
         u"zelmora convert [--lossy] INPUT OUTPUT.zelmora\n"
         "       zelmora convert [--lossy] --into DIR INPUT..."_s,
         u"Makes editable documents of pictures, SVG files and documents. Pixels are kept exactly, or with --lossy "
         "in less room. --into makes its folder."_s,
         runConvert},
        {u"apply"_s, u"zelmora apply --effect ID [--set KEY=VALUE]... [--effect ID ...] INPUT OUTPUT"_s,
         u"Puts effects, the first one first, on a picture or on the top visible layer of a document. An output that "
         "ends in .zelmora keeps them editable; PNG and WebP outputs keep transparency."_s,
         runApply},
        {u"effects"_s,
         u"zelmora effects [--json]\n"
         "       zelmora effects --sheet DIR INPUT"_s,
         u"Lists the effects, or renders them all on one picture: a picture for each, and a sheet of all."_s,
         runEffects},
        {u"shapes"_s,
         u"zelmora shapes SHEET.png\n"
         "       zelmora shapes --generator ID [--set KEY=VALUE]... [--size WxH] OUTPUT.svg|png"_s,
         u"Draws all shapes on one sheet, or one alone. Sizes are in units of the document; a PNG has a pixel for each "
         "unit of --size, and 4 for each unit of the shape's own size. Percentages are written as fractions."_s,
         runShapes},
    };
}

QString overview()
{
    QString text = u"zelmora: Zelmora Atelier without a window\n\n"_s;
    const QList<Command> all = commands();
    for (const Command &command : all)
        text += u"       %1\n           %2\n"_s.arg(command.usage, command.summary);
    return text + u"       zelmora --version | --help"_s;
}

/// Standard error belongs to the program's own lines; what Qt's plug-ins remark there helps nobody in a script.
void keepFatalMessagesOnly(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        dprintf(QuietLibraries::standardError(), "zelmora: %s\n", qPrintable(message));
}

/// Pictures are composed on the processor; effects, also those of a document that is exported, need OpenGL.
bool mayUseOpenGL(int argc, char **argv)
{
    if (argc < 2)
        return false;
    const QByteArray command(argv[1]);
    const auto isDocument = [](const char *word) { return QByteArray(word).toLower().endsWith(".zelmora"); };
    return command == "apply" || command == "effects"
        || (command == "export" && std::any_of(argv + 2, argv + argc, isDocument));
}

ExitStatus run(const QStringList &words)
{
    const QString shortUsage = u"zelmora info|export|convert|apply|effects|shapes ... (zelmora --help tells more)"_s;
    if (words.isEmpty())
        return wrongUsage(u"no command is given"_s, shortUsage);
    Console console;
    if (words.contains(u"--help"_s) && !words.contains(u"--"_s)) {
        console.print(overview());
        return console.finish();
    }
    if (words.first() == "--version"_L1) {
        console.print(u"zelmora "_s + QLatin1StringView(ZELMORA_VERSION));
        return console.finish();
    }
    const QList<Command> all = commands();
    for (const Command &command : all) {
        if (command.name == words.first())
            return command.run(words.sliced(1), command.usage);
    }
    return wrongUsage(u"unknown command %1"_s.arg(words.first()), shortUsage);
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(keepFatalMessagesOnly);
    std::optional<QuietLibraries> quiet(std::in_place);
    choosePlatform(mayUseOpenGL(argc, argv));
    zm::keepFreedMemoryWarm();
    zm::raiseImageAllocationLimit();
    // Qt must not take words such as "-platform" out of the command line, so it sees the program's name alone.
    int visibleArguments = 1;
    const QGuiApplication application(visibleArguments, argv);
    quiet.reset();
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    return run(words);
}
