#pragma once

#include <memory>

namespace zm {

class ShapeGenerator;

// One maker for each file of shapes/. Adding a shape takes its file, a line here and a line in the registry.

std::unique_ptr<ShapeGenerator> makeArrowShapeGenerator();
std::unique_ptr<ShapeGenerator> makeBurstShapeGenerator();
std::unique_ptr<ShapeGenerator> makeCloudShapeGenerator();
std::unique_ptr<ShapeGenerator> makeDiamondShapeGenerator();
std::unique_ptr<ShapeGenerator> makeEllipseShapeGenerator();
std::unique_ptr<ShapeGenerator> makeHalfCircleShapeGenerator();
std::unique_ptr<ShapeGenerator> makeHeartShapeGenerator();
std::unique_ptr<ShapeGenerator> makeLightningBoltShapeGenerator();
std::unique_ptr<ShapeGenerator> makePaintSpotShapeGenerator();
std::unique_ptr<ShapeGenerator> makePolygonShapeGenerator();
std::unique_ptr<ShapeGenerator> makeRhombusShapeGenerator();
std::unique_ptr<ShapeGenerator> makeRibbonShapeGenerator();
std::unique_ptr<ShapeGenerator> makeRoundedRectShapeGenerator();
std::unique_ptr<ShapeGenerator> makeShieldBadgeShapeGenerator();
std::unique_ptr<ShapeGenerator> makeSpeechBubbleShapeGenerator();
std::unique_ptr<ShapeGenerator> makeSplodgeShapeGenerator();
std::unique_ptr<ShapeGenerator> makeStarShapeGenerator();
std::unique_ptr<ShapeGenerator> makeThoughtBubbleShapeGenerator();
std::unique_ptr<ShapeGenerator> makeTriangleShapeGenerator();
std::unique_ptr<ShapeGenerator> makeVignetteShapeGenerator();

} // namespace zm
