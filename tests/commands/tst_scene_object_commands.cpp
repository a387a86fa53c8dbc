#include "commands/command_history.h"
#include "commands/document_commands.h"
#include "commands/layer_filters_command.h"
#include "commands/object_list_commands.h"
#include "commands/object_property_commands.h"
#include "commands/undo_merge_scope.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

std::unique_ptr<ImageLayer> makeLayer(uint n, const QColor &color = Qt::red)
{
    return std::make_unique<ImageLayer>(plainPicture(2, 2, color), u"Layer %1"_s.arg(n), testId(n));
}

ObjectTransform movedTo(double x)
{
    ObjectTransform transform;
    transform.setPosition({x, 0.0});
    return transform;
}

QList<FilterInstance> filtersOfStrength(double strength)
{
    FilterInstance filter{testId(90), u"sepia"_s, {}, true, false};
    filter.parameters.set(u"strength"_s, strength);
    return {filter};
}

/// A document with the layers #1 to #4 from the bottom up, and its history.
struct Scene
{
    Scene()
    {
        for (uint n = 1; n <= 4; ++n)
            document.insertObject(makeLayer(n));
    }
    template<typename Command, typename... Arguments>
    void push(Arguments &&...arguments)
    {
        history.push(std::make_unique<Command>(&document, std::forward<Arguments>(arguments)...));
    }

    Document document;
    CommandHistory history{&document};
};

/// Edits a document at random beside a plain model of the history: a list of states, a position and the saved one.
class RandomEditor
{
public:
    explicit RandomEditor(quint32 seed)
        : m_random(seed)
        , m_states{describe(m_scene.document)}
    {
    }

    /// What went wrong first, if anything.
    QString fault() const { return m_fault; }

    void step()
    {
        const int choice = m_random.bounded(10);
        if (choice < 4)
            walk(m_random.bounded(1, 6), choice < 2);
        else if (choice == 4)
            save();
        else
            edit();
    }

    void walk(int steps, bool back)
    {
        for (; steps > 0; --steps) {
            back ? m_scene.history.undo() : m_scene.history.redo();
            m_position = std::clamp<qsizetype>(m_position + (back ? -1 : 1), 0, m_states.size() - 1);
            check();
        }
    }

private:
    void save()
    {
        m_scene.history.setClean();
        m_saved = m_position;
        check();
    }

    /// One step, or a gesture of a few, which often returns to where it was, and may be saved in between.
    void edit()
    {
        const QUuid id = testId(1 + m_random.bounded(m_nextId)); // now and then an unknown one
        const int kind = m_random.bounded(2) ? m_random.bounded(4) : m_random.bounded(4, 13);
        bool merges = false;
        m_gesture.begin();
        for (int steps = kind < 4 ? m_random.bounded(1, 8) : 1; steps > 0; --steps) {
            std::unique_ptr<QUndoCommand> command(makeCommand(kind, id));
            const bool counts = !command->isObsolete();
            m_scene.history.push(std::move(command));
            if (counts)
                merges = record(merges);
            check();
            if (m_random.bounded(10) == 0)
                save();
        }
        m_gesture.end();
    }

    /// Tells whether the next command of the gesture finds a step to merge into.
    bool record(bool merges)
    {
        if (!merges)
            ++m_position;
        if (m_saved >= m_position)
            m_saved = -1;
        m_states.resize(m_position);
        m_states.append(describe(m_scene.document));
        if (!merges || m_states[m_position] != m_states[m_position - 1])
            return true;
        m_states.removeLast();
        --m_position;
        return false;
    }

    /// The kinds below 4 merge.
    QUndoCommand *makeCommand(int kind, const QUuid &id)
    {
        Document *document = &m_scene.document;
        const quint64 key = m_gesture.currentKey();
        const int value = m_random.bounded(3);
        const QColor color = QColor::fromRgb(value, 0, 0);
        const SceneObject *upper = document->objectAt(document->indexOf(id) + 1);
        switch (kind) {
        case 0:
            return new SetSceneObjectOpacityCommand(document, id, value / 2.0, {}, key);
        case 1:
            return new SetSceneObjectTransformCommand(document, id, movedTo(value), {}, key);
        case 2:
            return new SetLayerFiltersCommand(document, id, filtersOfStrength(value), {}, key);
        case 3:
            return new ResizeDocumentCommand(document, {100.0 + value, 50.0}, {}, key);
        case 4:
        case 5:
            return new AddSceneObjectCommand(document, makeLayer(m_nextId++), kind == 4 ? -1 : 0);
        case 6:
            return new RemoveSceneObjectCommand(document, id);
        case 7:
            return new ReplaceSceneObjectCommand(document, id, makeLayer(id.data1, color), {});
        case 8:
            return new CollapseLayerDownCommand(document, id, upper ? upper->id() : QUuid(),
                                                makeLayer(id.data1, color));
        case 9:
            return new MoveSceneObjectCommand(document, id, m_random.bounded(int(document->objectCount()) + 1));
        case 10:
            return new RenameSceneObjectCommand(document, id, QString::number(value));
        case 11:
            return new SetSceneObjectVisibilityCommand(document, id, value != 0);
        default:
            return new SetDocumentBackgroundCommand(document, color);
        }
    }

