#include "support/random_document.h"

#include "filters/filter_registry.h"
#include "support/pictures.h"
#include "values/blend_modes.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm::test {

namespace {

/// Draws values of all types.
class Dice
{
public:
    explicit Dice(QRandomGenerator &random)
        : m_random(random)
    {
    }

    int below(int end) { return m_random.bounded(end); }
    bool coin() { return below(2) == 0; }
    /// Mostly a fraction with all its bits, sometimes an end of the range.
    double number(double lowest, double highest)
    {
        switch (below(12)) {
        case 0:
            return lowest;
        case 1:
            return highest;
        default:
            return lowest + (highest - lowest) * m_random.generateDouble();
        }
    }
    QPointF point(double lowest, double highest)
    {
        const double x = number(lowest, highest);
        return {x, number(lowest, highest)};
    }
    QUuid id()
    {
        quint32 words[4];
        m_random.fillRange(words);
        return QUuid::fromRfc4122(QByteArrayView(reinterpret_cast<const char *>(words), 16));
    }
    QColor color() { return QColor::fromRgba64(QRgba64::fromRgba64(m_random.generate64())); }
    QString text(int longest)
    {
        static const QStringList pieces{u"a"_s, u"Zoë "_s, u"漢字"_s, u"\U0001F600"_s, u"שלום"_s, u"&<\"%1"_s, u" "_s};
        QString text;
        for (int i = below(longest + 1); i > 0; --i)
            text += pieces[below(int(pieces.size()))];
        return text;
    }
    template<typename Value>
    Value oneOf(std::initializer_list<Value> values)
    {
        return values.begin()[below(int(values.size()))];
    }
    quint32 seed() { return m_random.generate(); }

private:
    QRandomGenerator &m_random;
};

ParameterValue parameterValue(Dice &dice)
{
    switch (dice.below(12)) {
    case 0:
        return dice.coin();
    case 1:
        return qint64(dice.number(-1e15, 1e15));
    case 2:
        return dice.number(-1e300, 1e300);
    case 3:
        return dice.color();
    case 4:
        return dice.text(9);
    case 5:
        return AssetName{u"leaf.png"_s};
    case 6:
        return EnabledColor{dice.coin(), dice.color()};
    case 7:
        return Stroke{dice.color(), dice.number(0.0, 50.0)};
    case 8:
        return GradientPosition{dice.number(-1, 2), dice.number(-1, 2), dice.number(-1, 2), dice.number(-1, 2)};
    case 9:
        return MaskTransform{
            dice.number(-1, 2),     dice.number(-1, 2),
            dice.number(-3, 3),     dice.number(-3, 3),
            dice.number(-360, 360), dice.number(0, 1),
            dice.number(0, 1),      dice.oneOf({MaskTransform::Mode::Free, MaskTransform::Mode::Uniform})};
    case 10:
        return ShapeMask{u"star5"_s};
    default: {
        LightSources lights;
        for (int i = dice.below(3); i > 0; --i) {
            lights.append({dice.id(), dice.number(-1, 2), dice.number(-1, 2), dice.number(0, 2), dice.number(0, 360),
                           dice.number(0, 1), dice.number(0, 1), LightSource::Shape(dice.below(4)), dice.color()});
        }
        return lights;
    }
    }
}

ParameterValues parameters(Dice &dice)
{
    ParameterValues values;
    for (int i = dice.below(14); i > 0; --i)
        values.set(u"key.%1"_s.arg(dice.below(100)), parameterValue(dice));
    return values;
}

/// Of this program with its own values, or of a newer one.
FilterInstance filter(Dice &dice)
{
    FilterInstance instance{dice.id(), u"from-the-future"_s, {}, dice.coin(), dice.coin()};
    if (dice.coin()) {
        instance.parameters = parameters(dice);
        return instance;
    }
    const auto &filters = FilterRegistry::instance().filters();
    const Filter &known = *filters[size_t(dice.below(int(filters.size())))];
    instance.filterId = known.id();
    const QList<ParameterDefinition> controls = known.controls();
    instance.parameters = completeParameters(controls, {});
    for (const ParameterDefinition &control : controls) {
        if (parameterHead(control).flags.testFlag(ParameterFlag::NotStored))
            instance.parameters.remove(parameterHead(control).id);
    }
    return instance;
}

EditablePath path(Dice &dice, double side)
{
    EditablePath path;
    path.fillRule = dice.oneOf({Qt::WindingFill, Qt::OddEvenFill});
    for (int i = 1 + dice.below(3); i > 0; --i) {
        EditablePathContour contour{{}, dice.coin()};
        for (int n = 1 + dice.below(5); n > 0; --n) {
            contour.nodes.append({dice.id(), dice.point(0.0, side), dice.point(0.0, side), dice.point(0.0, side),
                                  EditablePathNode::Type(dice.below(3)), dice.coin(), dice.coin()});
        }
        path.contours.append(contour);
    }
    return path;
}

Fill fill(Dice &dice)
{
    switch (dice.below(3)) {
    case 0:
        return dice.color();
    case 1: {
        GradientFill gradient{
            dice.oneOf({GradientType::Linear, GradientType::Radial}), dice.point(-1, 2), dice.point(-1, 2), {}};
        for (int i = 2 + dice.below(4); i > 0; --i)
            gradient.stops.append({dice.number(0.0, 1.0), dice.color()});
        return gradient;
    }
    default: {
        const QTransform transform(dice.number(-2, 2), dice.number(-2, 2), 0.0, dice.number(-2, 2), dice.number(-2, 2),
                                   0.0, dice.number(-99, 99), dice.number(-99, 99), 1.0);
        return TextureFill{u"paper"_s, parameters(dice), {}, transform, quint32(dice.below(4))};
    }
    }
}

QFont font(Dice &dice)
{
    QFont font;
    font.setFamilies(dice.coin() ? QStringList{u"Arial"_s} : QStringList{u"DejaVu Sans"_s, u"Noto Sans"_s});
    font.setStyleName(dice.oneOf({u""_s, u"Condensed"_s}));
    if (dice.coin())
        font.setPixelSize(1 + dice.below(300));
    else
        font.setPointSizeF(dice.number(0.5, 300.0));
    font.setWeight(QFont::Weight(1 + dice.below(1000)));
    font.setStretch(1 + dice.below(4000));
    font.setStyle(dice.oneOf({QFont::StyleNormal, QFont::StyleItalic, QFont::StyleOblique}));
    font.setCapitalization(QFont::Capitalization(dice.below(5)));
    font.setLetterSpacing(dice.oneOf({QFont::PercentageSpacing, QFont::AbsoluteSpacing}), dice.number(-20, 200));
    font.setWordSpacing(dice.number(-20, 20));
    font.setHintingPreference(QFont::HintingPreference(dice.below(4)));
    font.setStyleStrategy(dice.oneOf({QFont::PreferDefault, QFont::PreferAntialias, QFont::NoSubpixelAntialias}));
    font.setKerning(dice.coin());
    if (dice.coin()) // told "false", a font is not what it was when nothing was told
        font.setFixedPitch(true);
    return font;
}

TextLayerState text(Dice &dice)
{
    TextLayerState state{{}, dice.oneOf({0.0, dice.number(1.0, 2000.0)})};
    for (int i = 1 + dice.below(3); i > 0; --i) {
        TextParagraph paragraph;
        paragraph.alignment = dice.oneOf({Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify});
        paragraph.direction = dice.oneOf({Qt::LayoutDirectionAuto, Qt::LeftToRight, Qt::RightToLeft});
        paragraph.lineHeight = dice.number(0.5, 4.0);
        for (int n = dice.below(4); n > 0; --n) {
            paragraph.runs.append({dice.text(6), font(dice), fill(dice), dice.color(), dice.number(0, 9), dice.color(),
                                   dice.number(-50, 50), dice.coin(), dice.coin(), dice.coin()});
        }
        state.blocks.append(paragraph);
    }
    return state;
}

std::unique_ptr<ImageLayer> imageLayer(Dice &dice, const QString &name)
{
    const int width = 1 + dice.below(40);
    const int height = 1 + dice.below(40);
    ImageLayerSource source = SvgImageSource{R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="7"/>)",
                                             QSizeF(dice.number(1.0, 90.0), dice.number(1.0, 90.0))};
    if (dice.below(4) > 0)
        source = RasterImageSource{noisePicture(width, height, dice.seed())};
    if (dice.below(8) == 0)
        source = RasterImageSource{plainPicture(16'384, 1, dice.color())}; // longer than WebP goes
    auto layer = std::make_unique<ImageLayer>(source, name, dice.id());
    layer->setRasterSurfacePolicy(dice.oneOf({RasterSurfacePolicy::Fixed, RasterSurfacePolicy::Expanding}));
    if (dice.coin())
        layer->setRasterSelection(path(dice, 40.0));
    return layer;
}

std::unique_ptr<ShapeLayer> shapeLayer(Dice &dice, const QString &name)
{
    ShapeGeometry geometry = path(dice, 500.0);
    if (dice.coin())
        geometry = GeneratorGeometry{u"star5"_s, parameters(dice)};
    const QSizeF size(dice.number(1.0, 900.0), dice.number(1.0, 900.0));
    return std::make_unique<ShapeLayer>(geometry, size, Stroke{dice.color(), dice.number(0.0, 30.0)}, fill(dice), name,
                                        dice.id());
}

/// Names a field whose two values differ.
class Comparison
{
public:
    template<typename Value>
    void compare(const char *field, const Value &a, const Value &b)
    {
        if (m_difference.isEmpty() && !(a == b))
            m_difference = QLatin1StringView(field);
    }
    void compare(const char *field, const QPointF &a, const QPointF &b) // whose operator is fuzzy
    {
        compare(field, std::pair(a.x(), a.y()), std::pair(b.x(), b.y()));
    }
    void compare(const char *field, const QSizeF &a, const QSizeF &b)
    {
        compare(field, std::pair(a.width(), a.height()), std::pair(b.width(), b.height()));
    }
    QString difference() const { return m_difference; }

private:
    QString m_difference;
};

void compareTexts(Comparison &fields, const TextLayerState &a, const TextLayerState &b)
{
    fields.compare("text width", a.textWidth, b.textWidth);
    for (qsizetype i = 0; i < std::min(a.blocks.size(), b.blocks.size()); ++i) {
        const TextParagraph &first = a.blocks[i];
        const TextParagraph &second = b.blocks[i];
        for (qsizetype n = 0; n < std::min(first.runs.size(), second.runs.size()); ++n) {
            fields.compare("run's text", first.runs[n].text, second.runs[n].text);
            fields.compare("run's font", first.runs[n].font, second.runs[n].font);
            fields.compare("run's fill", first.runs[n].fill, second.runs[n].fill);
            fields.compare("run", first.runs[n], second.runs[n]);
        }
        fields.compare("paragraph", first, second);
    }
    fields.compare("text", a, b);
}

} // namespace

std::unique_ptr<Layer> randomLayer(QRandomGenerator &random)
{
    Dice dice(random);
    std::unique_ptr<Layer> layer;
    const QString name = dice.text(5);
    switch (dice.below(3)) {
    case 0:
        layer = imageLayer(dice, name);
        break;
    case 1:
        layer = shapeLayer(dice, name);
        break;
    default: {
        const TextLayerState state = text(dice);
        layer = std::make_unique<TextLayer>(state.blocks, state.textWidth, name, dice.id());
    }
    }
    ObjectTransform transform;
    transform.setPosition(dice.point(-1e6, 1e6));
    transform.setScale({dice.number(0.001, 9.0) * dice.oneOf({-1, 1}), dice.number(0.001, 9.0)});
    transform.setShear(dice.point(-89.0, 89.0));
    transform.setAnchor(dice.point(0.0, 1.0));
    transform.setRotation(dice.number(-720.0, 720.0));
    layer->setTransform(transform);
    layer->setVisible(dice.coin());
    layer->setOpacity(dice.number(0.0, 1.0));
    const auto modes = blendModes();
    layer->setBlendMode(dice.coin() ? QString(modes[size_t(dice.below(int(modes.size())))].key) : u"from-later"_s);
    QList<FilterInstance> filters;
    for (int i = dice.below(4); i > 0; --i)
        filters.append(filter(dice));
    layer->setFilters(filters);
    return layer;
}

std::unique_ptr<Document> randomDocument(QRandomGenerator &random)
{
    Dice dice(random);
    auto document = std::make_unique<Document>();
    document->setSize({double(1 + dice.below(5000)), double(1 + dice.below(5000))});
    document->setBackgroundColor(dice.color());
    for (int i = dice.below(7); i > 0; --i)
        document->insertObject(randomLayer(random));
    return document;
}

QString difference(const Layer &a, const Layer &b)
{
    Comparison fields;
    fields.compare("kind", a.layerType(), b.layerType());
    fields.compare("id", a.id(), b.id());
    fields.compare("name", a.name(), b.name());
    fields.compare("visible", a.isVisible(), b.isVisible());
    fields.compare("opacity", a.opacity(), b.opacity());
    fields.compare("blend mode", a.blendMode(), b.blendMode());
    fields.compare("position", a.transform().position(), b.transform().position());
    fields.compare("scale", a.transform().scale(), b.transform().scale());
    fields.compare("shear", a.transform().shear(), b.transform().shear());
    fields.compare("anchor", a.transform().anchor(), b.transform().anchor());
    fields.compare("rotation", a.transform().rotation(), b.transform().rotation());
    fields.compare("filters", a.filters(), b.filters());
    if (a.layerType() != b.layerType())
        return fields.difference();
    if (const auto *image = dynamic_cast<const ImageLayer *>(&a)) {
        const auto &other = static_cast<const ImageLayer &>(b);
        fields.compare("source", sameSource(image->source(), other.source()), true);
        fields.compare("size", image->layerSize(), other.layerSize());
        fields.compare("policy", image->rasterSurfacePolicy(), other.rasterSurfacePolicy());
        fields.compare("selection", image->rasterSelection(), other.rasterSelection());
    } else if (const auto *shape = dynamic_cast<const ShapeLayer *>(&a)) {
        const auto &other = static_cast<const ShapeLayer &>(b);
        fields.compare("geometry", shape->geometry(), other.geometry());
        fields.compare("size", shape->layerSize(), other.layerSize());
        fields.compare("stroke", shape->stroke(), other.stroke());
        fields.compare("fill", shape->fill(), other.fill());
    } else {
        compareTexts(fields, static_cast<const TextLayer &>(a).state(), static_cast<const TextLayer &>(b).state());
    }
    return fields.difference();
}

QString difference(const Document &a, const Document &b)
{
    Comparison fields;
    fields.compare("document size", a.size(), b.size());
    fields.compare("background", a.backgroundColor(), b.backgroundColor());
    fields.compare("number of layers", a.objectCount(), b.objectCount());
    if (!fields.difference().isEmpty())
        return fields.difference();
    for (qsizetype i = 0; i < a.objectCount(); ++i) {
        const QString found =
            difference(static_cast<const Layer &>(*a.objectAt(i)), static_cast<const Layer &>(*b.objectAt(i)));
        if (!found.isEmpty())
            return u"layer %1: %2"_s.arg(i).arg(found);
    }
    return {};
}

} // namespace zm::test
