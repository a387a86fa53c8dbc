#include "support/pictures.h"
#include "view/window_driver.h"

#include <QAccessible>
#include <QOpenGLContext>
#include <QQuickItem>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// Stands where a tool for painting will.
class Painter : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE bool canRasterizeAt(const QPointF &) const { return canRasterize; }
    Q_INVOKABLE void rasterizeAt(const QPointF &point) { rasterized.append(point); }

    bool canRasterize = false;
    QList<QPointF> rasterized;
};

} // namespace

/// Tools, tabs and panels of the window under pointer and keys, and what screen readers are told of them.
class TestWindowControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
    }

    void init()
    {
        m_driver = std::make_unique<test::WindowDriver>();
        QVERIFY(m_driver->open());
    }

    void cleanup()
    {
        const bool quiet = m_driver->warnings().isEmpty();
        m_driver.reset();
        QVERIFY(quiet);
    }

    void everyControlHasANameAndCanBeReachedByKeys()
    {
        QVERIFY(m_driver->context().editorController.addText());
        QStringList nameless = namelessControls();
        for (const QString &tab : {u"Layer"_s, u"Size"_s}) {
            m_driver->click(m_driver->tab(tab));
            QTest::qWait(20);
            nameless += namelessControls();
            QVERIFY2(unreachableControls().isEmpty(), qPrintable(unreachableControls().join(u", "_s)));
        }
        for (const char *name : {"aboutDialog", "exportDialog", "shapePickerDialog", "resetBoardDialog",
                                 "unsavedChangesDialog", "saveProgressDialog"}) {
            if (name == QByteArray("exportDialog"))
                QVERIFY(m_driver->context().exportController.begin(true));
            QMetaObject::invokeMethod(m_driver->dialog(name), "open");
            QTRY_VERIFY(m_driver->shows(name));
            QTest::qWait(50);
            nameless += namelessControls();
            QMetaObject::invokeMethod(m_driver->dialog(name), "close");
            QTRY_VERIFY(!m_driver->shows(name));
        }
        nameless.removeDuplicates();
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(u", "_s)));
    }

    void keysOfToolsWorkOnlyOnTheCanvas()
    {
        m_driver->key(Qt::Key_T);
        QTRY_COMPARE(document().objectCount(), 1);
        m_driver->click(m_driver->tab(u"Layer"_s));
        QTRY_VERIFY(m_driver->named(u"Name"_s));
        m_driver->click(m_driver->named(u"Name"_s));
        m_driver->key(Qt::Key_T);
        QCOMPARE(document().objectCount(), 1);
        m_driver->key(Qt::Key_Escape);
        QMetaObject::invokeMethod(m_driver->canvas(), "forceCanvasFocus");
        m_driver->key(Qt::Key_U);
        QTRY_VERIFY(m_driver->shows("shapePickerDialog"));
        QTRY_VERIFY(m_driver->item(u"Diamond"_s));
        QTest::mouseDClick(m_driver->window(), Qt::LeftButton, {},
                           m_driver->centre(m_driver->item(u"Diamond"_s)).toPoint());
        QTRY_COMPARE(document().objectCount(), 2);
        QTRY_VERIFY(!m_driver->shows("shapePickerDialog"));
        QVERIFY(document().shapeLayer(document().selectedObjectId()));
    }

    void noTwoActionsShareKeys()
    {
        QSet<QString> keys;
        QSet<const QObject *> seen;
        for (QObject *action : m_driver->window()->findChildren<QObject *>()) {
            if (!action->inherits("QQuickAction") || seen.contains(action))
                continue;
            seen.insert(action);
            const QVariant shortcut = action->property("shortcut");
            const QKeySequence sequence = shortcut.typeId() == QMetaType::QString
                ? QKeySequence(shortcut.toString())
                : QKeySequence(QKeySequence::StandardKey(shortcut.toInt()));
            for (const QString &key : {sequence.toString(), action->property("toolKey").toString()}) {
                QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(key));
                keys.insert(key);
            }
        }
        QVERIFY(keys.size() > 20);
    }

    void historyIsOutOfReachWhileTextIsEdited()
    {
        m_driver->key(Qt::Key_T);
        QTRY_VERIFY(m_driver->context().commandHistory.canUndo());
        m_driver->context().editorStateModel.setMode(EditorStateModel::EditorMode::TextEdit);
        m_driver->key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(document().objectCount(), 1);
        m_driver->context().editorStateModel.activateTransformMode();
        m_driver->key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(document().objectCount(), 0);
        m_driver->key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(document().objectCount(), 1);
    }

    void layerRowsAreDraggedRenamedHiddenAndUndone()
    {
        for (const QString &name : {u"bottom"_s, u"middle"_s, u"top"_s})
            document().insertObject(std::make_unique<ImageLayer>(test::plainPicture(40, 30, Qt::red), name));
        m_driver->click(m_driver->tab(u"Layer"_s));
        QTRY_VERIFY(m_driver->item(u"top"_s));

        const QPointF top = m_driver->centre(m_driver->item(u"top"_s));
        const QPointF bottom = m_driver->centre(m_driver->item(u"bottom"_s));
        m_driver->drag(top, bottom + QPointF(0, 8));
        QTRY_COMPARE(m_driver->layerNames(), QStringList({u"top"_s, u"bottom"_s, u"middle"_s}));
        QCOMPARE(document().selectedObject()->name(), u"top"_s);
        QTest::qWait(200); // rows glide to their places

        QTest::mouseDClick(m_driver->window(), Qt::LeftButton, {},
                           m_driver->centre(m_driver->item(u"middle"_s)).toPoint());
        for (Qt::Key key : {Qt::Key_X, Qt::Key_Y, Qt::Key_Return})
            m_driver->key(key);
        QTRY_COMPARE(m_driver->layerNames(), QStringList({u"top"_s, u"bottom"_s, u"xy"_s}));

        QVERIFY(m_driver->named(u"Hide layer"_s));
        m_driver->click(m_driver->named(u"Hide layer"_s)); // of one of the rows
        QTRY_COMPARE(hiddenCount(), 1);

        CommandHistory &history = m_driver->context().commandHistory;
        QCOMPARE(history.count(), 3);
        for (int step = 0; step < 3; ++step)
            history.undo();
        QCOMPARE(m_driver->layerNames(), QStringList({u"bottom"_s, u"middle"_s, u"top"_s}));
    }

    void gesturesOfThePanelsAreOneStepEach()
    {
        document().insertObject(std::make_unique<ImageLayer>(test::plainPicture(40, 30, Qt::red), u"a"_s));
        document().selectObject(document().objectAt(0)->id());
        CommandHistory &history = m_driver->context().commandHistory;
        m_driver->click(m_driver->tab(u"Layer"_s));
        QTRY_VERIFY(m_driver->named(u"Opacity"_s));
        QQuickItem *slider = m_driver->named(u"Opacity"_s);
        const QPointF end = slider->mapToScene({slider->width() - 7, slider->height() / 2});
        m_driver->drag(end, end - QPointF(slider->width() / 2, 0));
        QCOMPARE(history.count(), 1);
        QVERIFY(document().objectAt(0)->opacity() < 0.6);

        m_driver->click(m_driver->tab(u"Size"_s));
        QTRY_VERIFY(m_driver->named(u"X"_s));
        m_driver->click(m_driver->named(u"X"_s));
        const double before = document().objectAt(0)->transform().position().x();
        for (int step = 0; step < 3; ++step)
            m_driver->key(Qt::Key_Up);
        QCOMPARE(document().objectAt(0)->transform().position().x(), before + 3);
        QCOMPARE(history.count(), 2);
        m_driver->key(Qt::Key_Z, Qt::ControlModifier); // nothing is typed: the document's step
        QCOMPARE(document().objectAt(0)->transform().position().x(), before);
        m_driver->key(Qt::Key_Return); // gives the keys back to the canvas
        m_driver->key(Qt::Key_T);
        QCOMPARE(document().objectCount(), 2);
    }

    void canvasMenuIsAboutItsPoint()
    {
        Painter painter;
        for (QObject *object : m_driver->window()->findChildren<QObject *>()) {
            if (QByteArray(object->metaObject()->className()).startsWith("ActionContext_QMLTYPE"))
                QVERIFY(object->setProperty("paintController", QVariant::fromValue<QObject *>(&painter)));
        }
        QVERIFY(m_driver->context().editorController.addText());
        for (bool possible : {false, true}) {
            painter.canRasterize = possible;
            m_driver->click(m_driver->canvas(), Qt::RightButton);
            QTRY_VERIFY(m_driver->item(u"Rasterize Layer"_s));
            QVERIFY(m_driver->item(u"Cut"_s));
            QCOMPARE(m_driver->item(u"Rasterize Layer"_s)->isEnabled(), possible);
            QVERIFY(m_driver->click(possible ? u"Rasterize Layer"_s : u"Remove Layer"_s));
            QTRY_VERIFY(!m_driver->item(u"Rasterize Layer"_s));
        }
        QCOMPARE(document().objectCount(), 0);
        QCOMPARE(painter.rasterized, QList{m_driver->canvas()->property("contextDocumentPoint").toPointF()});
    }

    void tabsFollowTheSelection()
    {
        QVERIFY(m_driver->item(u"Document"_s));
        m_driver->click(m_driver->tab(u"Size"_s));
        QVERIFY(m_driver->item(u"Select a layer to edit its transform."_s));
        m_driver->click(m_driver->canvas());
        m_driver->key(Qt::Key_T);
        QTRY_VERIFY(m_driver->item(u"Text"_s));
        QVERIFY(!m_driver->item(u"Select a layer to edit its transform."_s)); // a new layer brings its info
    }

