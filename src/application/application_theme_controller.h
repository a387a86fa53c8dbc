#pragma once

#include <QObject>
#include <QPalette>
#include <QtQml/qqmlregistration.h>

namespace zm {

class ApplicationSettings;

/// Gives the whole application the light or the dark palette, by the theme mode of the settings and, for "system", by
/// the desktop's colour scheme, whenever one of the two changes. The first call of applyTheme is the window's, once it
/// exists: a palette that is set before the style of the controls is loaded does not reach them.
class ApplicationThemeController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")
    Q_PROPERTY(QPalette palette READ palette NOTIFY paletteChanged)

public:
    /// `settings` must outlive the controller.
    explicit ApplicationThemeController(const ApplicationSettings &settings, QObject *parent = nullptr);

    QPalette palette() const { return m_palette; }

public slots:
    void applyTheme();

signals:
    void paletteChanged();

private:
    const ApplicationSettings *m_settings;
    const QPalette m_systemPalette; // as the desktop gave it, before the first theme
    QPalette m_palette;
    bool m_applying = false;
};

} // namespace zm
