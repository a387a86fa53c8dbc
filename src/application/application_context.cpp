#include "application/application_context.h"

#include "application/application.h"
#include "editor/export_preview_image_provider.h"
#include "editor/layer_thumbnail_provider.h"
#include "editor/shape_preview_image_provider.h"
#include "services/user_notification_center.h"

#include <QQmlApplicationEngine>
#include <QQmlContext>

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
    QObject::connect(&documentFlow, &DocumentFlow::imageImported, &applicationSettings,
                     &ApplicationSettings::rememberImageImportFolder);
    QObject::connect(&documentFlow, &DocumentFlow::imageExported, &applicationSettings,
                     &ApplicationSettings::rememberExportFolder);
    QObject::connect(&documentFlow, &DocumentFlow::recentFileFailed, &applicationSettings,
                     &ApplicationSettings::removeRecentFile);
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

void prepareEngine(QQmlApplicationEngine &engine, Application &application, ApplicationContext &context)
{
    engine.addImageProvider(u"export-preview"_s, new ExportPreviewImageProvider(context.exportPreviewStore));
    engine.addImageProvider(kShapePreviewProviderId, new ShapePreviewImageProvider);
    engine.addImageProvider(u"layer-thumbnail"_s, new LayerThumbnailProvider(context.layerThumbnailStore));

    const auto object = [](QObject &of) { return QVariant::fromValue(&of); };
    const QString fileOpenRequests = u"applicationFileOpenRequests"_s;
    const QList<QQmlContext::PropertyPair> objects{
        {u"debugBuild"_s, kDebugBuild},
        {fileOpenRequests, object(application)},
        {u"runtimeFlags"_s, object(context.runtimeFlags)},
        {u"applicationInfoController"_s, object(context.applicationInfoController)},
        {u"applicationSettings"_s, object(context.applicationSettings)},
        {u"applicationTheme"_s, object(context.applicationTheme)},
        {u"commandHistory"_s, object(context.commandHistory)},
        {u"sceneObjectAdapter"_s, object(context.sceneObjectAdapter)},
        {u"scenePresentationModel"_s, object(context.scenePresentationModel)},
        {u"editorStateModel"_s, object(context.editorStateModel)},
        {u"documentPropertiesAdapter"_s, object(context.documentPropertiesAdapter)},
        {u"shapePickerModel"_s, object(context.shapePickerModel)},
        {u"noticeCatalogModel"_s, object(context.noticeCatalogModel)},
        {u"editorController"_s, object(context.editorController)},
        {u"fileManager"_s, object(context.fileManager)},
        {u"documentFileController"_s, object(context.documentFileController)},
        {u"exportController"_s, object(context.exportController)},
        {u"documentFlow"_s, object(context.documentFlow)},
        {u"userNotifications"_s, object(UserNotificationCenter::instance())},
    };
    QVariantMap windowProperties;
    for (const QQmlContext::PropertyPair &named : objects)
        windowProperties.insert(named.name, named.value);
    windowProperties.remove(fileOpenRequests); // the flow takes them
    engine.setInitialProperties(windowProperties);
    engine.rootContext()->setContextProperties(objects);

    context.documentFlow.setFileOpenRequests([&application] { return application.takePendingFileOpenRequest(); });
    QObject::connect(&application, &Application::pendingFileOpenRequestAvailable, &context.documentFlow,
                     &DocumentFlow::processFileOpenRequestsLater);
}

} // namespace zm
