#include "application/application_context.h"
#include "editor/shape_preview_image_provider.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

using EditorMode = EditorStateModel::EditorMode;
using OverlayMode = EditorStateModel::OverlayMode;

struct Fixture
{
    Document document;
    CommandHistory history{&document};
    EditorController controller{&document, &history};
    QSignalSpy added{&controller, &EditorController::sceneObjectAdded};

    /// Those told with the last layer.
    QRectF bounds() const { return added.last().at(0).toRectF(); }
    bool fitsView() const { return added.last().at(1).toBool(); }
};

TextRun run(const QString &text, double pointSize)
{
    TextRun run = defaultTextRun();
    run.text = text;
    run.font.setPointSizeF(pointSize);
    return run;
}

} // namespace

class EditorControllerTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() // not the user's settings
    {
        static const QTemporaryDir home;
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    }

private slots:
    void initTestCase()
    {
        QVERIFY(test::gradientPicture(400, 300).save(m_folder.filePath(u"photo.png"_s)));
        QVERIFY(test::gradientPicture(10, 10).save(m_folder.filePath(u"small.png"_s)));
        for (const QString &name : {u"broken.png"_s, u"broken.SVG"_s}) {
            QFile file(m_folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
        }
    }

    void modesAndOverlays()
    {
        const int overlayOfMode[] = {0, 1, 2, 3, 4, 4, 4, 4, 0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
        const int modeOfOverlay[] = {0, 1, 2, 3, 4, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 0};
        EditorStateModel state;
        QSignalSpy changes(&state, &EditorStateModel::modeChanged);
        QCOMPARE(state.mode(), EditorMode::Transform);
        for (int mode = 0; mode < 19; ++mode) {
            state.setMode(EditorMode(mode));
            QCOMPARE(int(state.overlayMode()), overlayOfMode[mode]);
            QCOMPARE(state.paintActive(), overlayOfMode[mode] == 4);
            state.setOverlayMode(OverlayMode::Brush);
            QCOMPARE(int(state.mode()), overlayOfMode[mode] == 4 ? mode : 4);
        }
        for (int overlay = 0; overlay < 16; ++overlay) {
            state.setMode(EditorMode::RasterFill);
            state.setOverlayMode(OverlayMode(overlay));
            QCOMPARE(int(state.mode()), modeOfOverlay[overlay]);
        }
        changes.clear();
        state.activateRelightMode();
        state.activateRelightMode();
        QVERIFY(state.relightActive() && changes.count() == 1);
    }

    void picturesAreFittedUnlessTheyAreTheFirst()
    {
        Fixture fixture;
        fixture.controller.setAddLayerViewportRect({150, 80, -100, -80}); // from (50, 0)
        QVERIFY(fixture.controller.addImage(url(u"photo.png"_s)));
        QCOMPARE(fixture.document.selectedObject()->transform().scale(), QPointF(1, 1));
        QCOMPARE(fixture.bounds(), QRectF(-100, -110, 400, 300));
        QVERIFY(fixture.fitsView());
        QVERIFY(fixture.controller.addImage(url(u"photo.png"_s)));
        QCOMPARE(fixture.document.selectedObject()->transform().scale(), QPointF(0.25, 0.25));
        QCOMPARE(fixture.bounds(), QRectF(50, 2.5, 100, 75));
        QVERIFY(!fixture.fitsView());
        QCOMPARE(fixture.document.indexOf(fixture.document.selectedObjectId()), 1);
        for (const double bad : {0.5, qInf(), qQNaN()}) {
            fixture.controller.setAddLayerViewportRect({200, 0, bad, 10});
            QVERIFY(fixture.controller.addImage(url(u"small.png"_s)));
            QCOMPARE(fixture.bounds(), QRectF(-5, -5, 10, 10)); // in the document, and never enlarged
        }
        for (qsizetype i = 0; i < fixture.document.objectCount(); ++i)
            fixture.document.setObjectVisible(fixture.document.objectAt(i)->id(), false);
        QVERIFY(fixture.controller.addImage(url(u"photo.png"_s)) && fixture.fitsView());
        fixture.history.undo();
        QCOMPARE(fixture.document.objectCount(), 5);
    }

    void failuresAreToldAndLeaveTheDocumentAlone()
    {
        Fixture fixture;
        const QString before = test::describe(fixture.document);
        const std::pair<QUrl, QString> files[] = {
            {QUrl(u"https://example.org/a.png"_s), u"Only local image files are supported."_s},
            {QUrl::fromLocalFile(m_folder.path()), u"Choose an existing image file."_s},
            {url(u"broken.png"_s), u"Zelmora Atelier could not load the selected image."_s},
            {url(u"broken.SVG"_s), u"Could not load the selected SVG image."_s}};
        for (const auto &[file, message] : files) {
            QVERIFY(!fixture.controller.addImage(file));
            QCOMPARE(fixture.controller.lastError(), message);
        }
        QVERIFY(!fixture.controller.addShape(u"star"_s));
        QCOMPARE(test::describe(fixture.document), before);
        QCOMPARE(fixture.history.count(), 0);
        QVERIFY(fixture.controller.addImage(url(u"small.png"_s)));
        QCOMPARE(fixture.controller.lastError(), QString());
        connect(&fixture.document, &Document::selectionChanged, &fixture.document, &Document::clearSelection);
        QVERIFY(!fixture.controller.addImage(url(u"small.png"_s)));
        QCOMPARE(fixture.controller.lastError(), u"Could not add the selected image to the document."_s);
    }

    void textIsAsHighAtAnyZoom()
    {
        const QList<TextRun> mixed{run(u"a"_s, 30), run(u"b"_s, 7.5)}; // 40 and 10 pixels
        const std::tuple<QList<TextRun>, double, QList<int>, double> rows[] = {
            {{}, 1.0, {90}, 0}, {{}, 2.0, {45}, 0},   {{}, 0.01, {2048}, 0},
            {{}, 48.0, {2}, 0}, {{}, 1000.0, {1}, 0}, {mixed, 0.75, {120, 30}, 600}};
        for (const auto &[runs, zoom, sizes, width] : rows) {
            Fixture fixture;
            fixture.controller.setViewScale(zoom);
            for (const double bad : {0.0, -1.0, qInf(), qQNaN()})
                fixture.controller.setViewScale(bad);
            if (!runs.isEmpty())
                fixture.controller.setTextTemplate({{TextParagraph{runs}}, 200});
            QVERIFY(fixture.controller.addText());
            const TextLayer *layer = fixture.document.textLayer(fixture.document.selectedObjectId());
            QCOMPARE(layer->name(), u"Text"_s);
            QCOMPARE(layer->state().textWidth, width);
            QList<int> found;
            for (const TextRun &piece : layer->state().blocks[0].runs)
                found.append(piece.font.pixelSize());
            QCOMPARE(found, sizes);
            QVERIFY(fixture.document.documentRect().adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(fixture.bounds()));
            QVERIFY(QLineF(fixture.bounds().center(), {}).length() < 1e-6 && !fixture.fitsView());
        }
    }

    void newTextLooksLikeTheSelectedOne()
    {
        ApplicationContext context;
        TextParagraph paragraph{{run(u"One"_s, 15), run(u"two"_s, 40)}, Qt::AlignRight};
        paragraph.runs[0].fill = QColor(Qt::red);
        const auto *other = context.document.insertObject(
            std::make_unique<TextLayer>(QList<TextParagraph>{paragraph, paragraph}, 300, u"x"_s));
        const auto newest = [&context] {
            const TextLayerState state = context.document.textLayer(context.document.selectedObjectId())->state();
            const TextParagraph &block = state.blocks[0];
            return std::tuple(block.runs[0].text, block.runs[0].fill.solidColor({}), block.alignment, state.textWidth);
        };
        context.document.selectObject(other->id());
        QVERIFY(context.editorController.addText());
        QCOMPARE(newest(), std::tuple(u"Text"_s, QColor(Qt::red), Qt::Alignment(Qt::AlignRight), 0.0));
        paragraph.runs[0].fill = QColor(Qt::blue);
        context.document.setTextLayerState(context.document.selectedObjectId(), {{paragraph}, 0});
        paragraph.runs[0].fill = QColor(Qt::green);
        context.document.setTextLayerState(other->id(), {{paragraph}, 0}); // not the selected one
        QVERIFY(context.editorController.addText());
        QCOMPARE(std::get<1>(newest()), QColor(Qt::blue));
    }

    void shapesAndPathsTakeTheirShareOfTheView()
    {
        const std::tuple<QString, QSizeF, QSizeF, Stroke> rows[] = {
            {u"star5"_s, {1000, 500}, {100, 100}, {QColor(0x22, 0x22, 0x22), 2}},
            {u"arrow-right"_s, {1000, 500}, {125, 100}, {Qt::black, 0}},
            {u"ellipse"_s, {60'000, 80'000}, {12'000, 8'000}, {Qt::black, 0}}, // 120 by 80 by itself
            {QString(), {1000, 500}, {1000, 500}, {Qt::black, 2}}};
        for (const auto &[id, view, size, stroke] : rows) {
            Fixture fixture;
            fixture.controller.setAddLayerViewportRect(QRectF({7, 9}, view));
            QVERIFY(id.isEmpty() ? fixture.controller.addPath() : fixture.controller.addShape(id));
            const ShapeLayer *layer = fixture.document.shapeLayer(fixture.document.selectedObjectId());
            QCOMPARE(layer->layerSize(), size);
            QCOMPARE(layer->stroke(), stroke);
            QCOMPARE(fixture.bounds().center(), QRectF({7, 9}, view).center());
            QCOMPARE(layer->generatedPath().isEmpty(), id.isEmpty());
        }
    }

    void pickerGroupsFiltersAndShowsShapes()
    {
        ShapePickerModel model;
        QStringList basic;
        for (const QVariant &item : model.categoryGroups()[0].toMap()[u"items"_s].toList())
            basic.append(item.toMap()[u"generatorId"_s].toString());
        QCOMPARE(basic.join(u' '),
                 u"rounded-rect ellipse triangle polygon vignette diamond rhombus half-circle arrow-right"_s);
        const std::tuple<QString, int, int> filters[] = {{u"STAR"_s, 1, 1}, {u"bAsIc"_s, 9, 1}, {u"rounded-"_s, 1, 1},
                                                         {u"a"_s, 20, 2},   {u"zz"_s, 0, 0},    {{}, 20, 2}};
        for (const auto &[filter, rows, groups] : filters) {
            model.setFilter(filter);
            QCOMPARE(std::pair(model.rowCount(), int(model.categoryGroups().size())), std::pair(rows, groups));
        }
        ShapePreviewImageProvider provider;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QUrl source = model.index(row).data(ShapePickerModel::PreviewSourceRole).toUrl();
            const QImage image = provider.requestImage(source.path().mid(1), nullptr, {200, 100});
            QVERIFY(image.pixelColor(100, 30).alpha() > 0 && image.pixelColor(2, 50).alpha() == 0);
        }
        const std::pair<QSize, QSize> sizes[] = {
            {{}, {96, 96}}, {{50, 0}, {50, 50}}, {{4096, 2048}, {1024, 512}}, {{30'000, 1}, {1024, 1}}};
        for (const auto &[requested, expected] : sizes)
            QCOMPARE(provider.requestImage(u"shape/star5"_s, nullptr, requested).size(), expected);
        QVERIFY(provider.requestImage(u"shape/none"_s, nullptr, {}).isNull() && model.shapeIconSource({}).isEmpty());
    }

private:
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(m_folder.filePath(name)); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(EditorControllerTest)
#include "tst_editor_controller.moc"
