#include "application/application.h"

#include "application/languages.h"
#include "services/application_log.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QIcon>
#include <QLocale>
#include <QQuickStyle>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The file of a file-open event; empty if it is not a local one.
QUrl requestedFile(const QFileOpenEvent &event)
{
    QUrl url = event.url();
    if (!url.isLocalFile() && QDir::isAbsolutePath(event.file()))
        url = QUrl::fromLocalFile(event.file());
    return url.isLocalFile() && !url.toLocalFile().isEmpty() ? url : QUrl();
}

} // namespace

Application::Application(int &argc, char **argv)
    : QGuiApplication(argc, argv)
{
    setApplicationName(u"ZelmoraAtelier"_s);
    setApplicationVersion(QStringLiteral(ZELMORA_VERSION));
    setApplicationDisplayName(u"Zelmora Atelier"_s);
    setWindowIcon(QIcon(u":/zelmoraatelier/assets/app-icon.png"_s));
    QIcon::setThemeSearchPaths({u":/icons"_s});
    QIcon::setThemeName(u"zelmoraatelier"_s);
    QQuickStyle::setStyle(u"Fusion"_s); // follows a theme's palette; the environment may name one that does not

    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const bool hasDataFolder = QDir().mkpath(dataFolder);
    installApplicationLog();
    if (!hasDataFolder)
        qWarning().noquote() << "Could not create application data folder:" << dataFolder;
}

void Application::addFileOpenRequest(const QUrl &url)
{
    if (!url.isLocalFile() || url.toLocalFile().isEmpty())
        return;
    const QUrl request = QUrl::fromLocalFile(QFileInfo(url.toLocalFile()).absoluteFilePath());
    if (m_pendingFileOpenRequests.contains(request))
        return;
    m_pendingFileOpenRequests.append(request);
    emit pendingFileOpenRequestAvailable();
}

QUrl Application::takePendingFileOpenRequest()
{
    return m_pendingFileOpenRequests.isEmpty() ? QUrl() : m_pendingFileOpenRequests.takeFirst();
}

void Application::applyLanguage(const QString &language)
{
    removeTranslator(&m_translator);
    if (m_translator.load("zelmoraatelier_"_L1 + language, u":/i18n"_s)) {
        installTranslator(&m_translator);
        QLocale::setDefault(QLocale(language));
        return;
    }
    QLocale::setDefault(QLocale(kSourceLanguage));
    if (language != kSourceLanguage)
        qWarning().noquote() << "No translation catalog for language" << language;
}

bool Application::event(QEvent *event)
{
    if (event->type() == QEvent::FileOpen) {
        const QUrl file = requestedFile(*static_cast<QFileOpenEvent *>(event));
        if (!file.isEmpty()) {
            addFileOpenRequest(file);
            event->accept();
            return true;
        }
    }
    return QGuiApplication::event(event);
}

} // namespace zm
