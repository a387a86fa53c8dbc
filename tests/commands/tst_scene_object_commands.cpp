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

#include <limits>

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

using MakeCommand = std::function<QUndoCommand *(Document *)>;

} // namespace

Q_DECLARE_METATYPE(MakeCommand)

class TestSceneObjectCommands : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandGoesForthAndBack_data()
    {
        QTest::addColumn<MakeCommand>("make");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("signal"); // empty where the list of objects changes
        const QUuid id = testId(2);
        const auto row = [](const char *name, const QString &text, const QString &signal, const MakeCommand &make) {
            QTest::newRow(name) << make << text << signal;
        };
        row("add", u"Add Layer 7"_s, {}, [](Document *d) { return new AddSceneObjectCommand(d, makeLayer(7), 1); });
        row("add a nameless one", u"Add Object"_s, {}, [](Document *d) {
            return new AddSceneObjectCommand(d, std::make_unique<SceneObject>(QString()));
        });
        row("remove", u"Remove Layer 2"_s, {}, [=](Document *d) { return new RemoveSceneObjectCommand(d, id); });
        row("replace", u"Rasterize Layer"_s, {}, [=](Document *d) {
            return new ReplaceSceneObjectCommand(d, id, makeLayer(2, Qt::blue), QString());
        });
        row("collapse", u"Combine Layers"_s, {}, [=](Document *d) {
            return new CollapseLayerDownCommand(d, id, testId(3), makeLayer(2, Qt::blue));
        });
        row("move up", u"Move Layer Up"_s, {}, [=](Document *d) { return new MoveSceneObjectCommand(d, id, 3); });
        row("move down", u"Move Layer Down"_s, {}, [=](Document *d) { return new MoveSceneObjectCommand(d, id, 0); });
        row("rename", u"Rename Object"_s, u"objectNameChanged #2"_s,
            [=](Document *d) { return new RenameSceneObjectCommand(d, id, QString()); });
        row("blend mode", u"Change Blend Mode"_s, u"objectBlendModeChanged #2"_s,
            [=](Document *d) { return new SetSceneObjectBlendModeCommand(d, id, u"screen"_s); });
        row("hide", u"Hide Layer"_s, u"objectVisibilityChanged #2"_s,
            [=](Document *d) { return new SetSceneObjectVisibilityCommand(d, id, false); });
        row("opacity", u"Change Opacity"_s, u"objectOpacityChanged #2"_s,
            [=](Document *d) { return new SetSceneObjectOpacityCommand(d, id, 0.25, u"Change Opacity"_s); });
        row("transform", u"Move Object"_s, u"objectTransformChanged #2"_s,
            [=](Document *d) { return new SetSceneObjectTransformCommand(d, id, movedTo(5), u"Move Object"_s); });
        row("filters", u"Add Effect"_s, u"layerFiltersChanged #2"_s,
            [=](Document *d) { return new SetLayerFiltersCommand(d, id, filtersOfStrength(1), u"Add Effect"_s); });
        row("background", u"Change Document Background"_s, u"backgroundColorChanged #ff0000ff"_s,
            [](Document *d) { return new SetDocumentBackgroundCommand(d, Qt::blue); });
        row("resize", u"Resize Document"_s, u"sizeChanged 1x40"_s, [](Document *d) {
            return new ResizeDocumentCommand(d, {std::numeric_limits<double>::infinity(), 40}, u"Resize Document"_s);
        });
    }

    void everyCommandGoesForthAndBack()
    {
        QFETCH(MakeCommand, make);
        QFETCH(QString, text);
        QFETCH(QString, signal);
        Scene scene;
        const QString before = describe(scene.document);
        scene.history.push(std::unique_ptr<QUndoCommand>(make(&scene.document)));
        const QString after = describe(scene.document);
        QVERIFY(after != before);
        QCOMPARE(scene.history.undoText(), text);
        DocumentLog log(scene.document);
        for (int i = 0; i < 2; ++i) {
            scene.history.undo();
            QCOMPARE(describe(scene.document), before);
            scene.history.redo();
            QCOMPARE(describe(scene.document), after);
        }
        if (!signal.isEmpty()) {
            const QStringList signalled = log.take();
            QCOMPARE(signalled.size(), 4);
            QCOMPARE(signalled.last(), signal);
        }
    }

    void whatCannotBeDoneIsObsolete_data()
    {
        QTest::addColumn<MakeCommand>("make");
        const QUuid id = testId(2);
        const QUuid none = testId(99);
        const auto row = [](const char *name, const MakeCommand &make) { QTest::newRow(name) << make; };
        using Replace = ReplaceSceneObjectCommand;
        using Collapse = CollapseLayerDownCommand;
        using Move = MoveSceneObjectCommand;
        using Transform = SetSceneObjectTransformCommand;
        using Filters = SetLayerFiltersCommand;
        row("add nothing", [](Document *d) { return new AddSceneObjectCommand(d, nullptr); });
        row("remove the unknown", [=](Document *d) { return new RemoveSceneObjectCommand(d, none); });
        row("replace with nothing", [=](Document *d) { return new Replace(d, id, nullptr, {}); });
        row("replace with another id", [=](Document *d) { return new Replace(d, id, makeLayer(9), {}); });
        row("collapse with a gap", [=](Document *d) { return new Collapse(d, id, testId(4), makeLayer(2)); });
        row("collapse upside down", [=](Document *d) { return new Collapse(d, testId(3), id, makeLayer(3)); });
        row("collapse into nothing", [=](Document *d) { return new Collapse(d, id, testId(3), nullptr); });
        row("collapse into another id", [=](Document *d) { return new Collapse(d, id, testId(3), makeLayer(3)); });
        row("move beyond the top", [=](Document *d) { return new Move(d, id, 4); });
        row("move below the bottom", [=](Document *d) { return new Move(d, id, -1); });
        row("move nowhere", [=](Document *d) { return new Move(d, id, 1); });
        row("move the unknown", [=](Document *d) { return new Move(d, none, 0); });
        row("empty blend mode", [=](Document *d) { return new SetSceneObjectBlendModeCommand(d, id, QString()); });
        row("visible already", [=](Document *d) { return new SetSceneObjectVisibilityCommand(d, id, true); });
        row("opacity beyond 1", [=](Document *d) { return new SetSceneObjectOpacityCommand(d, id, 1.5, {}); });
        row("fuzzily the same place", [=](Document *d) { return new Transform(d, id, movedTo(1e-13), {}); });
        row("same filters", [=](Document *d) { return new Filters(d, id, {}, {}); });
        row("filters of the unknown", [=](Document *d) { return new Filters(d, none, filtersOfStrength(1), {}); });
        row("invalid on white", [](Document *d) { return new SetDocumentBackgroundCommand(d, QColor()); });
        row("fuzzily the same size", [](Document *d) { return new ResizeDocumentCommand(d, {800, 600 + 1e-10}, {}); });
    }

    void whatCannotBeDoneIsObsolete()
    {
        QFETCH(MakeCommand, make);
        Scene scene;
        const QString before = describe(scene.document);
        std::unique_ptr<QUndoCommand> command(make(&scene.document));
        QVERIFY(command->isObsolete());
        command->redo(); // as a child of a composite it runs all the same
        command->undo();
        QCOMPARE(describe(scene.document), before);
        scene.history.push(std::move(command));
        QCOMPARE(scene.history.count(), 0);
    }

    void listCommandsBringBackTheSameObjectAndSelectIt()
    {
        Scene scene;
        Document &document = scene.document;
        scene.push<AddSceneObjectCommand>(makeLayer(7));
        const SceneObject *added = document.object(testId(7));
        QCOMPARE(document.selectedObject(), added);
        scene.history.undo();
        QVERIFY(document.selectedObjectId().isNull());
        document.insertObject(makeLayer(8)); // a top that the first run did not know
        DocumentLog log(document);
        scene.history.redo();
        QCOMPARE(document.objectAt(4), added);
        QCOMPARE(log.take(), QStringList({u"objectAboutToBeInserted 4 #7"_s, u"objectInserted 4 #7"_s,
                                          u"selectionChanged #7"_s}));

        const SceneObject *third = document.objectAt(2);
        scene.push<RemoveSceneObjectCommand>(testId(3));
        QVERIFY(!document.object(testId(3)));
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

    void addOfAnIdThatIsThereLeavesNoStep()
    {
        Scene scene;
        scene.push<AddSceneObjectCommand>(makeLayer(2));
        QCOMPARE(scene.history.count(), 0);
        QCOMPARE(scene.document.objectCount(), 4);
    }

    void collapseBringsBackTheSelection_data()
    {
        QTest::addColumn<uint>("selectedBefore");
        QTest::addColumn<uint>("selectedBetween");
        QTest::addColumn<uint>("selectedAfterUndo");
        QTest::newRow("nothing") << 0u << 2u << 0u;
        QTest::newRow("the upper") << 3u << 2u << 3u;
        QTest::newRow("the lower") << 2u << 2u << 2u;
        QTest::newRow("another, still selected") << 4u << 4u << 4u;
        QTest::newRow("one that has gone") << 1u << 2u << 3u;
    }

    void collapseBringsBackTheSelection()
    {
        QFETCH(uint, selectedBefore);
        QFETCH(uint, selectedBetween);
        QFETCH(uint, selectedAfterUndo);
        Scene scene;
        scene.document.selectObject(testId(selectedBefore));
        const QList<SceneObject *> originals{scene.document.object(testId(2)), scene.document.object(testId(3))};
        scene.push<CollapseLayerDownCommand>(testId(2), testId(3), makeLayer(2, Qt::blue));
        QCOMPARE(scene.document.objectCount(), 3);
        QCOMPARE(scene.document.selectedObject(), scene.document.objectAt(1));
        scene.document.selectObject(testId(selectedBetween));
        if (selectedBefore == 1) { // behind the history's back; the places above it stay
            scene.document.takeObject(testId(1));
            scene.document.insertObject(makeLayer(6), 0);
        }
        scene.history.undo();
        QCOMPARE(scene.document.objectAt(1), originals[0]);
        QCOMPARE(scene.document.objectAt(2), originals[1]);
        QCOMPARE(scene.document.selectedObjectId().data1, selectedAfterUndo);
    }

    void stepOfAnObjectThatVanishedIsDropped()
    {
        Scene scene;
        scene.push<SetSceneObjectOpacityCommand>(testId(2), 0.5, u"Change Opacity"_s);
        scene.document.takeObject(testId(2));
        scene.history.undo();
        QCOMPARE(scene.history.count(), 0);
    }

    void gesturesMergeByKeyObjectAndClass()
    {
        Scene scene;
        UndoMergeScope gesture;
        const auto opacity = [&](uint n, double value) {
            scene.push<SetSceneObjectOpacityCommand>(testId(n), value, u"Change Opacity"_s, gesture.currentKey());
            return scene.history.count();
        };
        const auto move = [&](uint n, double x) {
            scene.push<SetSceneObjectTransformCommand>(testId(n), movedTo(x), u"Move Object"_s, gesture.currentKey());
            return scene.history.count();
        };
        QCOMPARE(opacity(1, 0.9), 1);
        QCOMPARE(opacity(1, 0.8), 2); // outside a gesture nothing merges
        gesture.begin();
        for (int i = 1; i <= 50; ++i)
            QCOMPARE(opacity(1, 0.8 - i * 0.01), 3);
        QCOMPARE(move(1, 5), 4);
        QCOMPARE(move(1, 6), 4);
        QCOMPARE(move(2, 6), 5);
        gesture.end();
        gesture.begin();
        QCOMPARE(move(2, 7), 6);
        scene.history.undo();
        scene.history.undo();
        scene.history.undo();
        QCOMPARE(scene.document.object(testId(1))->transform(), ObjectTransform());
        scene.history.undo();
        QCOMPARE(scene.document.object(testId(1))->opacity(), 0.8);
    }

    void mergeIsRefusedAcrossDocumentsAndWithoutKey()
    {
        Scene scene;
        Scene other;
        const auto make = [](Scene &in, quint64 key) {
            return SetSceneObjectOpacityCommand(&in.document, testId(1), 0.5, {}, key);
        };
        auto keyed = make(scene, 4);
        const auto foreign = make(other, 4);
        QVERIFY(!keyed.mergeWith(&foreign));
        auto loose = make(scene, 0);
        const auto loose2 = make(scene, 0);
        QCOMPARE(loose.id(), -1);
        QVERIFY(!loose.mergeWith(&loose2));
        const RenameSceneObjectCommand rename(&scene.document, testId(1), u"x"_s);
        QVERIFY(!keyed.mergeWith(&rename));
    }

    void heldObjectsCountForTheBudget()
    {
        const auto held = [](uint n) { return makeLayer(n)->memoryBytes(); };
        Scene scene;
        const auto baseCost = [&] { return 256 + 2 * (scene.history.undoText() + scene.history.redoText()).size(); };
        scene.push<AddSceneObjectCommand>(makeLayer(7));
        QCOMPARE(scene.history.memoryUsed(), baseCost());
        scene.history.undo();
        QCOMPARE(scene.history.memoryUsed(), baseCost() + held(7));
        scene.history.clear();
        scene.push<RemoveSceneObjectCommand>(testId(1));
        QCOMPARE(scene.history.memoryUsed(), baseCost() + held(1));
        scene.history.clear();
        scene.push<CollapseLayerDownCommand>(testId(2), testId(3), makeLayer(2));
        QCOMPARE(scene.history.memoryUsed(), baseCost() + held(2) + held(3));
        scene.history.undo();
        QCOMPARE(scene.history.memoryUsed(), baseCost() + held(2));
    }

    void compositesRunForthAndBackAsOneStep()
    {
        Scene scene;
        const QString before = describe(scene.document);
        auto step = std::make_unique<QUndoCommand>(u"Fit Document Bounds to Content"_s);
        new ResizeDocumentCommand(&scene.document, {30, 30}, {}, 0, step.get());
        for (uint n = 1; n <= 4; ++n)
            new SetSceneObjectTransformCommand(&scene.document, testId(n), movedTo(n), {}, 0, step.get());
        DocumentLog log(scene.document);
        scene.history.push(std::move(step));
        QCOMPARE(log.take().size(), 5);
        QCOMPARE(scene.history.count(), 1);
        QCOMPARE(scene.history.memoryUsed(), 6 * 256 + 2 * scene.history.undoText().size());
        scene.history.undo();
        QCOMPARE(log.take().last(), u"sizeChanged 800x600"_s);
        QCOMPARE(describe(scene.document), before);
    }

    void randomEditsComeBackThroughUndoAndRedo_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 i = 1; i <= 8; ++i)
            QTest::addRow("seed %u", i) << i;
        const quint32 fresh = QRandomGenerator::global()->generate();
        QTest::addRow("seed %u", fresh) << fresh;
    }

    void randomEditsComeBackThroughUndoAndRedo();
};

