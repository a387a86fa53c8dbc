#include "io/document/fill_records.h"
#include "io/document/layer_content.h"
#include "io/document/path_records.h"
#include "support/file_bytes.h"
#include "support/pictures.h"

#include <QTest>

#include <limits>

using namespace zm;
using namespace zm::test;
using namespace Qt::StringLiterals;

namespace {

const QUuid kFirstNode(u"{00112233-4455-6677-8899-aabbccddeeff}"_s);
const QUuid kSecondNode(u"{10112233-4455-6677-8899-aabbccddeeff}"_s);
const QUuid kId(u"{20112233-4455-6677-8899-aabbccddeeff}"_s);
const QByteArray kSvg("<svg xmlns='http://www.w3.org/2000/svg' width='4' height='3'/>");

// Records by the tables, with a value of its own in every field.

// clang-format off
/// An odd-even path of two contours, the first closed.
QByteArray pathRecord()
{
    return FileBytes().u32(1).u32(2).u32(2).u32(64 + 160).zeros(16)
        .u32(1).u32(1).u32(80).zeros(20)
        .uuid(kFirstNode).u32(2).u32(1).point(0.5, 0.25).point(0.125, 1).point(2, 0).zeros(8)
        .u32(0).u32(1).u32(80).zeros(20)
        .uuid(kSecondNode).u32(3).u32(2).point(1.5, 1).point(0, 0).point(1, 0.75).zeros(8);
}

QByteArray imageRecord(quint32 encoding, quint32 width, quint32 height, const QByteArray &source)
{
    const QByteArray path = pathRecord();
    return FileBytes().u32(1).u32(encoding).u32(width).u32(height).f64(2).f64(1).u32(quint32(source.size())).u32(2)
        .u32(2).u32(quint32(path.size())).zeros(16).bytes(source).bytes(path);
}

QByteArray rawRecord()
{
    return imageRecord(3, 2, 1, QByteArray("\1\2\3\0\5\6\7\xFF", 8));
}

QByteArray fillRecord(quint32 kind, quint32 mapping, const QByteArray &color, quint32 idSize, quint32 parameterCount,
                      const QByteArray &body, double m31 = 0.0)
{
    return FileBytes().u32(1).u32(kind).u32(mapping).zeros(4).bytes(color.leftJustified(16, '\0')).u32(idSize)
        .u32(parameterCount).u32(0).u32(quint32(body.size()))
        .f64(1).f64(0).f64(0).f64(0).f64(1).f64(0).f64(m31).f64(0).f64(1).zeros(8).bytes(body);
}

QByteArray solidRecord()
{
    return fillRecord(1, 1, FileBytes().color(1, 0, 0, 0), 0, 0, {});
}

QByteArray textureRecord()
{
    return fillRecord(2, 4, {}, 5, 1, FileBytes().text(u"bläu"_s).u32(1).key("on").u32(4).zeros(24).u32(1), 7.5);
}

/// Stops in falling order, which stays.
QByteArray gradientRecord()
{
    return fillRecord(3, 1, {}, 0, 0,
                      FileBytes().u32(2).u32(2).point(0.5, 0.25).point(1, -3).zeros(24)
                          .f64(1).color(1, 1, 1).zeros(8).f64(0).color(0, 0, 0, 0).zeros(8));
}

QByteArray oldGradientRecord()
{
    return fillRecord(3, 1, {}, 0, 0,
                      FileBytes().u32(1).color(1, 0, 0).color(0, 0, 1).point(0, 0.5).point(1, 0.25).zeros(12));
}

QByteArray shapeRecord(quint32 type, const QByteArray &geometry, const QByteArray &fill)
{
    return FileBytes().u32(1).u32(type).f64(30).f64(20.5).u32(quint32(geometry.size())).u32(quint32(fill.size()))
        .color(0, 1, 0).f64(2.5).zeros(8).bytes(geometry).bytes(fill);
}

QByteArray parametricRecord()
{
    return FileBytes().u32(1).u32(4).u32(1).u32(4 + 72).zeros(16)
        .text(u"star"_s).u32(3).key("depth").u32(8).zeros(24).f64(0.5);
}

QByteArray runRecord()
{
    const QByteArray families = FileBytes().u32(4).text(u"Noto"_s).u32(5).text(u"Arial"_s);
    const QByteArray fill = gradientRecord();
    return FileBytes().u32(1 + 4 + 8).u32(6).u32(quint32(families.size())).u32(4).u32(quint32(fill.size())).u32(2)
        .u32(24).u32(700).u32(150).u32(2).u32(4).u32(2).u32(1).u32(0x8001)
        .f64(1.5).f64(-2).f64(-1).f64(3.25).f64(0.75).color(0, 0, 1).color(1, 0, 1)
        .text(u"Größ"_s).bytes(families).text(u"Bold"_s).bytes(fill);
}

QByteArray paragraphRecord()
{
    const QByteArray run = runRecord();
    return FileBytes().u32(2).u32(2).u32(1).u32(quint32(run.size())).f64(1.5).zeros(8).bytes(run);
}

QByteArray textRecord()
{
    const QByteArray paragraph = paragraphRecord();
    return FileBytes().u32(1).u32(1).f64(250).u32(quint32(paragraph.size())).zeros(12).bytes(paragraph);
}

// clang-format on

QByteArray generatedShape()
{
    return shapeRecord(1, parametricRecord(), solidRecord());
}

QByteArray pathShape()
{
    return shapeRecord(2, pathRecord(), textureRecord());
}

/// Where the run of a text, the outline of a shape and the pixels of an image begin.
constexpr qsizetype kBody = 64;

template<typename Content>
std::optional<LayerContent> anyContent(std::optional<Content> content)
{
    return content ? std::optional<LayerContent>(std::move(*content)) : std::nullopt;
}

std::optional<LayerContent> decode(const QString &kind, const QByteArray &record, Error &error)
{
    if (kind == "image"_L1)
        return anyContent(decodeImageContent(record, PixelReading::Decode, error));
    if (kind == "text"_L1)
        return anyContent(decodeTextContent(record, error));
    if (kind == "fill"_L1)
        return anyContent(decodeShapeContent(shapeRecord(1, parametricRecord(), record), error));
    return anyContent(decodeShapeContent(record, error));
}

QByteArray encode(const Layer &layer, Error &error, EmbeddedImageMode mode = EmbeddedImageMode::Raw)
{
    if (const auto *image = dynamic_cast<const ImageLayer *>(&layer))
        return encodeImageContent(*image, mode, error).value_or(QByteArray());
    if (const auto *shape = dynamic_cast<const ShapeLayer *>(&layer))
        return encodeShapeContent(*shape, error).value_or(QByteArray());
    return encodeTextContent(dynamic_cast<const TextLayer &>(layer), error).value_or(QByteArray());
}

} // namespace

