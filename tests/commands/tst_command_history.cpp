#include "commands/command_history.h"
#include "commands/undo_memory_cost.h"

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
    NumberCommand(int &number, int after, int mergeId, QStringList &destroyed)
        : QUndoCommand(u"to %1"_s.arg(after))
        , m_number(number)
        , m_before(number)
        , m_after(after)
        , m_mergeId(mergeId)
        , m_destroyed(destroyed)
    {
        setObsolete(m_before == m_after);
    }
    ~NumberCommand() override { m_destroyed.append(text()); }
    int id() const override { return m_mergeId; }
    void redo() override { set(m_after); }
    void undo() override { set(m_before); }
    bool mergeWith(const QUndoCommand *other) override
    {
        m_after = static_cast<const NumberCommand *>(other)->m_after;
        setObsolete(m_before == m_after);
        return true;
    }
    qint64 undoMemoryBytes() const override { return bytes; }

    qint64 bytes = 0;
    bool fails = false;

private:
    void set(int number)
    {
        if (fails)
            setObsolete(true);
        else
            m_number = number;
    }

    int &m_number;
    int m_before;
    int m_after;
    int m_mergeId;
    QStringList &m_destroyed;
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
        const auto log = [this](auto signal, const QString &what) {
            connect(m_history.get(), signal, this,
                    [this, what](const auto &value) { m_log.append(what + u' ' + QVariant(value).toString()); });
        };
        log(&CommandHistory::canUndoChanged, u"canUndo"_s);
        log(&CommandHistory::canRedoChanged, u"canRedo"_s);
        log(&CommandHistory::undoTextChanged, u"undoText"_s);
        log(&CommandHistory::redoTextChanged, u"redoText"_s);
        log(&CommandHistory::cleanChanged, u"clean"_s);
        log(&CommandHistory::indexChanged, u"index"_s);
    }

    void signalsComeInOrderAndForRealChangesOnly()
    {
        m_history->undo();
        m_history->redo();
        m_history->setClean();
        m_history->clear();
        m_history->push(nullptr);
        QCOMPARE(takeLog(), QStringList());
        push(1);
        QCOMPARE(takeLog(), QStringList({u"canUndo true"_s, u"undoText to 1"_s, u"clean false"_s, u"index 1"_s}));
        push(2);
        QCOMPARE(takeLog(), QStringList({u"undoText to 2"_s, u"index 2"_s}));
        m_history->undo();
        QCOMPARE(takeLog(), QStringList({u"canRedo true"_s, u"undoText to 1"_s, u"redoText to 2"_s, u"index 1"_s}));
        m_history->undo();
        QCOMPARE(takeLog(),
                 QStringList({u"canUndo false"_s, u"undoText "_s, u"redoText to 1"_s, u"clean true"_s, u"index 0"_s}));
        m_history->redo();
        QCOMPARE(m_number, 1);
        takeLog();
        m_history->setClean();
        QCOMPARE(takeLog(), QStringList(u"clean true"_s));
        m_history->clear();
        QCOMPARE(takeLog(),
                 QStringList({u"canUndo false"_s, u"canRedo false"_s, u"undoText "_s, u"redoText "_s, u"index 0"_s}));
        QCOMPARE(m_history->memoryUsed(), 0);
    }

    void commandsThatFailLeaveTheList()
    {
        push(1);
        m_history->setClean();
        m_history->undo();
        takeLog();
        push(0); // nothing to change: it does not even cost the redo list
        QCOMPARE(takeLog(), QStringList());
        auto failing = std::make_unique<NumberCommand>(m_number, 5, -1, m_destroyed);
        failing->fails = true;
        m_history->push(std::move(failing));
        QCOMPARE(takeLog(), QStringList({u"canRedo false"_s, u"redoText "_s}));
        QCOMPARE(m_history->count(), 0);
        QCOMPARE(m_history->memoryUsed(), 0);

        push(1);
        QVERIFY(!m_history->isClean()); // the saved state went with the redo list
        push(2)->fails = true;
        m_history->undo();
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->index(), 1);
        NumberCommand *last = push(4);
        m_history->undo();
        last->fails = true;
        m_history->redo();
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->index(), 1);
    }

    void cleanStateBeyondALostStepIsLost_data()
    {
        QTest::addColumn<int>("savedIndex");
        QTest::addColumn<QList<int>>("cleanAfterwards");
        QTest::newRow("before the lost step") << 1 << QList<int>({1});
        QTest::newRow("right after it") << 2 << QList<int>();
        QTest::newRow("further on") << 3 << QList<int>({2});
    }

    void cleanStateBeyondALostStepIsLost()
    {
        QFETCH(int, savedIndex);
        QFETCH(QList<int>, cleanAfterwards);
        NumberCommand *second = nullptr;
        for (int i = 1; i <= 3; ++i) {
            NumberCommand *command = push(i);
            if (i == 2)
                second = command;
            if (i == savedIndex)
                m_history->setClean();
        }
        second->fails = true;
        m_history->undo();
        m_history->undo();
        QCOMPARE(m_history->count(), 2);
        QCOMPARE(m_history->redoText(), u"to 3"_s);
        QCOMPARE(cleanIndexes(), cleanAfterwards);
    }

    void dragMergesIntoOneStepAndVanishesWhereItReturns()
    {
        push(10);
        m_history->setClean();
        takeLog();
        for (int i = 11; i <= 60; ++i)
            push(i, 1);
        QCOMPARE(takeLog(), QStringList({u"undoText to 11"_s, u"clean false"_s, u"index 2"_s}));
        m_history->undo();
        QCOMPARE(m_number, 10);
        m_history->redo();
        QCOMPARE(m_number, 60);
        push(70, 2);
        QCOMPARE(m_history->count(), 3);
        m_history->undo();
        takeLog();
        push(10, 1);
        QCOMPARE(takeLog(),
                 QStringList({u"canRedo false"_s, u"undoText to 10"_s, u"redoText "_s, u"clean true"_s, u"index 1"_s}));
        push(2, 1);
        m_history->setClean();
        push(3, 1);
        QVERIFY(!m_history->isClean());
        push(10, 1); // returns to the state before the drag, which is not the saved one
        push(4);
        QCOMPARE(cleanIndexes(), QList<int>());
    }

    void memoryCountsTextsChildrenAndPayload()
    {
        auto composite = std::make_unique<QUndoCommand>(u"abc"_s);
        new QUndoCommand(u"de"_s, composite.get());
        m_history->push(std::move(composite));
        QCOMPARE(m_history->memoryUsed(), (256 + 3 * 2) + (256 + 2 * 2));
        push(1)->bytes = 1000; // counted at the next change
        m_history->undo();
        QCOMPARE(m_history->memoryUsed(), 522 + 256 + 4 * 2 + 1000);
    }

    void budgetForgetsTheOldestStepsFirst()
    {
        for (int i = 1; i <= 3; ++i)
            push(i, -1, 200 * kMebibyte);
        QCOMPARE(m_history->index(), 2);
        QCOMPARE(m_destroyed, QStringList(u"to 1"_s));
        QCOMPARE(cleanIndexes(), QList<int>()); // the first state was the saved one
        m_history->setClean();
        push(4, -1, 200 * kMebibyte);
        m_history->undo();
        QVERIFY(m_history->isClean()); // shifted along with the list

        push(5, -1, 800 * kMebibyte);
        QCOMPARE(m_history->count(), 1); // the last step stays whatever it costs
        QCOMPARE(m_history->undoText(), u"to 5"_s);
        m_history->undo(); // only a redo step is left, and it does not fit
        QCOMPARE(m_history->count(), 0);
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
        m_history->undo();
        QCOMPARE(m_destroyed, QStringList({u"to 4"_s, u"to 3"_s, u"to 2"_s}));
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->index(), 1);
        QCOMPARE(m_number, 1);
        QVERIFY(!m_history->isClean());
    }

private:
    NumberCommand *push(int after, int mergeId = -1, qint64 bytes = 0)
    {
        auto command = std::make_unique<NumberCommand>(m_number, after, mergeId, m_destroyed);
        command->bytes = bytes;
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
