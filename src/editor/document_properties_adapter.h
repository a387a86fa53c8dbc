#pragma once

#include "commands/undo_merge_scope.h"
#include "editor/color_change_reason.h"

#include <QColor>
#include <QObject>
#include <QSizeF>

#include <optional>

namespace zm {

class CommandHistory;
class Document;
struct RenderServices;

/// What the inspector shows and edits of the document itself: its size and its background. Edits go through the
/// history.
class DocumentPropertiesAdapter : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns the one adapter of the document.")
    Q_PROPERTY(double workareaWidth READ workareaWidth WRITE setWorkareaWidth NOTIFY sizeChanged)
    Q_PROPERTY(double workareaHeight READ workareaHeight WRITE setWorkareaHeight NOTIFY sizeChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY backgroundColorChanged)

public:
    /// Both must outlive the adapter.
    DocumentPropertiesAdapter(Document *document, CommandHistory *history, QObject *parent = nullptr);

    /// Null while there is no GPU. Not owned.
    void setRenderServices(const RenderServices *services) { m_services = services; }

    /// Document units. Setters ignore a number that is not finite and raise one to at least 1.
    double workareaWidth() const;
    void setWorkareaWidth(double width);
    double workareaHeight() const;
    void setWorkareaHeight(double height);
    QColor backgroundColor() const;

    /// All changes of the size from here to endInspectorEdit() are one undo step.
    Q_INVOKABLE void beginInspectorEdit() { m_mergeScope.begin(); }
    Q_INVOKABLE void endInspectorEdit() { m_mergeScope.end(); }

    /// Makes the document just hold what its visible layers show after their effects, in whole units; layers keep
    /// their places among each other. One undo step. False when nothing shows or it fits already.
    Q_INVOKABLE bool fitWorkareaToContent();
    /// Shows the colour of a picker that is open; the accepted one becomes one undo step, and a rejected picker leaves
    /// nothing. An invalid colour counts as rejected.
    Q_INVOKABLE void setBackgroundColorFromPicker(const QColor &color, zm::ColorChange::ChangeReason reason);

signals:
    void sizeChanged();
    void backgroundColorChanged();

private:
    void resize(const QSizeF &size);
    void showBackground(const QColor &color);
    void endBackgroundPreview();

    Document *m_document;
    CommandHistory *m_history;
    const RenderServices *m_services = nullptr;
    UndoMergeScope m_mergeScope;
    /// The document's own background while a picker's shows instead.
    std::optional<QColor> m_backgroundBeforePicker;
    bool m_showingBackground = false;
};

} // namespace zm
