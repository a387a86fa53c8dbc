#pragma once

#include <QColor>
#include <QPointF>
#include <QQuickPaintedItem>

namespace zm {

/// A ruler along one edge of the view. It counts document units, 0 in the middle of the document, and lies against the
/// view pixel for pixel: its start is viewOrigin, and one unit covers viewScale of its pixels. The item's thickness is
/// its height when horizontal, its width when vertical. Paints nothing when a value is not finite or the scale is not
/// above 0.
class CanvasRulerItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Orientation orientation READ orientation WRITE setOrientation NOTIFY orientationChanged)
    Q_PROPERTY(QPointF viewOrigin READ viewOrigin WRITE setViewOrigin NOTIFY viewOriginChanged)
    Q_PROPERTY(double viewScale READ viewScale WRITE setViewScale NOTIFY viewScaleChanged)
    Q_PROPERTY(bool oppositeEdge READ oppositeEdge WRITE setOppositeEdge NOTIFY oppositeEdgeChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QColor tickColor READ tickColor WRITE setTickColor NOTIFY tickColorChanged)
    Q_PROPERTY(QColor labelColor READ labelColor WRITE setLabelColor NOTIFY labelColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)

public:
    enum Orientation { Horizontal = 0, Vertical = 1 };
    Q_ENUM(Orientation)

    explicit CanvasRulerItem(QQuickItem *parent = nullptr);

    Orientation orientation() const { return m_orientation; }
    void setOrientation(Orientation orientation);

    QPointF viewOrigin() const { return m_viewOrigin; }
    /// Document point at the view's (0, 0). A move along the other axis paints nothing again.
    void setViewOrigin(const QPointF &origin);

    double viewScale() const { return m_viewScale; }
    void setViewScale(double scale);

    bool oppositeEdge() const { return m_oppositeEdge; }
    /// False above or left of the view, true below or right of it: the ticks always grow away from the view.
    void setOppositeEdge(bool opposite);

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    QColor tickColor() const { return m_tickColor; }
    void setTickColor(const QColor &color);
    QColor labelColor() const { return m_labelColor; }
    void setLabelColor(const QColor &color);
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);

    void paint(QPainter *painter) override;

signals:
    void orientationChanged();
    void viewOriginChanged();
    void viewScaleChanged();
    void oppositeEdgeChanged();
    void backgroundColorChanged();
    void tickColorChanged();
    void labelColorChanged();
    void borderColorChanged();

private:
    template<typename T>
    void change(T &field, const T &value, void (CanvasRulerItem::*changed)());
    double along(const QPointF &point) const { return m_orientation == Horizontal ? point.x() : point.y(); }

    Orientation m_orientation = Horizontal;
    QPointF m_viewOrigin;
    double m_viewScale = 1.0;
    bool m_oppositeEdge = false;
    QColor m_backgroundColor = Qt::white;
    QColor m_tickColor = Qt::black;
    QColor m_labelColor = Qt::black;
    QColor m_borderColor = Qt::black;
};

} // namespace zm
