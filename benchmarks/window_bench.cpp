#include "window_bench.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

QList<BenchRow> benchPart(const QString &part)
{
    const QTemporaryDir home;
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!hasDisplay || !home.isValid())
        return {};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, home.filePath(u"config"_s));
    environment.insert(u"XDG_DATA_HOME"_s, home.filePath(u"data"_s));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(WINDOW_CHILD_PROGRAM), {home.path(), part});
    process.waitForFinished(-1);

    QList<BenchRow> rows;
    for (const QByteArray &line : process.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() == 3)
            rows.append({QString::fromUtf8(fields[0]), fields[1].toDouble(), QString::fromUtf8(fields[2])});
    }
    return rows;
}

} // namespace

QList<BenchRow> benchWindow()
{
    return benchPart(u"window"_s);
}

QList<BenchRow> benchControls()
{
    return benchPart(u"controls"_s);
}

} // namespace zm::bench
