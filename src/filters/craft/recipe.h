#pragma once

#include "filters/library_filter.h"

#include <QMargins>

#include <functional>
#include <initializer_list>

namespace zm {

// Effects that only turn their controls into the uniforms of one or a few passes are told as a recipe: a line for each
// uniform, and for each picture that a pass reads beside the one it draws over.

/// One pass of a recipe over the picture as the passes before it left it. What is not mentioned is zero.
class RecipePass
{
public:
    /// What the values of a pass are worked out from.
    struct Moment
    {
        const FilterRenderRequest &request;
        /// How much larger the result is than the picture that came, on each side, pixels.
        QMargins growth;

        QSize outputSize() const { return request.size().grownBy(growth); }
    };

    explicit RecipePass(const char *shader);

    // Uniforms. The first argument is the field of the shader.

    RecipePass &computed(const char *field, const std::function<double(const FilterRenderRequest &)> &value);
    RecipePass &computedPair(const char *field, const std::function<QPointF(const FilterRenderRequest &)> &value);
    /// The sizes of the picture that came and of what is drawn, and the room left of and above the picture; pixels.
    RecipePass &pictureSize(const char *field);
    RecipePass &outputSize(const char *field);
    RecipePass &room(const char *field);
    /// Controls as FilterRenderRequest reads them.
    RecipePass &number(const char *field, const char *key);
    RecipePass &percent(const char *field, const char *key);
    RecipePass &pixels(const char *field, const char *key);
    RecipePass &diagonalPixels(const char *field, const char *key);
    RecipePass &radians(const char *field, const char *key);
    RecipePass &flag(const char *field, const char *key);
    RecipePass &choice(const char *field, const char *key);
    RecipePass &color(const char *field, const char *key);
    /// Of a gradient position: where it begins, in pixels or in fractions of the picture, and its length in pixels.
    RecipePass &lineStart(const char *field, const char *key);
    RecipePass &lineStartInPicture(const char *field, const char *key);
    RecipePass &lineLength(const char *field, const char *key);
    /// A length in layer units that no control changes, as pixels of the picture.
    RecipePass &layerUnits(const char *field, double length);

    // Pictures for the samplers after the first, in the order of the shader's row.

    /// The mask of the controls "mask", "mask.transform" and "mask.feather", over the picture that came.
    RecipePass &withShapeMask();
    /// What the pass draws over, blurred by a sigma that is a share of its diagonal, at a reduced size.
    RecipePass &withSoftCopy(double share);
    /// The picture that came, out of focus by a radius in thousandths of its diagonal that a control sets.
    RecipePass &withLensBlur(const char *key);

    /// At 0 of this control the pass is left out.
    RecipePass &leftOutAtZero(const char *key);

    bool isLeftOut(const FilterRenderRequest &request) const;
    PassChain::Picture draw(PassChain &chain, const Moment &moment, PassChain::Picture picture) const;

private:
    using Value = std::function<UniformVec4(const Moment &)>;
    using Addition = std::function<PassChain::Picture(PassChain &, const FilterRenderRequest &, PassChain::Picture)>;

    RecipePass &add(const char *field, const Value &value);
    RecipePass &control(const char *field, const char *key, double (FilterRenderRequest::*read)(const QString &) const);

    struct Uniform
    {
        QLatin1StringView field;
        Value value;
    };

    QString m_shader;
    QList<Uniform> m_uniforms;
    QList<Addition> m_additions;
    QString m_amountKey;
};

struct Recipe
{
    Recipe(const RecipePass &pass)
        : passes{pass}
    {
    }
    Recipe(std::initializer_list<RecipePass> list)
        : passes(list)
    {
    }

    QList<RecipePass> passes;
    /// How much room the passes draw around the picture, pixels; null for none.
    std::function<QMargins(const FilterRenderRequest &)> growth;
};

/// An effect that is its description and a recipe.
class RecipeFilter final : public LibraryFilter
{
public:
    RecipeFilter(const QString &id, const Recipe &recipe);

    FilterRenderResult render(const FilterRenderRequest &request) const override;

private:
    const Recipe m_recipe;
};

} // namespace zm
