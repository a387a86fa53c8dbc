#include "io/save_target.h"

#include <QFileInfo>

namespace zm {

bool mayBeReplaced(const QString &path)
{
    const QFileInfo target(path);
    return !target.exists() || target.isFile() || target.isDir();
}

} // namespace zm
