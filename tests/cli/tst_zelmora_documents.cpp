#include "io/document_opening.h"
#include "io/pictures/image_import.h"
#include "program_driver.h"
#include "support/pictures.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonArray>

#include <memory>

using namespace zm;
using test::Run;
using namespace Qt::StringLiterals;

namespace {

QUuid testId(int number)
{
    return QUuid::fromString(u"00000000-0000-4000-8000-%1"_s.arg(number, 12, 10, '0'_L1));
}

EditablePathNode node(int id, const QPointF &anchor)
{
    EditablePathNode node;
    node.id = testId(id);
    node.anchor = anchor;
    return node;
}

/// A value of every type, on an effect that no version defines, so that nothing is completed or dropped.
FilterInstance everyTypeOfValue()
{
    FilterInstance filter{testId(50), u"from-tomorrow"_s, {}, false, true};
    filter.parameters.set(u"boolean"_s, true);
    filter.parameters.set(u"integer"_s, qint64(-7));
    filter.parameters.set(u"real"_s, 0.125);
    filter.parameters.set(u"color"_s, QColor(255, 0, 51, 102));
    filter.parameters.set(u"string"_s, u"Grün"_s);
    filter.parameters.set(u"asset"_s, AssetName{u"paper.png"_s});
    filter.parameters.set(u"enabledColor"_s, EnabledColor{true, Qt::blue});
    filter.parameters.set(u"stroke"_s, Stroke{Qt::white, 2.5});
    filter.parameters.set(u"gradientPosition"_s, GradientPosition{0, 0.25, 0.5, 1});
    filter.parameters.set(u"maskTransform"_s, MaskTransform{1, 2, 3, 4, 5, 0.25, 0.75, MaskTransform::Mode::Uniform});
    filter.parameters.set(u"shapeMask"_s, ShapeMask{u"heart"_s});
    filter.parameters.set(
        u"lightList"_s,
        LightSources{{testId(60), 0.1, 0.2, 0.3, 4, 0.5, 0.6, LightSource::Shape::Rectangle, Qt::green}});
    return filter;
}

std::unique_ptr<ImageLayer> imageLayer()
{
    auto layer = std::make_unique<ImageLayer>(test::plainPicture(3, 2, QColor(1, 2, 3, 4)), u"Raster"_s, testId(1));
    EditablePathNode curved = node(12, {2, 0});
    curved.type = EditablePathNode::Type::Symmetric;
    curved.hasOutControl = true;
    curved.outControl = {3, 1};
    layer->setRasterSelection(EditablePath{{{{node(11, {0, 0}), curved, node(13, {1, 2})}, true}}, Qt::OddEvenFill});
    layer->setRasterSurfacePolicy(RasterSurfacePolicy::Expanding);
    layer->setFilters({everyTypeOfValue()});
    ObjectTransform transform;
    transform.setPosition({-1.5, 4});
    transform.setScale({-2, 0.5});
    transform.setShear({10, 0});
    transform.setAnchor({0, 1});
    transform.setRotation(30);
    layer->setTransform(transform);
    layer->setOpacity(0.25);
    layer->setVisible(false);
    layer->setBlendMode(u"multiply"_s);
    return layer;
}

std::unique_ptr<TextLayer> textLayer()
{
    TextRun run = defaultTextRun();
    run.text = u"Two\u2028words"_s;
    run.font.setFamilies({u"DejaVu Sans"_s, u"Serif"_s});
    run.font.setStyleName(u"Book"_s);
    run.font.setPixelSize(20);
    run.font.setWeight(QFont::Bold);
    run.font.setStretch(150);
    run.font.setStyle(QFont::StyleItalic);
    run.font.setCapitalization(QFont::SmallCaps);
    run.font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    run.font.setWordSpacing(2);
    run.font.setHintingPreference(QFont::PreferVerticalHinting);
    run.font.setStyleStrategy(QFont::PreferAntialias);
    run.font.setKerning(false);
    run.font.setFixedPitch(true);
    run.outlineColor = Qt::red;
    run.outlineWidth = 3;
    run.baselineOffset = -4;
    run.overline = true;
    return std::make_unique<TextLayer>(QList<TextParagraph>{{{run}, Qt::AlignHCenter, Qt::RightToLeft, 1.5}}, 120.5,
                                       u"Title\n🙂"_s, testId(3));
}

/// One layer of each kind: a hidden raster, an SVG, a text, a generated shape and a path.
void addLayersOfAllKinds(Document &document, const QByteArray &svg)
{
    document.setSize({640, 480});
    document.setBackgroundColor(QColor(0, 51, 255, 0));
    document.insertObject(imageLayer());
    document.insertObject(std::make_unique<ImageLayer>(SvgImageSource{svg, {32.5, 20}}, u"Drawing"_s, testId(2)));
    document.insertObject(textLayer());
    TextureFill texture{u"clouds"_s, {}, {}, QTransform(1, 2, 0, 3, 4, 0, 5, 6, 1), 2};
    texture.parameters.set(u"scale"_s, 0.5);
    GeneratorGeometry star{u"star5"_s, {}};
    star.parameters.set(u"spikes"_s, qint64(7));
    document.insertObject(std::make_unique<ShapeLayer>(star, QSizeF(100, 80.5), Stroke{Qt::black, 0}, Fill(texture),
                                                       u"Star"_s, testId(4)));
    const GradientFill gradient{
        GradientType::Radial, {0.5, 0.5}, {1, 0.5}, {{0.75, QColor(Qt::white)}, {0.25, QColor(0, 0, 0, 51)}}};
    document.insertObject(std::make_unique<ShapeLayer>(EditablePath{{{{node(41, {0, 0}), node(42, {9, 9})}, false}}},
                                                       QSizeF(10, 10), Stroke{Qt::red, 1.5}, Fill(gradient), u"Line"_s,
                                                       testId(5)));
}

// What info tells of these, without the digests: %1 is the beginning of every id, %2 the transform of four layers.
constexpr auto kLayers = R"([
{"id": "%1001", "type": "image", "name": "Raster", "visible": false, "opacity": 0.25, "blendMode": "multiply",
 "transform": {"position": [-1.5, 4], "scale": [-2, 0.5], "shear": [10, 0], "anchor": [0, 1], "rotation": 30},
 "filters": [{"instance": "%1050", "filter": "from-tomorrow", "enabled": false, "selectionScoped": true, "parameters": {
   "boolean": {"type": "boolean", "value": true}, "integer": {"type": "integer", "value": -7},
   "real": {"type": "real", "value": 0.125}, "color": {"type": "color", "value": [1, 0, 0.2, 0.4]},
   "string": {"type": "string", "value": "Grün"}, "asset": {"type": "asset", "value": "paper.png"},
   "enabledColor": {"type": "enabledColor", "value": {"enabled": true, "color": [0, 0, 1, 1]}},
   "stroke": {"type": "stroke", "value": {"color": [1, 1, 1, 1], "width": 2.5}},
   "gradientPosition": {"type": "gradientPosition", "value": [0, 0.25, 0.5, 1]},
   "maskTransform": {"type": "maskTransform", "value": {"x": 1, "y": 2, "scaleX": 3, "scaleY": 4, "rotation": 5,
     "pivotX": 0.25, "pivotY": 0.75, "mode": "uniform"}},
   "shapeMask": {"type": "shapeMask", "value": "heart"},
   "lightList": {"type": "lightList", "value": [{"id": "%1060", "x": 0.1, "y": 0.2, "radius": 0.3, "angle": 4,
     "intensity": 0.5, "softness": 0.6, "shape": "rectangle", "tint": [0, 1, 0, 1]}]}}}],
 "image": {"encoding": "raster", "pixelSize": [3, 2], "size": [3, 2], "policy": "expanding",
   "selection": {"fillRule": "oddEven", "contours": [{"closed": true, "nodes": [
     {"id": "%1011", "type": "corner", "anchor": [0, 0], "in": null, "out": null},
     {"id": "%1012", "type": "symmetric", "anchor": [2, 0], "in": null, "out": [3, 1]},
     {"id": "%1013", "type": "corner", "anchor": [1, 2], "in": null, "out": null}]}]}}},
{"id": "%1002", "type": "image", "name": "Drawing", "visible": true, "opacity": 1, "blendMode": "source-over",
 "transform": %2, "filters": [],
 "image": {"encoding": "svg", "pixelSize": [33, 20], "size": [32.5, 20], "policy": "fixed", "selection": null}},
{"id": "%1003", "type": "text", "name": "Title\n🙂", "visible": true, "opacity": 1, "blendMode": "source-over",
 "transform": %2, "filters": [],
 "text": {"width": 120.5, "paragraphs": [{"alignment": "center", "direction": "rtl", "lineHeight": 1.5, "runs": [
   {"text": "Two\u2028words", "families": ["DejaVu Sans", "Serif"], "styleName": "Book", "pixelSize": 20,
    "pointSize": -1, "weight": 700, "stretch": 150, "style": "italic", "capitalization": 4, "letterSpacing": [2, 1.5],
    "wordSpacing": 2, "hinting": 2, "styleStrategy": 128, "kerning": false, "fixedPitch": true, "underline": false,
    "overline": true, "strikeOut": false, "fill": {"kind": "solid", "color": [0, 0, 0, 1]},
    "outline": {"color": [1, 0, 0, 1], "width": 3}, "underlineColor": [0, 0, 0, 1], "baselineOffset": -4}]}]}},
{"id": "%1004", "type": "shape", "name": "Star", "visible": true, "opacity": 1, "blendMode": "source-over",
 "transform": %2, "filters": [],
 "shape": {"geometry": "parametric", "generator": "star5", "parameters": {"spikes": {"type": "integer", "value": 7}},
   "size": [100, 80.5], "stroke": {"color": [0, 0, 0, 1], "width": 0},
   "fill": {"kind": "texture", "generator": "clouds", "parameters": {"scale": {"type": "real", "value": 0.5}},
     "mapping": 3, "transform": [1, 2, 0, 3, 4, 0, 5, 6, 1]}}},
{"id": "%1005", "type": "shape", "name": "Line", "visible": true, "opacity": 1, "blendMode": "source-over",
 "transform": %2, "filters": [],
 "shape": {"geometry": "path", "path": {"fillRule": "winding", "contours": [{"closed": false, "nodes": [
     {"id": "%1041", "type": "corner", "anchor": [0, 0], "in": null, "out": null},
     {"id": "%1042", "type": "corner", "anchor": [9, 9], "in": null, "out": null}]}]},
   "size": [10, 10], "stroke": {"color": [1, 0, 0, 1], "width": 1.5},
   "fill": {"kind": "gradient", "type": "radial", "start": [0.5, 0.5], "end": [1, 0.5],
     "stops": [[0.75, [1, 1, 1, 1]], [0.25, [0, 0, 0, 0.2]]]}}}])";

