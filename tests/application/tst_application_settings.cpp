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

} // namespace

class TestApplicationSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path()); }
    void init() { openStore().clear(); }

    void healsWhatIsStored()
    {
        // A key, its text in the store or nothing, the value read, and whether the key is there afterwards.
        const QList<std::tuple<QByteArray, QByteArray, QVariant, bool>> cases{
            {"rulerPlacement", "0", 0, true},
            {"rulerPlacement", "7", 2, true},
            {"rulerPlacement", "left", 2, true},
            {"rulerPlacement", "99999999999999", 2, true},
            {"inspectorPosition", "-3", 1, true},
            {"canvasClipMode", {}, false, false},
            {"documentBoundsVisible", "", false, true},
            {"themeMode", "\"  DARK \"", u"dark"_s, true},
            {"themeMode", "sepia", u"system"_s, true},
            {"themeMode", "dark, light", u"system"_s, true},
            {"language", "\" PT_pt\"", u"pt_PT"_s, true},
            {"language", "xx", u"fr"_s, false},
            {"language", {}, u"fr"_s, false},
        };
        QLocale::setDefault(QLocale(u"fr_CA"_s));
        for (const auto &[key, text, expected, keyStays] : cases) {
            writeStore(text.isNull() ? QByteArray() : "[view]\n" + key + '=' + text + '\n');
            const ApplicationSettings settings;
            QCOMPARE(std::pair(text, settings.property(key)), std::pair(text, expected));
            const QString stored = openStore().value("view/" + key, u"nothing"_s).toString();
            QCOMPARE(std::pair(text, stored), std::pair(text, keyStays ? expected.toString() : u"nothing"_s));
        }
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
        QCOMPARE(ApplicationSettings::startLanguage(), u"it"_s);
        writeStore("[view]\nlanguage=ZH_cn\n");
        QCOMPARE(ApplicationSettings::startLanguage(), u"zh_CN"_s);
        QCOMPARE(openStore().value("view/language"), u"ZH_cn"_s);
    }

    void settersCleanStoreAndEmitOnceAndSlotsMayCallBack()
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
        connect(&settings, &ApplicationSettings::themeModeChanged, &settings,
                [&settings] { settings.setCanvasClipMode(settings.themeMode() != "light"_L1); });
        for (const auto &[property, written, expected, unchanging] : cases) {
            const int index = settings.metaObject()->indexOfProperty(property);
            QSignalSpy spy(&settings, settings.metaObject()->property(index).notifySignal());
            settings.setProperty(property, written);
            settings.setProperty(property, unchanging);
            QCOMPARE(settings.property(property), expected);
            QCOMPARE(ApplicationSettings().property(property), expected);
            QCOMPARE(spy.size(), 1);
        }
        QVERIFY(!settings.canvasClipMode());
    }

    void recentFilesAreCleanedAtLoad()
    {
        writeStore("[files]\nrecentZelmoraFiles=/a/One.zelmora, /a/one.ZELMORA, /a/photo.png, \"  \", "
                   "\" /a/x/../two.zelmora \", /3.zelmora, /4.zelmora, /5.zelmora, /6.zelmora\n");
        const QStringList expected = u"/a/One.zelmora /a/two.zelmora /3.zelmora /4.zelmora /5.zelmora"_s.split(u' ');
        QCOMPARE(ApplicationSettings().recentFilePaths(), expected);
        QCOMPARE(openStore().value("files/recentZelmoraFiles").toStringList(), expected);
    }

    void recentFilesKeepTheNewestFive()
    {
        ApplicationSettings settings;
        QSignalSpy spy(&settings, &ApplicationSettings::recentFilePathsChanged);
        connect(&settings, &ApplicationSettings::recentFilePathsChanged, &settings,
                [&settings] { settings.removeRecentFile(u"/0.zelmora"_s); }); // a slot may call back
        for (int i = 0; i <= 6; ++i)
            settings.addRecentFile(QUrl(u"file:///%1.zelmora"_s.arg(i)));
        QStringList expected{u"/6.zelmora"_s, u"/5.zelmora"_s, u"/4.zelmora"_s, u"/3.zelmora"_s, u"/2.zelmora"_s};
        for (const QString &ignored : {u"file:///6.zelmora"_s, u"https://host/7.zelmora"_s, u"file:///7.png"_s})
            settings.addRecentFile(QUrl(ignored));
        settings.removeRecentFile(u"/unknown.zelmora"_s);
        QCOMPARE(settings.recentFilePaths(), expected);
        QCOMPARE(spy.size(), 8); // seven come, one goes

        settings.addRecentFile(QUrl(u"file:///4.ZELMORA"_s));
        settings.removeRecentFile(u"/3.Zelmora"_s);
        expected = {u"/4.ZELMORA"_s, u"/6.zelmora"_s, u"/5.zelmora"_s, u"/2.zelmora"_s};
        QCOMPARE(settings.recentFilePaths(), expected);
        QCOMPARE(ApplicationSettings().recentFilePaths(), expected);
        QCOMPARE(spy.size(), 10);

        QCOMPARE(settings.recentFileUrl(u" /x/./4.zelmora"_s), QUrl(u"file:///x/4.zelmora"_s));
        QVERIFY(settings.recentFileUrl(u"/x/4.png"_s).isEmpty());
        QCOMPARE(settings.recentFileDisplayName(u"/x/4.zelmora"_s), u"4.zelmora"_s);
        QCOMPARE(settings.recentFileDisplayName(u"/x/"_s), u"/x/"_s);
    }

    void foldersAreRememberedWhileTheyExist()
    {
        const auto at = [this](const QString &path) { return QUrl::fromLocalFile(m_folder.filePath(path)); };
        const QDir root(m_folder.path());
        QVERIFY(root.mkpath(u"out"_s) && root.mkpath(u"home/Pictures"_s));
        // The pictures folder of the user is the one below $HOME when no user-dirs file names another.
        for (const char *variable : {"HOME", "XDG_CONFIG_HOME"})
            qputenv(variable, root.filePath(u"home"_s).toLocal8Bit());

        ApplicationSettings settings;
        QSignalSpy spy(&settings, &ApplicationSettings::lastExportFolderChanged);
        const QUrl suggested = at(u"elsewhere/photo.jpg"_s);
        const QUrl remote(u"https://host/photo.jpg"_s);
        QVERIFY(settings.lastExportFolderUrl().isEmpty());
        QCOMPARE(settings.exportFileUrl(suggested), at(u"home/Pictures/photo.jpg"_s));
        QCOMPARE(settings.imageImportFolderUrl(), at(u"home/Pictures"_s));

        for (const QUrl &file : {at(u"out/a.png"_s), at(u"out/b.png"_s), at(u"gone/c.png"_s), remote})
            settings.rememberExportFolder(file);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(settings.lastExportFolderUrl(), at(u"out"_s));
        QCOMPARE(settings.exportFileUrl(suggested), at(u"out/photo.jpg"_s));
        QCOMPARE(settings.exportFileUrl(remote), remote);
        settings.rememberImageImportFolder(at(u"out/b.png"_s));
        QCOMPARE(ApplicationSettings().imageImportFolderUrl(), at(u"out"_s));

        // The folder goes while the program runs, then the pictures folder, then the file's own is taken.
        QVERIFY(root.rmdir(u"out"_s));
        QCOMPARE(settings.exportFileUrl(suggested), at(u"home/Pictures/photo.jpg"_s));
        QVERIFY(root.rmdir(u"home/Pictures"_s));
        QCOMPARE(settings.exportFileUrl(suggested), suggested);
        QVERIFY(settings.imageImportFolderUrl().isEmpty());
        QVERIFY(ApplicationSettings().lastExportFolderUrl().isEmpty());
        QCOMPARE(openStore().value("export/lastFolder").toString(), QString());
        QCOMPARE(settings.folderUrlForFileUrl(suggested), at(u"elsewhere"_s));
        QVERIFY(settings.folderUrlForFileUrl(remote).isEmpty());
    }

    void threadsDoNotLoseEachOthersRecentFiles()
    {
        ApplicationSettings settings;
        const auto add = [&settings](const QString &prefix) {
            for (int i = 0; i < 200; ++i) {
                settings.addRecentFile(QUrl(u"file:///%1%2.zelmora"_s.arg(prefix).arg(i % 2)));
                settings.setRulerPlacement(i % 3);
            }
        };
        const std::unique_ptr<QThread> other(QThread::create(add, u"a"_s));
        other->start();
        add(u"b"_s);
        QVERIFY(other->wait());
        QStringList paths = settings.recentFilePaths();
        paths.sort();
        QCOMPARE(paths.join(u' '), u"/a0.zelmora /a1.zelmora /b0.zelmora /b1.zelmora"_s);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestApplicationSettings)
#include "tst_application_settings.moc"