namespace {

/// Edits a document at random beside a plain model of the history: a list of states, a position and the saved one.
class RandomEditor
{
public:
    explicit RandomEditor(quint32 seed)
        : m_random(seed)
        , m_states{describe(m_scene.document)}
    {
    }

    /// Returns what went wrong, if anything.
    QString step()
    {
        const int choice = m_random.bounded(10);
        if (choice < 4)
            walk(m_random.bounded(1, 6), choice < 2);
        else if (choice == 4)
            save();
        else if (choice < 8)
            edit();
        else
            drag();
        return m_fault;
    }

    QString walkThroughAll()
    {
        walk(m_scene.history.index(), true);
        walk(m_scene.history.count(), false);
        return m_fault;
    }

private:
    QUuid anyId() { return testId(1 + m_random.bounded(m_nextId)); } // now and then an unknown one

    void walk(int steps, bool back)
    {
        for (; steps > 0; --steps) {
            back ? m_scene.history.undo() : m_scene.history.redo();
            m_position = std::clamp<qsizetype>(m_position + (back ? -1 : 1), 0, m_states.size() - 1);
            check(u"walk"_s);
        }
    }

    void save()
    {
        m_scene.history.setClean();
        m_saved = m_position;
        check(u"save"_s);
    }

    void push(QUndoCommand *command)
    {
        const bool counts = !command->isObsolete();
        m_scene.history.push(std::unique_ptr<QUndoCommand>(command));
        if (counts)
            record();
        check(u"edit"_s);
    }

