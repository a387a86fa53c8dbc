#include "filters/library_filter.h"

#include <QImage>
#include <QRgb>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kStops = 7;
constexpr int kPaletteWidth = 256; // as many as there are greys

// Colours at even steps from cold to hot, brighter from step to step except in the rainbow and the divided one.
constexpr QRgb kPalettes[][kStops] = {
    {0xff05040d, 0xff2a0a5e, 0xff86128a, 0xffd23b5f, 0xfff57c1f, 0xfffdc737, 0xfffffbe3}, // iron
    {0xff080305, 0xff3d0711, 0xff8c0f14, 0xffd3340f, 0xfff27a14, 0xfffcc246, 0xfffff6d0}, // lava
    {0xff1c1147, 0xff2247c4, 0xff1aa7d6, 0xff3ccf7a, 0xffd7dc35, 0xfff5842a, 0xffb0151c}, // rainbow
    {0xff040714, 0xff0d2150, 0xff14508f, 0xff2586b8, 0xff5cb9d2, 0xffacdfe4, 0xfff8fdfb}, // arctic
    {0xff120527, 0xff3b1c66, 0xff2f4f8c, 0xff20808b, 0xff35ad77, 0xff96d34c, 0xfff9ec4c}, // aurora
    {0xff0c2461, 0xff2a6db3, 0xff86bfdc, 0xfff1ece4, 0xfff0a57b, 0xffcd473a, 0xff6b0a26}, // cold and hot
};

/// One row of colours.
QImage palette(int index)
{
    const QRgb *stops = kPalettes[std::min<size_t>(size_t(index), std::size(kPalettes) - 1)];
    QImage row(kPaletteWidth, 1, QImage::Format_RGBA8888);
    for (int x = 0; x < kPaletteWidth; ++x) {
        const double position = double(x) * (kStops - 1) / (kPaletteWidth - 1);
        const int first = std::min(int(position), kStops - 2);
        const double share = position - first;
        const auto mixed = [share](int from, int to) { return int(std::lround(from + (to - from) * share)); };
        const QRgb from = stops[first];
        const QRgb to = stops[first + 1];
        row.setPixel(x, 0,
                     qRgb(mixed(qRed(from), qRed(to)), mixed(qGreen(from), qGreen(to)), mixed(qBlue(from), qBlue(to))));
    }
    return row;
}

class HeatmapFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QImage colors = palette(request.choice(u"palette"_s));
        LibraryUniformBlock block(u"heatmap"_s);
        block.setSize("u_lutSize"_L1, colors.size());
        block.setFloat("u_mix"_L1, request.percent(u"mix"_s));
        block.setFloat("u_contrast"_L1, request.percent(u"contrast"_s));
        block.setFloat("u_gamma"_L1, std::exp2(-1.5 * request.percent(u"gamma"_s)));
        block.setFloat("u_reverse"_L1, request.flag(u"reverse"_s));
        block.setFloat("u_bands"_L1, std::round(request.number(u"bands"_s)));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        return request.chained(chain, addPass(chain, block, {input, chain.source(colors)}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Heatmap, HeatmapFilter, u"heatmap"_s)

} // namespace zm
