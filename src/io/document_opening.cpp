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

bool replaceWithLoaded(Document &document, LoadedDocument loaded)
{
    std::vector<std::unique_ptr<SceneObject>> objects;
    objects.reserve(loaded.layers.size());
    for (std::unique_ptr<Layer> &layer : loaded.layers)
        objects.push_back(std::move(layer));
    return document.replaceContents(loaded.documentSize, loaded.backgroundColor, std::move(objects));
}

QString openDocument(Document &document, const QString &path)
{
    if (!hasDocumentSuffix(path)) {
        ImageImportResult imported = importImageLayer(path);
        if (imported.layer)
            imported.error = replaceWithImage(document, std::move(imported.layer));
        return importErrorText(imported.error);
    }
    QString error;
    std::optional<LoadedDocument> loaded = ZelmoraDocumentIO::readDocumentFile(path, &error);
    if (loaded && !replaceWithLoaded(document, *std::move(loaded)))
        error = QCoreApplication::translate("zm::DocumentFileController", "Could not replace the current document.");
    return error;
}

} // namespace zm
