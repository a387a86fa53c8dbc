#include "commands/command_history.h"
#include "commands/undo_memory_cost.h"
#include "commands/undo_merge_scope.h"

#include <QTest>
#include <QUndoCommand>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr qint64 kMebibyte = 1024 * 1024;

/// Sets a number, and fails or costs as told.
class NumberCommand : public QUndoCommand, public UndoMemoryCost
{
public:
    NumberCommand(int &number, int after, int mergeId = -1)
        : QUndoCommand(u"to %1"_s.arg(after))
        , m_number(number)
        , m_before(number)
        , m_after(after)
        , m_mergeId(mergeId)
    {
        setObsolete(m_before == m_after);
    }
    ~NumberCommand() override
    {
        if (destroyed)
            destroyed->append(text());
    }
    int id() const override { return m_mergeId; }
    void redo() override
    {
        ++runs;
        if (failsToRedo)
            setObsolete(true);
        else
            m_number = m_after;
    }
    void undo() override
    {
        if (failsToUndo)
            setObsolete(true);
        else
            m_number = m_before;
    }
    bool mergeWith(const QUndoCommand *other) override
    {
        m_after = static_cast<const NumberCommand *>(other)->m_after;
        setObsolete(m_before == m_after);
        return true;
    }
    qint64 undoMemoryBytes() const override { return bytes; }

    int runs = 0;
    qint64 bytes = 0;
    bool failsToRedo = false;
    bool failsToUndo = false;
    QStringList *destroyed = nullptr;

private:
    int &m_number;
    int m_before;
    int m_after;
    int m_mergeId;
};

} // namespace