    void check()
    {
        const CommandHistory &history = m_scene.history;
        const QString state = describe(m_scene.document);
        const QUuid selected = m_scene.document.selectedObjectId();
        if (!m_fault.isEmpty())
            return;
        if (history.index() != m_position || history.count() != m_states.size() - 1)
            m_fault = u"position %1 of %2"_s.arg(history.index()).arg(history.count());
        else if (state != m_states[m_position])
            m_fault = u"state %1:\n%2\nexpected:\n%3"_s.arg(m_position).arg(state, m_states[m_position]);
        else if (history.isClean() != (m_saved == m_position))
            m_fault = u"clean flag"_s;
        else if (!selected.isNull() && !m_scene.document.object(selected))
            m_fault = u"selection of no object"_s;
    }

    Scene m_scene;
    QRandomGenerator m_random;
    UndoMergeScope m_gesture;
    QStringList m_states;
    qsizetype m_position = 0;
    qsizetype m_saved = 0;
    uint m_nextId = 5;
    QString m_fault;
};

} // namespace

class TestSceneObjectCommands : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandGoesForthAndBack()
    {
        Scene scene;
        Document *d = &scene.document;
        const QUuid id = testId(2);
        const QList<FilterInstance> sepia = filtersOfStrength(1);
        const struct
        {
            QString text;
            QString signal; // empty where the list of objects changes
            int heldDone; // layers that count for the budget
            int heldUndone;
            QUndoCommand *command;
        } cases[] = {
            {u"Add Layer 7"_s, {}, 0, 1, new AddSceneObjectCommand(d, makeLayer(7), 1)},
            {u"Remove Layer 2"_s, {}, 1, 0, new RemoveSceneObjectCommand(d, id)},
            {u"Rasterize Layer"_s, {}, 1, 1, new ReplaceSceneObjectCommand(d, id, makeLayer(2, Qt::blue), {})},
            {u"Combine Layers"_s, {}, 2, 1, new CollapseLayerDownCommand(d, id, testId(3), makeLayer(2, Qt::blue))},
            {u"Move Layer Up"_s, {}, 0, 0, new MoveSceneObjectCommand(d, id, 3)},
            {u"Move Layer Down"_s, {}, 0, 0, new MoveSceneObjectCommand(d, id, 0)},
            {u"Rename Object"_s, u"objectNameChanged #2"_s, 0, 0, new RenameSceneObjectCommand(d, id, {})},
            {u"Change Blend Mode"_s, u"objectBlendModeChanged #2"_s, 0, 0,
             new SetSceneObjectBlendModeCommand(d, id, u"screen"_s)},
            {u"Hide Layer"_s, u"objectVisibilityChanged #2"_s, 0, 0, new SetSceneObjectVisibilityCommand(d, id, false)},
            {u"Fade"_s, u"objectOpacityChanged #2"_s, 0, 0, new SetSceneObjectOpacityCommand(d, id, 0.25, u"Fade"_s)},
            {u"Move"_s, u"objectTransformChanged #2"_s, 0, 0,
             new SetSceneObjectTransformCommand(d, id, movedTo(5), u"Move"_s)},
            {u"Add Effect"_s, u"layerFiltersChanged #2"_s, 0, 0,
             new SetLayerFiltersCommand(d, id, sepia, u"Add Effect"_s)},
            {u"Change Document Background"_s, u"backgroundColorChanged #ff0000ff"_s, 0, 0,
             new SetDocumentBackgroundCommand(d, Qt::blue)},
            {u"Resize"_s, u"sizeChanged 1x40"_s, 0, 0, new ResizeDocumentCommand(d, {qInf(), 40}, u"Resize"_s)},
        };
        const QString before = describe(*d);
        const qint64 layerBytes = makeLayer(1)->memoryBytes();
        for (const auto &[text, signal, heldDone, heldUndone, command] : cases) {
            scene.history.push(std::unique_ptr<QUndoCommand>(command));
            const QString after = describe(*d);
            QVERIFY2(after != before, qPrintable(text));
            QCOMPARE(scene.history.undoText(), text);
            QCOMPARE(scene.history.memoryUsed(), 256 + 2 * text.size() + heldDone * layerBytes);
            scene.history.undo();
            QCOMPARE(describe(*d), before);
            QCOMPARE(scene.history.memoryUsed(), 256 + 2 * text.size() + heldUndone * layerBytes);
            DocumentLog log(*d);
            scene.history.redo();
            QCOMPARE(describe(*d), after);
            QVERIFY2(signal.isEmpty() || log.take() == QStringList(signal), qPrintable(text));
            scene.history.undo();
            QVERIFY2(signal.isEmpty() || log.take().size() == 1, qPrintable(text));
        }
    }

    void whatCannotBeDoneIsObsolete()
    {
        Scene scene;
        Document *d = &scene.document;
        const QUuid id = testId(2);
        const QUuid none = testId(99);
        using Collapse = CollapseLayerDownCommand;
        const std::pair<const char *, QUndoCommand *> cases[] = {
            {"add nothing", new AddSceneObjectCommand(d, nullptr)},
            {"remove the unknown", new RemoveSceneObjectCommand(d, none)},
            {"replace with nothing", new ReplaceSceneObjectCommand(d, id, nullptr, {})},
            {"replace with another id", new ReplaceSceneObjectCommand(d, id, makeLayer(9), {})},
            {"collapse with a gap", new Collapse(d, id, testId(4), makeLayer(2))},
            {"collapse into nothing", new Collapse(d, id, testId(3), nullptr)},
            {"collapse into another", new Collapse(d, id, testId(3), makeLayer(3))},
            {"move below the bottom", new MoveSceneObjectCommand(d, id, -1)},
            {"empty blend mode", new SetSceneObjectBlendModeCommand(d, id, {})},
            {"opacity beyond 1", new SetSceneObjectOpacityCommand(d, id, 1.5, {})},
            {"fuzzily the same place", new SetSceneObjectTransformCommand(d, id, movedTo(1e-13), {})},
            {"same filters", new SetLayerFiltersCommand(d, id, {}, {})},
            {"filters of the unknown", new SetLayerFiltersCommand(d, none, filtersOfStrength(1), {})},
            {"invalid on white", new SetDocumentBackgroundCommand(d, QColor())},
            {"fuzzily the same size", new ResizeDocumentCommand(d, {800, 600 + 1e-10}, {})},
        };
        const QString before = describe(*d);
        for (const auto &[name, made] : cases) {
            const std::unique_ptr<QUndoCommand> command(made);
            QVERIFY2(command->isObsolete(), name);
            command->redo(); // as a child of a composite it runs all the same
            command->undo();
            QVERIFY2(describe(*d) == before, name);
        }
    }

    void stepThatTheDocumentRefusesIsDropped()
    {
        Scene scene;
        scene.push<AddSceneObjectCommand>(makeLayer(2)); // an id that is there
        QCOMPARE(scene.history.count(), 0);
        scene.push<SetSceneObjectOpacityCommand>(testId(2), 0.5, QString());
        scene.document.takeObject(testId(2));
        scene.history.undo();
        QCOMPARE(scene.history.count(), 0);
    }

    void listCommandsBringBackTheSameObjectAndSelectIt()
    {
        Scene scene;
        Document &document = scene.document;
        scene.push<AddSceneObjectCommand>(makeLayer(7));
        const SceneObject *added = document.selectedObject();
        QCOMPARE(document.object(testId(7)), added);
        scene.history.undo();
        document.insertObject(makeLayer(8)); // a top that the first run did not know
        DocumentLog log(document);
        scene.history.redo();
        QCOMPARE(document.objectAt(4), added);
        QCOMPARE(log.take(),
                 QStringList({u"objectAboutToBeInserted 4 #7"_s, u"objectInserted 4 #7"_s, u"selectionChanged #7"_s}));
        const SceneObject *third = document.objectAt(2);
        scene.push<RemoveSceneObjectCommand>(testId(3));
        scene.history.undo();
        QCOMPARE(document.objectAt(2), third);
        QCOMPARE(document.selectedObject(), third);
        const SceneObject *second = document.objectAt(1);
        scene.push<ReplaceSceneObjectCommand>(testId(2), makeLayer(2, Qt::blue), QString());
        QVERIFY(document.objectAt(1) != second);
        QCOMPARE(document.selectedObject(), document.objectAt(1));
        scene.history.undo();
        QCOMPARE(document.objectAt(1), second);
        QCOMPARE(document.selectedObject(), second);
    }

    void collapseBringsBackTheSelection()
    {
        const std::pair<uint, uint> selectedBeforeAndAfterUndo[] = {{0, 0}, {3, 3}, {4, 4}, {1, 3}};
        for (const auto &[before, afterUndo] : selectedBeforeAndAfterUndo) {
            Scene scene;
            Document &document = scene.document;
            document.selectObject(testId(before));
            const QList<SceneObject *> originals{document.object(testId(2)), document.object(testId(3))};
            scene.push<CollapseLayerDownCommand>(testId(2), testId(3), makeLayer(2, Qt::blue));
            QCOMPARE(document.selectedObject(), document.objectAt(1));
            if (before == 1) { // behind the history's back; the places above it stay
                document.takeObject(testId(1));
                document.insertObject(makeLayer(6), 0);
            }
            scene.history.undo();
            QCOMPARE(document.objectAt(1), originals[0]);
            QCOMPARE(document.objectAt(2), originals[1]);
            QCOMPARE(document.selectedObjectId(), testId(afterUndo));
        }
    }

    void gesturesMergeByKeyObjectAndClass()
    {
        Scene scene;
        UndoMergeScope gesture;
        const auto opacity = [&](uint n, double value) {
            scene.push<SetSceneObjectOpacityCommand>(testId(n), value, QString(), gesture.currentKey());
            return scene.history.count();
        };
        QCOMPARE(opacity(1, 0.9), 1);
        QCOMPARE(opacity(1, 0.8), 2); // outside a gesture nothing merges
        gesture.begin();
        QCOMPARE(opacity(1, 0.7), 3);
        gesture.begin(); // already under way
        QCOMPARE(opacity(1, 0.6), 3);
        scene.push<SetSceneObjectTransformCommand>(testId(1), movedTo(5), QString(), gesture.currentKey());
        QCOMPARE(opacity(1, 0.5), 5);
        QCOMPARE(opacity(2, 0.5), 6);
        gesture.end();
        QCOMPARE(gesture.currentKey(), 0u);
        gesture.begin();
        QCOMPARE(opacity(2, 0.4), 7);

        Scene other;
        SetSceneObjectOpacityCommand keyed(&scene.document, testId(1), 0.5, {}, 4);
        const SetSceneObjectOpacityCommand foreign(&other.document, testId(1), 0.5, {}, 4);
        QVERIFY(!keyed.mergeWith(&foreign));
    }

    void compositesRunForthAndBackAsOneStep()
    {
        Scene scene;
        const QString before = describe(scene.document);
        auto step = std::make_unique<QUndoCommand>(u"Fit"_s);
        new ResizeDocumentCommand(&scene.document, {30, 30}, {}, 0, step.get());
        for (uint n = 1; n <= 4; ++n)
            new SetSceneObjectTransformCommand(&scene.document, testId(n), movedTo(n), {}, 0, step.get());
        DocumentLog log(scene.document);
        scene.history.push(std::move(step));
        QCOMPARE(log.take().size(), 5);
        QCOMPARE(scene.history.count(), 1);
        scene.history.undo();
        QCOMPARE(log.take().last(), u"sizeChanged 800x600"_s);
        QCOMPARE(describe(scene.document), before);
    }

    void randomEditsComeBackThroughUndoAndRedo()
    {
        for (quint32 i = 0; i <= 8; ++i) {
            const quint32 seed = i > 0 ? i : QRandomGenerator::global()->generate();
            RandomEditor editor(seed);
            for (int steps = 0; steps < 300; ++steps)
                editor.step();
            for (const bool back : {true, false})
                editor.walk(300, back);
            QVERIFY2(editor.fault().isEmpty(), qPrintable(u"seed %1: %2"_s.arg(seed).arg(editor.fault())));
        }
    }
};

QTEST_GUILESS_MAIN(TestSceneObjectCommands)
#include "tst_scene_object_commands.moc"