QJsonArray expectedLayers()
{
    QString text = QString::fromUtf8(kLayers);
    text.replace("%1"_L1, "00000000-0000-4000-8000-000000000"_L1);
    text.replace("%2"_L1, R"({"position": [0, 0], "scale": [1, 1], "shear": [0, 0], "anchor": [0.5, 0.5],
                              "rotation": 0})"_L1);
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

QString digest(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

/// A picture with the light, the detail and the noise of a photograph.
QImage photograph()
{
    QImage picture = test::gradientPicture(240, 161).convertToFormat(QImage::Format_RGB32);
    const QImage noise = test::noisePicture(240, 161, 5);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            const int grain = noise.pixelColor(x, y).red() / 16;
            const int light = std::hypot(x - 90, y - 60) < 40 ? 60 : 0;
            const auto lit = [&](int channel) { return std::min(channel + grain + light, 255); };
            picture.setPixelColor(x, y, QColor(lit(color.red()), lit(color.green()), lit(color.blue())));
        }
    }
    return picture;
}

} // namespace

/// The program on documents: photo.jpg is a picture, all.zelmora holds layers of all kinds.
class TestZelmoraDocuments : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_program = std::make_unique<test::ProgramDriver>();
        QVERIFY(photograph().save(path("photo.jpg"), "jpeg", 90));
        Document document;
        addLayersOfAllKinds(document, kSvg);
        QString error;
        QVERIFY2(ZelmoraDocumentIO::writeDocumentFile(document, path("all.zelmora"), false, &error), qPrintable(error));
    }

    void infoTellsAllKindsOfLayers()
    {
        QJsonArray layers = expectedLayers();
        QCOMPARE(layers.size(), 5);
        QJsonObject expected{{u"file"_s, u"all.zelmora"_s},
                             {u"formatVersion"_s, 5},
                             {u"size"_s, QJsonArray{640, 480}},
                             {u"background"_s, QJsonArray{0, 0.2, 1, 0}},
                             {u"layers"_s, layers}};
        compareJson(m_program->info("--no-digest all.zelmora"), expected);

        const auto addDigest = [&layers](int index, const QByteArray &bytes) {
            QJsonObject layer = layers[index].toObject();
            QJsonObject image = layer[u"image"_s].toObject();
            image[u"sha256"_s] = digest(bytes);
            layer[u"image"_s] = image;
            layers[index] = layer;
        };
        addDigest(0, QByteArray::fromHex("01020304").repeated(6));
        addDigest(1, kSvg);
        expected[u"layers"_s] = layers;
        compareJson(m_program->info("all.zelmora"), expected);
    }

    void infoForReadersHasALineForEachLayer()
    {
        const Run run = m_program->run("info all.zelmora photo.jpg");
        const QStringList expected{
            u"all.zelmora"_s,
            u"  size: 640 x 480"_s,
            u"  background: transparent"_s,
            u"  layers: 5"_s,
            u"  - shape \"Line\" (path), 10 x 10, at 0, 0"_s,
            u"  - shape \"Star\" (star5), 100 x 80.5, at 0, 0"_s,
            u"  - text \"Title 🙂\" (Two words), 120.5 wide, at 0, 0"_s,
            u"  - svg \"Drawing\", 32.5 x 20, at 0, 0"_s,
            u"  - image \"Raster\", 3 x 2, with a selection, at -1.5, 4, scaled by -2, 0.5, rotated by 30, sheared by "
            "10, 0, hidden, opacity 25 %, multiply; effects: from-tomorrow (off)"_s,
            u"photo.jpg"_s,
            u"  size: 240 x 161"_s,
            u"  background: #ffffff"_s,
            u"  - image \"photo\", 240 x 161, at -120, -80.5"_s,
            u""_s};
        QCOMPARE(run, Run(0, expected.join(u'\n')));
    }

    void damagedFilesAreToldAndTheOthersStillTried()
    {
        const QByteArray whole = m_program->read("all.zelmora");
        const QByteArray header = whole.first(128);
        const struct
        {
            QByteArray bytes;
            QString message;
        } rows[] = {
            {"GIF8" + whole.sliced(4), u"This is not a .zelmora document."_s},
            {whole.first(4) + '\6' + whole.sliced(5), u"This .zelmora format version is not supported."_s},
            {whole + '\0', u"The .zelmora file has trailing data."_s},
            {whole.first(128 + 8) + '\1' + whole.sliced(128 + 9),
             u"The document-properties section has an invalid size."_s},
            {header.first(20) + '\1' + QByteArray(107, 0), u"The .zelmora file is truncated or unreadable: "_s},
            {whole.chopped(1), u"The .zelmora file is truncated or unreadable: "_s},
            {{}, u"The .zelmora file is truncated or unreadable: "_s},
        };
        QVERIFY(m_program->makeFolder("out"));
        for (const auto &[bytes, message] : rows) {
            m_program->write("bad.zelmora", bytes);
            const QString line = u"zelmora: bad.zelmora: "_s + message;
            for (const QByteArray &command : {"info --no-digest"_ba, "info --json"_ba,
                                              "export --into out --format png"_ba, "convert --into out"_ba}) {
                const Run run = m_program->run(command + " bad.zelmora all.zelmora");
                QCOMPARE(run.status, 1);
                QVERIFY2(run.errors.startsWith(line) && run.errors.count(u'\n') == 1, qPrintable(run.errors));
                QCOMPARE(run.output.isEmpty(), !command.startsWith("info"));
            }
            QCOMPARE(QDir(path("out")).entryList(QDir::Files), QStringList({u"all.png"_s, u"all.zelmora"_s}));
            QVERIFY(QFile::remove(path("out/all.png")) && QFile::remove(path("out/all.zelmora")));
        }
    }

    void losslessConversionKeepsEveryPixel()
    {
        m_program->write("drawing.svg", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 0.4 20.5'><path/></svg>");
        QVERIFY(m_program->makeFolder("out"));
        QCOMPARE(m_program->run("convert --into out photo.jpg drawing.svg all.zelmora"), Run(0));
        for (const QByteArray name : {"photo.jpg", "drawing.svg"}) {
            const QJsonObject picture = m_program->info(name);
            QJsonObject document = m_program->info("out/" + name.first(name.lastIndexOf('.')) + ".zelmora");
            QCOMPARE(document["formatVersion"_L1].toInt(), 5);
            const QJsonObject image = document["layers"_L1][0]["image"_L1].toObject();
            QCOMPARE(image["sha256"_L1].toString().size(), 64);
            QCOMPARE(image, picture["layers"_L1][0]["image"_L1].toObject());
            QCOMPARE(document["layers"_L1][0]["transform"_L1], picture["layers"_L1][0]["transform"_L1]);
            QCOMPARE(document["size"_L1], picture["size"_L1]);
        }
        QCOMPARE(m_program->read("out/all.zelmora"), m_program->read("all.zelmora"));
    }

    void lossyConversionWearsAPictureOnlyOnce()
    {
        QCOMPARE(m_program->run("convert photo.jpg exact.zelmora"), Run(0));
        QCOMPARE(m_program->run("convert --lossy exact.zelmora once.zelmora"), Run(0));
        QVERIFY(m_program->read("once.zelmora").size() < m_program->read("exact.zelmora").size());
        QCOMPARE(m_program->run("convert --lossy once.zelmora twice.zelmora"), Run(0));
        QCOMPARE(m_program->read("twice.zelmora"), m_program->read("once.zelmora"));
        // Back without loss is as it was, in more room.
        QCOMPARE(m_program->run("convert once.zelmora back.zelmora"), Run(0));
        QVERIFY(m_program->read("back.zelmora").size() > m_program->read("once.zelmora").size());
        QCOMPARE(m_program->info("back.zelmora")["layers"_L1], m_program->info("once.zelmora")["layers"_L1]);
        // In its place: an input may become its own output, and no other's.
        QCOMPARE(m_program->run("convert --lossy --into . exact.zelmora"), Run(0));
        QCOMPARE(m_program->read("exact.zelmora"), m_program->read("once.zelmora"));
        QVERIFY(QFile::copy(path("photo.jpg"), path("exact.jpg")));
        QCOMPARE(
            m_program->run("convert --into . exact.zelmora exact.jpg"),
            Run(1, {}, u"zelmora: exact.jpg: The output ./exact.zelmora would replace another file of this call.\n"_s));
    }

    void effectsInADocumentExportAsAppliedDirectly()
    {
        const QByteArray first = "apply --effect film-grain --set amount=80 ";
        const QByteArray second = " --effect shape-tool --set mask=ellipse --set mask.stroke=#ff00ff@20 ";
        QCOMPARE(m_program->run(first + second + "photo.jpg direct.png"), Run(0));
        QCOMPARE(m_program->run(first + "photo.jpg grain.zelmora"), Run(0));
        QCOMPARE(m_program->run("apply" + second + "grain.zelmora both.ZELMORA"), Run(0));
        QCOMPARE(m_program->run("export --transparent both.ZELMORA exported.png"), Run(0));

        const QImage direct(path("direct.png"));
        const QImage photo(path("photo.jpg"));
        QCOMPARE(direct.size(), photo.size());
        QCOMPARE(direct.pixelColor(120, 2), QColor(Qt::magenta));
        QVERIFY(direct.pixel(90, 80) != photo.pixel(90, 80) || direct.pixel(91, 80) != photo.pixel(91, 80));
        QCOMPARE(QImage(path("exported.png")), direct);
        // What is kept is the picture and the values.
        const QJsonObject layer = m_program->info("both.ZELMORA")["layers"_L1][0].toObject();
        const QJsonObject source = m_program->info("photo.jpg")["layers"_L1][0].toObject();
        QCOMPARE(layer["image"_L1], source["image"_L1]);
        QCOMPARE(layer["filters"_L1][0]["parameters"_L1]["amount"_L1]["value"_L1].toDouble(), 80.0);
        QCOMPARE(layer["filters"_L1][1]["filter"_L1].toString(), u"shape-tool"_s);
    }

    void effectsGoOnTheTopVisibleLayer()
    {
        Document document;
        Error error;
        QVERIFY2(openDocument(document, path("all.zelmora"), error), qPrintable(error.message()));
        document.setObjectVisible(testId(5), false);
        QVERIFY(ZelmoraDocumentIO::writeDocumentFile(document, path("top.zelmora"), false));
        QCOMPARE(m_program->run("apply --effect bevel top.zelmora top.zelmora"), Run(0));
        const QJsonArray layers = m_program->info("top.zelmora")["layers"_L1].toArray();
        for (int i = 0; i < layers.size(); ++i)
            QCOMPARE(layers[i]["filters"_L1].toArray().size(), i == 0 || i == 3 ? 1 : 0);

        for (qsizetype i = 0; i < document.objectCount(); ++i)
            document.setObjectVisible(document.objectAt(i)->id(), false);
        QVERIFY(ZelmoraDocumentIO::writeDocumentFile(document, path("hidden.zelmora"), false));
        for (const QByteArray output : {"out.png", "out.zelmora"}) {
            QCOMPARE(
                m_program->run("apply --effect bevel hidden.zelmora " + output),
                Run(1, {}, u"zelmora: hidden.zelmora: The document has no visible layer to put an effect on.\n"_s));
        }
        // Its empty frame is a picture nevertheless.
        QCOMPARE(m_program->run("export --transparent hidden.zelmora out.png"), Run(0));
        QCOMPARE(QImage(path("out.png")).size(), QSize(640, 480));
    }

    void documentsExportInTheSizeAsked()
    {
        Document document;
        document.setSize({100, 60});
        auto band = std::make_unique<ImageLayer>(test::plainPicture(200, 40, Qt::red), u"Band"_s, testId(1));
        band->setTransform(framedTransform({}, {200, 40}));
        document.insertObject(std::move(band));
        QVERIFY(ZelmoraDocumentIO::writeDocumentFile(document, path("band.zelmora"), false));
        const struct
        {
            QByteArray options;
            QSize size;
            QColor corner;
        } rows[] = {
            {"", {100, 60}, Qt::white},
            {"--unclipped", {200, 40}, Qt::red},
            {"--max-side 50", {50, 30}, Qt::white},
            {"--unclipped --height 80", {400, 80}, Qt::red},
            {"--transparent", {100, 60}, Qt::transparent},
        };
        for (const auto &[options, size, corner] : rows) {
            QCOMPARE(m_program->run("export " + options + " band.zelmora band.png"), Run(0));
            const QImage picture(path("band.png"));
            QCOMPARE(picture.size(), size);
            QCOMPARE(picture.pixelColor(0, 0), corner);
            QCOMPARE(picture.pixelColor(size.width() / 2, size.height() / 2), QColor(Qt::red));
        }
    }

    void effectsAreNotLeftOutWithoutOpenGL()
    {
        QCOMPARE(m_program->run("apply --effect film-grain photo.jpg grain.zelmora"), Run(0));
        m_program->process().setEnvironment({u"QT_QPA_PLATFORM=minimal"_s});
        QCOMPARE(
            m_program->run("export grain.zelmora out.png"),
            Run(1, {}, u"zelmora: grain.zelmora: Effects need OpenGL 3.3, which this machine does not offer.\n"_s));
        QVERIFY(!QFile::exists(path("out.png")));
        QCOMPARE(m_program->run("export all.zelmora out.png"), Run(0));
        QVERIFY(QFile::exists(path("out.png")));
        QCOMPARE(m_program->run("apply --effect bevel grain.zelmora more.zelmora"), Run(0));
    }

private:
    static constexpr auto kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'>"
                                 "<rect width='64' height='48' fill='#f00'/></svg>";

    /// Says where the two differ.
    static void compareJson(const QJsonObject &actual, const QJsonObject &expected)
    {
        const auto lines = [](const QJsonObject &object) {
            return QString::fromUtf8(QJsonDocument(object).toJson()).split(u'\n');
        };
        QCOMPARE(lines(actual), lines(expected));
    }

    QString path(const char *name) const { return m_program->path(name); }

    std::unique_ptr<test::ProgramDriver> m_program;
};

QTEST_GUILESS_MAIN(TestZelmoraDocuments)
#include "tst_zelmora_documents.moc"
