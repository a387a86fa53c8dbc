#include "canvas/canvas_ruler_item.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

constexpr double kMajorSpacing = 80.0; // pixels between two labels, at least
constexpr double kMajorTick = 13.0;
constexpr double kMiddleTick = 9.0;
constexpr double kMinorTick = 5.0;
constexpr double kOuterMargin = 3.0; // pixels that no tick enters
constexpr int kLabelPixelSize = 10;
constexpr double kLabelGap = 3.0;
constexpr double kExactIntegers = 9007199254740992.0; // 2^53: beyond it neighbours are the same double

/// Document units between ticks; each is a multiple of the one below it. A middle of 0 means that there is none.
struct Steps
{
    qint64 major = 1;
    qint64 middle = 0;
    qint64 minor = 1;
};

qint64 majorStep(double raw)
{
    if (raw <= 1.0)
        return 1;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    const double fraction = raw / power;
    const double multiplier = fraction <= 1.0 ? 1.0 : fraction <= 2.0 ? 2.0 : fraction <= 5.0 ? 5.0 : 10.0;
    return std::max<qint64>(qint64(std::ceil(power * multiplier)), 1);
}

Steps stepsFor(double rawMajor)
{
    Steps steps;
    steps.major = majorStep(rawMajor);
    if (steps.major >= 10) {
        steps.middle = steps.major / 2;
        steps.minor = steps.major / 10;
    }
    return steps;
}

struct Label
{
    double position = 0.0; // of its tick, in pixels
    qint64 value = 0;
};

/// The measures of one painting, in the item's pixels: "along" runs with the edge, "across" away from it.
struct Ruler
{
    bool horizontal = true;
    bool opposite = false;
    double length = 0.0;
    double thickness = 0.0;
    double ratio = 1.0; // device pixels in one pixel

    double halfDevicePixel() const { return 0.5 / ratio; }
    double deviceCentre(double position) const { return (std::round(position * ratio) + 0.5) / ratio; }
    double baseline() const
    {
        return opposite ? halfDevicePixel() : std::round(thickness * ratio) / ratio - halfDevicePixel();
    }
    QPointF point(double along, double across) const
    {
        return horizontal ? QPointF(along, across) : QPointF(across, along);
    }
};

void drawHorizontalLabels(QPainter *painter, const Ruler &ruler, const QList<Label> &labels)
{
    // Between the outer edge and the ticks of middle length; what is read lies beside the major ticks' tips.
    const double room = ruler.thickness - kMiddleTick - 1.0;
    const QFontMetricsF metrics(painter->font());
    const double digitHeight = metrics.capHeight();
    if (digitHeight > room)
        return;
    const double outer = ruler.opposite ? ruler.thickness - room : 0.0;
    const double textLine = std::round(outer + (room + digitHeight) / 2.0);
    for (const Label &label : labels) {
        const QString text = QString::number(label.value);
        const double width = std::ceil(metrics.horizontalAdvance(text));
        const double start = label.position + ruler.halfDevicePixel() + kLabelGap;
        if (start < 0.0 || start + width > ruler.length)
            continue;
        painter->drawText(QPointF(ruler.horizontal ? start : ruler.length - start - width, textLine), text);
    }
}

QFont labelFont()
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(kLabelPixelSize);
    return font;
}

void drawLabels(QPainter *painter, Ruler ruler, const QList<Label> &labels)
{
    painter->setFont(labelFont());
    if (ruler.horizontal) {
        drawHorizontalLabels(painter, ruler, labels);
        return;
    }
    // Pixels are turned, not text: small type is made for lines that run across the screen.
    const QSize size(int(std::ceil(ruler.length * ruler.ratio)), int(std::ceil(ruler.thickness * ruler.ratio)));
    QImage strip(size, QImage::Format_ARGB32_Premultiplied);
    strip.setDevicePixelRatio(ruler.ratio);
    strip.fill(Qt::transparent);
    QPainter stripPainter(&strip);
    stripPainter.setFont(painter->font());
    stripPainter.setPen(painter->pen());
    ruler.length = size.width() / ruler.ratio; // the strip ends where the picture of the ruler does
    drawHorizontalLabels(&stripPainter, ruler, labels);
    stripPainter.end();
    painter->drawImage(QPointF(0.0, 0.0), strip.transformed(QTransform().rotate(-90.0)));
}

} // namespace

