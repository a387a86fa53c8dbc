#include "commands/command_history.h"
#include "commands/object_property_commands.h"
#include "document/document.h"
#include "editor/document_file_controller.h"
#include "editor/export_controller.h"
#include "editor/export_preview_image_provider.h"
#include "editor/export_preview_image_store.h"
#include "filters/filter_registry.h"
#include "filters/filter_result_cache.h"
#include "rendering/opengl_texture_renderer.h"
#include "scene/scene_renderer.h"
#include "services/render_services.h"
#include "support/pictures.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtConcurrentRun>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// A document with one picture, in a folder of its own.
struct Fixture
{
    QTemporaryDir folder;
    Document document;
    CommandHistory history{&document};
    DocumentFileController files{&document, &history};
    std::shared_ptr<ExportPreviewImageStore> store = std::make_shared<ExportPreviewImageStore>();
    ExportController controller{&document, &files, store};
    QSignalSpy saved{&controller, &ExportController::saveSucceeded};
    QSignalSpy failed{&controller, &ExportController::sessionSaveFailed};
    QUuid layerId;

    explicit Fixture(const QImage &picture = test::gradientPicture(40, 30))
    {
        picture.save(path(u"in.png"_s));
        if (files.load(url(u"in.png"_s)))
            layerId = document.objectAt(0)->id();
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(path(name)); }

    void rename(const QString &name)
    {
        history.push(std::make_unique<RenameSceneObjectCommand>(&document, layerId, name));
    }

    QByteArray bytes(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// With an export that can be repeated, to out.png and out.zelmora.
    bool exported()
    {
        controller.begin(true);
        controller.setFormatKey(u"png"_s);
        return QTest::qWaitFor([this] { return controller.previewReady(); }, 20'000)
            && controller.exportTo(url(u"out.png"_s));
    }

    /// Puts a folder where a file is written, so that writing fails.
    void block(const QString &name)
    {
        QFile::remove(path(name));
        QDir().mkpath(path(name) + u"/x"_s);
    }
};

FilterInstance instanceOf(const QString &filterId, bool enabled = true)
{
    return {QUuid::createUuid(), filterId, {}, enabled};
}

} // namespace

class ExportControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void startsAtTheSizeOfWhatIsExported_data()
    {
        QTest::addColumn<QSizeF>("documentSize");
        QTest::addColumn<bool>("clip");
        QTest::addColumn<QSize>("size");
        QTest::newRow("document") << QSizeF(400, 300) << true << QSize(400, 300);
        QTest::newRow("layers") << QSizeF(400, 300) << false << QSize(40, 30);
        QTest::newRow("above the limit") << QSizeF(20'000, 10'000) << true << QSize(8192, 4096);
        QTest::newRow("tiny") << QSizeF(4, 4) << true << QSize(16, 16);
        QTest::newRow("thin") << QSizeF(10'000, 3) << true << QSize(8192, 16);
    }

    void startsAtTheSizeOfWhatIsExported()
    {
        QFETCH(const QSizeF, documentSize);
        QFETCH(const bool, clip);
        QFETCH(const QSize, size);
        Fixture fixture;
        fixture.document.setSize(documentSize);
        QVERIFY(fixture.controller.begin(clip));
        QCOMPARE(QSize(fixture.controller.outputWidth(), fixture.controller.outputHeight()), size);
        QCOMPARE(fixture.controller.clipToDocument(), clip);
        QCOMPARE(fixture.controller.formatKey(), u"jpeg"_s);
        QCOMPARE(fixture.controller.quality(), 92);
    }

