// The parts of the export benchmark that need a process of their own, because a process's peak memory never falls:
//   export_child make FILE              writes a photograph-like JPEG of 24 megapixels
//   export_child webp INPUT OUTPUT      the same picture as the WebP file that a document holds
//   export_child document INPUT OUTPUT  the same picture as a document
//   export_child recode INPUT OUTPUT    the floor: Qt's reader and writer, nothing between them
//   export_child measure PROGRAM ...    runs the program, prints its milliseconds and its peak memory in KiB

#include "document/document.h"
#include "io/document/embedded_image.h"
#include "io/document/zelmora_document_io.h"
#include "io/image_allocation.h"
#include "io/pictures/image_import.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QRandomGenerator>

#include <cmath>
#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kQuality = 92;

/// Slow changes of light, some detail, and sensor noise: what a JPEG encoder meets in a photograph.
int makePhoto(const QString &path)
{
    QImage photo(6000, 4000, QImage::Format_RGB32);
    QRandomGenerator random(24);
    const auto level = [](double value) { return int(std::clamp(value, 0.0, 255.0)); };
    for (int y = 0; y < photo.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x) {
            const double noise = int(random.generate() >> 28) - 8;
            const double detail = 25.0 * std::sin(x * 0.05) * std::cos(y * 0.04) + noise;
            row[x] = qRgb(level(128 + 100 * std::sin(x * 0.003 + y * 0.001) + detail),
                          level(128 + 90 * std::sin(y * 0.004) + detail),
                          level(120 + 80 * std::cos(x * 0.002 - y * 0.003) + noise));
        }
    }
    return photo.save(path, "jpeg", kQuality) ? 0 : 1;
}

int writeLosslessWebp(const QString &input, const QString &output)
{
    zm::Error error;
    const std::optional<QByteArray> webp = zm::encodeWebp(QImage(input), zm::EmbeddedImageMode::Lossless, error);
    QFile file(output);
    return webp && file.open(QIODevice::WriteOnly) && file.write(*webp) == webp->size() ? 0 : 1;
}

int writeDocument(const QString &input, const QString &output)
{
    zm::Document document;
    zm::ImageImportResult imported = zm::importImageLayer(input);
    return imported.layer && zm::replaceWithImage(document, std::move(imported.layer)) == zm::ImageImportError::None
            && zm::ZelmoraDocumentIO::writeDocumentFile(document, output, false)
        ? 0
        : 1;
}

int recode(const QString &input, const QString &output)
{
    const QImage image = QImageReader(input).read();
    QImageWriter writer(output, "jpeg");
    writer.setQuality(kQuality);
    return writer.write(image) ? 0 : 1;
}

int measure(char **command)
{
    QElapsedTimer timer;
    timer.start();
    const pid_t child = fork();
    if (child == 0) {
        execv(command[0], command);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0)
        return 1;
    std::printf("%.3f %ld\n", double(timer.nsecsElapsed()) / 1e6, usage.ru_maxrss);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc >= 3 && QByteArrayView(argv[1]) == "measure")
        return measure(argv + 2);
    const QCoreApplication application(argc, argv);
    zm::raiseImageAllocationLimit();
    const QStringList words = application.arguments();
    if (words.size() == 3 && words[1] == "make"_L1)
        return makePhoto(words[2]);
    if (words.size() == 4 && words[1] == "webp"_L1)
        return writeLosslessWebp(words[2], words[3]);
    if (words.size() == 4 && words[1] == "document"_L1)
        return writeDocument(words[2], words[3]);
    if (words.size() == 4 && words[1] == "recode"_L1)
        return recode(words[2], words[3]);
    return 2;
}
