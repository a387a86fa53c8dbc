#include "cli/readable_info.h"

#include <QStringList>

#include <cmath>
#include <ranges>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 8);
}

QString sizeText(const QSizeF &size)
{
    return u"%1 x %2"_s.arg(number(size.width()), number(size.height()));
}

QString colorText(const QColor &color)
{
    if (color.alpha() == 0)
        return u"transparent"_s;
    const int percent = int(std::round(color.alphaF() * 100.0));
    return percent == 100 ? color.name() : u"%1 at %2 %"_s.arg(color.name()).arg(percent);
}

/// Nothing in a name may move the cursor or begin a line.
QString onOneLine(QString text)
{
    for (QChar &c : text) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            c = u' ';
    }
    return text;
}

QString plainText(const TextLayerState &text)
{
    constexpr qsizetype shownUnits = 40; // of UTF-16
    QString all;
    for (const TextParagraph &paragraph : text.blocks) {
        all += all.isEmpty() ? QString() : u" "_s;
        for (const TextRun &run : paragraph.runs)
            all += run.text;
        if (all.size() > shownUnits) {
            const bool cutsCharacter = all[shownUnits - 1].isHighSurrogate();
            return onOneLine(all.first(shownUnits - (cutsCharacter ? 1 : 0)).trimmed()) + u"..."_s;
        }
    }
    return onOneLine(all);
}

/// The kind of a layer, and what there is to say about it.
struct KindText
{
    QString name;

    QString operator()(const ImageContent &image) const
    {
        const bool isSvg = std::holds_alternative<SvgImageSource>(image.source);
        return u"%1 \"%2\", %3%4"_s.arg(isSvg ? u"svg"_s : u"image"_s, name, sizeText(image.size),
                                        image.selection ? u", with a selection"_s : QString());
    }
    QString operator()(const ShapeContent &shape) const
    {
        const auto *generator = std::get_if<GeneratorGeometry>(&shape.shape.geometry);
        return u"shape \"%1\" (%2), %3"_s.arg(name, generator ? onOneLine(generator->generatorId) : u"path"_s,
                                              sizeText(shape.shape.size));
    }
    QString operator()(const TextLayerState &text) const
    {
        const QString width = text.textWidth > 0 ? u", %1 wide"_s.arg(number(text.textWidth)) : QString();
        return u"text \"%1\" (%2)%3"_s.arg(name, plainText(text), width);
    }
};

QStringList placement(const ObjectTransform &transform)
{
    QStringList words{u"at %1, %2"_s.arg(number(transform.position().x()), number(transform.position().y()))};
    if (const QPointF scale = transform.scale(); scale != QPointF(1, 1))
        words.append(u"scaled by %1, %2"_s.arg(number(scale.x()), number(scale.y())));
    if (transform.rotation() != 0.0)
        words.append(u"rotated by %1"_s.arg(number(transform.rotation())));
    if (const QPointF shear = transform.shear(); !shear.isNull())
        words.append(u"sheared by %1, %2"_s.arg(number(shear.x()), number(shear.y())));
    return words;
}

QString layerLine(const LayerRecord &layer)
{
    QStringList words{std::visit(KindText{onOneLine(layer.name)}, layer.content)};
    words += placement(layer.transform);
    if (!layer.visible)
        words.append(u"hidden"_s);
    if (layer.opacity < 1.0)
        words.append(u"opacity %1 %"_s.arg(number(layer.opacity * 100.0)));
    if (layer.blendMode != defaultBlendMode())
        words.append(onOneLine(layer.blendMode));
    QStringList effects;
    for (const FilterInstance &filter : layer.filters)
        effects.append(onOneLine(filter.filterId) + (filter.enabled ? u""_s : u" (off)"_s));
    const QString line = words.join(", "_L1);
    return effects.isEmpty() ? line : u"%1; effects: %2"_s.arg(line, effects.join(", "_L1));
}

} // namespace

QString readableInfo(const QString &path, const DocumentRecords &records)
{
    QStringList lines{path, u"  size: %1"_s.arg(sizeText(records.documentSize)),
                      u"  background: %1"_s.arg(colorText(records.backgroundColor))};
    if (records.formatVersion > 0)
        lines.append(u"  layers: %1"_s.arg(records.layers.size()));
    for (const LayerRecord &layer : records.layers | std::views::reverse)
        lines.append(u"  - %1"_s.arg(layerLine(layer)));
    return lines.join(u'\n');
}

} // namespace zm::cli
