#include "application/application_theme_controller.h"

#include "application/application_settings.h"
#include "application/theme_palettes.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QStyleHints>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Qt::ColorScheme wantedColorScheme(const QString &themeMode)
{
    if (themeMode == "light"_L1)
        return Qt::ColorScheme::Light;
    return themeMode == "dark"_L1 ? Qt::ColorScheme::Dark : Qt::ColorScheme::Unknown;
}

} // namespace

ApplicationThemeController::ApplicationThemeController(const ApplicationSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(&settings)
    , m_systemPalette(QGuiApplication::palette())
    , m_palette(m_systemPalette)
{
    connect(m_settings, &ApplicationSettings::themeModeChanged, this, &ApplicationThemeController::applyTheme);
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            &ApplicationThemeController::applyTheme);
}

void ApplicationThemeController::applyTheme()
{
    // Setting the colour scheme raises colorSchemeChanged, which leads straight back here.
    if (m_applying)
        return;
    const QScopedValueRollback guard(m_applying, true);

    QStyleHints *hints = QGuiApplication::styleHints();
    const Qt::ColorScheme wanted = wantedColorScheme(m_settings->themeMode());
    hints->setColorScheme(wanted);
    const bool dark = wanted == Qt::ColorScheme::Dark
        || (wanted == Qt::ColorScheme::Unknown && hints->colorScheme() == Qt::ColorScheme::Dark);
    m_palette = dark ? darkThemePalette(m_systemPalette) : lightThemePalette(m_systemPalette);
    QGuiApplication::setPalette(m_palette);
    emit paletteChanged();
}

} // namespace zm
