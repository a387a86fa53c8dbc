#include "editor/editor_controller.h"

#include "base/fuzzy.h"
#include "base/sanitize.h"
#include "commands/command_history.h"
#include "commands/object_list_commands.h"
#include "document/document.h"
#include "generators/shape_generator.h"
#include "generators/shape_generator_registry.h"
#include "generators/shape_preview.h"
#include "io/pictures/image_import.h"
#include "services/runtime_flags.h"
#include "values/parameter_definition.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kNewTextHeight = 90.0; // screen pixels
constexpr double kMaximumNewTextPixelSize = 2048.0;
constexpr double kShapeShareOfView = 0.2; // of each side
constexpr double kPathStrokeWidth = 2.0;

/// Good for placing something in it.
bool isPlacementTarget(const QRectF &rect)
{
    return isFinite(rect.topLeft()) && std::isfinite(rect.width()) && std::isfinite(rect.height())
        && rect.width() >= 1.0 && rect.height() >= 1.0;
}

QRectF boundsOf(const Layer &layer, const QRectF &localRect)
{
    return layer.transform().matrix(localRect).mapRect(localRect);
}

/// Moves the layer so that the middle of its bounds lies on the point; returns its bounds.
QRectF centerLayerAt(Layer &layer, const QRectF &localRect, const QPointF &point)
{
    ObjectTransform transform = layer.transform();
    transform.setPosition(transform.position() + point - boundsOf(layer, localRect).center());
    layer.setTransform(transform);
    return boundsOf(layer, localRect);
}

QString importFailureText(ImageImportError error)
{
    switch (error) {
    case ImageImportError::NotAFile:
        return EditorController::tr("Choose an existing image file.");
    case ImageImportError::CannotDecode:
        return EditorController::tr("Zelmora Atelier could not load the selected image.");
    default:
        return importErrorText(error); // the same for a document and for a layer
    }
}

/// The words and the name of a new text.
QString newText()
{
    return QCoreApplication::translate("TextLayer", "Text");
}

double pixelSizeOf(const QFont &font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * 96.0 / 72.0;
}

/// The state with its first run as high as new text at this zoom, and all else in proportion to it.
TextLayerState scaledToView(TextLayerState state, double viewScale)
{
    const double firstSize = pixelSizeOf(state.blocks.first().runs.first().font);
    if (!(firstSize > 0.0))
        return state;
    const double factor = kNewTextHeight / viewScale / firstSize;
    for (TextParagraph &paragraph : state.blocks) {
        for (TextRun &run : paragraph.runs) {
            const double size = std::round(pixelSizeOf(run.font) * factor);
            run.font.setPixelSize(int(std::clamp(size, 1.0, kMaximumNewTextPixelSize)));
        }
    }
    state.textWidth *= factor;
    return state;
}

} // namespace