    void sidesFollowEachOther()
    {
        Fixture fixture;
        fixture.document.setSize({400, 200});
        ExportController &controller = fixture.controller;
        QVERIFY(controller.begin(true));
        const auto size = [&controller] { return QSize(controller.outputWidth(), controller.outputHeight()); };
        controller.setOutputWidth(1000);
        QCOMPARE(size(), QSize(1000, 500));
        controller.setOutputHeight(101);
        QCOMPARE(size(), QSize(202, 101));
        controller.setOutputHeight(8000);
        QCOMPARE(size(), QSize(8192, 4096));
        controller.setOutputWidth(-5);
        QCOMPARE(size(), QSize(16, 16));
        controller.setKeepAspectRatio(false);
        controller.setOutputWidth(99'999);
        controller.setOutputHeight(50);
        QCOMPARE(size(), QSize(8192, 50));
    }

    void settingsTakeOnlyWhatTheyCan()
    {
        Fixture fixture;
        ExportController &controller = fixture.controller;
        QVERIFY(controller.begin(true));
        const std::tuple<QString, QString, bool, bool> formats[] = {
            {u"webpTransparent"_s, u"webp"_s, true, true},
            {u"png"_s, u"png"_s, false, false},
            {u"pngTransparent"_s, u"png"_s, false, true},
            {u"webp"_s, u"webp"_s, true, false},
            {u"bmp"_s, u"jpg"_s, true, false},
        };
        for (const auto &[key, suffix, hasQuality, transparent] : formats) {
            controller.setFormatKey(key);
            QCOMPARE(controller.defaultSuffix(), suffix);
            QCOMPARE(controller.qualityControlEnabled(), hasQuality);
            QCOMPARE(controller.transparentBackground(), transparent);
            QCOMPARE(controller.suggestedFileUrl(), fixture.url(u"in."_s + suffix));
        }
        QCOMPARE(controller.formatKey(), u"jpeg"_s);
        QCOMPARE(controller.fileNameFilter(), u"JPEG images (*.jpg *.jpeg)"_s);
        QSignalSpy changes(&controller, &ExportController::settingsChanged);
        controller.setQuality(900);
        controller.setQuality(100);
        QCOMPARE(controller.quality(), 100);
        controller.setQuality(-1);
        QCOMPARE(controller.quality(), 0);
        QCOMPARE(changes.count(), 2);
    }

    void fileHoldsTheBytesOfThePreview()
    {
        Fixture fixture;
        ExportController &controller = fixture.controller;
        fixture.rename(u" a/b?. "_s);
        QVERIFY(controller.begin(true));
        QCOMPARE(controller.suggestedFileUrl(), fixture.url(u"a_b_.jpg"_s));
        QVERIFY(controller.previewBusy() && !controller.previewReady());
        QVERIFY(!controller.exportTo(fixture.url(u"out.jpg"_s)));
        QCOMPARE(controller.errorString(), u"The image preview is not ready."_s);
        QTRY_VERIFY(controller.previewReady());
        QVERIFY(!controller.previewBusy() && !controller.encodedSizeText().isEmpty());
        controller.setLosslessDocumentFile(true);
        QVERIFY2(controller.previewReady(), "the picture is the same");

        ExportPreviewImageProvider provider(fixture.store);
        QVERIFY(controller.previewSource().toString().startsWith(u"image://export-preview/"));
        QSize size;
        const auto ask = [&](const QSize &wanted) {
            return QtConcurrent::run([&] { return provider.requestImage({}, &size, wanted); }).result();
        };
        const QImage shown = ask({});
        QCOMPARE(size, QSize(40, 30));
        QCOMPARE(ask({20, 20}).size(), QSize(20, 15));
        const auto part = [&](const QString &id) { return provider.requestImage(id, &size, {}); };
        QCOMPARE(part(u"1/30,10,10,15"_s), shown.copy(30, 10, 10, 15));
        QCOMPARE(part(u"1/30,20,20,20"_s).size(), QSize(10, 10)); // cut at the edge
        QCOMPARE(part(u"1/40,0,10,10"_s).pixelColor(0, 0).alpha(), 0);

        const std::pair<QUrl, QString> refusals[] = {
            {QUrl(u"https://example.org/a.jpg"_s), u"Only local save destinations are supported."_s},
            {fixture.url(u"a.png"_s),
             u"The filename extension does not match the selected image format: JPEG images (*.jpg *.jpeg)"_s},
            {fixture.url(u".jpg"_s), u"Choose a filename for the image."_s},
        };
        for (const auto &[target, message] : refusals) {
            QVERIFY(!controller.exportTo(target));
            QCOMPARE(controller.errorString(), message);
        }
        QVERIFY(!controller.exportTo(fixture.url(u"missing/a.jpg"_s)));
        QVERIFY(controller.errorString().startsWith(u"Could not save the image: "));
        QVERIFY(fixture.files.documentUrl().isEmpty() && !controller.hasSessionExport());

        QVERIFY(!fixture.history.isClean());
        QVERIFY(controller.exportTo(fixture.url(u"OUT.JPEG"_s)));
        QCOMPARE(controller.errorString(), QString());
        QCOMPARE(fixture.saved.value(0).value(0).toUrl(), fixture.url(u"OUT.JPEG"_s));
        QCOMPARE(controller.lastExportUrl(), fixture.url(u"OUT.JPEG"_s));
        QCOMPARE(QImage(fixture.path(u"OUT.JPEG"_s)), shown);
        QVERIFY(fixture.bytes(u"OUT.JPEG"_s).contains("Zelmora Atelier"));
        QCOMPARE(fixture.files.documentUrl(), fixture.url(u"OUT.zelmora"_s));
        QCOMPARE(fixture.files.pairedImageUrl(), fixture.url(u"OUT.JPEG"_s));
        QVERIFY(fixture.history.isClean() && controller.hasSessionExport());
        QVERIFY2(fixture.store->image().isNull() && controller.previewSource().isEmpty(), "the session is over");

        DocumentFileController again(&fixture.document, &fixture.history);
        QVERIFY(again.load(fixture.url(u"OUT.JPEG"_s)));
        QCOMPARE(fixture.document.objectAt(0)->name(), u" a/b?. "_s);
    }

    void changesDuringARunGiveOneResultAndItIsTheLast()
    {
        Fixture fixture(test::noisePicture(1500, 1000, 1)); // slow enough to be overtaken
        ExportController &controller = fixture.controller;
        QSignalSpy sources(&controller, &ExportController::previewSourceChanged);
        QVERIFY(controller.begin(true));
        controller.setFormatKey(u"png"_s);
        QTest::qWait(ExportController::kPreviewDelayMs + 20);
        controller.setFormatKey(u"webp"_s);
        QTest::qWait(ExportController::kPreviewDelayMs + 20);
        controller.setOutputWidth(300);
        controller.setFormatKey(u"png"_s);
        QTRY_VERIFY_WITH_TIMEOUT(controller.previewReady(), 20'000);
        QTest::qWait(100);
        QCOMPARE(sources.count(), 1);
        QVERIFY(controller.exportTo(fixture.url(u"out"_s)));
        QCOMPARE(QImage(fixture.path(u"out.png"_s)).size(), QSize(300, 200));

        QVERIFY(controller.begin(true));
        QCOMPARE(controller.outputWidth(), 300); // as the last time
        controller.setOutputWidth(1500);
        QTest::qWait(ExportController::kPreviewDelayMs + 20);
        controller.end();
        QTest::qWait(300);
        QVERIFY(fixture.store->image().isNull() && !controller.previewBusy() && !controller.previewReady());
        QVERIFY(controller.begin(true));
        QTest::qWait(ExportController::kPreviewDelayMs + 20); // and goes away in the middle of the next
    }

    void documentThatCannotBeWrittenLeavesTheImage()
    {
        Fixture fixture;
        fixture.rename(u"x"_s);
        fixture.block(u"out.zelmora"_s);
        QVERIFY(!fixture.exported());
        QVERIFY2(fixture.controller.errorString().startsWith(
                     u"The image was saved, but the editable .zelmora file could not be saved: "),
                 qPrintable(fixture.controller.errorString()));
        QVERIFY(fixture.controller.errorString().endsWith(fixture.files.lastError()));
        QCOMPARE(QImage(fixture.path(u"out.png"_s)).size(), QSize(40, 30));
        QVERIFY(!fixture.controller.hasSessionExport() && !fixture.history.isClean() && fixture.saved.isEmpty());
    }

    void plainSaveRepeatsTheExport()
    {
        Fixture fixture;
        ExportController &controller = fixture.controller;
        QVERIFY(!controller.saveToSessionExport());
        QCOMPARE(controller.errorString(), u"Choose save settings before saving this image."_s);
        QVERIFY(fixture.exported());
        QVERIFY(controller.begin(true));
        QVERIFY(!controller.saveToSessionExport());
        QCOMPARE(controller.errorString(), u"Close the Export Settings dialog before saving."_s);
        controller.end();

        fixture.rename(u"y"_s);
        fixture.document.setSize({40, 60}); // in other proportions than those of the export
        QVERIFY(controller.saveToSessionExport());
        QVERIFY(controller.sessionSaveBusy() && fixture.history.isClean());
        QVERIFY(!controller.saveToSessionExport() && !controller.begin(true));
        QCOMPARE(controller.errorString(), u"Wait for the current save to finish."_s);
        QTRY_COMPARE(fixture.saved.count(), 2);
        QVERIFY(!controller.sessionSaveBusy());
        QCOMPARE(QImage(fixture.path(u"out.png"_s)).size(), QSize(40, 60));
        QCOMPARE(fixture.files.pairedImageUrl(), fixture.url(u"out.png"_s));

        fixture.block(u"out.png"_s);
        const QByteArray before = fixture.bytes(u"out.zelmora"_s);
        fixture.rename(u"a longer name"_s);
        QVERIFY(controller.saveToSessionExport());
        QTRY_COMPARE(fixture.failed.count(), 1);
        QVERIFY(fixture.failed[0][0].toString().startsWith(
            u"The editable .zelmora file was saved, but the image could not be updated: "));
        QVERIFY(!controller.sessionSaveBusy() && fixture.bytes(u"out.zelmora"_s) != before);

        fixture.block(u"out.zelmora"_s);
        fixture.rename(u"z"_s);
        QVERIFY(!controller.saveToSessionExport());
        QVERIFY(!controller.sessionSaveBusy() && !fixture.history.isClean());
        QCOMPARE(fixture.failed[1][0].toString(),
                 u"Could not save the editable .zelmora file: "_s + fixture.files.lastError());
        QCOMPARE(controller.errorString(), fixture.failed[1][0].toString());

        QVERIFY(fixture.files.resetDocument(50, 50, Qt::white));
        QVERIFY2(!controller.hasSessionExport(), "the files belong to the document before");
    }

    void filtersDecideWhetherAndHow()
    {
        Fixture fixture;
        ExportController &controller = fixture.controller;
        const auto &filters = FilterRegistry::instance().filters();
        const auto transparent = std::ranges::find_if(
            filters, [](const auto &filter) { return filter->flags().testFlag(FilterFlag::PrefersTransparentExport); });
        QVERIFY(transparent != filters.end());
        fixture.document.setLayerFilters(fixture.layerId,
                                         {instanceOf(u"renaissance"_s, false), instanceOf((*transparent)->id())});
        QVERIFY(controller.begin(true) && controller.prefersTransparentExport());
        QCOMPARE(controller.formatKey(), u"webpTransparent"_s);
        fixture.document.setLayerFilters(fixture.layerId,
                                         {instanceOf(u"renaissance"_s), instanceOf((*transparent)->id(), false)});
        QVERIFY(!controller.begin(true));
        QCOMPARE(
            controller.errorString(),
            u"An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting."_s);
        fixture.document.setObjectVisible(fixture.layerId, false);
        QVERIFY(controller.begin(true) && !controller.prefersTransparentExport());
        QCOMPARE(controller.formatKey(), u"jpeg"_s);
    }

    void exportsWhatTheRendererMakes()
    {
        OpenGLTextureRenderer renderer;
        if (renderer.maximumTextureSize() <= 0)
            QSKIP("No OpenGL context can be created here.");
        const RenderServices services{nullptr, &renderer, &renderer, nullptr};
        Fixture fixture;
        fixture.controller.setRenderServices(&services);
        fixture.document.setLayerFilters(fixture.layerId, {instanceOf(u"grayscale"_s)});
        const QImage expected = renderDocumentImage(buildSceneSnapshot(fixture.document, {}, &services), 1.0);
        QVERIFY(test::maximumDifference(expected, test::gradientPicture(40, 30)) > 0);
        QVERIFY(fixture.exported());
        QCOMPARE(fixture.controller.maximumDimension(), std::min(renderer.maximumTextureSize(), 8192));
        QCOMPARE(test::maximumDifference(QImage(fixture.path(u"out.png"_s)), expected), 0);
    }
};

QTEST_MAIN(ExportControllerTest)
#include "tst_export_controller.moc"