    void record()
    {
        m_states.resize(m_position + 1);
        if (m_saved > m_position)
            m_saved = -1;
        m_states.append(describe(m_scene.document));
        ++m_position;
    }

    void edit()
    {
        Document *document = &m_scene.document;
        const QUuid id = anyId();
        const qsizetype count = document->objectCount();
        const qsizetype place = m_random.bounded(int(count) + 1);
        switch (m_random.bounded(8)) {
        case 0:
            return push(new AddSceneObjectCommand(document, makeLayer(m_nextId++), place == count ? -1 : place));
        case 1:
            return push(new RemoveSceneObjectCommand(document, id));
        case 2:
            return push(new ReplaceSceneObjectCommand(document, id, makeLayer(id.data1, anyColor()), {}));
        case 3: {
            const SceneObject *lower = document->objectAt(place);
            const SceneObject *upper = document->objectAt(place + 1);
            if (lower && upper)
                push(new CollapseLayerDownCommand(document, lower->id(), upper->id(),
                                                  makeLayer(lower->id().data1, anyColor())));
            return;
        }
        case 4:
            return push(new MoveSceneObjectCommand(document, id, place));
        case 5:
            return push(new RenameSceneObjectCommand(document, id, QString::number(m_random.bounded(3))));
        case 6:
            return push(new SetSceneObjectBlendModeCommand(document, id, m_random.bounded(2) ? u"x"_s : QString()));
        default:
            return m_random.bounded(2)
                ? push(new SetSceneObjectVisibilityCommand(document, id, m_random.bounded(2) != 0))
                : push(new SetDocumentBackgroundCommand(document, anyColor()));
        }
    }

