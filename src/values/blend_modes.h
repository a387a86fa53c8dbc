#pragma once

#include <QLatin1StringView>
#include <QPainter>
#include <QString>

#include <span>

namespace zm {

/// A row of the blend menu. The key is what layers and files hold.
struct BlendMode
{
    QLatin1StringView key;
    /// The source text of the label, in the translation context SceneObjectAdapter.
    const char *label;
    QPainter::CompositionMode composition;

    QString translatedLabel() const;
};

/// Every mode in the order of the menu. The last four are kept in menu and files, and paint as source-over.
std::span<const BlendMode> blendModes();

/// How a layer with this key is painted; source-over for a key that is not in the table.
QPainter::CompositionMode compositionMode(const QString &key);

} // namespace zm
