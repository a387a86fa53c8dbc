#include "generators/shape_generator_registry.h"

#include "generators/shape_generators.h"

#include <algorithm>

namespace zm {

ShapeGeneratorRegistry::ShapeGeneratorRegistry()
{
    m_generators.push_back(makeArrowShapeGenerator());
    m_generators.push_back(makeBurstShapeGenerator());
    m_generators.push_back(makeCloudShapeGenerator());
    m_generators.push_back(makeDiamondShapeGenerator());
    m_generators.push_back(makeEllipseShapeGenerator());
    m_generators.push_back(makeHalfCircleShapeGenerator());
    m_generators.push_back(makeHeartShapeGenerator());
    m_generators.push_back(makeLightningBoltShapeGenerator());
    m_generators.push_back(makePaintSpotShapeGenerator());
    m_generators.push_back(makePolygonShapeGenerator());
    m_generators.push_back(makeRhombusShapeGenerator());
    m_generators.push_back(makeRibbonShapeGenerator());
    m_generators.push_back(makeRoundedRectShapeGenerator());
    m_generators.push_back(makeShieldBadgeShapeGenerator());
    m_generators.push_back(makeSpeechBubbleShapeGenerator());
    m_generators.push_back(makeSplodgeShapeGenerator());
    m_generators.push_back(makeStarShapeGenerator());
    m_generators.push_back(makeThoughtBubbleShapeGenerator());
    m_generators.push_back(makeTriangleShapeGenerator());
    m_generators.push_back(makeVignetteShapeGenerator());
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
