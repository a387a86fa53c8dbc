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

public:
    /// The bus is the one of the environment; without an address there is none.
    explicit TestFileManagerAndNotices(const QString &busAddress)
        : m_address(busAddress)
    {
    }

private slots:
    void initTestCase()
    {
        QFile file(m_folder.filePath(u"50% ü.png"_s));
        QVERIFY(m_folder.isValid() && file.open(QIODevice::WriteOnly));
        m_file = QUrl::fromLocalFile(file.fileName());
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
    const QString m_address;
    FileManagerController m_controller;
    QList<QUrl> m_opened;
};

int main(int argc, char **argv)
{
    // Before the application, which looks for the bus as it starts.
    QProcess daemon;
    QString address;
    daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    if (daemon.waitForReadyRead(5000))
        address = QString::fromLatin1(daemon.readLine().trimmed());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.isEmpty() ? "unix:path=/nowhere" : address.toLatin1());

    int result = 0;
    {
        const QGuiApplication application(argc, argv);
        TestFileManagerAndNotices test(address);
        result = QTest::qExec(&test, argc, argv);
    }
    daemon.kill();
    daemon.waitForFinished();
    return result;
}

#include "tst_file_manager_and_notices.moc"
