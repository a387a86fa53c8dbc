#include "export_bench.h"

#include <QProcess>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kRuns = 9;

struct Cost
{
    double ms;
    double mebibytes;
};

std::optional<QString> outputOfChild(const QStringList &arguments)
{
    QProcess child;
    child.start(QStringLiteral(EXPORT_CHILD_PROGRAM), arguments);
    if (!child.waitForFinished(-1) || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return std::nullopt;
    return QString::fromUtf8(child.readAllStandardOutput());
}

std::optional<Cost> costOf(const QStringList &command)
{
    const std::optional<QString> measured = outputOfChild(QStringList(u"measure"_s) + command);
    const QStringList numbers = measured.value_or(QString()).split(u' ');
    if (numbers.size() != 2)
        return std::nullopt;
    return Cost{numbers[0].toDouble(), numbers[1].trimmed().toDouble() / 1024.0};
}

/// Each number by itself.
Cost median(const QList<Cost> &costs)
{
    QList<double> times;
    QList<double> sizes;
    for (const Cost &cost : costs) {
        times.append(cost.ms);
        sizes.append(cost.mebibytes);
    }
    std::sort(times.begin(), times.end());
    std::sort(sizes.begin(), sizes.end());
    return {times[times.size() / 2], sizes[sizes.size() / 2]};
}

/// What the export of a file costs beside Qt's reader and writer alone on a picture; empty when one of them fails.
QList<BenchRow> compared(const QString &what, const QString &picture, const QString &exported, double goal)
{
    const QTemporaryDir folder;
    const QString output = folder.filePath(u"out.jpg"_s);
    const QStringList floorCommand{QStringLiteral(EXPORT_CHILD_PROGRAM), u"recode"_s, picture, output};
    const QStringList exportCommand{
        QStringLiteral(ZELMORA_PROGRAM), u"export"_s, u"--quality"_s, u"92"_s, exported, output};

    // In turns, so that a slow moment of the machine meets both.
    QList<Cost> floors;
    QList<Cost> exports;
    for (int run = 0; run <= kRuns; ++run) {
        const std::optional<Cost> floor = costOf(floorCommand);
        const std::optional<Cost> cost = costOf(exportCommand);
        if (!floor || !cost)
            return {};
        if (run > 0) { // the first reads the programs from the disk
            floors.append(*floor);
            exports.append(*cost);
        }
    }
    const Cost floor = median(floors);
    const Cost ours = median(exports);
    const auto mebibytes = [](double size) { return u"%1 MiB"_s.arg(size, 0, 'f', 0); };
    return {
        {u"24 Mpx %1, Qt's reader and writer alone"_s.arg(what), floor.ms, mebibytes(floor.mebibytes)},
        {u"24 Mpx %1, zelmora export"_s.arg(what), ours.ms,
         u"%1; time %2 x (goal %3), memory %4 x (goal 1.5)"_s.arg(mebibytes(ours.mebibytes))
             .arg(ours.ms / floor.ms, 0, 'f', 2)
             .arg(goal)
             .arg(ours.mebibytes / floor.mebibytes, 0, 'f', 2)},
    };
}

} // namespace

QList<BenchRow> benchExport()
{
    const QTemporaryDir folder;
    const QString photo = folder.filePath(u"photo.jpg"_s);
    const QString webp = folder.filePath(u"photo.webp"_s);
    const QString document = folder.filePath(u"photo.zelmora"_s);
    if (!outputOfChild({u"make"_s, photo}) || !outputOfChild({u"webp"_s, photo, webp})
        || !outputOfChild({u"document"_s, photo, document}))
        return {};
    return compared(u"JPEG"_s, photo, photo, 1.15) + compared(u"WebP in a document to JPEG"_s, webp, document, 1.2);
}

} // namespace zm::bench
