#include "editor/file_manager_controller.h"
#include "editor/notice_catalog_model.h"

#include <QAbstractItemModelTester>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// A file manager on the session bus.
class FileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;
    bool refuses = false;

public slots:
    void ShowItems(const QStringList &uris, const QString &)
    {
        if (refuses)
            sendErrorReply(QDBusError::Failed, u"no"_s);
        else
            shown += uris;
    }
};

} // namespace

class TestFileManagerAndNotices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile file(m_folder.filePath(u"50% ü.png"_s));
        QVERIFY(m_folder.isValid() && file.open(QIODevice::WriteOnly));
        m_file = QUrl::fromLocalFile(file.fileName());

        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        if (m_daemon.waitForReadyRead(5000))
            m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
        // Without a daemon this is a bus that nobody answers on.
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.isEmpty() ? "unix:path=/nowhere" : m_address.toLatin1());
    }

    void cleanupTestCase()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void init() { QDesktopServices::setUrlHandler(u"file"_s, this, "openFolder"); }

    void cleanup()
    {
        QDesktopServices::unsetUrlHandler(u"file"_s);
        m_opened.clear();
    }

    void whatIsNoLocalFileIsRefused()
    {
        for (const QUrl &url : {QUrl(), QUrl(u"https://example.org/a.png"_s), QUrl::fromLocalFile(u"/no/such/file"_s)})
            QVERIFY2(!m_controller.reveal(url), qPrintable(url.toString()));
        QCOMPARE(m_opened, QList<QUrl>());
    }

    void withoutAFileManagerTheFolderIsOpened()
    {
        QVERIFY(m_controller.reveal(m_file));
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(m_folder.path())});
    }

    void fileManagerMarksTheFile()
    {
        if (m_address.isEmpty())
            QSKIP("There is no dbus-daemon here.");
        FileManager manager;
        QDBusConnection bus = QDBusConnection::connectToBus(m_address, u"file manager"_s);
        QVERIFY(bus.registerObject(u"/org/freedesktop/FileManager1"_s, &manager, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService(u"org.freedesktop.FileManager1"_s));

        QVERIFY(m_controller.reveal(m_file));
        QTRY_COMPARE(manager.shown, QStringList(QString::fromLatin1(m_file.toEncoded())));
        QCOMPARE(m_opened, QList<QUrl>());

        manager.refuses = true;
        QVERIFY(m_controller.reveal(m_file));
        QTRY_COMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(m_folder.path())});
    }

    void everyNoticeIsComplete()
    {
        NoticeCatalogModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(model.rowCount() >= 3);
        QVERIFY(model.index(0).data(NoticeCatalogModel::TextRole).toString().startsWith("MIT License"_L1));
        static const QRegularExpression number(u"^\\d+(\\.\\d+){0,2}$"_s);
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row);
            const QString name = index.data(NoticeCatalogModel::NameRole).toString();
            QVERIFY(!name.isEmpty());
            QVERIFY2(!index.data(NoticeCatalogModel::LicenseNameRole).toString().isEmpty(), qPrintable(name));
            const QString version = index.data(NoticeCatalogModel::VersionRole).toString();
            QVERIFY2(version.isEmpty() || number.match(version).hasMatch(), qPrintable(name));
            if (row > 0) {
                const QString text = index.data(NoticeCatalogModel::TextRole).toString();
                QVERIFY2(text.contains("SPDX identifier: "_L1), qPrintable(name));
                QVERIFY2(index.data(NoticeCatalogModel::HomePageRole).toUrl().isValid(), qPrintable(name));
            }
        }
    }

public slots:
    void openFolder(const QUrl &url) { m_opened += url; }

private:
    QTemporaryDir m_folder;
    QUrl m_file;
    QProcess m_daemon;
    QString m_address;
    FileManagerController m_controller;
    QList<QUrl> m_opened;
};

QTEST_MAIN(TestFileManagerAndNotices)

#include "tst_file_manager_and_notices.moc"
