#include "application/theme_palettes.h"

#include <array>

namespace zm {

namespace {

struct RoleColors
{
    QPalette::ColorRole role;
    QRgb color;
    QRgb disabled;

    constexpr RoleColors(QPalette::ColorRole role, QRgb color)
        : RoleColors(role, color, color)
    {
    }
    constexpr RoleColors(QPalette::ColorRole role, QRgb color, QRgb disabled)
        : role(role)
        , color(color)
        , disabled(disabled)
    {
    }
};

constexpr QRgb kDarkText = qRgb(241, 243, 244);
constexpr QRgb kDarkDisabledText = qRgb(123, 128, 135);
constexpr QRgb kDarkDisabledHighlight = qRgb(58, 61, 66);
constexpr QRgb kLightText = qRgb(31, 31, 31);
constexpr QRgb kLightDisabledText = qRgb(122, 122, 122);
constexpr QRgb kLightDisabledHighlight = qRgb(208, 208, 208);

constexpr std::array kDarkRoles{
    RoleColors{QPalette::Window, qRgb(32, 33, 36)},
    RoleColors{QPalette::WindowText, kDarkText, kDarkDisabledText},
    RoleColors{QPalette::Text, kDarkText, kDarkDisabledText},
    RoleColors{QPalette::ButtonText, kDarkText, kDarkDisabledText},
    RoleColors{QPalette::Base, qRgb(23, 24, 26)},
    RoleColors{QPalette::AlternateBase, qRgb(36, 38, 42)},
    RoleColors{QPalette::Button, qRgb(45, 47, 52)},
    RoleColors{QPalette::BrightText, qRgb(255, 255, 255)},
    RoleColors{QPalette::Light, qRgb(52, 55, 61)},
    RoleColors{QPalette::Midlight, qRgb(43, 46, 51)},
    RoleColors{QPalette::Mid, qRgb(95, 99, 104)},
    RoleColors{QPalette::Dark, qRgb(15, 16, 18)},
    RoleColors{QPalette::Shadow, qRgb(0, 0, 0)},
    RoleColors{QPalette::HighlightedText, qRgb(255, 255, 255), qRgb(168, 172, 179)},
    RoleColors{QPalette::ToolTipBase, qRgb(45, 47, 52)},
    RoleColors{QPalette::ToolTipText, kDarkText},
    RoleColors{QPalette::Link, qRgb(138, 180, 248)},
    RoleColors{QPalette::LinkVisited, qRgb(197, 163, 255)},
    RoleColors{QPalette::PlaceholderText, qRgb(154, 160, 166), qRgb(104, 109, 115)},
};

constexpr std::array kLightRoles{
    RoleColors{QPalette::Window, qRgb(243, 243, 243)},
    RoleColors{QPalette::WindowText, kLightText, kLightDisabledText},
    RoleColors{QPalette::Text, kLightText, kLightDisabledText},
    RoleColors{QPalette::ButtonText, kLightText, kLightDisabledText},
    RoleColors{QPalette::Base, qRgb(255, 255, 255)},
    RoleColors{QPalette::AlternateBase, qRgb(247, 247, 247)},
    RoleColors{QPalette::Button, qRgb(246, 246, 246)},
    RoleColors{QPalette::BrightText, qRgb(255, 255, 255)},
    RoleColors{QPalette::Light, qRgb(255, 255, 255)},
    RoleColors{QPalette::Midlight, qRgb(236, 236, 236)},
    RoleColors{QPalette::Mid, qRgb(183, 183, 183)},
    RoleColors{QPalette::Dark, qRgb(138, 138, 138)},
    RoleColors{QPalette::Shadow, qRgb(64, 64, 64)},
    RoleColors{QPalette::HighlightedText, qRgb(255, 255, 255), qRgb(85, 85, 85)},
    RoleColors{QPalette::ToolTipBase, qRgb(255, 255, 255)},
    RoleColors{QPalette::ToolTipText, kLightText},
    RoleColors{QPalette::LinkVisited, qRgb(90, 63, 159)},
    RoleColors{QPalette::PlaceholderText, qRgb(114, 114, 114), qRgb(154, 154, 154)},
};

void setRole(QPalette &palette, QPalette::ColorRole role, const QColor &color, const QColor &disabled)
{
    palette.setColor(QPalette::Active, role, color);
    palette.setColor(QPalette::Inactive, role, color);
    palette.setColor(QPalette::Disabled, role, disabled);
}

template<typename Roles>
QPalette withRoles(QPalette palette, const Roles &roles)
{
    for (const RoleColors &colors : roles)
        setRole(palette, colors.role, QColor(colors.color), QColor(colors.disabled));
    return palette;
}

QColor darkAccent(const QColor &systemHighlight)
{
    if (!systemHighlight.isValid())
        return QColor(76, 139, 245);
    return systemHighlight.lightnessF() < 0.42 ? systemHighlight.lighter(145) : systemHighlight;
}

QColor lightAccent(const QColor &systemHighlight)
{
    if (!systemHighlight.isValid())
        return QColor(0, 103, 192);
    return systemHighlight.lightnessF() > 0.68 ? systemHighlight.darker(130) : systemHighlight;
}

} // namespace

QPalette darkThemePalette(const QPalette &systemPalette)
{
    const QColor accent = darkAccent(systemPalette.color(QPalette::Active, QPalette::Highlight));
    QPalette palette = withRoles(systemPalette, kDarkRoles);
    setRole(palette, QPalette::Highlight, accent, QColor(kDarkDisabledHighlight));
    return palette;
}

QPalette lightThemePalette(const QPalette &systemPalette)
{
    const QColor accent = lightAccent(systemPalette.color(QPalette::Active, QPalette::Highlight));
    QPalette palette = withRoles(systemPalette, kLightRoles);
    setRole(palette, QPalette::Highlight, accent, QColor(kLightDisabledHighlight));
    setRole(palette, QPalette::Link, accent, accent);
    return palette;
}

} // namespace zm
