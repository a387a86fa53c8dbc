#include "commands/command_history.h"
#include "commands/undo_memory_cost.h"

#include <QTest>
#include <QUndoCommand>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr qint64 kMebibyte = 1024 * 1024;

/// Sets a number, and fails or costs as told.
struct NumberCommand : public QUndoCommand, public UndoMemoryCost
{
    NumberCommand(int &number, int after, int mergeId = -1)
        : QUndoCommand(u"to %1"_s.arg(after))
        , number(number)
        , after(after)
        , mergeId(mergeId)
    {
        setObsolete(before == after);
    }
    int id() const override { return mergeId; }
    void redo() override { set(after); }
    void undo() override { set(before); }
    bool mergeWith(const QUndoCommand *other) override
    {
        after = static_cast<const NumberCommand *>(other)->after;
        setObsolete(before == after);
        return true;
    }
    qint64 undoMemoryBytes() const override { return bytes; }
    void set(int value)
    {
        setObsolete(fails);
        number = fails ? number : value;
    }

    int &number;
    int before = number;
    int after;
    int mergeId;
    qint64 bytes = 0;
    bool fails = false;
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
        const auto log = [this](const QString &what, auto signal) {
            connect(m_history.get(), signal, this,
                    [this, what](const auto &value) { m_log.append(what + u' ' + QVariant(value).toString()); });
        };
        log(u"canUndo"_s, &CommandHistory::canUndoChanged);
        log(u"canRedo"_s, &CommandHistory::canRedoChanged);
        log(u"undoText"_s, &CommandHistory::undoTextChanged);
        log(u"redoText"_s, &CommandHistory::redoTextChanged);
        log(u"clean"_s, &CommandHistory::cleanChanged);
        log(u"index"_s, &CommandHistory::indexChanged);
    }

    void signalsComeInOrderAndForRealChangesOnly()
    {
        m_history->undo();
        m_history->redo();
        m_history->setClean();
        m_history->clear();
        m_history->push(nullptr);
        QCOMPARE(takeLog(), QString());
        push(1);
        QCOMPARE(takeLog(), u"canUndo true, undoText to 1, clean false, index 1"_s);
        push(2);
        QCOMPARE(takeLog(), u"undoText to 2, index 2"_s);
        m_history->undo();
        QCOMPARE(takeLog(), u"canRedo true, undoText to 1, redoText to 2, index 1"_s);
        m_history->undo();
        QCOMPARE(takeLog(), u"canUndo false, undoText , redoText to 1, clean true, index 0"_s);
        m_history->redo();
        QCOMPARE(m_number, 1);
        takeLog();
        m_history->setClean();
        QCOMPARE(takeLog(), u"clean true"_s);
        m_history->clear();
        QCOMPARE(takeLog(), u"canUndo false, canRedo false, undoText , redoText , index 0"_s);
        QCOMPARE(m_history->memoryUsed(), 0);
    }

    void commandsThatFailLeaveTheList()
    {
        push(1);
        m_history->setClean();
        m_history->undo();
        takeLog();
        push(0); // nothing to change: it does not even cost the redo list
        QCOMPARE(takeLog(), QString());
        auto failing = std::make_unique<NumberCommand>(m_number, 5);
        failing->fails = true;
        m_history->push(std::move(failing));
        QCOMPARE(takeLog(), u"canRedo false, redoText "_s);
        QCOMPARE(m_history->count(), 0);
        QCOMPARE(m_history->memoryUsed(), 0);

        push(1);
        QVERIFY(!m_history->isClean()); // the saved state went with the redo list
        push(2)->fails = true;
        m_history->undo();
        QCOMPARE(m_history->count(), 1);
        NumberCommand *last = push(4);
        m_history->undo();
        last->fails = true;
        m_history->redo();
        QCOMPARE(m_history->count(), 1);
        QCOMPARE(m_history->index(), 1);
    }

    void cleanStateBeyondALostStepIsLost()
    {
        const std::pair<int, QList<int>> cleanBeforeAndAfter[] = {{1, {1}}, {2, {}}, {3, {2}}};
        for (const auto &[before, after] : cleanBeforeAndAfter) {
            init();
            for (int i = 1; i <= 3; ++i) {
                push(i)->fails = i == 2; // from now on
                if (i == before)
                    m_history->setClean();
            }
            m_history->undo();
            m_history->undo();
            QCOMPARE(m_history->count(), 2);
            QCOMPARE(m_history->redoText(), u"to 3"_s);
            QCOMPARE(cleanIndexes(), after);
        }
    }

    void dragMergesIntoOneStepAndVanishesWhereItReturns()
    {
        push(10);
        m_history->setClean();
        takeLog();
        for (int i = 11; i <= 60; ++i)
            push(i, 1);
        QCOMPARE(takeLog(), u"undoText to 11, clean false, index 2"_s);
        m_history->undo();
        QCOMPARE(m_number, 10);
        m_history->redo();
        QCOMPARE(m_number, 60);
        push(70, 2);
        QCOMPARE(m_history->count(), 3);
        m_history->undo();
        takeLog();
        push(10, 1);
        QCOMPARE(takeLog(), u"canRedo false, undoText to 10, redoText , clean true, index 1"_s);
    }

    void memoryCountsTextsChildrenAndPayload()
    {
        auto composite = std::make_unique<QUndoCommand>(u"abc"_s);
        new QUndoCommand(u"de"_s, composite.get());
        m_history->push(std::move(composite));
        push(1, -1, 1000);
        QCOMPARE(m_history->memoryUsed(), (256 + 3 * 2) + (256 + 2 * 2) + (256 + 4 * 2 + 1000));
    }

    void budgetForgetsTheOldestStepsFirst()
    {
        for (int i = 1; i <= 3; ++i)
            push(i, -1, 200 * kMebibyte);
        QCOMPARE(m_history->index(), 2);
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
        NumberCommand *first = push(1);
        for (int i = 2; i <= 4; ++i)
            push(i, -1, 150 * kMebibyte);
        m_history->setClean();
        for (int i = 4; i > 2; --i)
            m_history->undo();
        first->bytes = 300 * kMebibyte; // counted at the next change
        m_history->undo();
        QCOMPARE(m_history->index(), 1);
        QCOMPARE(m_history->count(), 2);
        QCOMPARE(m_history->redoText(), u"to 2"_s);
        QVERIFY(!m_history->isClean());
    }

private:
    NumberCommand *push(int after, int mergeId = -1, qint64 bytes = 0)
    {
        auto *command = new NumberCommand(m_number, after, mergeId);
        command->bytes = bytes;
        m_history->push(std::unique_ptr<QUndoCommand>(command));
        return command;
    }

    QString takeLog() { return std::exchange(m_log, {}).join(u", "); }

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
    std::unique_ptr<CommandHistory> m_history;
};

QTEST_GUILESS_MAIN(TestCommandHistory)
#include "tst_command_history.moc"
