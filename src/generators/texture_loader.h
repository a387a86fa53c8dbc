#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QLoggingCategory>

namespace zm {

/// "zelmoraatelier.textures": what could not be found or read.
Q_DECLARE_LOGGING_CATEGORY(lcTextures)

/// Finds textures by a logical path such as "star-mask/sparkles.png", whose folder is the texture's family. Usable from
/// any thread.
class TextureLoader
{
    Q_DECLARE_TR_FUNCTIONS(TextureLoader)

public:
    TextureLoader() = default;
    virtual ~TextureLoader() = default;
    Q_DISABLE_COPY_MOVE(TextureLoader)

    /// The picture as RGBA8888 with straight alpha; null if there is none, which the user has then been told.
    virtual QImage loadImage(const QString &path) = 0;
};

} // namespace zm