private:
    Document &document() { return m_driver->context().document; }

    int hiddenCount()
    {
        int hidden = 0;
        for (qsizetype index = 0; index < document().objectCount(); ++index)
            hidden += document().objectAt(index)->isVisible() ? 0 : 1;
        return hidden;
    }

    static bool isControl(const QQuickItem *item)
    {
        return item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextField")
            || item->inherits("QQuickSlider") || item->inherits("QQuickComboBox");
    }

    static QString whereabouts(const QQuickItem *item)
    {
        QString path;
        for (int depth = 0; item && depth < 4; ++depth, item = item->parentItem())
            path += QString::fromLatin1(item->metaObject()->className()).section(u'_', 0, 0) + u'<';
        return path;
    }

    QStringList namelessControls() const
    {
        QStringList found;
        (void)m_driver->itemWhere([&found](QQuickItem *item) {
            const QAccessibleInterface *interface =
                isControl(item) ? QAccessible::queryAccessibleInterface(item) : nullptr;
            if (isControl(item) && (!interface || interface->text(QAccessible::Name).trimmed().isEmpty()))
                found.append(whereabouts(item));
            return false;
        });
        return found;
    }

    /// Of the window itself; menus and rows have keys of their own.
    QStringList unreachableControls() const
    {
        QStringList found;
        (void)m_driver->itemWhere([&found](QQuickItem *item) {
            const bool inList = QString::fromLatin1(item->metaObject()->className()).startsWith(u"LayerRow_"_s);
            const bool reachable = item->activeFocusOnTab() || inList || item->inherits("QQuickMenuBarItem")
                || item->inherits("QQuickMenuItem") || item->inherits("QQuickTabButton");
            if (isControl(item) && item->isEnabled() && !reachable)
                found.append(whereabouts(item));
            return false;
        });
        return found;
    }

    std::unique_ptr<test::WindowDriver> m_driver;
};

int main(int argc, char **argv)
{
    TestWindowControls test;
    return test::runWindowTest(test, argc, argv);
}

#include "tst_window_controls.moc"
