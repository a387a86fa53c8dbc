#pragma once

#include "values/object_transform.h"

#include <QString>
#include <QUuid>

namespace zm {

/// An object of the scene: identity, name, placement and how it is composed. A plain object without signals; once it is
/// in a Document only the Document's setters change it.
class SceneObject
{
public:
    /// A null id is replaced by a new one; the id never changes afterwards.
    explicit SceneObject(const QString &name, const QUuid &id = {});
    virtual ~SceneObject();

    SceneObject(const SceneObject &) = delete;
    SceneObject &operator=(const SceneObject &) = delete;

    QUuid id() const { return m_id; }
    QString name() const { return m_name; }
    const ObjectTransform &transform() const { return m_transform; }
    QString blendMode() const { return m_blendMode; }
    double opacity() const { return m_opacity; }
    bool isVisible() const { return m_visible; }
    /// Grows with every effective change of any field.
    quint64 revision() const { return m_revision; }

    // Setters return whether something changed.
    bool setName(const QString &name);
    bool setTransform(const ObjectTransform &transform);
    /// An empty key becomes "source-over".
    bool setBlendMode(const QString &blendMode);
    /// Limited to 0..1; NaN becomes 1.
    bool setOpacity(double opacity);
    bool setVisible(bool visible);

    /// The bytes that an undo step holding this object answers for.
    virtual qint64 memoryBytes() const;

protected:
    void bumpRevision() { ++m_revision; }

private:
    QUuid m_id;
    QString m_name;
    ObjectTransform m_transform;
    QString m_blendMode;
    double m_opacity = 1.0;
    quint64 m_revision = 0;
    bool m_visible = true;
};

/// The key of the blend mode that paints over what lies below; also stands for an empty key.
QString defaultBlendMode();

/// The opacity that the setters store for a given number: 0..1, NaN becomes 1.
double cleanOpacity(double opacity);

} // namespace zm
