#include "services/application_log.h"
#include "services/user_notification_center.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

QStringList handedOn;

void collect(QtMsgType, const QMessageLogContext &, const QString &message)
{
    handedOn.append(message);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Runs the probe with its data in a folder; its standard error.
QByteArray runProbe(const QString &dataFolder, const QStringList &arguments)
{
    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, dataFolder);
    environment.insert(u"QT_FORCE_STDERR_LOGGING"_s, u"1"_s);
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(LOG_PROBE), arguments);
    return probe.waitForFinished() ? probe.readAllStandardError() : QByteArray();
}

} // namespace

class TestLogAndToasts : public QObject
{
    Q_OBJECT

private slots:
    void init() { handedOn.clear(); }

    void eachLevelHasItsLine()
    {
        const QTemporaryDir folder;
        LogWriter writer(folder.filePath(u"logs"_s), collect);
        const QList<std::pair<QtMsgType, QByteArray>> levels{{QtDebugMsg, "Debug:"},
                                                             {QtInfoMsg, "Info:"},
                                                             {QtWarningMsg, "Warning:"},
                                                             {QtFatalMsg, "Fatal:"},
                                                             {QtCriticalMsg, "Critical:"}};
        QByteArray expected;
        for (const auto &[type, word] : levels) {
            writer.write(type, {}, u"größer als 1 €"_s);
            expected += "STAMP - " + word + " größer als 1 €\r\n";
        }
        // Read while the writer lives: nothing may be held back.
        QString text = QString::fromUtf8(contents(folder.filePath(u"logs/info.log"_s)));
        static const QRegularExpression stamp(u"\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d,\\d{3}(?= - )"_s);
        QCOMPARE(text.replace(stamp, u"STAMP"_s), QString::fromUtf8(expected));
        QCOMPARE(handedOn.size(), 5);
    }

    void everyStartKeepsOneOlderRun()
    {
        const QTemporaryDir data;
        const QString logs = data.filePath(u"LogProbe/logs/"_s);
        for (const QString &run : {u"first"_s, u"second"_s, u"third"_s}) {
            const QByteArray shown = runProbe(data.path(), {run});
            QVERIFY2(shown.contains("Application log: ") && shown.contains(run.toUtf8()), shown.constData());
        }
        QVERIFY(contents(logs + u"info.log"_s).contains("Info: Application log: " + logs.toUtf8() + "info.log\r\n"));
        QVERIFY(contents(logs + u"info.log"_s).endsWith("Warning: third\r\n"));
        QVERIFY(contents(logs + u"info.log.old"_s).endsWith("Warning: second\r\n"));
        QCOMPARE(QDir(logs).entryList(QDir::Files).size(), 2);
    }

    void manyThreadsAndMessagesWithinMessagesKeepLinesWhole()
    {
        const QTemporaryDir data;
        // The probe's own handler raises a further message for each that it is handed.
        const QByteArray shown = runProbe(data.path(), {u"--threads"_s});
        const QByteArrayList lines = contents(data.filePath(u"LogProbe/logs/info.log"_s)).split('\n');
        QCOMPARE(lines.size(), 1 + 4 * 500 + 1);
        static const QRegularExpression whole(
            u"^[\\d/]{10} [\\d:,]{12} - (Debug: line \\d+|Info: Application log: .*)\r$"_s);
        for (const QByteArray &line : lines.first(lines.size() - 1))
            QVERIFY2(whole.match(QString::fromUtf8(line)).hasMatch(), line.constData());
        QCOMPARE(shown.count("within"), 4 * 500 + 1);
    }

    void folderThatCannotBeMadeLeavesMessagesOnStandardError()
    {
        const QTemporaryDir data;
        QFile blocker(data.filePath(u"LogProbe"_s));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        const QByteArray shown = runProbe(data.path(), {u"still heard"_s});
        QVERIFY2(shown.contains("still heard"), shown.constData());
        QCOMPARE(shown.count("Could not write the log file"), 1);
        // Nor is there an earlier handler here.
        QCOMPARE(runProbe(data.path(), {u"--no-handler"_s}).count("straight out"), 1);
    }

    void fullDiskIsToldOnceAndSurvived()
    {
        const QTemporaryDir folder;
        LogWriter writer(folder.path(), collect);
        writer.write(QtInfoMsg, {}, u"before"_s);

        // A limit on the file size fails writes as a full disk does.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit unlimited{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
        const rlimit full{rlim_t(QFileInfo(folder.filePath(u"info.log"_s)).size()), unlimited.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
        writer.write(QtInfoMsg, {}, u"lost"_s);
        writer.write(QtInfoMsg, {}, QString(100'000, u'x'));
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &unlimited), 0);

        QCOMPARE(handedOn.size(), 4);
        QVERIFY(handedOn.at(1).startsWith("Could not write the log file: "_L1));
        QCOMPARE(handedOn.at(2), u"lost"_s);
        writer.write(QtInfoMsg, {}, u"after"_s);
        QVERIFY(contents(folder.filePath(u"info.log"_s)).endsWith("Info: after\r\n"));
    }

    void toastsAreCleaned()
    {
        QSignalSpy spy(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        UserNotificationCenter::post(u" \t\n"_s, u"hint"_s);
        QCOMPARE(spy.size(), 0);
        UserNotificationCenter::post(u" a b "_s, u"hint"_s, 5, 2, true);
        QCOMPARE(spy.takeFirst(), QVariantList({u" a b "_s, u"hint"_s, 5, 2, true}));
        UserNotificationCenter::post(u"a"_s, u"hint"_s, -5, 0);
        QCOMPARE(spy.takeFirst(), QVariantList({u"a"_s, u"hint"_s, 0, 1, false}));
    }

    void toastOfAWorkerSurfacesOnTheMainThread()
    {
        QThread *surfacedOn = nullptr;
        UserNotificationCenter &center = UserNotificationCenter::instance();
        QSignalSpy spy(&center, &UserNotificationCenter::toastRequested);
        const auto connection = connect(&center, &UserNotificationCenter::toastRequested,
                                        [&surfacedOn] { surfacedOn = QThread::currentThread(); });
        const std::unique_ptr<QThread> worker(QThread::create([] { UserNotificationCenter::post(u"done"_s); }));
        worker->start();
        QVERIFY(worker->wait());
        QVERIFY(!surfacedOn); // the worker's call has returned, the main loop has not run
        QTRY_COMPARE(surfacedOn, thread());
        QCOMPARE(spy.takeFirst(), QVariantList({u"done"_s, QString(), 0, 2500, false}));
        disconnect(connection);
    }
};

QTEST_GUILESS_MAIN(TestLogAndToasts)
#include "tst_log_and_toasts.moc"
