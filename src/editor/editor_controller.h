#pragma once

#include "document/text_state.h"

#include <QObject>
#include <QRectF>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

namespace zm {

class CommandHistory;
class Document;
class ImageLayer;
class Layer;
class RuntimeFlags;
class ShapeLayer;

/// Adds layers, for the interface: makes the layer, places it in what the user sees, and puts it on top through the
/// history, which selects it. A failure leaves the document as it was; that of a picture leaves its sentence in
/// lastError. Rectangles are in document coordinates. Files are read on the calling thread, which is the main one.
class EditorController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")
    Q_PROPERTY(QRectF addLayerViewportRect READ addLayerViewportRect WRITE setAddLayerViewportRect NOTIFY
                   addLayerViewportRectChanged)
    Q_PROPERTY(double viewScale READ viewScale WRITE setViewScale NOTIFY viewScaleChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)
    Q_PROPERTY(bool lastErrorOffersHeifInstallHelp READ lastErrorOffersHeifInstallHelp NOTIFY lastErrorChanged)
    Q_PROPERTY(QString supportedImageFilePatterns READ supportedImageFilePatterns CONSTANT)

public:
    EditorController(Document *document, CommandHistory *commandHistory, QObject *parent = nullptr);

    /// The flags are not owned; without them every one counts as not set.
    void setRuntimeFlags(const RuntimeFlags *flags) { m_runtimeFlags = flags; }

    /// The next text is this state, at the size of new text.
    void setTextTemplate(const TextLayerState &state);
    /// What a new text takes over from an existing one: the format of its beginning, not its words or its width.
    static TextLayerState textTemplateFrom(const TextLayerState &state);

    /// The visible part of the document; empty if unknown.
    QRectF addLayerViewportRect() const { return m_addLayerViewportRect; }
    /// Normalised; one that is not finite or has a side below 1 becomes empty.
    void setAddLayerViewportRect(const QRectF &rect);

    /// Screen pixels for a unit of the document.
    double viewScale() const { return m_viewScale; }
    /// Ignored unless finite and above 0.
    void setViewScale(double scale);

    /// Empty after a picture was added.
    QString lastError() const { return m_lastError; }
    bool lastErrorOffersHeifInstallHelp() const { return m_lastErrorOffersHeifInstallHelp; }
    /// Patterns such as "*.png", sorted and joined with blanks, for the filters of file dialogs.
    QString supportedImageFilePatterns() const;

    /// A local picture file. The first picture on an empty canvas keeps its size, and the view goes to it; any other is
    /// reduced to what the view can hold.
    Q_INVOKABLE bool addImage(const QUrl &fileUrl);
    Q_INVOKABLE bool addExampleImage();
    /// About 90 screen pixels high at any zoom.
    Q_INVOKABLE bool addText();
    /// False for an unknown id.
    Q_INVOKABLE bool addShape(const QString &generatorId);
    /// An empty path in a box as large as the view, to be drawn node by node.
    Q_INVOKABLE bool addPath();

signals:
    void addLayerViewportRectChanged();
    void viewScaleChanged();
    void lastErrorChanged();
    /// The view shows these bounds, or is fitted to them.
    void sceneObjectAdded(const QRectF &focusBounds, bool fitViewToBounds);

private:
    QRectF placementTarget() const;
    bool hasVisibleObject() const;
    QRectF placeLayerInView(Layer &layer, const QRectF &localRect) const;
    bool addImageLayer(std::unique_ptr<ImageLayer> layer);
    bool addShapeLayer(std::unique_ptr<ShapeLayer> layer);
    bool commitNewObject(std::unique_ptr<Layer> object, const QRectF &bounds, bool fitView);
    bool fail(const QString &message, bool offersHeifInstallHelp = false);
    void setLastError(const QString &message, bool offersHeifInstallHelp);

    Document *m_document;
    CommandHistory *m_commandHistory;
    const RuntimeFlags *m_runtimeFlags = nullptr;
    QRectF m_addLayerViewportRect;
    double m_viewScale = 1.0;
    std::optional<TextLayerState> m_textTemplate;
    QString m_lastError;
    bool m_lastErrorOffersHeifInstallHelp = false;
};

} // namespace zm