class TestCommandHistory : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_number = 0;
        m_history = std::make_unique<CommandHistory>(nullptr);
        m_log.clear();
        m_destroyed.clear();
        const auto logged = [this](const QString &what) {
            return [this, what](const auto &value) { m_log.append(what + u' ' + QVariant(value).toString()); };
        };
        connect(m_history.get(), &CommandHistory::canUndoChanged, this, logged(u"canUndo"_s));
        connect(m_history.get(), &CommandHistory::canRedoChanged, this, logged(u"canRedo"_s));
        connect(m_history.get(), &CommandHistory::undoTextChanged, this, logged(u"undoText"_s));
        connect(m_history.get(), &CommandHistory::redoTextChanged, this, logged(u"redoText"_s));
        connect(m_history.get(), &CommandHistory::cleanChanged, this, logged(u"clean"_s));
        connect(m_history.get(), &CommandHistory::indexChanged, this, logged(u"index"_s));
    }

    void startsCleanAndEmpty()
    {
        QVERIFY(m_history->isClean());
        QVERIFY(!m_history->canUndo());
        QVERIFY(!m_history->canRedo());
        QCOMPARE(m_history->undoText(), QString());
        QCOMPARE(m_history->memoryLimit(), 524288000);
        m_history->undo();
        m_history->redo();
        m_history->setClean();
        m_history->clear();
        QCOMPARE(m_log, QStringList());
    }

    void signalsComeInOrderAndForRealChangesOnly()
    {
        push(1);
        QCOMPARE(takeLog(), QStringList({u"canUndo true"_s, u"undoText to 1"_s, u"clean false"_s, u"index 1"_s}));
        push(2);
        QCOMPARE(takeLog(), QStringList({u"undoText to 2"_s, u"index 2"_s}));
        m_history->undo();
        QCOMPARE(m_number, 1);
        QCOMPARE(takeLog(), QStringList({u"canRedo true"_s, u"undoText to 1"_s, u"redoText to 2"_s, u"index 1"_s}));
        m_history->undo();
        QCOMPARE(m_number, 0);
        QCOMPARE(takeLog(), QStringList({u"canUndo false"_s, u"undoText "_s, u"redoText to 1"_s, u"clean true"_s,
                                         u"index 0"_s}));
        m_history->redo();
        QCOMPARE(m_number, 1);
        takeLog();
        m_history->setClean();
        QCOMPARE(takeLog(), QStringList(u"clean true"_s));
        m_history->clear();
        QCOMPARE(takeLog(), QStringList({u"canUndo false"_s, u"canRedo false"_s, u"undoText "_s, u"redoText "_s,
                                         u"index 0"_s}));
        QCOMPARE(m_history->memoryUsed(), 0);
    }

    void obsoleteCommandsNeverRun()
    {
        push(1);
        m_history->undo();
        takeLog();
        m_history->push(nullptr);
        push(0); // nothing to change
        QCOMPARE(takeLog(), QStringList());
        QVERIFY(m_history->canRedo());
    }

    void commandThatFailsItsFirstRunStillCostsTheRedoList()
    {
        push(1);
        m_history->setClean();
        m_history->undo();
        takeLog();
        auto failing = std::make_unique<NumberCommand>(m_number, 5);
        failing->failsToRedo = true;
        m_history->push(std::move(failing));
        QCOMPARE(m_history->count(), 0);
        QCOMPARE(m_history->memoryUsed(), 0);
        QCOMPARE(takeLog(), QStringList({u"canRedo false"_s, u"redoText "_s}));
        QVERIFY(!m_history->isClean());
    }

    void commandsThatFailLaterLeaveTheList()
    {
        push(1);
        NumberCommand *second = push(2);
        push(3);
        m_history->undo();
        second->failsToUndo = true;
        m_history->undo();
        QCOMPARE(m_history->count(), 2);
        QCOMPARE(m_history->index(), 1);
        QCOMPARE(m_history->redoText(), u"to 3"_s);

        NumberCommand *last = push(4);
        m_history->undo();
        last->failsToRedo = true;
        m_history->redo();
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->index(), 1);
    }

    void cleanStateBeyondALostStepIsLost_data()
    {
        QTest::addColumn<int>("savedIndex");
        QTest::addColumn<int>("cleanIndexAfterwards"); // -1: none
        QTest::newRow("before the lost step") << 0 << 0;
        QTest::newRow("between") << 1 << 1;
        QTest::newRow("right after it") << 2 << -1;
        QTest::newRow("further on") << 3 << 2;
    }

    void cleanStateBeyondALostStepIsLost()
    {
        QFETCH(int, savedIndex);
        QFETCH(int, cleanIndexAfterwards);
        QList<NumberCommand *> commands;
        for (int i = 1; i <= 3; ++i)
            commands.append(push(i));
        while (m_history->index() > savedIndex)
            m_history->undo();
        m_history->setClean();
        while (m_history->index() < 3)
            m_history->redo();
        commands[1]->failsToUndo = true;
        m_history->undo();
        m_history->undo();
        QCOMPARE(m_history->count(), 2);
        QCOMPARE(cleanIndexes(), cleanIndexAfterwards < 0 ? QList<int>() : QList<int>({cleanIndexAfterwards}));
    }

    void savedStateIsReachedByUndoUntilAnotherRoadIsTaken()
    {
        push(1);
        push(2);
        m_history->setClean();
        m_history->undo();
        QVERIFY(!m_history->isClean());
        m_history->redo();
        QVERIFY(m_history->isClean());
        m_history->undo();
        push(5);
        QCOMPARE(cleanIndexes(), QList<int>());
    }

    void dragMergesIntoOneStep()
    {
        push(10);
        takeLog();
        for (int i = 11; i <= 60; ++i)
            push(i, 1);
        QCOMPARE(m_history->count(), 2);
        QCOMPARE(takeLog(), QStringList({u"undoText to 11"_s, u"index 2"_s}));
        m_history->undo();
        QCOMPARE(m_number, 10);
        m_history->redo();
        QCOMPARE(m_number, 60);
        push(70, 2);
        QCOMPARE(m_history->count(), 3);
    }

    void dragThatReturnsVanishes()
    {
        push(1);
        m_history->setClean();
        push(2, 1);
        push(3, 1);
        QVERIFY(!m_history->isClean());
        takeLog();
        push(1, 1);
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(takeLog(), QStringList({u"undoText to 1"_s, u"clean true"_s, u"index 1"_s}));
    }

    void stateSavedInsideADragCannotBeReached()
    {
        push(1);
        push(2, 1);
        m_history->setClean();
        push(3, 1);
        QVERIFY(!m_history->isClean());
        push(1, 1); // returns to the state before the drag, which is not the saved one
        QVERIFY(!m_history->isClean());
        push(4);
        QCOMPARE(cleanIndexes(), QList<int>());
    }

    void memoryCountsTextsChildrenAndPayload()
    {
        auto composite = std::make_unique<QUndoCommand>(u"abc"_s);
        new QUndoCommand(u"de"_s, composite.get());
        m_history->push(std::move(composite));
        QCOMPARE(m_history->memoryUsed(), (256 + 3 * 2) + (256 + 2 * 2));
        NumberCommand *costly = push(1);
        costly->bytes = 1000;
        m_history->setClean(); // no recomputation
        m_history->undo();
        QCOMPARE(m_history->memoryUsed(), 522 + 256 + 4 * 2 + 1000);
    }

    void budgetForgetsTheOldestStepsFirst()
    {
        for (int i = 1; i <= 3; ++i)
            push(i, -1, 200 * kMebibyte);
        QCOMPARE(m_history->count(), 2);
        QCOMPARE(m_history->index(), 2);
        QCOMPARE(m_destroyed, QStringList(u"to 1"_s));
        QCOMPARE(cleanIndexes(), QList<int>()); // the first state was the saved one
        m_history->setClean();
        push(4, -1, 200 * kMebibyte);
        m_history->undo();
        QVERIFY(m_history->isClean()); // shifted along with the list
        QCOMPARE(m_number, 3);
    }

    void budgetForgetsRedoStepsFromTheFarEnd()
    {
        QList<NumberCommand *> commands;
        for (int i = 1; i <= 4; ++i)
            commands.append(push(i));
        m_history->setClean();
        m_history->undo();
        m_history->undo();
        for (NumberCommand *command : commands)
            command->bytes = 300 * kMebibyte;
        m_destroyed.clear();
        m_history->undo();
        QCOMPARE(m_destroyed, QStringList({u"to 4"_s, u"to 3"_s, u"to 2"_s}));
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->index(), 1);
        QVERIFY(!m_history->isClean());
        m_history->undo();
        QCOMPARE(m_number, 0);
    }

    void lastUndoableStepStaysBeyondTheBudget()
    {
        push(1);
        push(2, -1, 800 * kMebibyte);
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->undoText(), u"to 2"_s);
        QVERIFY(m_history->memoryUsed() > m_history->memoryLimit());
        m_history->undo(); // only a redo step is left, and it does not fit
        QCOMPARE(m_history->count(), 0);
        QCOMPARE(m_number, 1);
    }

    void mergeScopeGivesOneKeyForEachGesture()
    {
        UndoMergeScope scope;
        QCOMPARE(scope.currentKey(), 0u);
        scope.begin();
        const quint64 first = scope.currentKey();
        QVERIFY(first != 0);
        scope.begin();
        QCOMPARE(scope.currentKey(), first);
        scope.end();
        QCOMPARE(scope.currentKey(), 0u);
        scope.begin();
        QVERIFY(scope.currentKey() != 0 && scope.currentKey() != first);
    }

private:
    NumberCommand *push(int after, int mergeId = -1, qint64 bytes = 0)
    {
        auto command = std::make_unique<NumberCommand>(m_number, after, mergeId);
        command->bytes = bytes;
        command->destroyed = &m_destroyed;
        NumberCommand *raw = command.get();
        m_history->push(std::move(command));
        return raw;
    }

    QStringList takeLog() { return std::exchange(m_log, {}); }

    /// The indexes at which the history says that it is clean, found by walking through it.
    QList<int> cleanIndexes()
    {
        QList<int> clean;
        while (m_history->canUndo())
            m_history->undo();
        for (;; m_history->redo()) {
            if (m_history->isClean())
                clean.append(m_history->index());
            if (!m_history->canRedo())
                return clean;
        }
    }

    int m_number = 0;
    QStringList m_log;
    QStringList m_destroyed;
    std::unique_ptr<CommandHistory> m_history;
};

QTEST_GUILESS_MAIN(TestCommandHistory)
#include "tst_command_history.moc"
