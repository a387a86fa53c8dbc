#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// The one current mode of the editor: what a pointer press on the canvas means. There is no tool object; whoever has
/// to do with a mode watches modeChanged and acts when its mode comes or goes. The mode is never stored.
class EditorStateModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns the one editor state.")
    // Both enumerations have names in common: QML says EditorStateModel.EditorMode.Transform.
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    Q_PROPERTY(EditorMode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(OverlayMode overlayMode READ overlayMode WRITE setOverlayMode NOTIFY modeChanged)
    Q_PROPERTY(bool paintActive READ paintActive NOTIFY modeChanged)
    Q_PROPERTY(bool drawActive READ drawActive NOTIFY modeChanged)
    Q_PROPERTY(bool eraserActive READ eraserActive NOTIFY modeChanged)
    Q_PROPERTY(bool cloneStampActive READ cloneStampActive NOTIFY modeChanged)
    Q_PROPERTY(bool exposureBrushActive READ exposureBrushActive NOTIFY modeChanged)
    Q_PROPERTY(bool rasterFillActive READ rasterFillActive NOTIFY modeChanged)
    Q_PROPERTY(bool textEditActive READ textEditActive NOTIFY modeChanged)
    Q_PROPERTY(bool relightActive READ relightActive NOTIFY modeChanged)

public:
    enum class EditorMode {
        None = 0,
        Transform = 1,   ///< select, move, resize and rotate layers
        PathEdit = 2,    ///< the nodes of a shape's path
        PolygonEdit = 3, ///< the nodes of a raster selection
        Draw = 4,
        Erase = 5,
        CloneStamp = 6,
        ExposureBrush = 7,
        RasterFill = 8, ///< a click fills the raster selection
        TextEdit = 9,
        MaskEdit = 10, ///< paint an effect's mask
        Crop = 11,
        Skew = 12,
        MaskTransform = 13, ///< place an effect's mask shape
        GradientPosition = 14,
        RasterRectangleSelection = 15,
        RasterEllipseSelection = 16,
        MagicWandSelection = 17,
        Relight = 18
    };
    Q_ENUM(EditorMode)

    /// The mode as the overlay of the canvas sees it: all brushes are one, and the fill tool, which waits for a click,
    /// has no overlay.
    enum class OverlayMode {
        None = 0,
        Transform = 1,
        PathEdit = 2,
        PolygonEdit = 3,
        Brush = 4,
        TextEdit = 5,
        MaskEdit = 6,
        Crop = 7,
        Skew = 8,
        MaskTransform = 9,
        GradientPosition = 10,
        RasterRectangleSelection = 11,
        RasterEllipseSelection = 12,
        MagicWandSelection = 13,
        Relight = 14
    };
    Q_ENUM(OverlayMode)

    using QObject::QObject;

    EditorMode mode() const { return m_mode; }
    /// A number that is no mode becomes None.
    void setMode(EditorMode mode);

    OverlayMode overlayMode() const;
    /// Brush keeps a brush that is active already, and else takes the paint brush.
    void setOverlayMode(OverlayMode mode);

    /// Any of the four brushes.
    bool paintActive() const { return m_mode >= EditorMode::Draw && m_mode <= EditorMode::ExposureBrush; }
    bool drawActive() const { return m_mode == EditorMode::Draw; }
    bool eraserActive() const { return m_mode == EditorMode::Erase; }
    bool cloneStampActive() const { return m_mode == EditorMode::CloneStamp; }
    bool exposureBrushActive() const { return m_mode == EditorMode::ExposureBrush; }
    bool rasterFillActive() const { return m_mode == EditorMode::RasterFill; }
    bool textEditActive() const { return m_mode == EditorMode::TextEdit; }
    bool relightActive() const { return m_mode == EditorMode::Relight; }

public slots:
    void activateTransformMode() { setMode(EditorMode::Transform); }
    void activateDrawMode() { setMode(EditorMode::Draw); }
    void activateEraserMode() { setMode(EditorMode::Erase); }
    void activateCloneStampMode() { setMode(EditorMode::CloneStamp); }
    void activateExposureBrushMode() { setMode(EditorMode::ExposureBrush); }
    void activateRasterFillMode() { setMode(EditorMode::RasterFill); }
    void activateRelightMode() { setMode(EditorMode::Relight); }

signals:
    void modeChanged();

private:
    EditorMode m_mode = EditorMode::Transform;
};

} // namespace zm
