// A process of its own for the log's tests: starts the log and says what its argument asks for.

#include "services/application_log.h"

#include <QCoreApplication>
#include <QDebug>
#include <QThread>

#include <array>
#include <memory>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"LogProbe"_s);
    const QString wish = QCoreApplication::arguments().value(1);

    if (wish == "--no-handler"_L1) {
        zm::LogWriter(zm::logFolder(), nullptr).write(QtInfoMsg, {}, u"straight out"_s);
    } else if (wish == "--threads"_L1) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { qDebug("within"); });
        zm::installApplicationLog();
        std::array<std::unique_ptr<QThread>, 4> threads;
        for (auto &thread : threads) {
            thread.reset(QThread::create([] {
                for (int i = 0; i < 500; ++i)
                    qDebug("line %d", i);
            }));
            thread->start();
        }
        for (auto &thread : threads)
            thread->wait();
    } else {
        zm::installApplicationLog();
        qWarning().noquote() << wish;
    }
    return 0;
}
