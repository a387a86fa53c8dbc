#include "services/application_log.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr auto kLogFileName = "info.log"_L1;
constexpr auto kOldLogFileName = "info.log.old"_L1;

QtMessageHandler previousHandler = nullptr;

QLatin1StringView levelWord(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "Debug:"_L1;
    case QtWarningMsg:
        return "Warning:"_L1;
    case QtCriticalMsg:
        return "Critical:"_L1;
    case QtFatalMsg:
        return "Fatal:"_L1;
    case QtInfoMsg:
        break;
    }
    return "Info:"_L1;
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // What is said while the writer is made cannot be written yet.
    static thread_local bool making = false;
    if (making) {
        if (previousHandler)
            previousHandler(type, context, message);
        return;
    }
    // Never destroyed, so that messages of the last destructors of the process still find it.
    static LogWriter *const writer = [] {
        making = true;
        auto *made = new LogWriter(logFolder(), previousHandler);
        making = false;
        return made;
    }();
    writer->write(type, context, message);
}

} // namespace

QString logFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/logs"_L1;
}

QString logFilePath()
{
    return QDir(logFolder()).filePath(kLogFileName);
}

void installApplicationLog()
{
    const QtMessageHandler previous = qInstallMessageHandler(handleMessage);
    if (previous != handleMessage)
        previousHandler = previous;
    qInfo().noquote() << "Application log:" << QDir::toNativeSeparators(logFilePath());
}

LogWriter::LogWriter(const QString &folder, QtMessageHandler previousHandler)
    : m_file(QDir(folder).filePath(kLogFileName))
    , m_previousHandler(previousHandler)
{
    const QDir directory(folder);
    directory.mkpath(u"."_s);
    const QString oldPath = directory.filePath(kOldLogFileName);
    QFile::remove(oldPath);
    QFile::rename(m_file.fileName(), oldPath);
    // Unbuffered: on a full disk a buffer would keep growing with what could not be written.
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        m_stream.setDevice(&m_file);
        m_stream.setEncoding(QStringConverter::Utf8);
    }
}

void LogWriter::write(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QMutexLocker lock(&m_lock);
    if (writeLine(type, message)) {
        m_failureTold = false;
    } else if (!m_failureTold) {
        m_failureTold = true;
        passOn(QtWarningMsg, context, "Could not write the log file: "_L1 + m_file.errorString());
    }
    passOn(type, context, message);
}

bool LogWriter::writeLine(QtMsgType type, const QString &message)
{
    if (!m_file.isOpen())
        return false;
    m_stream << QDateTime::currentDateTime().toString(u"yyyy/MM/dd hh:mm:ss,zzz - "_s) << levelWord(type) << ' '
             << message << "\r\n";
    m_stream.flush();
    const bool written = m_stream.status() == QTextStream::Ok;
    m_stream.resetStatus(); // the next message tries again
    return written;
}

void LogWriter::passOn(QtMsgType type, const QMessageLogContext &context, const QString &message) const
{
    if (m_previousHandler) {
        m_previousHandler(type, context, message);
        return;
    }
    const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
    std::fflush(stderr);
}

} // namespace zm
