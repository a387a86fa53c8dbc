#include "generators/shape_generator_registry.h"

#include "generators/shape_generators.h"

#include <algorithm>

namespace zm {

ShapeGeneratorRegistry::ShapeGeneratorRegistry()
{
    m_generators.push_back(makeRoundedRectShapeGenerator());
    m_generators.push_back(makeStarShapeGenerator());
}

const ShapeGeneratorRegistry &ShapeGeneratorRegistry::instance()
{
    static const ShapeGeneratorRegistry registry;
    return registry;
}

const ShapeGenerator *ShapeGeneratorRegistry::find(const QString &id) const
{
    const auto found = std::ranges::find_if(
        m_generators, [&id](const std::unique_ptr<ShapeGenerator> &generator) { return generator->id() == id; });
    return found == m_generators.end() ? nullptr : found->get();
}

} // namespace zm
