#include "io/document/zelmora_document_io.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace zm;
using namespace zm::test;
using namespace Qt::StringLiterals;

namespace {

void fill(Document &document)
{
    for (uint i = 1; i <= 3; ++i)
        document.insertObject(std::make_unique<ImageLayer>(noisePicture(150, 150, i), u"0"_s, testId(i)));
}

/// Saves a document of another name and size again and again, and prints a letter for each time.
[[noreturn]] void saveForEver(const QString &path)
{
    Document document;
    fill(document);
    for (int i = 1;; ++i) {
        document.setObjectName(testId(2), QString::number(i) + QString(i % 5 * 10'000, u'x'));
        QString error;
        if (!ZelmoraDocumentIO::writeDocumentFile(document, path, false, &error))
            qFatal("%s", qPrintable(error));
        std::putchar('s');
        std::fflush(stdout);
    }
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Files of the program cannot grow beyond that many bytes while it lives, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

} // namespace

class TestDocumentFileSafety : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"x.zelmora"_s);
        m_document = std::make_unique<Document>();
        fill(*m_document);
        QVERIFY(ZelmoraDocumentIO::writeDocumentFile(*m_document, m_path, false));
        m_before = contents(m_path);
        m_document->setObjectName(testId(1), u"new"_s);
    }

    void aKilledSaveLeavesAWholeFile()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        int saves = 0;
        for (int i = 0; i < 40; ++i) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), {u"--save-for-ever"_s, m_path});
            QVERIFY(child.waitForReadyRead());
            QTest::qSleep(random.bounded(20));
            child.kill();
            QVERIFY(child.waitForFinished());
            QCOMPARE(child.exitStatus(), QProcess::CrashExit);
            saves += int(child.readAllStandardOutput().size());

            QString error;
            const std::optional<LoadedDocument> document = ZelmoraDocumentIO::readDocumentFile(m_path, &error);
            QVERIFY2(document, qPrintable(u"seed %1, kill %2: %3"_s.arg(seed).arg(i).arg(error)));
            QCOMPARE(document->layers.size(), size_t(3));
            QVERIFY(document->layers[1]->name().remove(u'x').toInt() > 0);
        }
        QVERIFY2(saves > 80, "the child is killed before it has begun to save");
    }

    void aFullDiskKeepsTheOldFile()
    {
        for (const rlim_t room : {rlim_t(0), rlim_t(200), rlim_t(20'000), rlim_t(m_before.size())}) {
            QString error;
            {
                const FullDisk disk(room);
                QVERIFY(!ZelmoraDocumentIO::writeDocumentFile(*m_document, m_path, false, &error));
            }
            QVERIFY2(error.startsWith(u"Could not write the .zelmora file: "_s)
                         || error.startsWith(u"Could not finish writing %1: "_s.arg(m_path)),
                     qPrintable(error));
            QCOMPARE(contents(m_path), m_before);
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"x.zelmora"_s));
        }
        QVERIFY(ZelmoraDocumentIO::writeDocumentFile(*m_document, m_path, false));
        QCOMPARE(ZelmoraDocumentIO::readDocumentFile(m_path)->layers[0]->name(), u"new"_s);
    }

    void aReadOnlyFolderKeepsTheOldFile()
    {
        if (geteuid() == 0)
            QSKIP("root may write into read-only folders");
        QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner);
        QString error;
        const bool saved = ZelmoraDocumentIO::writeDocumentFile(*m_document, m_path, false, &error);
        QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(!saved);
        QVERIFY2(error.startsWith(u"Could not open %1 for writing: "_s.arg(m_path)), qPrintable(error));
        QCOMPARE(contents(m_path), m_before);
    }

    void refusesTargetsThatAreNoFiles()
    {
        const QString pipe = m_folder->filePath(u"pipe"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        const QString nowhere = m_folder->filePath(u"missing/x.zelmora"_s);
        const QString below = m_path + u"/x.zelmora"_s; // a file where a folder should be
        for (const QString &target : {m_folder->path(), pipe, nowhere, below}) {
            QString error;
            QVERIFY(!ZelmoraDocumentIO::writeDocumentFile(*m_document, target, false, &error));
            QVERIFY2(error.startsWith(u"Could not open %1 for writing: "_s.arg(target)), qPrintable(error));
        }
        struct stat status{};
        QVERIFY(stat(QFile::encodeName(pipe).constData(), &status) == 0 && S_ISFIFO(status.st_mode));
        QCOMPARE(contents(m_path), m_before);
    }

    void aLinkStaysALink()
    {
        const QString link = m_folder->filePath(u"link.zelmora"_s);
        QVERIFY(QFile::link(m_path, link));
        QVERIFY(ZelmoraDocumentIO::writeDocumentFile(*m_document, link, false));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(ZelmoraDocumentIO::readDocumentFile(m_path)->layers[0]->name(), u"new"_s);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<Document> m_document;
    /// What the file holds before a test saves again.
    QByteArray m_before;
};

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments[1] == "--save-for-ever"_L1)
        saveForEver(arguments[2]);
    TestDocumentFileSafety test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_document_file_safety.moc"
