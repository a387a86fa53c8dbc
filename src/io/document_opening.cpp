#include "io/document_opening.h"

#include "io/pictures/image_import.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace zm {

bool hasDocumentSuffix(const QString &path)
{
    return QFileInfo(path).suffix().compare("zelmora"_L1, Qt::CaseInsensitive) == 0;
}

bool replaceWithLoaded(Document &document, LoadedDocument loaded, Error &error)
{
    std::vector<std::unique_ptr<SceneObject>> objects;
    objects.reserve(loaded.layers.size());
    for (std::unique_ptr<Layer> &layer : loaded.layers)
        objects.push_back(std::move(layer));
    if (document.replaceContents(loaded.documentSize, loaded.backgroundColor, std::move(objects)))
        return true;
    return error.fail(
        QCoreApplication::translate("zm::DocumentFileController", "Could not replace the current document."));
}

bool openDocument(Document &document, const QString &path, Error &error)
{
    if (!hasDocumentSuffix(path)) {
        ImageImportResult imported = importImageLayer(path);
        if (imported.layer)
            imported.error = replaceWithImage(document, std::move(imported.layer));
        return imported.error == ImageImportError::None || error.fail(importErrorText(imported.error));
    }
    std::optional<LoadedDocument> loaded = ZelmoraDocumentIO::readDocumentFile(path, error);
    return loaded && replaceWithLoaded(document, *std::move(loaded), error);
}

} // namespace zm
