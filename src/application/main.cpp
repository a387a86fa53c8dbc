#include "application/application.h"
#include "application/application_context.h"
#include "application/process_start.h"
#include "base/memory_tuning.h"
#include "io/image_allocation.h"

#include <QDebug>
#include <QQmlApplicationEngine>
#include <QQmlError>
#include <QQuickWindow>
#include <QTranslator>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(ZelmoraAtelierPlugin)

using namespace Qt::StringLiterals;

namespace {

/// The engine's own translators must not shadow those of the application.
void removeTranslatorsOf(const QQmlApplicationEngine &engine)
{
    for (QTranslator *translator : engine.findChildren<QTranslator *>())
        QCoreApplication::removeTranslator(translator);
}

void followLanguage(zm::Application &application, const zm::ApplicationSettings &settings,
                    QQmlApplicationEngine &engine)
{
    removeTranslatorsOf(engine);
    engine.setUiLanguage(settings.language());
    QObject::connect(
        &settings, &zm::ApplicationSettings::languageChanged, &engine,
        [&application, &settings, &engine] {
            application.applyLanguage(settings.language());
            engine.setUiLanguage(settings.language());
            engine.retranslate();
        },
        Qt::QueuedConnection);
}

void logWarnings(const QList<QQmlError> &warnings)
{
    for (const QQmlError &warning : warnings)
        qWarning().noquote() << warning.toString();
}

/// Brings the window to the front as soon as it has something to show.
void raiseAfterFirstFrame(QObject *created)
{
    auto *window = qobject_cast<QQuickWindow *>(created);
    if (!window)
        return;
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [window] {
            qInfo() << "First frame shown";
            window->raise();
            window->requestActivate();
        },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

} // namespace

int main(int argc, char **argv)
{
#ifdef Q_OS_WIN
    qputenv("QT_QPA_PLATFORM", zm::completedPlatformName(qgetenv("QT_QPA_PLATFORM")));
#endif
    zm::keepFreedMemoryWarm();
    zm::raiseImageAllocationLimit();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);

    zm::Application application(argc, argv);
    application.applyLanguage(zm::ApplicationSettings::startLanguage());
    application.addFileOpenRequest(zm::fileArgument(QCoreApplication::arguments()));

    // The engine, and with it the window, goes before what it shows.
    zm::ApplicationContext context;
    QQmlApplicationEngine engine;
    zm::prepareEngine(engine, application, context);
    followLanguage(application, context.applicationSettings, engine);

    engine.setOutputWarningsToStandardError(false); // the log passes them on
    QObject::connect(&engine, &QQmlEngine::warnings, &engine, logWarnings);
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &application, [] { QCoreApplication::exit(-1); },
        Qt::QueuedConnection);
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreated, &engine, raiseAfterFirstFrame);
    engine.loadFromModule("ZelmoraAtelier"_L1, "Main"_L1);
    return QCoreApplication::exec();
}
