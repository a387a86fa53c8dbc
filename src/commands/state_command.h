#pragma once

#include "base/fuzzy.h"
#include "commands/merge_ids.h"
#include "document/document.h"

#include <QUndoCommand>

#include <functional>
#include <optional>
#include <type_traits>

namespace zm {

/// Tells whether a step from a to b would change nothing.
template<typename State>
bool isSameState(const State &a, const State &b)
{
    return a == b;
}

inline bool isSameState(const QSizeF &a, const QSizeF &b)
{
    return fuzzyEqual(a, b);
}

/// What a getter of an object answers, or nothing when there is no such object.
template<typename Object, typename Getter>
auto stateOf(const Object *object, Getter getter)
{
    using State = std::decay_t<std::invoke_result_t<Getter, const Object &>>;
    return object ? std::optional<State>(std::invoke(getter, *object)) : std::nullopt;
}

/// The base of commands that set one value: the value before, the value after, and the setter between them, which a
/// concrete command gives as apply(). The document outlives the command; the object, of the class Object, is looked up
/// by its id each time. Commands of one class with the same merge key, other than 0, and the same object merge into one
/// step. An obsolete command does nothing, also where it is a child of another.
template<typename State, typename Object = SceneObject>
class StateCommand : public QUndoCommand
{
public:
    int id() const override { return int(m_mergeKey == 0 ? MergeId::None : m_mergeId); }
    void redo() override { run(m_after); }
    void undo() override { run(m_before); }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = dynamic_cast<const StateCommand *>(other);
        if (!next || next->m_mergeId != m_mergeId || m_mergeKey == 0 || next->m_mergeKey != m_mergeKey
            || next->m_document != m_document || next->m_objectId != m_objectId)
            return false;
        m_after = next->m_after;
        setObsolete(isSameState(m_before, m_after));
        return true;
    }

protected:
    /// The id is null for a value of the document itself. Obsolete from the start when `before` is absent, which says
    /// that there is no such object or that it cannot take the change, or when nothing would change. `after` is the
    /// value as the setter would store it.
    StateCommand(Document *document, const QUuid &objectId, const std::optional<State> &before, const State &after,
                 const QString &text, QUndoCommand *parent, MergeId mergeId = MergeId::None, quint64 mergeKey = 0)
        : QUndoCommand(text, parent)
        , m_document(document)
        , m_objectId(objectId)
        , m_before(before.value_or(after))
        , m_after(after)
        , m_mergeId(mergeId)
        , m_mergeKey(mergeKey)
    {
        setObsolete(!before || isSameState(m_before, m_after));
    }

    virtual void apply(const State &state) = 0;

    Document *document() const { return m_document; }
    QUuid objectId() const { return m_objectId; }
    /// Null when there is no such object now, or one of another class.
    const Object *object() const { return dynamic_cast<const Object *>(m_document->object(m_objectId)); }
    const State &before() const { return m_before; }
    const State &after() const { return m_after; }

    /// Ends a merge whose step comes to nothing although its states differ. The later command has run by then, so the
    /// document goes back here.
    void returnToStart()
    {
        m_after = m_before;
        apply(m_before);
        setObsolete(true);
    }

private:
    void run(const State &state)
    {
        if (isObsolete())
            return;
        if (!m_objectId.isNull() && !object())
            setObsolete(true);
        else
            apply(state);
    }

    Document *m_document;
    QUuid m_objectId;
    State m_before;
    State m_after;
    MergeId m_mergeId;
    quint64 m_mergeKey;
};

} // namespace zm
