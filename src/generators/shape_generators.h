#pragma once

#include <memory>

namespace zm {

class ShapeGenerator;

// One maker for each file of shapes/. Adding a shape takes its file, a line here and a line in the registry.

std::unique_ptr<ShapeGenerator> makeRoundedRectShapeGenerator();
std::unique_ptr<ShapeGenerator> makeStarShapeGenerator();

} // namespace zm
