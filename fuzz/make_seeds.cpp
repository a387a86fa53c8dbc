// Writes the inputs that the fuzz targets begin with: small documents of all kinds, JPEG and WebP files.

#include "fuzz_support.h"
#include "io/document/zelmora_document_io.h"
#include "io/pictures/software_tag.h"
#include "support/pictures.h"
#include "support/random_document.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>

using namespace zm;
using namespace zm::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kDocuments = 120;

bool save(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Documents of one layer, which teach more than larger ones, some with several, and one of an old version.
bool saveDocuments(const QDir &folder)
{
    QRandomGenerator random(1);
    for (int i = 0; i < kDocuments; ++i) {
        std::unique_ptr<Document> document = randomDocument(random);
        if (i % 4 > 0) {
            document = std::make_unique<Document>();
            document->insertObject(randomLayer(random));
        }
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        if (!ZelmoraDocumentIO::writeDocument(*document, &buffer, i % 3 == 0))
            return false;
        QByteArray bytes = buffer.data();
        bytes[4] = char(i % 7 == 0 ? 1 + i % 5 : 5);
        if (!save(folder.filePath(u"%1.zelmora"_s.arg(i)), bytes))
            return false;
    }
    return true;
}

bool savePictures(const QDir &folder)
{
    int number = 0;
    for (const QImage &image : {gradientPicture(17, 9), noisePicture(8, 8, 1), plainPicture(1, 1, Qt::transparent)}) {
        for (const QByteArray &format : {"jpeg"_ba, "webp"_ba}) {
            for (const int quality : {30, 100}) { // 100 makes WebP lossless
                QBuffer buffer;
                QImageWriter writer(&buffer, format);
                writer.setQuality(quality);
                if (!buffer.open(QIODevice::WriteOnly) || !writer.write(image))
                    return false;
                QByteArray tagged = buffer.data();
                if (!embedSoftwareTag(tagged, format, u"Zelmora Atelier"_s)
                    || !save(folder.filePath(QString::number(number++)), buffer.data())
                    || !save(folder.filePath(QString::number(number++)), tagged))
                    return false;
            }
        }
    }
    return true;
}

} // namespace

/// make_fuzz_seeds FOLDER
int main(int argc, char **argv)
{
    fuzz::application();
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    for (const QString &target : {u"fuzz_document"_s, u"fuzz_software_tag"_s}) {
        if (!folder.mkpath(target))
            return 1;
    }
    return saveDocuments(QDir(folder.filePath(u"fuzz_document"_s)))
            && savePictures(QDir(folder.filePath(u"fuzz_software_tag"_s)))
        ? 0
        : 1;
}