CanvasRulerItem::CanvasRulerItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(false);
}

template<typename T>
void CanvasRulerItem::change(T &field, const T &value, void (CanvasRulerItem::*changed)())
{
    if (field == value)
        return;
    field = value;
    update();
    emit(this->*changed)();
}

void CanvasRulerItem::setOrientation(Orientation orientation)
{
    change(m_orientation, orientation, &CanvasRulerItem::orientationChanged);
}

void CanvasRulerItem::setViewOrigin(const QPointF &origin)
{
    // Not by the points' own comparison, which takes near ones for the same.
    if (m_viewOrigin.x() == origin.x() && m_viewOrigin.y() == origin.y())
        return;
    const bool moved = along(m_viewOrigin) != along(origin);
    m_viewOrigin = origin;
    if (moved)
        update();
    emit viewOriginChanged();
}

void CanvasRulerItem::setViewScale(double scale)
{
    change(m_viewScale, scale, &CanvasRulerItem::viewScaleChanged);
}

void CanvasRulerItem::setOppositeEdge(bool opposite)
{
    change(m_oppositeEdge, opposite, &CanvasRulerItem::oppositeEdgeChanged);
}

void CanvasRulerItem::setBackgroundColor(const QColor &color)
{
    change(m_backgroundColor, color, &CanvasRulerItem::backgroundColorChanged);
}

void CanvasRulerItem::setTickColor(const QColor &color)
{
    change(m_tickColor, color, &CanvasRulerItem::tickColorChanged);
}

void CanvasRulerItem::setLabelColor(const QColor &color)
{
    change(m_labelColor, color, &CanvasRulerItem::labelColorChanged);
}

void CanvasRulerItem::setBorderColor(const QColor &color)
{
    change(m_borderColor, color, &CanvasRulerItem::borderColorChanged);
}

void CanvasRulerItem::paint(QPainter *painter)
{
    Ruler ruler;
    ruler.horizontal = m_orientation == Horizontal;
    ruler.opposite = m_oppositeEdge;
    ruler.length = ruler.horizontal ? width() : height();
    ruler.thickness = ruler.horizontal ? height() : width();
    ruler.ratio = std::max(1.0, painter->deviceTransform().m11());
    const double origin = along(m_viewOrigin);
    const bool finite = std::isfinite(origin) && std::isfinite(m_viewScale) && std::isfinite(ruler.length)
        && std::isfinite(ruler.thickness);
    if (!finite || m_viewScale <= 0.0 || ruler.length <= 0.0 || ruler.thickness <= 0.0)
        return;

    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->fillRect(boundingRect(), m_backgroundColor);
    const double baseline = ruler.baseline();

    const double rawMajor = kMajorSpacing / m_viewScale;
    if (std::abs(origin) + ruler.length * std::max(1.0, rawMajor) < kExactIntegers) {
        const Steps steps = stepsFor(rawMajor);
        const double direction = m_oppositeEdge ? 1.0 : -1.0;
        const double longest = std::max(0.0, ruler.thickness - kOuterMargin);
        const double end = origin + ruler.length / m_viewScale;
        QVarLengthArray<QLineF, 512> ticks;
        QList<Label> labels;
        for (qint64 value = qint64(std::floor(origin / double(steps.minor))) * steps.minor; double(value) <= end;
             value += steps.minor) {
            const double position = (double(value) - origin) * m_viewScale;
            if (position <= -1.0 || position >= ruler.length + 1.0)
                continue;
            const bool major = value % steps.major == 0;
            const bool middle = steps.middle > 0 && value % steps.middle == 0;
            const double tick = std::min(major ? kMajorTick : middle ? kMiddleTick : kMinorTick, longest);
            const double centre = ruler.deviceCentre(position);
            ticks.append(QLineF(ruler.point(centre, baseline), ruler.point(centre, baseline + direction * tick)));
            if (major)
                labels.append({centre, value});
        }
        painter->setPen(QPen(m_tickColor, 0)); // 0: one device pixel
        painter->drawLines(ticks.constData(), int(ticks.size()));
        painter->setPen(m_labelColor);
        drawLabels(painter, ruler, labels);
    }

    painter->setPen(QPen(m_borderColor, 0));
    painter->drawLine(QLineF(ruler.point(0.0, baseline), ruler.point(ruler.length, baseline)));
}

} // namespace zm
