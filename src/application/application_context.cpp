#include "application/application_context.h"

#include "application/application.h"
#include "editor/export_preview_image_provider.h"
#include "editor/layer_thumbnail_provider.h"
#include "editor/shape_preview_image_provider.h"
#include "services/user_notification_center.h"

#include <QQmlContext>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

#ifdef QT_NO_DEBUG
constexpr bool kDebugBuild = false;
#else
constexpr bool kDebugBuild = true;
#endif

} // namespace

ApplicationContext::ApplicationContext()
{
    documentFileController.setRuntimeFlags(&runtimeFlags);
    editorController.setRuntimeFlags(&runtimeFlags);
    scenePresentationModel.setRenderServices(&renderServices);
    documentPropertiesAdapter.setRenderServices(&renderServices);
    sceneObjectAdapter.setRenderServices(&renderServices);
    exportController.setRenderServices(&renderServices);
    QObject::connect(&documentFileController, &DocumentFileController::documentLoaded, &applicationSettings,
                     &ApplicationSettings::addRecentFile);
    QObject::connect(&documentFileController, &DocumentFileController::documentSaved, &applicationSettings,
                     &ApplicationSettings::addRecentFile);
    QObject::connect(&layerThumbnails, &LayerThumbnails::thumbnailChanged, sceneObjectAdapter.layerListModel(),
                     &SceneLayerListModel::setThumbnailSource);
    // A new text looks like the one that the user last had in hand.
    const auto rememberTextStyle = [this](const QUuid &id) {
        if (const TextLayer *text = id == document.selectedObjectId() ? document.textLayer(id) : nullptr)
            editorController.setTextTemplate(EditorController::textTemplateFrom(text->state()));
    };
    QObject::connect(&document, &Document::selectionChanged, &editorController, rememberTextStyle);
    QObject::connect(&document, &Document::textLayerChanged, &editorController, rememberTextStyle);
}

void addImageProviders(QQmlEngine &engine, const ApplicationContext &context)
{
    engine.addImageProvider(u"export-preview"_s, new ExportPreviewImageProvider(context.exportPreviewStore));
    engine.addImageProvider(kShapePreviewProviderId, new ShapePreviewImageProvider);
    engine.addImageProvider(u"layer-thumbnail"_s, new LayerThumbnailProvider(context.layerThumbnailStore));
}

void setContextProperties(QQmlContext &qmlContext, Application &application, ApplicationContext &context)
{
    qmlContext.setContextProperty(u"debugBuild"_s, kDebugBuild);
    qmlContext.setContextProperty(u"applicationFileOpenRequests"_s, &application);
    qmlContext.setContextProperty(u"runtimeFlags"_s, &context.runtimeFlags);
    qmlContext.setContextProperty(u"applicationInfoController"_s, &context.applicationInfoController);
    qmlContext.setContextProperty(u"applicationSettings"_s, &context.applicationSettings);
    qmlContext.setContextProperty(u"applicationTheme"_s, &context.applicationTheme);
    qmlContext.setContextProperty(u"commandHistory"_s, &context.commandHistory);
    qmlContext.setContextProperty(u"sceneObjectAdapter"_s, &context.sceneObjectAdapter);
    qmlContext.setContextProperty(u"scenePresentationModel"_s, &context.scenePresentationModel);
    qmlContext.setContextProperty(u"editorStateModel"_s, &context.editorStateModel);
    qmlContext.setContextProperty(u"documentPropertiesAdapter"_s, &context.documentPropertiesAdapter);
    qmlContext.setContextProperty(u"shapePickerModel"_s, &context.shapePickerModel);
    qmlContext.setContextProperty(u"noticeCatalogModel"_s, &context.noticeCatalogModel);
    qmlContext.setContextProperty(u"editorController"_s, &context.editorController);
    qmlContext.setContextProperty(u"fileManager"_s, &context.fileManager);
    qmlContext.setContextProperty(u"documentFileController"_s, &context.documentFileController);
    qmlContext.setContextProperty(u"exportController"_s, &context.exportController);
    qmlContext.setContextProperty(u"userNotifications"_s, &UserNotificationCenter::instance());
}

} // namespace zm
