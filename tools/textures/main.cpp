// make_textures FAMILY FOLDER: draws the textures of a family into FOLDER/FAMILY/ and writes FOLDER/FAMILY.qrc, from
// which rcc makes the bundle. The same pictures come out every time.

#include "tiles.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "make_textures: %s\n", qUtf8Printable(message));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return fail(u"usage: make_textures FAMILY FOLDER"_s);
    const QString family = QString::fromLocal8Bit(argv[1]);
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    if (!folder.mkpath(family))
        return fail(u"cannot make %1"_s.arg(folder.filePath(family)));

    QString list = u"<RCC>\n<qresource prefix=\"/textures\">\n"_s;
    bool anyDrawn = false;
    for (const zm::textures::TextureRecipe &recipe : zm::textures::allTextures()) {
        if (family != QLatin1StringView(recipe.family))
            continue;
        const QString path = family + u'/' + QLatin1StringView(recipe.file);
        if (!recipe.draw().save(folder.filePath(path)))
            return fail(u"cannot write %1"_s.arg(folder.filePath(path)));
        list += u"<file>%1</file>\n"_s.arg(path);
        anyDrawn = true;
    }
    list += "</qresource>\n</RCC>\n"_L1;
    if (!anyDrawn)
        return fail(u"there is no family %1"_s.arg(family));

    QFile file(folder.filePath(family + ".qrc"_L1));
    const QByteArray text = list.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return fail(u"cannot write %1"_s.arg(file.fileName()));
    return 0;
}
