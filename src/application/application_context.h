#pragma once

#include "application/application_info_controller.h"
#include "application/application_settings.h"
#include "application/application_theme_controller.h"
#include "commands/command_history.h"
#include "document/document.h"
#include "editor/document_file_controller.h"
#include "editor/document_flow.h"
#include "editor/document_properties_adapter.h"
#include "editor/editor_controller.h"
#include "editor/editor_state_model.h"
#include "editor/export_controller.h"
#include "editor/export_preview_image_store.h"
#include "editor/file_manager_controller.h"
#include "editor/layer_thumbnail_store.h"
#include "editor/layer_thumbnails.h"
#include "editor/notice_catalog_model.h"
#include "editor/scene_object_adapter.h"
#include "editor/shape_picker_model.h"
#include "filters/filter_result_cache.h"
#include "generators/bundled_texture_loader.h"
#include "rendering/opengl_texture_renderer.h"
#include "scene/scene_presentation_model.h"
#include "services/render_services.h"
#include "services/runtime_flags.h"

class QQmlApplicationEngine;

namespace zm {

class Application;

/// Every long-lived object of the editor, made in the order of declaration and destroyed in reverse: nothing else
/// lives long, and nothing is made on demand. All belong to the main thread.
struct ApplicationContext
{
    ApplicationContext();
    Q_DISABLE_COPY_MOVE(ApplicationContext)

    Document document; // 800 by 600, white, empty
    CommandHistory commandHistory{&document};
    ApplicationInfoController applicationInfoController;
    ApplicationSettings applicationSettings;
    ApplicationThemeController applicationTheme{applicationSettings};
    BundledTextureLoader textureLoader{textureBundleDirectories(), textureSearchRoots()};
    OpenGLTextureRenderer textureRenderer;
    /// Finished results of filter stacks, for the next evaluation.
    FilterResultCache filterResults;
    RenderServices renderServices{&textureLoader, &textureRenderer, &textureRenderer, &filterResults};
    EditorStateModel editorStateModel;
    SceneObjectAdapter sceneObjectAdapter{&document, &commandHistory};
    ScenePresentationModel scenePresentationModel{&document};
    /// Shared with the engine's image provider.
    std::shared_ptr<LayerThumbnailStore> layerThumbnailStore = std::make_shared<LayerThumbnailStore>();
    LayerThumbnails layerThumbnails{&document, &scenePresentationModel, &renderServices, layerThumbnailStore};
    DocumentPropertiesAdapter documentPropertiesAdapter{&document, &commandHistory};
    ShapePickerModel shapePickerModel;
    NoticeCatalogModel noticeCatalogModel;
    RuntimeFlags runtimeFlags;
    DocumentFileController documentFileController{&document, &commandHistory};
    EditorController editorController{&document, &commandHistory};
    FileManagerController fileManager;
    /// Shared with the engine's image provider.
    std::shared_ptr<ExportPreviewImageStore> exportPreviewStore = std::make_shared<ExportPreviewImageStore>();
    ExportController exportController{&document, &documentFileController, exportPreviewStore};
    DocumentFlow documentFlow{&commandHistory, &documentFileController, &editorController, &editorStateModel,
                              &exportController};
};

/// Gives the engine what the window needs, before the window is made: the objects by their names, as context properties
/// and as what the window requires of whoever makes it, and the providers of pictures that are made at run time. Files
/// that the application is asked to open go to the context's flow of documents from here on.
void prepareEngine(QQmlApplicationEngine &engine, Application &application, ApplicationContext &context);

} // namespace zm
