#include "document/editable_path.h"

#include <algorithm>

namespace zm {

bool EditablePath::isEmpty() const
{
    return std::all_of(contours.cbegin(), contours.cend(),
                       [](const EditablePathContour &contour) { return contour.nodes.isEmpty(); });
}

EditablePath withoutEmptyContours(const EditablePath &path)
{
    EditablePath result = path;
    result.contours.removeIf([](const EditablePathContour &contour) { return contour.nodes.isEmpty(); });
    return result;
}

qint64 memoryBytes(const EditablePath &path)
{
    // What a list and a node cost, rounded; the budget needs an estimate, not an allocator's figure.
    constexpr qint64 bytesOfList = 32;
    constexpr qint64 bytesOfNode = 72;
    qint64 bytes = bytesOfList;
    for (const EditablePathContour &contour : path.contours)
        bytes += bytesOfList + bytesOfNode * contour.nodes.capacity();
    return bytes;
}

} // namespace zm
