#pragma once

#include "document/document.h"
#include "scene/scene_presentation_model.h"

#include <QObject>
#include <QPointF>
#include <QUrl>
#include <QVariantMap>

class QQuickItem;

namespace zm::test {

/// A real document with its scene model for tests written in QML, and the pointer events that QML tests cannot make.
class CanvasScene : public QObject
{
    Q_OBJECT
    Q_PROPERTY(zm::ScenePresentationModel *model READ model CONSTANT)
    Q_PROPERTY(double largestComposition READ largestComposition)

public:
    CanvasScene();

    ScenePresentationModel *model() { return &m_model; }
    /// Pixels of the largest set of tiles since reset.
    double largestComposition() const { return m_largestComposition; }

    /// Empties the document, gives it a size, and the scene its first state.
    Q_INVOKABLE void reset(double width, double height);
    /// A layer of squares, red where column plus row is even and blue elsewhere, centred on the document.
    Q_INVOKABLE void addChecker(int columns, int rows);
    Q_INVOKABLE void setBackground(const QColor &color);

    /// Drags over the middle of the item and drops there. Tells what the receiver answered: "entered", "dropped",
    /// "action".
    Q_INVOKABLE QVariantMap dragAndDrop(QQuickItem *target, const QList<QUrl> &urls, int actions);
    /// A turn of the wheel as platforms send it that swap the axes while Alt is held.
    Q_INVOKABLE void turnWheelSideways(QQuickItem *target, int delta, int modifiers);

private:
    Document m_document;
    ScenePresentationModel m_model;
    double m_largestComposition = 0.0;
};

} // namespace zm::test
