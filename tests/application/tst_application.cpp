#include "application/application.h"
#include "application/application_settings.h"
#include "application/application_theme_controller.h"
#include "application/process_start.h"
#include "application/theme_palettes.h"
#include "services/application_log.h"

#include <QDir>
#include <QFile>
#include <QFileOpenEvent>
#include <QIcon>
#include <QScopedValueRollback>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QTest>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformtheme.h>
#include <qpa/qwindowsysteminterface.h>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

using enum Qt::ColorScheme;

/// A desktop with a colour scheme that its user can change and a program can override for itself, as the plug-ins of
/// real desktops do it: either is reported at once.
class Desktop : public QPlatformTheme
{
public:
    Qt::ColorScheme colorScheme() const override { return m_requested == Unknown ? m_chosen : m_requested; }
    void requestColorScheme(Qt::ColorScheme scheme) override { report(m_requested, scheme); }
    void choose(Qt::ColorScheme scheme) { report(m_chosen, scheme); }

private:
    void report(Qt::ColorScheme &target, Qt::ColorScheme scheme)
    {
        target = scheme;
        QWindowSystemInterface::handleThemeChange<QWindowSystemInterface::SynchronousDelivery>();
    }

    Qt::ColorScheme m_chosen = Unknown;
    Qt::ColorScheme m_requested = Unknown;
};

} // namespace