EditorController::EditorController(Document *document, CommandHistory *commandHistory, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_commandHistory(commandHistory)
{
}

void EditorController::setTextTemplate(const TextLayerState &state)
{
    m_textTemplate = normalizedTextState(state);
}

TextLayerState EditorController::textTemplateFrom(const TextLayerState &state)
{
    const TextLayerState model = normalizedTextState(state);
    const TextParagraph &paragraph = model.blocks.first();
    TextLayerState result = textStateFromPlainText(newText(), paragraph.runs.first());
    for (TextParagraph &block : result.blocks) {
        block.alignment = paragraph.alignment;
        block.lineHeight = paragraph.lineHeight;
    }
    return result;
}

void EditorController::setAddLayerViewportRect(const QRectF &rect)
{
    const QRectF normalized = rect.normalized();
    const QRectF target = isPlacementTarget(normalized) ? normalized : QRectF();
    if (fuzzyEqual(m_addLayerViewportRect, target))
        return;
    m_addLayerViewportRect = target;
    emit addLayerViewportRectChanged();
}

void EditorController::setViewScale(double scale)
{
    if (!std::isfinite(scale) || scale <= 0.0 || fuzzyEqual(m_viewScale, scale))
        return;
    m_viewScale = scale;
    emit viewScaleChanged();
}

QString EditorController::supportedImageFilePatterns() const
{
    return zm::supportedImageFilePatterns().join(u' ');
}

bool EditorController::addImage(const QUrl &fileUrl)
{
    setLastError({}, false);
    if (!fileUrl.isLocalFile())
        return fail(tr("Only local image files are supported."));
    ImageImportResult result = importImageLayer(fileUrl.toLocalFile(), m_runtimeFlags && m_runtimeFlags->noHevcCodec());
    if (!result.layer)
        return fail(importFailureText(result.error), result.error == ImageImportError::HeifCodecMissing);
    return addImageLayer(std::move(result.layer)) || fail(tr("Could not add the selected image to the document."));
}

bool EditorController::addExampleImage()
{
    setLastError({}, false);
    ImageImportResult result =
        imageLayerFrom(decodePicture(u":/zelmoraatelier/assets/zelmora-example.jpg"_s), tr("Zelmora Example"));
    if (!result.layer)
        return fail(tr("Zelmora Atelier could not load the example image."));
    return addImageLayer(std::move(result.layer)) || fail(tr("Could not add the example image to the document."));
}

bool EditorController::addText()
{
    const TextLayerState state = scaledToView(
        m_textTemplate ? *m_textTemplate : textStateFromPlainText(newText(), defaultTextRun()), m_viewScale);
    auto layer = std::make_unique<TextLayer>(state.blocks, state.textWidth, newText());
    const QRectF bounds = placeLayerInView(*layer, QRectF(QPointF(), layer->renderedContent(nullptr).size));
    return commitNewObject(std::move(layer), bounds, false);
}

bool EditorController::addShape(const QString &generatorId)
{
    const ShapeGenerator *generator = ShapeGeneratorRegistry::instance().find(generatorId);
    if (!generator)
        return false;
    QSizeF size = generator->defaultSize();
    const QRectF target = placementTarget();
    if (isPlacementTarget(target) && !size.isEmpty())
        size.scale(target.size() * kShapeShareOfView, Qt::KeepAspectRatio);
    const GeneratorGeometry geometry{generator->id(), completeParameters(generator->parameters(), {})};
    return addShapeLayer(std::make_unique<ShapeLayer>(geometry, size, defaultShapeStroke(*generator),
                                                      generator->defaultFillColor(), generator->label()));
}

bool EditorController::addPath()
{
    const QRectF target = placementTarget();
    const QSizeF size = isPlacementTarget(target) ? target.size() : QSizeF(640.0, 480.0);
    return addShapeLayer(std::make_unique<ShapeLayer>(EditablePath(), size, Stroke{Qt::black, kPathStrokeWidth},
                                                      QColor(Qt::transparent), tr("Path")));
}

QRectF EditorController::placementTarget() const
{
    return isPlacementTarget(m_addLayerViewportRect) ? m_addLayerViewportRect : m_document->documentRect();
}

bool EditorController::hasVisibleObject() const
{
    for (qsizetype i = 0; i < m_document->objectCount(); ++i) {
        if (m_document->objectAt(i)->isVisible())
            return true;
    }
    return false;
}

/// Puts the layer in the middle of the view, reduced to what fits but never enlarged. Returns its bounds.
QRectF EditorController::placeLayerInView(Layer &layer, const QRectF &localRect) const
{
    if (localRect.isEmpty())
        return {};
    const QRectF bounds = boundsOf(layer, localRect);
    const QRectF target = placementTarget();
    if (!isPlacementTarget(target))
        return bounds;
    if (isPlacementTarget(bounds)) {
        const double factor = std::min(target.width() / bounds.width(), target.height() / bounds.height());
        if (factor > 0.0 && factor < 1.0) {
            ObjectTransform transform = layer.transform();
            transform.setScale(transform.scale() * factor);
            layer.setTransform(transform);
        }
    }
    return centerLayerAt(layer, localRect, target.center());
}

bool EditorController::addImageLayer(std::unique_ptr<ImageLayer> layer)
{
    const bool isFirst = !hasVisibleObject();
    const QRectF localRect(QPointF(), layer->layerSize());
    const QRectF bounds =
        isFirst ? centerLayerAt(*layer, localRect, placementTarget().center()) : placeLayerInView(*layer, localRect);
    return commitNewObject(std::move(layer), bounds, isFirst);
}

bool EditorController::addShapeLayer(std::unique_ptr<ShapeLayer> layer)
{
    const QRectF bounds = placeLayerInView(*layer, QRectF(QPointF(), layer->layerSize()));
    return commitNewObject(std::move(layer), bounds, false);
}

bool EditorController::commitNewObject(std::unique_ptr<Layer> object, const QRectF &bounds, bool fitView)
{
    const QUuid id = object->id();
    m_commandHistory->push(std::make_unique<AddSceneObjectCommand>(m_document, std::move(object)));
    if (m_document->selectedObjectId() != id || !m_document->object(id))
        return false;
    emit sceneObjectAdded(bounds, fitView);
    return true;
}

bool EditorController::fail(const QString &message, bool offersHeifInstallHelp)
{
    setLastError(message, offersHeifInstallHelp);
    return false;
}

void EditorController::setLastError(const QString &message, bool offersHeifInstallHelp)
{
    if (m_lastError == message && m_lastErrorOffersHeifInstallHelp == offersHeifInstallHelp)
        return;
    m_lastError = message;
    m_lastErrorOffersHeifInstallHelp = offersHeifInstallHelp;
    emit lastErrorChanged();
}

} // namespace zm
