#include "startup_bench.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kRuns = 7;
constexpr int kTimeoutMs = 20000;
const QByteArray kFirstFrameLine = "First frame shown";

QString editorProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString &path : {folder + "/zelmoraatelier"_L1, folder + "/../bin/zelmoraatelier"_L1}) {
        if (QFileInfo(path).isExecutable())
            return path;
    }
    return {};
}

/// Settings and logs of the runs go into home, not to the user's.
QProcessEnvironment environmentWithHome(const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, home + "/config"_L1);
    environment.insert(u"XDG_DATA_HOME"_s, home + "/data"_L1);
    return environment;
}

/// Milliseconds until the program's log tells of its first frame; nothing if it never does.
std::optional<double> timeToFirstFrame(const QString &program, const QStringList &arguments, const QString &home)
{
    QProcess process;
    process.setProcessEnvironment(environmentWithHome(home));
    process.setProcessChannelMode(QProcess::MergedChannels);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    QByteArray log;
    std::optional<double> result;
    while (!result && process.waitForReadyRead(int(std::max<qint64>(1, kTimeoutMs - timer.elapsed())))) {
        log += process.readAll();
        if (log.contains(kFirstFrameLine))
            result = double(timer.nsecsElapsed()) / 1e6;
    }
    process.terminate();
    if (!process.waitForFinished(2000)) {
        process.kill();
        process.waitForFinished();
    }
    return result;
}

QList<BenchRow> benchStart(const QString &name, const QStringList &arguments, const QString &home)
{
    QList<double> times;
    for (int run = 0; run <= kRuns; ++run) {
        const std::optional<double> time = timeToFirstFrame(editorProgram(), arguments, home);
        if (!time)
            return {};
        if (run > 0) // the first fills the disk cache
            times.append(*time);
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    return {{name, times[kRuns / 2], u"to the first frame, goal 900 ms"_s}};
}

bool writePhotograph(const QString &path)
{
    QImage picture(4000, 3000, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            pixel[x] = qRgb(x / 16, y / 12, (x * y) >> 15 & 255);
    }
    return picture.save(path, "JPEG", 90);
}

} // namespace

QList<BenchRow> benchStartup()
{
    const QTemporaryDir home;
    const QString photograph = home.filePath(u"photograph.jpg"_s);
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!hasDisplay || editorProgram().isEmpty() || !home.isValid() || !writePhotograph(photograph))
        return {};
    return benchStart(u"start of the editor"_s, {}, home.path())
        + benchStart(u"start with a 12 MP JPEG"_s, {photograph}, home.path());
}

} // namespace zm::bench