class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void namesItselfFindsItsIconsAndStartsItsLog()
    {
        QCOMPARE(QCoreApplication::applicationName(), u"ZelmoraAtelier"_s);
        QCOMPARE(QGuiApplication::applicationDisplayName(), u"Zelmora Atelier"_s);
        QCOMPARE(QGuiApplication::windowIcon().availableSizes(), QList<QSize>{QSize(256, 256)});
        QVERIFY(!QIcon::fromTheme(u"open"_s).pixmap(24, 24).isNull());
        QVERIFY(QIcon::fromTheme(u"no such icon"_s).isNull());
        QCOMPARE(QCoreApplication::applicationVersion(), u"1.2.1"_s);
        QVERIFY(QFile::exists(logFolder() + u"/info.log"_s));
    }

    void platformNameIsCompleted()
    {
        QCOMPARE(completedPlatformName(""), "windows:darkmode=1");
        QCOMPARE(completedPlatformName("windows"), "windows:darkmode=1");
        QCOMPARE(completedPlatformName("windows:fontengine=freetype"), "windows:fontengine=freetype:darkmode=1");
        QCOMPARE(completedPlatformName("windows:darkmode=0"), "windows:darkmode=0");
        QCOMPARE(completedPlatformName("offscreen"), "offscreen");
    }

    void firstArgumentThatIsAFileIsOpened()
    {
        const QString here = QDir::currentPath() + u'/';
        const QList<std::pair<QStringList, QString>> cases{
            {{}, {}},
            {{u"program"_s, u"-x"_s, u" --y"_s, u"  "_s}, {}},
            {{u"program"_s, u"-x"_s, QString(), u"picture.png"_s, u"other.png"_s}, here + u"picture.png"_s},
            {{u"program"_s, u" /tmp/a b.png\t"_s}, u"/tmp/a b.png"_s},
            {{u"program"_s, u"file:///tmp/a%20b.png"_s}, u"/tmp/a b.png"_s},
            {{u"program"_s, u"50%25#1?.png"_s}, here + u"50%25#1?.png"_s},
            {{u"program"_s, u"a:b.png"_s}, here + u"a:b.png"_s},
        };
        for (const auto &[arguments, expected] : cases)
            QCOMPARE(fileArgument(arguments).toLocalFile(), expected);
    }

    void fileRequestsWaitInOrderAndOnce()
    {
        QSignalSpy spy(&m_application, &Application::pendingFileOpenRequestAvailable);
        QFileOpenEvent local(QUrl::fromLocalFile(u"/b.png"_s));
        QFileOpenEvent remote(QUrl(u"https://host/c.png"_s));
        const QString relative = QDir::currentPath() + u"/relative.png"_s;
        m_application.addFileOpenRequest(QUrl::fromLocalFile(u"relative.png"_s));
        local.ignore();
        QVERIFY(QCoreApplication::sendEvent(&m_application, &local) && local.isAccepted());
        QVERIFY(QCoreApplication::sendEvent(&m_application, &local));
        QVERIFY(!QCoreApplication::sendEvent(&m_application, &remote));
        for (const QUrl &ignored : {QUrl::fromLocalFile(relative), QUrl(u"file:"_s), QUrl()})
            m_application.addFileOpenRequest(ignored);
        QCOMPARE(spy.size(), 2);
        for (const QString &expected : {relative, u"/b.png"_s, QString()})
            QCOMPARE(m_application.takePendingFileOpenRequest().toLocalFile(), expected);
    }

    void languageWithoutCatalogueFallsBack()
    {
        QLocale::setDefault(QLocale(u"de"_s));
        QTest::ignoreMessage(QtWarningMsg, "No translation catalog for language xx");
        m_application.applyLanguage(u"xx"_s);
        QCOMPARE(QLocale().language(), QLocale::English);
    }

    void paletteHasTheThemesColors()
    {
        const QColor plain(0, 103, 192);
        const QColor darkBlue(0, 0, 128);     // lightness 0.25
        const QColor paleBlue(200, 200, 255); // lightness 0.89
        // Whether dark, the system's highlight, and a role's colours where active and where disabled.
        const QList<std::tuple<bool, QColor, QPalette::ColorRole, QColor, QColor>> cases{
            {true, plain, QPalette::ToolTipText, QColor(241, 243, 244), QColor(241, 243, 244)},
            {true, darkBlue, QPalette::Highlight, QColor(0, 0, 186), QColor(58, 61, 66)},
            {true, QColor(), QPalette::Highlight, QColor(76, 139, 245), QColor(58, 61, 66)},
            {false, plain, QPalette::PlaceholderText, QColor(114, 114, 114), QColor(154, 154, 154)},
            {false, darkBlue, QPalette::Highlight, darkBlue, QColor(208, 208, 208)},
            {false, paleBlue, QPalette::Link, QColor(154, 154, 196), QColor(154, 154, 196)},
            {false, QColor(), QPalette::Link, QColor(0, 103, 192), QColor(0, 103, 192)},
            {false, plain, QPalette::Accent, Qt::magenta, Qt::magenta}, // in no table: the system's
        };
        // `lighter` and `darker` go through HSV, which may round by one.
        const auto isNear = [](const QColor &a, const QColor &b) {
            return qAbs(a.red() - b.red()) <= 1 && qAbs(a.green() - b.green()) <= 1 && qAbs(a.blue() - b.blue()) <= 1;
        };
        for (const auto &[dark, systemHighlight, role, active, disabled] : cases) {
            QPalette system;
            system.setColor(QPalette::Accent, Qt::magenta);
            system.setColor(QPalette::Active, QPalette::Highlight, systemHighlight);
            const QPalette palette = dark ? darkThemePalette(system) : lightThemePalette(system);
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
                QVERIFY(isNear(palette.color(group, role), group == QPalette::Disabled ? disabled : active));
        }
    }

    void themeFollowsSettingsAndDesktopWithoutEnteringItselfAgain()
    {
        const QColor dark(32, 33, 36);
        const QColor light(243, 243, 243);
        const QList<std::tuple<QString, Qt::ColorScheme, QColor>> steps{
            {u"light"_s, Unknown, light}, {u"dark"_s, Unknown, dark}, {u"dark"_s, Light, dark},
            {u"system"_s, Light, light},  {u"system"_s, Dark, dark},  {u"system"_s, Unknown, light},
        };
        ApplicationSettings settings;
        ApplicationThemeController theme(settings);
        QSignalSpy spy(&theme, &ApplicationThemeController::paletteChanged);
        for (const auto &[mode, desktop, window] : steps) {
            settings.setThemeMode(mode);
            m_desktop.choose(desktop);
            QCOMPARE(QGuiApplication::palette().color(QPalette::Window), window);
            QCOMPARE(theme.palette().color(QPalette::Window), window);
        }
        QCOMPARE(spy.size(), 5); // every step but the desktop's that the setting overrides

        spy.clear();
        connect(&theme, &ApplicationThemeController::paletteChanged, this, [this, &spy] {
            if (spy.size() < 10) // an unguarded theme would come here for ever
                m_desktop.choose(spy.size() % 2 ? Dark : Light);
        });
        theme.applyTheme();
        QCOMPARE(spy.size(), 1);
    }

private:
    Application &m_application = *static_cast<Application *>(qApp);
    Desktop m_desktop;
    const QScopedValueRollback<QPlatformTheme *> m_platformTheme{QGuiApplicationPrivate::platform_theme, &m_desktop};
};

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    for (const char *variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing here needs a real screen
    Application application(argc, argv);
    TestApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
