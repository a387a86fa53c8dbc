#pragma once

#include "filters/filter.h"

#include <QCoreApplication>
#include <QImage>

namespace zm {

struct RenderServices;

/// Lets a picture fade to transparency, or to a colour, along a line or around a point.
class FadeOutFilter final : public Filter
{
    Q_DECLARE_TR_FUNCTIONS(FadeOutFilter)

public:
    static constexpr QLatin1StringView kId{"fade-image"};

    QString id() const override { return kId; }
    QString label() const override { return tr("Fade Out"); }
    QStringList pickerKeywords() const override;
    QList<ParameterDefinition> controls() const override;

    /// The picture itself for a strength of 0, and where it cannot be rendered.
    static QImage faded(const QImage &image, const ParameterValues &parameters, const RenderServices *services);
};

} // namespace zm
