#pragma once

#include "application/application_context.h"

#include <QQmlApplicationEngine>
#include <QQmlError>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <functional>

class QQuickItem;

namespace zm::test {

/// The real window with objects of its own, driven by pointer and keys. Texts are compared without mnemonics.
class WindowDriver
{
public:
    WindowDriver();
    ~WindowDriver();

    /// False if the window does not come up and become active.
    [[nodiscard]] bool open();

    ApplicationContext &context() { return *m_context; }
    Application &application() const;
    /// Of the document, from the bottom up.
    QStringList layerNames() const;
    QQuickWindow *window() const { return m_window; }
    /// What QML had to complain about; also printed.
    const QList<QQmlError> &warnings() const { return m_warnings; }

    /// The item that is shown, on top of others, and says a text, or whose QML type is so named. Null if there is none.
    QQuickItem *item(const QString &textOrType) const;
    QQuickItem *itemWhere(const std::function<bool(QQuickItem *)> &matches) const;
    /// The same by its name for screen readers.
    QQuickItem *named(const QString &accessibleName) const;
    QQuickItem *tab(const QString &text) const;
    QQuickItem *canvas() const { return item(QStringLiteral("Canvas")); }
    double zoom() const;
    /// A dialog of the window, whether it is shown or not; for null, what holds them all.
    QObject *dialog(const char *name) const;
    bool shows(const char *dialogName) const;

    void click(QQuickItem *item, Qt::MouseButton button = Qt::LeftButton) const;
    /// Clicks what says the text; false if nothing that is shown does.
    [[nodiscard]] bool click(const QString &text) const;
    void drag(const QPointF &from, const QPointF &to) const;
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void drop(const QList<QUrl> &urls) const;
    /// Answers an open file dialog with a file. How it finds one is Qt's affair.
    [[nodiscard]] bool chooseFile(const char *dialogName, const QUrl &file) const;

    QPointF centre(QQuickItem *item) const;

private:
    std::unique_ptr<ApplicationContext> m_context;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    QList<QQmlError> m_warnings;
};

/// Runs a test object in an application that touches neither the user's settings nor the user's log.
int runWindowTest(QObject &test, int argc, char **argv);

} // namespace zm::test
