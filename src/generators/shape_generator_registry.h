#pragma once

#include "generators/shape_generator.h"

#include <memory>
#include <vector>

namespace zm {

/// One instance of every shape generator, in the order of the list below. Made at first use; read from any thread.
class ShapeGeneratorRegistry
{
public:
    static const ShapeGeneratorRegistry &instance();

    const std::vector<std::unique_ptr<ShapeGenerator>> &generators() const { return m_generators; }
    /// Null for an unknown id.
    const ShapeGenerator *find(const QString &id) const;

private:
    ShapeGeneratorRegistry();

    std::vector<std::unique_ptr<ShapeGenerator>> m_generators;
};

} // namespace zm
