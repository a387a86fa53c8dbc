#include "application/application_settings.h"
#include "application/languages.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

QSettings openStore()
{
    return QSettings(u"Zelmora"_s, u"ZelmoraAtelier"_s);
}

/// Replaces the file on disk, as an older version, a crash or an editor would leave it.
void writeStore(const QByteArray &text)
{
    openStore().clear();
    const QString fileName = openStore().fileName();
    QDir().mkpath(QFileInfo(fileName).absolutePath());
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QVariant stored(const QString &key)
{
    return openStore().value(key);
}

QUrl url(const QString &path)
{
    return QUrl::fromLocalFile(path);
}

} // namespace

class TestApplicationSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path()); }
    void init() { openStore().clear(); }

    void healsWhatIsStored_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("text"); // null: nothing
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<bool>("keyStays");

        const auto row = [](const char *name, const char *key, const char *text, const QVariant &expected,
                            bool keyStays = true) {
            QTest::newRow(name) << QString::fromLatin1(key) << QByteArray(text) << expected << keyStays;
        };
        row("ruler: off is kept", "view/rulerPlacement", "0", 0);
        row("ruler: out of range", "view/rulerPlacement", "7", 2);
        row("ruler: not a number", "view/rulerPlacement", "left", 2);
        row("ruler: beyond an int", "view/rulerPlacement", "99999999999999", 2);
        row("inspector: left is kept", "view/inspectorPosition", "0", 0);
        row("inspector: out of range", "view/inspectorPosition", "-3", 1);
        row("clip: nothing stored", "view/canvasClipMode", nullptr, false, false);
        row("bounds: empty", "view/documentBoundsVisible", "", false);
        row("theme: blanks and capitals", "view/themeMode", "\"  DARK \"", u"dark"_s);
        row("theme: unknown", "view/themeMode", "sepia", u"system"_s);
        row("theme: a list", "view/themeMode", "dark, light", u"system"_s);
        row("language: another case of the territory", "view/language", "\" PT_pt\"", u"pt_PT"_s);
        row("language: unknown goes away", "view/language", "xx", u"fr"_s, false);
        row("language: nothing stored", "view/language", nullptr, u"fr"_s, false);
    }

    void healsWhatIsStored()
    {
        QFETCH(const QString, key);
        QFETCH(const QByteArray, text);
        QFETCH(const QVariant, expected);
        QFETCH(const bool, keyStays);
        QLocale::setDefault(QLocale(u"fr_CA"_s));
        const QString name = key.section(u'/', 1);
        if (!text.isNull())
            writeStore("[view]\n" + name.toLatin1() + '=' + text + '\n');

        const ApplicationSettings settings;
        QCOMPARE(settings.property(qPrintable(name)), expected);
        QCOMPARE(openStore().contains(key), keyStays);
        if (keyStays)
            QCOMPARE(stored(key).toString(), expected.toString());
    }

    void storeOfGarbageStillStarts()
    {
        writeStore(QByteArray("\0\xff[view\nrulerPlacement=\x01@Variant(garbage\n]]==%%\n", 47));
        ApplicationSettings settings;
        QCOMPARE(settings.rulerPlacement(), 2);
        settings.setRulerPlacement(1);
        QCOMPARE(ApplicationSettings().rulerPlacement(), 1);
    }

    void languageFollowsTheSystem()
    {
        QCOMPARE(resolveLanguage(u"ko"_s, {u"de-DE"_s}), u"ko"_s);
        QCOMPARE(resolveLanguage(u"tlh"_s, {u"de-DE"_s}), u"de"_s);
        QCOMPARE(resolveLanguage({}, {}), u"en"_s);
        QCOMPARE(resolveLanguage({}, {u"eu-ES"_s, u"es-ES"_s}), u"en"_s); // only the first counts
        const QList<std::pair<QString, QString>> cases{
            {u"de-AT"_s, u"de"_s},    {u"fil-PH"_s, u"fil"_s},    {u"no-NO"_s, u"nb"_s},         {u"nn-NO"_s, u"en"_s},
            {u"pt-BR"_s, u"pt_PT"_s}, {u"zh-CN"_s, u"zh_CN"_s},   {u"zh-Hans-SG"_s, u"zh_CN"_s}, {u"zh-TW"_s, u"en"_s},
            {u"zh-Hant"_s, u"en"_s},  {u"hi-Latn-IN"_s, u"en"_s}, {u"not a locale"_s, u"en"_s},
        };
        for (const auto &[system, expected] : cases)
            QCOMPARE(std::pair(system, resolveLanguage({}, {system})), std::pair(system, expected));

        const ApplicationSettings settings;
        QCOMPARE(settings.availableLanguages().size(), 19);
        for (const QString &code : settings.availableLanguages()) {
            QCOMPARE(languageForLocale(code), code);
            QCOMPARE_NE(settings.languageDisplayName(code), code);
        }

        // Before there are settings: taken from the store, which stays as it is.
        QLocale::setDefault(QLocale(u"it_IT"_s));
        openStore().clear();
        QCOMPARE(ApplicationSettings::startLanguage(), u"it"_s);
        writeStore("[view]\nlanguage=ZH_cn\n");
        QCOMPARE(ApplicationSettings::startLanguage(), u"zh_CN"_s);
        QCOMPARE(stored(u"view/language"_s), u"ZH_cn"_s);
    }

    void settersCleanStoreAndEmitOnce()
    {
        // What is written, what it becomes, and what is ignored or cleaned to the same.
        const QList<std::tuple<const char *, QVariant, QVariant, QVariant>> cases{
            {"rulerPlacement", 1, 1, 1},
            {"inspectorPosition", 0, 0, 0},
            {"canvasClipMode", true, true, true},
            {"documentBoundsVisible", true, true, true},
            {"themeMode", u" Light "_s, u"light"_s, u"LIGHT"_s},
            {"language", u"SV"_s, u"sv"_s, u"klingon"_s},
        };
        QLocale::setDefault(QLocale::c());
        ApplicationSettings settings;
        for (const auto &[property, written, expected, unchanging] : cases) {
            const int index = settings.metaObject()->indexOfProperty(property);
            QSignalSpy spy(&settings, settings.metaObject()->property(index).notifySignal());
            settings.setProperty(property, written);
            settings.setProperty(property, unchanging);
            QCOMPARE(settings.property(property), expected);
            QCOMPARE(ApplicationSettings().property(property), expected);
            QCOMPARE(spy.size(), 1);
        }
    }

    void slotsMayCallBack()
    {
        ApplicationSettings settings;
        settings.setThemeMode(u"light"_s);
        connect(&settings, &ApplicationSettings::themeModeChanged, &settings,
                [&settings] { settings.setCanvasClipMode(settings.themeMode() == "dark"_L1); });
        connect(&settings, &ApplicationSettings::recentFilePathsChanged, &settings,
                [&settings] { settings.removeRecentFile(settings.recentFilePaths().value(1)); });
        settings.setThemeMode(u"dark"_s);
        QVERIFY(settings.canvasClipMode());
        settings.addRecentFile(url(u"/a.zelmora"_s));
        settings.addRecentFile(url(u"/b.zelmora"_s));
        QCOMPARE(settings.recentFilePaths(), QStringList{u"/b.zelmora"_s});
    }

    void recentFilesAreCleanedAtLoad()
    {
        writeStore("[files]\nrecentZelmoraFiles=/a/One.zelmora, /a/one.ZELMORA, /a/photo.png, \"  \", "
                   "\" /a/x/../two.zelmora \", /3.zelmora, /4.zelmora, /5.zelmora, /6.zelmora\n");
        const QStringList expected{u"/a/One.zelmora"_s, u"/a/two.zelmora"_s, u"/3.zelmora"_s, u"/4.zelmora"_s,
                                   u"/5.zelmora"_s};
        QCOMPARE(ApplicationSettings().recentFilePaths(), expected);
        QCOMPARE(stored(u"files/recentZelmoraFiles"_s).toStringList(), expected);
    }

    void recentFilesKeepTheNewestFive()
    {
        ApplicationSettings settings;
        QSignalSpy spy(&settings, &ApplicationSettings::recentFilePathsChanged);
        for (int i = 1; i <= 6; ++i)
            settings.addRecentFile(url(u"/%1.zelmora"_s.arg(i)));
        QStringList expected{u"/6.zelmora"_s, u"/5.zelmora"_s, u"/4.zelmora"_s, u"/3.zelmora"_s, u"/2.zelmora"_s};
        QCOMPARE(settings.recentFilePaths(), expected);
        QCOMPARE(spy.size(), 6);

        settings.addRecentFile(url(u"/6.zelmora"_s));
        settings.addRecentFile(QUrl(u"https://host/7.zelmora"_s));
        settings.addRecentFile(url(u"/7.png"_s));
        settings.removeRecentFile(u"/unknown.zelmora"_s);
        QCOMPARE(settings.recentFilePaths(), expected);
        QCOMPARE(spy.size(), 6);

        settings.addRecentFile(url(u"/4.ZELMORA"_s));
        settings.removeRecentFile(u"/3.Zelmora"_s);
        expected = {u"/4.ZELMORA"_s, u"/6.zelmora"_s, u"/5.zelmora"_s, u"/2.zelmora"_s};
        QCOMPARE(settings.recentFilePaths(), expected);
        QCOMPARE(ApplicationSettings().recentFilePaths(), expected);
        QCOMPARE(spy.size(), 8);

        QCOMPARE(settings.recentFileUrl(u" /x/./4.zelmora"_s), url(u"/x/4.zelmora"_s));
        QVERIFY(settings.recentFileUrl(u"/x/4.png"_s).isEmpty());
        QCOMPARE(settings.recentFileDisplayName(u"/x/4.zelmora"_s), u"4.zelmora"_s);
        QCOMPARE(settings.recentFileDisplayName(u"/x/"_s), u"/x/"_s);
    }

    void foldersAreRememberedWhileTheyExist()
    {
        QVERIFY(QDir(m_folder.path()).mkpath(u"out"_s));
        QVERIFY(QDir(m_folder.path()).mkpath(u"home/Pictures"_s));
        const QString pictures = m_folder.filePath(u"home/Pictures"_s);
        // The pictures folder of the user is the one below $HOME when no user-dirs file names another.
        qputenv("HOME", m_folder.filePath(u"home"_s).toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_folder.filePath(u"home"_s).toLocal8Bit());

        ApplicationSettings settings;
        QSignalSpy spy(&settings, &ApplicationSettings::lastExportFolderChanged);
        const QUrl suggested = url(m_folder.filePath(u"elsewhere/photo.jpg"_s));
        QVERIFY(settings.lastExportFolderUrl().isEmpty());
        QCOMPARE(settings.exportFileUrl(suggested), url(pictures + u"/photo.jpg"_s));
        QCOMPARE(settings.imageImportFolderUrl(), url(pictures));

        settings.rememberExportFolder(url(m_folder.filePath(u"out/a.png"_s)));
        settings.rememberExportFolder(url(m_folder.filePath(u"out/b.png"_s)));
        settings.rememberExportFolder(url(m_folder.filePath(u"gone/c.png"_s)));
        settings.rememberExportFolder(QUrl(u"https://host/d.png"_s));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(settings.lastExportFolderUrl(), url(m_folder.filePath(u"out"_s)));
        QCOMPARE(settings.exportFileUrl(suggested), url(m_folder.filePath(u"out/photo.jpg"_s)));
        settings.rememberImageImportFolder(url(m_folder.filePath(u"out/b.png"_s)));
        QCOMPARE(ApplicationSettings().imageImportFolderUrl(), url(m_folder.filePath(u"out"_s)));

        // The folder goes while the program runs, then the pictures folder, then the file's own is taken.
        QVERIFY(QDir(m_folder.path()).rmdir(u"out"_s));
        QCOMPARE(settings.exportFileUrl(suggested), url(pictures + u"/photo.jpg"_s));
        QVERIFY(QDir().rmdir(pictures));
        QCOMPARE(settings.exportFileUrl(suggested), suggested);
        QVERIFY(settings.imageImportFolderUrl().isEmpty());

        QVERIFY(ApplicationSettings().lastExportFolderUrl().isEmpty());
        QCOMPARE(stored(u"export/lastFolder"_s).toString(), QString());
        const QUrl remote(u"https://host/photo.jpg"_s);
        QCOMPARE(settings.exportFileUrl(remote), remote);
        QCOMPARE(settings.folderUrlForFileUrl(suggested), url(m_folder.filePath(u"elsewhere"_s)));
        QVERIFY(settings.folderUrlForFileUrl(remote).isEmpty());
    }

    void threadsDoNotLoseEachOthersRecentFiles()
    {
        ApplicationSettings settings;
        const auto add = [&settings](const QString &prefix) {
            for (int i = 0; i < 200; ++i) {
                settings.addRecentFile(url(u"/%1%2.zelmora"_s.arg(prefix).arg(i % 2)));
                settings.setRulerPlacement(i % 3);
            }
        };
        const std::unique_ptr<QThread> first(QThread::create(add, u"a"_s));
        const std::unique_ptr<QThread> second(QThread::create(add, u"b"_s));
        first->start();
        second->start();
        QVERIFY(first->wait() && second->wait());
        QStringList paths = settings.recentFilePaths();
        paths.sort();
        const QStringList all{u"/a0.zelmora"_s, u"/a1.zelmora"_s, u"/b0.zelmora"_s, u"/b1.zelmora"_s};
        QCOMPARE(paths, all);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestApplicationSettings)
#include "tst_application_settings.moc"