    /// A gesture of a few steps, which often returns to where it was, and may be saved in between.
    void drag()
    {
        const QUuid id = anyId();
        const int kind = m_random.bounded(4);
        bool merging = false;
        m_gesture.begin();
        for (int steps = m_random.bounded(1, 8); steps > 0; --steps) {
            std::unique_ptr<QUndoCommand> command(dragCommand(kind, id, m_random.bounded(3)));
            const bool counts = !command->isObsolete();
            m_scene.history.push(std::move(command));
            if (counts && merging) {
                if (m_saved == m_position)
                    m_saved = -1;
                m_states[m_position] = describe(m_scene.document);
                if (m_states[m_position] == m_states[m_position - 1]) {
                    m_states.removeLast();
                    --m_position;
                    merging = false;
                }
            } else if (counts) {
                record();
                merging = true;
            }
            check(u"drag"_s);
            if (m_random.bounded(10) == 0)
                save();
        }
        m_gesture.end();
    }

    QUndoCommand *dragCommand(int kind, const QUuid &id, int value)
    {
        Document *document = &m_scene.document;
        const quint64 key = m_gesture.currentKey();
        switch (kind) {
        case 0:
            return new SetSceneObjectOpacityCommand(document, id, value / 2.0, {}, key);
        case 1:
            return new SetSceneObjectTransformCommand(document, id, movedTo(value), {}, key);
        case 2:
            return new SetLayerFiltersCommand(document, id, filtersOfStrength(value), {}, key);
        default:
            return new ResizeDocumentCommand(document, {100.0 + value, 50.0}, {}, key);
        }
    }

