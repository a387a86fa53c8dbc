#include "editor/editor_state_model.h"

namespace zm {

namespace {

using EditorMode = EditorStateModel::EditorMode;
using OverlayMode = EditorStateModel::OverlayMode;

// From text editing to relighting both enumerations run side by side.
constexpr int kOverlayOffset = int(EditorMode::TextEdit) - int(OverlayMode::TextEdit);
static_assert(int(EditorMode::Relight) - int(OverlayMode::Relight) == kOverlayOffset);

} // namespace

void EditorStateModel::setMode(EditorMode mode)
{
    if (mode < EditorMode::None || mode > EditorMode::Relight)
        mode = EditorMode::None;
    if (m_mode == mode)
        return;
    m_mode = mode;
    emit modeChanged();
}

OverlayMode EditorStateModel::overlayMode() const
{
    if (paintActive())
        return OverlayMode::Brush;
    if (m_mode <= EditorMode::PolygonEdit)
        return OverlayMode(m_mode);
    return m_mode == EditorMode::RasterFill ? OverlayMode::None : OverlayMode(int(m_mode) - kOverlayOffset);
}

void EditorStateModel::setOverlayMode(OverlayMode mode)
{
    if (mode == OverlayMode::Brush)
        setMode(paintActive() ? m_mode : EditorMode::Draw);
    else if (mode < OverlayMode::Brush)
        setMode(EditorMode(mode));
    else // a number beyond the last overlay is none of an editor mode either
        setMode(mode <= OverlayMode::Relight ? EditorMode(int(mode) + kOverlayOffset) : EditorMode::None);
}

} // namespace zm