class TestLayerContent : public QObject
{
    Q_OBJECT

private slots:
    void recordsComeBackAsTheyWere_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("raw pixels") << u"image"_s << rawRecord();
        QTest::newRow("SVG") << u"image"_s << imageRecord(2, 0, 0, kSvg);
        QTest::newRow("generated shape") << u"shape"_s << generatedShape();
        QTest::newRow("path with texture") << u"shape"_s << pathShape();
        QTest::newRow("text with gradient") << u"text"_s << textRecord();
    }
    /// The bytes of the tables, read and written again. Every shorter record is refused with a reason, and an altered
    /// one either read or refused with a reason.
    void recordsComeBackAsTheyWere()
    {
        QFETCH(const QString, kind);
        QFETCH(const QByteArray, record);
        Error error;
        std::optional<LayerContent> content = decode(kind, record, error);
        QVERIFY2(content, qPrintable(error.message()));
        const std::unique_ptr<Layer> layer = layerFrom(std::move(*content), u"name"_s, kId);
        QCOMPARE(layer->id(), kId);
        QCOMPARE(layer->name(), u"name"_s);
        QCOMPARE(encode(*layer, error), record);
        for (qsizetype size = 0; size < record.size(); ++size) {
            Error reason;
            QVERIFY2(!decode(kind, record.first(size), reason), qPrintable(QString::number(size)));
            QVERIFY(reason.isSet());
        }
        for (qsizetype at = 0; at < record.size(); ++at) {
            for (const uchar flip : {0x01, 0x80, 0xFF}) {
                QByteArray altered = record;
                altered[at] = char(altered[at] ^ flip);
                Error reason;
                const std::optional<LayerContent> read = decode(kind, altered, reason);
                QCOMPARE(read.has_value(), !reason.isSet());
                if (read)
                    layerFrom(*read, {}, kId);
            }
        }
    }

    void fieldsHaveTheirMeaning()
    {
        Error error;
        const EditablePathNode first{kFirstNode, {0.5, 0.25}, {0.125, 1}, {2, 0}, EditablePathNode::Type::Smooth, true};
        EditablePathNode second{kSecondNode, {1.5, 1}, {0, 0}, {1, 0.75}, EditablePathNode::Type::Symmetric};
        second.hasOutControl = true;
        const EditablePath path{{{{first}, true}, {{second}, false}}, Qt::OddEvenFill};
        const std::optional<ImageContent> image = decodeImageContent(rawRecord(), PixelReading::Decode, error);
        QVERIFY2(image, qPrintable(error.message()));
        const QImage &pixels = std::get<RasterImageSource>(image->source).image;
        QCOMPARE(pixels.pixelColor(0, 0), QColor(1, 2, 3, 0));
        QCOMPARE(pixels.pixelColor(1, 0), QColor(5, 6, 7));
        QCOMPARE(image->policy, RasterSurfacePolicy::Expanding);
        QCOMPARE(*image->selection, path);

        const std::optional<ShapeContent> shape = decodeShapeContent(pathShape(), error);
        QVERIFY2(shape, qPrintable(error.message()));
        QCOMPARE(shape->shape.size, QSizeF(30, 20.5));
        QCOMPARE(shape->shape.geometry, ShapeGeometry(path));
        QCOMPARE(shape->stroke, (Stroke{Qt::green, 2.5}));
        ParameterValues on;
        on.set(u"on"_s, true);
        QCOMPARE(*shape->fill.texture(), (TextureFill{u"bläu"_s, on, {}, QTransform::fromTranslate(7.5, 0), 3}));
        const std::optional<ShapeContent> generated = decodeShapeContent(generatedShape(), error);
        QVERIFY2(generated, qPrintable(error.message()));
        ParameterValues depth;
        depth.set(u"depth"_s, 0.5);
        QCOMPARE(generated->shape.geometry, ShapeGeometry(GeneratorGeometry{u"star"_s, depth}));
        QCOMPARE(generated->fill, Fill(QColor(255, 0, 0, 0)));

        QFont font(QStringList{u"Noto"_s, u"Arial"_s});
        font.setStyleName(u"Bold"_s);
        font.setPixelSize(24);
        font.setWeight(QFont::Bold);
        font.setStretch(150);
        font.setStyle(QFont::StyleItalic);
        font.setCapitalization(QFont::SmallCaps);
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
        font.setWordSpacing(-2);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferDefault | QFont::NoFontMerging));
        font.setKerning(true);
        const GradientFill radial{GradientType::Radial, {0.5, 0.25}, {1, -3}, {{1, Qt::white}, {0, Qt::transparent}}};
        const TextRun run{u"Größ"_s, font, radial, Qt::blue, 0.75, Qt::magenta, 3.25, true, false, true};
        const std::optional<TextLayerState> text = decodeTextContent(textRecord(), error);
        QVERIFY2(text, qPrintable(error.message()));
        QCOMPARE(text->blocks.first().runs.first().font, font);
        QCOMPARE(*text, (TextLayerState{{{{run}, Qt::AlignHCenter, Qt::RightToLeft, 1.5}}, 250}));

        const std::optional<Fill> old = decodeFill(oldGradientRecord(), error);
        QVERIFY2(old, qPrintable(error.message()));
        const GradientFill linear{GradientType::Linear, {0, 0.5}, {1, 0.25}, {{0, Qt::red}, {1, Qt::blue}}};
        QCOMPARE(*old->gradient(), linear);
        QCOMPARE(encodeFill(*old, error)->size(), 128 + 128);
    }

    void badRecordsAreRefused_data();
    void badRecordsAreRefused()
    {
        QFETCH(const QString, kind);
        QFETCH(const QByteArray, record);
        QFETCH(const QString, message);
        Error error;
        QVERIFY(!decode(kind, record, error));
        QCOMPARE(error.message(), message);
    }

    void whatIsAllowed_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("record");
        const auto u32 = [](quint32 value) { return QByteArray(FileBytes().u32(value)); };
        const auto row = [](const char *name, const QString &kind, const QByteArray &record) {
            QTest::newRow(name) << kind << record;
        };
        const FileBytes text = textRecord();
        const FileBytes shape = generatedShape();
        row("policy 0", u"image"_s, FileBytes(rawRecord()).patch(36, u32(0)));
        row("selection type without a selection", u"image"_s,
            FileBytes(rawRecord()).patch(40, u32(9)).patch(44, u32(0)).cut(72));
        row("reserved bytes", u"shape"_s, FileBytes(shape).patch(56, "reserved"));
        row("longest side", u"shape"_s, FileBytes(shape).patch(8, FileBytes().point(1e6, 100)));
        row("texture without a generator", u"fill"_s, fillRecord(2, 1, {}, 0, 0, {}));
        row("no paragraphs", u"text"_s, FileBytes().u32(1).u32(0).f64(0).u32(0).zeros(12));
        row("unknown flags", u"text"_s, FileBytes(text).patch(kBody, u32(~0U)));
        row("run at its limits", u"text"_s,
            FileBytes(text).patch(kBody + 28, u32(1000) + u32(4000)).patch(kBody + 52, u32(0xF9FF)));
        row("run in points", u"text"_s,
            FileBytes(text).patch(kBody + 24, u32(~0U)).patch(kBody + 72, FileBytes().f64(0.5)));
    }
    void whatIsAllowed()
    {
        QFETCH(const QString, kind);
        QFETCH(const QByteArray, record);
        Error error;
        QVERIFY2(decode(kind, record, error), qPrintable(error.message()));
        QVERIFY(!error.isSet());
    }

    void skippedPixelsAreMeasured()
    {
        Error error;
        const QByteArray record = encode(ImageLayer(noisePicture(2, 1, 5), {}), error, EmbeddedImageMode::Lossless);
        const FileBytes three = FileBytes().u32(3);
        const std::pair<QByteArray, QString> wider[] = {
            {record, u"An embedded WebP has invalid dimensions."_s},
            {rawRecord(), u"A raw RGBA image has an invalid byte length."_s}};
        for (const auto &[bytes, message] : wider) {
            QVERIFY(decodeImageContent(bytes, PixelReading::Skip, error));
            Error reason;
            const QByteArray wrong = FileBytes(bytes).patch(8, three).patch(16, FileBytes().f64(3));
            QVERIFY(!decodeImageContent(wrong, PixelReading::Skip, reason));
            QCOMPARE(reason.message(), message);
        }
    }

    void picturesThatNoWebpHoldsAreWrittenRaw()
    {
        const std::pair<QSize, char> encodings[] = {{{16'383, 2}, 1}, {{16'384, 2}, 3}, {{1, 20'000}, 3}};
        for (const auto mode : {EmbeddedImageMode::Lossless, EmbeddedImageMode::Compressed}) {
            for (const auto &[size, encoding] : encodings) {
                const QImage picture = noisePicture(size.width(), size.height(), 6);
                Error error;
                const QByteArray record = encode(ImageLayer(picture, {}), error, mode);
                QVERIFY2(!record.isEmpty(), qPrintable(error.message()));
                QCOMPARE(record.at(4), encoding);
                const std::optional<ImageContent> content = decodeImageContent(record, PixelReading::Decode, error);
                QVERIFY2(content, qPrintable(error.message()));
                if (encoding == 3 || mode == EmbeddedImageMode::Lossless)
                    QCOMPARE(std::get<RasterImageSource>(content->source).image, picture);
            }
        }
    }

    void whatCannotBeWrittenTellsWhy_data()
    {
        QTest::addColumn<std::shared_ptr<Layer>>("layer");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, Layer *layer, const QString &message) {
            QTest::newRow(name) << std::shared_ptr<Layer>(layer) << message;
        };
        const auto endless = [](QChar letter) { return QString(0x1000001, letter); };
        row("null picture", new ImageLayer(QImage(), {}), u"An image layer has no supported source."_s);
        row("empty SVG", new ImageLayer(SvgImageSource{{}, {4, 3}}, {}), u"An SVG layer has no source data."_s);
        row("huge SVG", new ImageLayer(SvgImageSource{kSvg, {1'000'001, 1}}, {}),
            u"An image layer has invalid dimensions or data."_s);
        row("generator without an id", new ShapeLayer(GeneratorGeometry(), {5, 5}, {}, {}, {}),
            u"A shape generator ID is empty or too large."_s);
        TextRun endlessRun = defaultTextRun();
        endlessRun.text = endless(u'x');
        row("endless generator's id", new ShapeLayer(GeneratorGeometry{endless(u'g'), {}}, {5, 5}, {}, {}, {}),
            u"A shape generator ID is empty or too large."_s);
        row("texture with an endless id",
            new ShapeLayer(EditablePath(), {5, 5}, {}, TextureFill{endless(u't'), {}, {}, {}}, {}),
            u"A fill generator ID is too large."_s);
        row("endless run", new TextLayer({{{endlessRun}}}, 0, {}), u"A text run is too large."_s);
        TextRun endlessFamily = defaultTextRun();
        endlessFamily.font.setFamilies({endless(u'f')});
        row("endless family", new TextLayer({{{endlessFamily}}}, 0, {}), u"A text run is too large."_s);
        TextRun many = defaultTextRun();
        many.font.setFamilies(QStringList(1'000'001, u"A"_s));
        row("too many families", new TextLayer({{{many}}}, 0, {}), u"A text run has too many font families."_s);
    }
    void whatCannotBeWrittenTellsWhy()
    {
        QFETCH(const std::shared_ptr<Layer>, layer);
        QFETCH(const QString, message);
        Error error;
        QCOMPARE(encode(*layer, error, EmbeddedImageMode::Lossless), QByteArray());
        QCOMPARE(error.message(), message);
    }

    void pathsThatCannotBeWrittenTellWhy()
    {
        const auto contour = [](const QList<EditablePathNode> &nodes) { return EditablePath{{{nodes}}}; };
        const EditablePathNode twice;
        EditablePathNode nameless;
        nameless.id = QUuid();
        EditablePathNode lost;
        lost.outControl.setY(std::numeric_limits<double>::infinity());
        const std::pair<EditablePath, QString> paths[] = {
            {{QList<EditablePathContour>(1'000'001)}, u"An editable path has too many contours."_s},
            {contour(QList<EditablePathNode>(1'000'001, twice)), u"An editable path contour has too many nodes."_s},
            {contour({nameless}), u"An editable path node is invalid."_s},
            {contour({lost}), u"An editable path node is invalid."_s},
            {contour({twice, twice}), u"An editable path node ID is duplicated."_s}};
        for (const auto &[path, message] : paths) {
            Error error;
            QVERIFY(!encodePath(path, error));
            QCOMPARE(error.message(), message);
        }
    }
};

void TestLayerContent::badRecordsAreRefused_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("message");
    const auto u32 = [](quint32 value) { return QByteArray(FileBytes().u32(value)); };
    const auto f64 = [](double value) { return QByteArray(FileBytes().f64(value)); };
    const auto red = [](float value) { return QByteArray(FileBytes().f32(value)); };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QString kind;
    QByteArray record;
    // Each row changes one field, or some that follow each other, of the record that is set before.
    const auto refused = [&](const char *message, std::initializer_list<std::pair<qsizetype, QByteArray>> changes) {
        for (const auto &[offset, piece] : changes)
            QTest::addRow("%s of %lld bytes at %lld: %s", qPrintable(kind), qlonglong(record.size()), qlonglong(offset),
                          piece.toHex().constData())
                << kind << QByteArray(FileBytes(record).patch(offset, piece)) << QString::fromLatin1(message);
    };
    const char *color = "The .zelmora file contains an invalid color.";

    kind = u"image"_s;
    record = rawRecord();
    refused("An image layer payload is invalid.",
            {{0, u32(2)},
             {16, f64(0)},
             {16, f64(1'000'001)},
             {16, f64(nan)},
             {16, f64(100'000) + f64(1000.5)},
             {32, u32(~0U)},
             {record.size(), "x"}});
    refused("An image layer uses an unknown source encoding.", {{4, u32(4)}});
    refused("A raster layer has invalid pixel dimensions.",
            {{8, u32(1)}, {16, f64(2.5)}, {4, u32(1) + u32(16'384) + u32(1) + f64(16'384)}});
    refused("An embedded WebP has invalid dimensions.", {{4, u32(1)}});
    refused("An SVG layer contains raster dimensions.", {{4, u32(2) + u32(1) + u32(0)}});
    refused("An SVG layer contains invalid SVG data.", {{4, u32(2) + u32(0) + u32(0)}});
    refused("A raw RGBA image has an invalid byte length.", {{8, u32(16'384) + u32(1) + f64(16'384)}});
    refused("An image layer has an unknown raster surface policy.", {{36, u32(3)}});
    refused("A shape uses an unknown geometry type.", {{40, u32(3)}});
    // The selection is read first, then the pixels, then the policy.
    record = FileBytes(record).patch(36, u32(3));
    refused("An image layer uses an unknown source encoding.", {{4, u32(0)}});
    record = FileBytes(record).patch(4, u32(0));
    refused("A shape uses an unknown geometry type.", {{40, u32(4)}});
    record = FileBytes(rawRecord().first(72)).bytes(parametricRecord());
    refused("A raster selection must be an editable path.", {{40, u32(1) + u32(quint32(record.size()) - 72)}});

    kind = u"shape"_s;
    record = pathShape();
    const qsizetype node = kBody + 64;
    refused("An editable path record is invalid.",
            {{kBody, u32(2)},
             {kBody + 4, u32(0)},
             {kBody + 4, u32(3)},
             {kBody + 8, u32(1'000'001)},
             {kBody + 12, u32(225)}});
    refused("An editable path has trailing data.", {{kBody + 8, u32(1)}});
    refused("An editable path contour is invalid.",
            {{kBody + 8, u32(3)}, {kBody + 36, u32(2)}, {kBody + 36, u32(1'000'001) + u32(80'000'080)}});
    refused("An editable path node is invalid.",
            {{kBody + 36, u32(1'000'000) + u32(80'000'000)}, {node + 24, f64(nan)}, {node + 64, f64(1 / 0.0)}});
    refused("The .zelmora file contains a null object identifier.", {{node, QByteArray(16, '\0')}});
    refused("An editable path node ID is duplicated.", {{node, kSecondNode.toRfc4122()}});
    refused("An editable path node uses an unknown type.", {{node + 16, u32(0)}, {node + 16, u32(4)}});
    record = generatedShape();
    refused("A shape layer payload is invalid.",
            {{0, u32(0)}, {8, f64(-1)}, {16, f64(5'000'000)}, {48, f64(-0.5)}, {48, f64(nan)}});
    refused("A shape layer payload is truncated.", {{24, u32(~0U) + u32(~0U)}, {28, u32(127)}});
    refused("A shape uses an unknown geometry type.", {{4, u32(3)}});
    refused(color, {{32, red(1.0000001F)}});
    refused("A parametric shape record is invalid.",
            {{kBody, u32(2)}, {kBody + 4, u32(0x1000001)}, {kBody + 4, u32(77)}, {kBody + 12, u32(75)}});
    refused("A shape generator ID is empty.", {{kBody + 4, u32(0)}});
    refused("A parametric shape has trailing data.", {{kBody + 8, u32(0)}});

    kind = u"fill"_s;
    record = solidRecord();
    refused("A fill record is truncated or invalid.", {{0, u32(2)}, {4, u32(0)}, {4, u32(4)}, {44, u32(1)}});
    refused("A fill uses an unknown texture mapping.", {{8, u32(0)}, {8, u32(5)}});
    refused("A solid fill contains unexpected data.", {{32, u32(1)}, {36, u32(1)}, {40, u32(1)}});
    refused(color, {{16, red(-0.5F)}, {16, red(float(nan))}});
    refused("A gradient fill record is invalid.", {{4, u32(3)}});
    record = textureRecord();
    refused("A texture fill record is invalid.", {{40, u32(1)}, {32, u32(74)}});
    refused("A texture parameter block has trailing data.", {{36, u32(0)}});
    refused("A texture fill transform or size is invalid.", {{48, f64(nan)}, {112, f64(nan)}});
    record = gradientRecord();
    refused("A gradient fill record is invalid.",
            {{36, u32(1)}, {132, u32(1)}, {132, u32(3)}, {132, u32(~0U)}, {160, f64(nan)}});
    refused("A gradient fill uses an unsupported type.", {{128, u32(0)}, {128, u32(3)}});
    refused("A gradient fill has an invalid color stop.", {{192, f64(1.01)}, {192, f64(nan)}});
    refused(color, {{200, red(2)}});
    record = oldGradientRecord();
    refused("A gradient fill uses an unsupported type.", {{128, u32(3)}});
    refused("A gradient fill has an invalid position.", {{164, f64(nan)}});
    refused(color, {{148, red(-1)}});

    kind = u"text"_s;
    record = textRecord();
    refused("A text layer payload is invalid.",
            {{0, u32(2)}, {4, u32(1'000'001)}, {8, f64(-1)}, {8, f64(nan)}, {16, u32(1)}});
    refused("A text layer has trailing data.", {{4, u32(0)}});
    refused("A text paragraph record is invalid.",
            {{4, u32(2)}, {40, u32(1'000'001)}, {44, u32(~0U)}, {48, f64(0)}, {48, f64(nan)}});
    refused("A text paragraph uses an unknown alignment.", {{32, u32(0)}, {32, u32(5)}});
    refused("A text paragraph uses an unknown direction.", {{36, u32(3)}});
    refused("A text paragraph has trailing data.", {{40, u32(0)}});
    refused("A text run record is invalid.",
            {{40, u32(2)},
             {kBody + 20, u32(1'000'001)},
             {kBody + 28, u32(0)},
             {kBody + 28, u32(1'001)},
             {kBody + 32, u32(4'001)},
             {kBody + 52, u32(0x0200)},
             {kBody + 56, f64(nan)},
             {kBody + 88, f64(-1)}});
    refused(color, {{kBody + 96, red(9)}, {kBody + 112, red(9)}});
    refused("A text run is truncated.", {{kBody + 4, u32(~0U)}});
    refused("A font family block has trailing data.", {{kBody + 20, u32(1)}});
    refused("A font family record is invalid.", {{kBody + 20, u32(3)}, {kBody + 134, u32(~0U)}});
    refused("A text run uses an unknown font style.", {{kBody + 36, u32(4)}});
    refused("A text run uses an unknown capitalization mode.", {{kBody + 40, u32(0)}});
    refused("A text run uses an unknown letter-spacing mode.", {{kBody + 44, u32(3)}});
    refused("A text run uses an unknown font hinting mode.", {{kBody + 48, u32(4)}});
    refused("A text run has no valid font size.", {{kBody + 24, u32(~0U)}});
}

QTEST_MAIN(TestLayerContent)
#include "tst_layer_content.moc"
