#pragma once

#include "filters/filter.h"

#include <QCoreApplication>
#include <QImage>

namespace zm {

struct RenderServices;

/// Cuts a picture to a shape.
class ShapeToolFilter final : public Filter
{
    Q_DECLARE_TR_FUNCTIONS(ShapeToolFilter)

public:
    static constexpr QLatin1StringView kId{"shape-tool"};
    /// Begins the keys under which the parameters of the shape's generator stand.
    static constexpr QLatin1StringView kShapeKeyPrefix{"shape."};

    QString id() const override { return kId; }
    QString label() const override { return tr("Shape Editor"); }
    QString pickerLabel() const override { return tr("Cut to Shape"); }
    QStringList pickerKeywords() const override;
    QList<ParameterDefinition> controls() const override;
    QList<AutoAddFilter> autoAddFilters() const override;

    /// The picture, which covers `bounds`, without alpha outside the shape; colours stay. The feather needs the
    /// renderer of the services: without one the edge is hard.
    static QImage cutOut(const QImage &image, const QRectF &bounds, const ParameterValues &parameters,
                         const RenderServices *services);
};

} // namespace zm
