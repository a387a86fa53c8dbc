#include "rendering/blur_plan.h"

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

constexpr int kMaximumKernelRadius = 30; // the loop bound of the shader
constexpr double kSigmasInKernel = 3.0;

int scaledSide(int side, double scale)
{
    return std::max(int(std::lround(side * scale)), 1);
}

} // namespace

BlurPlan BlurPlan::make(const QSize &size, double sigma, double maxWorkingSigma)
{
    const double limit = std::max(maxWorkingSigma, kSmallestBlur);
    const double scale = limit >= sigma ? 1.0 : std::min(1.0, limit / sigma);
    BlurPlan plan;
    plan.workingSize = {scaledSide(size.width(), scale), scaledSide(size.height(), scale)};
    plan.workingSigma = std::min(limit, sigma * scale);
    plan.kernelRadius = std::min(int(std::ceil(plan.workingSigma * kSigmasInKernel)), kMaximumKernelRadius);
    return plan;
}

} // namespace zm
