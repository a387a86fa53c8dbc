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

/// The store of the running test; every test begins without one.
class Store
{
public:
    Store() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path()); }

    QString path(const QString &name = {}) const { return m_folder.filePath(name); }

    void clear() const
    {
        QSettings settings(u"Zelmora"_s, u"ZelmoraAtelier"_s);
        settings.clear();
    }

    /// Replaces the file on disk, as an older version, a crash or an editor would leave it.
    void write(const QByteArray &text) const
    {
        clear();
        const QString fileName = QSettings(u"Zelmora"_s, u"ZelmoraAtelier"_s).fileName();
        QDir().mkpath(QFileInfo(fileName).absolutePath());
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QVariant value(const QString &key) const { return QSettings(u"Zelmora"_s, u"ZelmoraAtelier"_s).value(key); }
    bool contains(const QString &key) const { return QSettings(u"Zelmora"_s, u"ZelmoraAtelier"_s).contains(key); }

private:
    QTemporaryDir m_folder;
};

QUrl url(const QString &path)
{
    return QUrl::fromLocalFile(path);
}

} // namespace

class TestApplicationSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_store.clear(); }

    void healsWhatIsStored_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("stored"); // null: nothing
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<bool>("keyStays");

        const auto row = [](const char *name, const char *key, const char *stored, const QVariant &expected,
                            bool keyStays = true) {
            QTest::newRow(name) << QString::fromLatin1(key) << QByteArray(stored) << expected << keyStays;
        };
        row("ruler: nothing stored", "view/rulerPlacement", nullptr, 2, false);
        row("ruler: off is kept", "view/rulerPlacement", "0", 0);
        row("ruler: out of range", "view/rulerPlacement", "7", 2);
        row("ruler: negative", "view/rulerPlacement", "-1", 2);
        row("ruler: not a number", "view/rulerPlacement", "left", 2);
        row("ruler: beyond an int", "view/rulerPlacement", "99999999999999", 2);
        row("inspector: left is kept", "view/inspectorPosition", "0", 0);
        row("inspector: out of range", "view/inspectorPosition", "-3", 1);
        row("inspector: a list", "view/inspectorPosition", "0, 0", 1);
        row("clip: nothing stored", "view/canvasClipMode", nullptr, false, false);
        row("clip: a number", "view/canvasClipMode", "1", true);
        row("bounds: empty", "view/documentBoundsVisible", "", false);
        row("theme: nothing stored", "view/themeMode", nullptr, u"system"_s, false);
        row("theme: blanks and capitals", "view/themeMode", "\"  DARK \"", u"dark"_s);
        row("theme: unknown", "view/themeMode", "sepia", u"system"_s);
        row("theme: a list", "view/themeMode", "dark, light", u"system"_s);
        row("language: capitals", "view/language", "DE", u"de"_s);
        row("language: another case of the territory", "view/language", "\" PT_pt\"", u"pt_PT"_s);
        row("language: unknown goes away", "view/language", "xx", u"fr"_s, false);
        row("language: empty goes away", "view/language", "", u"fr"_s, false);
        row("language: nothing stored", "view/language", nullptr, u"fr"_s, false);
    }

    void healsWhatIsStored()
    {
        QFETCH(const QString, key);
        QFETCH(const QByteArray, stored);
        QFETCH(const QVariant, expected);
        QFETCH(const bool, keyStays);

        QLocale::setDefault(QLocale(u"fr_CA"_s));
        const QString name = key.section(u'/', 1);
        if (!stored.isNull())
            m_store.write("[view]\n" + name.toLatin1() + '=' + stored + '\n');

        const ApplicationSettings settings;
        QCOMPARE(settings.property(qPrintable(name)), expected);
        QCOMPARE(m_store.contains(key), keyStays);
        if (keyStays)
            QCOMPARE(m_store.value(key).toString(), expected.toString());
    }

    void storeOfGarbageStillStarts()
    {
        m_store.write(QByteArray("\0\xff[view\nrulerPlacement=\x01@Variant(garbage\n]]==%%\n", 47));
        ApplicationSettings settings;
        QCOMPARE(settings.rulerPlacement(), 2);
        settings.setRulerPlacement(1);
        QCOMPARE(ApplicationSettings().rulerPlacement(), 1);
    }

    void languageFollowsTheSystem_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("system");
        QTest::addColumn<QString>("expected");

        QTest::newRow("stored wins") << u"ko"_s << QStringList{u"de-DE"_s} << u"ko"_s;
        QTest::newRow("unknown stored") << u"tlh"_s << QStringList{u"de-DE"_s} << u"de"_s;
        QTest::newRow("no system language") << QString() << QStringList() << u"en"_s;
        QTest::newRow("only the first counts") << QString() << QStringList{u"eu-ES"_s, u"es-ES"_s} << u"en"_s;
        const QList<std::pair<const char *, const char *>> cases{
            {"en-US", "en"},      {"de-AT", "de"},         {"es-MX", "es"},         {"fil-PH", "fil"},
            {"nb-NO", "nb"},      {"no-NO", "nb"},         {"nn-NO", "en"},         {"pt-PT", "pt_PT"},
            {"pt-BR", "pt_PT"},   {"pt", "pt_PT"},         {"zh-CN", "zh_CN"},      {"zh-Hans-SG", "zh_CN"},
            {"zh-TW", "en"},      {"zh-Hant-HK", "en"},    {"hi-Latn-IN", "en"},    {"el-CY", "el"},
            {"ja-JP", "ja"},      {"C", "en"},             {"not a locale", "en"},
        };
        for (const auto &[system, expected] : cases)
            QTest::newRow(system) << QString() << QStringList{QString::fromLatin1(system)}
                                  << QString::fromLatin1(expected);
    }

    void languageFollowsTheSystem()
    {
        QFETCH(const QString, stored);
        QFETCH(const QStringList, system);
        QTEST(resolveLanguage(stored, system), "expected");
    }

    void startLanguageNeedsNoSettingsAndWritesNothing()
    {
        QLocale::setDefault(QLocale(u"it_IT"_s));
        QCOMPARE(ApplicationSettings::startLanguage(), u"it"_s);
        m_store.write("[view]\nlanguage=ZH_cn\n");
        QCOMPARE(ApplicationSettings::startLanguage(), u"zh_CN"_s);
        QCOMPARE(m_store.value(u"view/language"_s), u"ZH_cn"_s);
    }

    void everyLanguageResolvesToItself()
    {
        const ApplicationSettings settings;
        QCOMPARE(settings.availableLanguages().size(), 19);
        for (const QString &code : settings.availableLanguages()) {
            QCOMPARE(languageForLocale(code), code);
            QCOMPARE_NE(settings.languageDisplayName(code), code);
        }
        QCOMPARE(settings.languageDisplayName(u"xx"_s), u"xx"_s);
    }

    void settersCleanStoreAndEmitOnce_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("written");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<QVariant>("same"); // cleaned to the value that is there already

        QTest::newRow("ruler") << QByteArray("rulerPlacement") << QVariant(1) << QVariant(1) << QVariant(1);
        QTest::newRow("inspector") << QByteArray("inspectorPosition") << QVariant(0) << QVariant(0) << QVariant(0);
        QTest::newRow("clip") << QByteArray("canvasClipMode") << QVariant(true) << QVariant(true) << QVariant(1);
        QTest::newRow("bounds") << QByteArray("documentBoundsVisible") << QVariant(true) << QVariant(true)
                                << QVariant(true);
        QTest::newRow("theme") << QByteArray("themeMode") << QVariant(u" Light "_s) << QVariant(u"light"_s)
                               << QVariant(u"LIGHT"_s);
        QTest::newRow("language") << QByteArray("language") << QVariant(u"SV"_s) << QVariant(u"sv"_s)
                                  << QVariant(u"klingon"_s);
    }

    void settersCleanStoreAndEmitOnce()
    {
        QFETCH(const QByteArray, property);
        QFETCH(const QVariant, written);
        QFETCH(const QVariant, expected);
        QFETCH(const QVariant, same);

        QLocale::setDefault(QLocale::c());
        ApplicationSettings settings;
        const int index = settings.metaObject()->indexOfProperty(property.constData());
        QSignalSpy spy(&settings, settings.metaObject()->property(index).notifySignal());
        QVERIFY(settings.setProperty(property.constData(), written));
        QCOMPARE(settings.property(property.constData()), expected);
        QCOMPARE(ApplicationSettings().property(property.constData()), expected);
        settings.setProperty(property.constData(), same);
        QCOMPARE(settings.property(property.constData()), expected);
        QCOMPARE(spy.size(), 1);
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
        m_store.write("[files]\nrecentZelmoraFiles=/a/One.zelmora, /a/one.ZELMORA, /a/photo.png, \"  \", "
                      "\" /a/x/../two.zelmora \", /3.zelmora, /4.zelmora, /5.zelmora, /6.zelmora\n");
        const QStringList expected{u"/a/One.zelmora"_s, u"/a/two.zelmora"_s, u"/3.zelmora"_s, u"/4.zelmora"_s,
                                   u"/5.zelmora"_s};
        QCOMPARE(ApplicationSettings().recentFilePaths(), expected);
        QCOMPARE(m_store.value(u"files/recentZelmoraFiles"_s).toStringList(), expected);
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
        QVERIFY(QDir(m_store.path()).mkpath(u"out"_s));
        QVERIFY(QDir(m_store.path()).mkpath(u"home/Pictures"_s));
        const QString pictures = m_store.path(u"home/Pictures"_s);
        // The pictures folder of the user is the one below $HOME when no user-dirs file names another.
        qputenv("HOME", m_store.path(u"home"_s).toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_store.path(u"home"_s).toLocal8Bit());

        ApplicationSettings settings;
        QSignalSpy spy(&settings, &ApplicationSettings::lastExportFolderChanged);
        const QUrl suggested = url(m_store.path(u"elsewhere/photo.jpg"_s));
        QVERIFY(settings.lastExportFolderUrl().isEmpty());
        QCOMPARE(settings.exportFileUrl(suggested), url(pictures + u"/photo.jpg"_s));
        QCOMPARE(settings.imageImportFolderUrl(), url(pictures));

        settings.rememberExportFolder(url(m_store.path(u"out/a.png"_s)));
        settings.rememberExportFolder(url(m_store.path(u"out/b.png"_s)));
        settings.rememberExportFolder(url(m_store.path(u"gone/c.png"_s)));
        settings.rememberExportFolder(QUrl(u"https://host/d.png"_s));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(settings.lastExportFolderUrl(), url(m_store.path(u"out"_s)));
        QCOMPARE(settings.exportFileUrl(suggested), url(m_store.path(u"out/photo.jpg"_s)));
        settings.rememberImageImportFolder(url(m_store.path(u"out/b.png"_s)));
        QCOMPARE(ApplicationSettings().imageImportFolderUrl(), url(m_store.path(u"out"_s)));

        // The folder goes while the program runs, then the pictures folder, then the file's own is taken.
        QVERIFY(QDir(m_store.path()).rmdir(u"out"_s));
        QCOMPARE(settings.exportFileUrl(suggested), url(pictures + u"/photo.jpg"_s));
        QVERIFY(QDir().rmdir(pictures));
        QCOMPARE(settings.exportFileUrl(suggested), suggested);
        QVERIFY(settings.imageImportFolderUrl().isEmpty());
        const QUrl own = url(m_store.path(u"photo.jpg"_s));
        QCOMPARE(settings.exportFileUrl(own), own);

        QVERIFY(ApplicationSettings().lastExportFolderUrl().isEmpty());
        QCOMPARE(m_store.value(u"export/lastFolder"_s).toString(), QString());
        const QUrl remote(u"https://host/photo.jpg"_s);
        QCOMPARE(settings.exportFileUrl(remote), remote);
        QCOMPARE(settings.folderUrlForFileUrl(suggested), url(m_store.path(u"elsewhere"_s)));
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
    Store m_store;
};

QTEST_GUILESS_MAIN(TestApplicationSettings)
#include "tst_application_settings.moc"
