#pragma once

#include <QGuiApplication>
#include <QList>
#include <QTranslator>
#include <QUrl>

namespace zm {

/// The process: its name, icons, style of controls and log, the installed language, and the files it was asked to open.
/// Main thread only.
class Application : public QGuiApplication
{
    Q_OBJECT

public:
    /// Names the application, chooses the style of its controls, makes its data folder and starts the log.
    Application(int &argc, char **argv);

    /// Queues a local file as an absolute path. Anything else, and a file that waits already, is dropped.
    void addFileOpenRequest(const QUrl &url);

    /// Removes and returns the oldest request; an empty URL if none waits.
    Q_INVOKABLE QUrl takePendingFileOpenRequest();

    /// Installs the catalogue of a language in place of the one before, and makes the language the default locale.
    /// Without a catalogue the interface shows its source language.
    void applyLanguage(const QString &language);

    bool event(QEvent *event) override;

signals:
    void pendingFileOpenRequestAvailable();

private:
    QList<QUrl> m_pendingFileOpenRequests; // oldest first
    QTranslator m_translator;
};

} // namespace zm
