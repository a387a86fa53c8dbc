#include "document/scene_object.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

SceneObject::SceneObject(const QString &name, const QUuid &id)
    : m_id(id.isNull() ? QUuid::createUuid() : id)
    , m_name(name)
    , m_blendMode(defaultBlendMode())
{
}

SceneObject::~SceneObject() = default;

bool SceneObject::setName(const QString &name)
{
    if (m_name == name)
        return false;
    m_name = name;
    bumpRevision();
    return true;
}

bool SceneObject::setTransform(const ObjectTransform &transform)
{
    if (m_transform == transform)
        return false;
    m_transform = transform;
    bumpRevision();
    return true;
}

bool SceneObject::setBlendMode(const QString &blendMode)
{
    const QString key = blendMode.isEmpty() ? defaultBlendMode() : blendMode;
    if (m_blendMode == key)
        return false;
    m_blendMode = key;
    bumpRevision();
    return true;
}

bool SceneObject::setOpacity(double opacity)
{
    const double clean = cleanOpacity(opacity);
    if (m_opacity == clean)
        return false;
    m_opacity = clean;
    bumpRevision();
    return true;
}

bool SceneObject::setVisible(bool visible)
{
    if (m_visible == visible)
        return false;
    m_visible = visible;
    bumpRevision();
    return true;
}

qint64 SceneObject::memoryBytes() const
{
    constexpr qint64 bytesOfFields = 512;
    return m_name.size() * qint64(sizeof(QChar)) + bytesOfFields;
}

QString defaultBlendMode()
{
    return u"source-over"_s;
}

double cleanOpacity(double opacity)
{
    return std::isnan(opacity) ? 1.0 : std::clamp(opacity, 0.0, 1.0);
}

} // namespace zm