    QColor anyColor() { return QColor::fromRgb(m_random.bounded(3), 0, 0); }

    void check(const QString &when)
    {
        const CommandHistory &history = m_scene.history;
        const Document &document = m_scene.document;
        const QUuid selected = document.selectedObjectId();
        QString fault;
        if (history.index() != m_position || history.count() != m_states.size() - 1)
            fault = u"position %1 of %2"_s.arg(history.index()).arg(history.count());
        else if (describe(document) != m_states[m_position])
            fault = u"state %1:\n%2\nexpected:\n%3"_s.arg(m_position).arg(describe(document), m_states[m_position]);
        else if (history.isClean() != (m_saved == m_position))
            fault = u"clean flag"_s;
        else if (!selected.isNull() && !document.object(selected))
            fault = u"selection of no object"_s;
        if (m_fault.isEmpty() && !fault.isEmpty())
            m_fault = when + u": "_s + fault;
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

void TestSceneObjectCommands::randomEditsComeBackThroughUndoAndRedo()
{
    QFETCH(quint32, seed);
    RandomEditor editor(seed);
    for (int i = 0; i < 300; ++i) {
        const QString fault = editor.step();
        QVERIFY2(fault.isEmpty(), qPrintable(u"seed %1, step %2, %3"_s.arg(seed).arg(i).arg(fault)));
    }
    const QString fault = editor.walkThroughAll();
    QVERIFY2(fault.isEmpty(), qPrintable(u"seed %1, %2"_s.arg(seed).arg(fault)));
}

QTEST_GUILESS_MAIN(TestSceneObjectCommands)
#include "tst_scene_object_commands.moc"
