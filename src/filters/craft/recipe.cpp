#include "filters/craft/recipe.h"

#include "filters/craft/growth.h"
#include "filters/craft/lens_blur.h"
#include "filters/craft/shape_mask.h"

namespace zm {

namespace {

UniformVec4 pairOf(double x, double y)
{
    return {float(x), float(y)};
}

} // namespace

RecipePass::RecipePass(const char *shader)
    : m_shader(QString::fromLatin1(shader))
{
}

RecipePass &RecipePass::computed(const char *field, const std::function<double(const FilterRenderRequest &)> &value)
{
    return add(field, [value](const Moment &moment) { return UniformVec4{float(value(moment.request))}; });
}

RecipePass &RecipePass::computedPair(const char *field,
                                     const std::function<QPointF(const FilterRenderRequest &)> &value)
{
    return add(field, [value](const Moment &moment) {
        const QPointF pair = value(moment.request);
        return pairOf(pair.x(), pair.y());
    });
}

RecipePass &RecipePass::pictureSize(const char *field)
{
    return add(field, [](const Moment &moment) {
        return pairOf(moment.request.size().width(), moment.request.size().height());
    });
}

RecipePass &RecipePass::outputSize(const char *field)
{
    return add(field,
               [](const Moment &moment) { return pairOf(moment.outputSize().width(), moment.outputSize().height()); });
}

RecipePass &RecipePass::room(const char *field)
{
    return add(field, [](const Moment &moment) { return pairOf(moment.growth.left(), moment.growth.top()); });
}

RecipePass &RecipePass::number(const char *field, const char *key)
{
    return control(field, key, &FilterRenderRequest::number);
}

RecipePass &RecipePass::percent(const char *field, const char *key)
{
    return control(field, key, &FilterRenderRequest::percent);
}

RecipePass &RecipePass::pixels(const char *field, const char *key)
{
    return control(field, key, &FilterRenderRequest::pixels);
}

RecipePass &RecipePass::diagonalPixels(const char *field, const char *key)
{
    return control(field, key, &FilterRenderRequest::diagonalPixels);
}

RecipePass &RecipePass::radians(const char *field, const char *key)
{
    return control(field, key, &FilterRenderRequest::radians);
}

RecipePass &RecipePass::flag(const char *field, const char *key)
{
    return computed(field, [key = QString::fromLatin1(key)](const FilterRenderRequest &request) {
        return request.flag(key) ? 1.0 : 0.0;
    });
}

RecipePass &RecipePass::choice(const char *field, const char *key)
{
    return computed(
        field, [key = QString::fromLatin1(key)](const FilterRenderRequest &request) { return request.choice(key); });
}

RecipePass &RecipePass::color(const char *field, const char *key)
{
    return add(field, [key = QString::fromLatin1(key)](const Moment &moment) {
        const QColor color = moment.request.color(key);
        return UniformVec4{color.redF(), color.greenF(), color.blueF()};
    });
}

RecipePass &RecipePass::lineStart(const char *field, const char *key)
{
    return computedPair(
        field, [key = QString::fromLatin1(key)](const FilterRenderRequest &request) { return request.line(key).p1(); });
}

RecipePass &RecipePass::lineStartInPicture(const char *field, const char *key)
{
    return computedPair(field, [key = QString::fromLatin1(key)](const FilterRenderRequest &request) {
        const QPointF start = request.line(key).p1();
        return QPointF(start.x() / request.size().width(), start.y() / request.size().height());
    });
}

RecipePass &RecipePass::lineLength(const char *field, const char *key)
{
    return computed(field, [key = QString::fromLatin1(key)](const FilterRenderRequest &request) {
        return request.line(key).length();
    });
}

RecipePass &RecipePass::layerUnits(const char *field, double length)
{
    return computed(field, [length](const FilterRenderRequest &request) { return length * request.renderScale(); });
}

RecipePass &RecipePass::withShapeMask()
{
    m_additions.append([](PassChain &chain, const FilterRenderRequest &request, PassChain::Picture) {
        return addShapeMask(chain, request);
    });
    return *this;
}

RecipePass &RecipePass::withSoftCopy(double share)
{
    m_additions.append([share](PassChain &chain, const FilterRenderRequest &, PassChain::Picture picture) {
        const QSize size = chain.size(picture);
        return chain.reducedBlur(picture, share * std::hypot(size.width(), size.height()));
    });
    return *this;
}

RecipePass &RecipePass::withLensBlur(const char *key)
{
    m_additions.append(
        [key = QString::fromLatin1(key)](PassChain &chain, const FilterRenderRequest &request, PassChain::Picture) {
            return chain.source(lensBlurred(request.image, request.diagonalPixels(key)));
        });
    return *this;
}

RecipePass &RecipePass::leftOutAtZero(const char *key)
{
    m_amountKey = QString::fromLatin1(key);
    return *this;
}

bool RecipePass::isLeftOut(const FilterRenderRequest &request) const
{
    return !m_amountKey.isEmpty() && request.number(m_amountKey) <= 0.0;
}

PassChain::Picture RecipePass::draw(PassChain &chain, const Moment &moment, PassChain::Picture picture) const
{
    LibraryUniformBlock block(m_shader);
    for (const Uniform &uniform : m_uniforms) {
        const UniformVec4 numbers = uniform.value(moment);
        block.setVec4(uniform.field, numbers[0], numbers[1], numbers[2], numbers[3]);
    }
    QList<PassChain::Picture> inputs{picture};
    for (const Addition &addition : m_additions)
        inputs.append(addition(chain, moment.request, picture));
    return chain.libraryShader(m_shader, moment.outputSize(), inputs, block.bytes());
}

RecipePass &RecipePass::add(const char *field, const Value &value)
{
    m_uniforms.append({QLatin1StringView(field), value});
    return *this;
}

RecipePass &RecipePass::control(const char *field, const char *key,
                                double (FilterRenderRequest::*read)(const QString &) const)
{
    return computed(field, [key = QString::fromLatin1(key), read](const FilterRenderRequest &request) {
        return (request.*read)(key);
    });
}

RecipeFilter::RecipeFilter(const QString &id, const Recipe &recipe)
    : LibraryFilter(id)
    , m_recipe(recipe)
{
}

FilterRenderResult RecipeFilter::render(const FilterRenderRequest &request) const
{
    const QMargins growth = m_recipe.growth ? affordableMargins(request, m_recipe.growth(request)) : QMargins();
    PassChain chain;
    PassChain::Picture picture = chain.source(request.image);
    bool drawn = false;
    for (const RecipePass &pass : m_recipe.passes) {
        if (pass.isLeftOut(request))
            continue;
        picture = pass.draw(chain, {request, growth}, picture);
        drawn = true;
    }
    const QImage image = drawn ? request.renderer->renderChain(chain, picture) : QImage();
    return image.isNull() ? request.unchanged() : FilterRenderResult{image, grownBounds(request, growth)};
}

} // namespace zm
