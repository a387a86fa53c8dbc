#pragma once

#include <memory>

namespace zm {

class Filter;

// One maker for each file of library/. Adding an effect takes its file, a line here and a line in the registry.

std::unique_ptr<Filter> makeBevelFilter();
std::unique_ptr<Filter> makeVignetteFilter();

} // namespace zm
