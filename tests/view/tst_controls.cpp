#include "support/pictures.h"
#include "view/window_driver.h"

#include <QAccessible>
#include <QOpenGLContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QStyleHints>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace zm;

/// What the controls of the window share or make only when it is needed: tool tips, kept panels, fields and lists.
class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QOpenGLContext().create())
            QSKIP("No OpenGL context can be created here.");
        QGuiApplication::styleHints()->setMousePressAndHoldInterval(kToolTipDelayMs);
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

    void oneToolTipFollowsThePointer()
    {
        hover(u"New"_s);
        QTRY_VERIFY(toolTip().startsWith(u"New document ("_s)); // and its keys
        QObject *const shared = toolTipObject();
        hover(u"Open…"_s);
        QTRY_VERIFY(toolTip().startsWith(u"Open a document"_s));
        QCOMPARE(toolTipObject(), shared);
        hover(u"Draw"_s); // disabled without a layer
        QTRY_VERIFY(toolTip().startsWith(u"Draw"_s));
        QTest::mouseMove(m_driver->window(), m_driver->centre(m_driver->canvas()).toPoint());
        QTRY_VERIFY(toolTip().isEmpty());
        QTest::qWait(3 * kToolTipDelayMs);
        QVERIFY(toolTip().isEmpty());
    }

    void toolTipLeavesInViewWhatItNames_data()
    {
        QTest::addColumn<QString>("control");
        QTest::newRow("in the bar at the top") << u"New"_s;
        QTest::newRow("among tools below each other") << u"Elliptical Selection"_s;
        QTest::newRow("in the bar at the bottom") << u"Zoom in"_s;
    }

    void toolTipLeavesInViewWhatItNames()
    {
        QFETCH(QString, control);
        for (const int inspectorPosition : {0, 1}) { // the tools stand on the other side
            m_driver->context().applicationSettings.setInspectorPosition(inspectorPosition);
            QTest::qWait(50);
            hover(control);
            QTRY_VERIFY(!toolTip().isEmpty());
            const QQuickItem *tip = toolTipObject()->property("contentItem").value<QQuickItem *>()->parentItem();
            const QRectF tipRect = tip->mapRectToScene(QRectF(QPointF(), tip->size()));
            const QQuickItem *named = m_driver->named(control);
            const QRectF namedRect = named->mapRectToScene(QRectF(QPointF(), named->size()));
            QVERIFY(!tipRect.intersects(namedRect));
            QVERIFY(QRectF(QPointF(), m_driver->window()->size()).contains(tipRect));
            QTest::mouseMove(m_driver->window(), m_driver->centre(m_driver->canvas()).toPoint());
            QTRY_VERIFY(toolTip().isEmpty());
        }
    }

    void pressedControlKeepsItsToolTipAway()
    {
        hover(u"More ways to save"_s);
        QTRY_COMPARE(toolTip(), u"More ways to save"_s);
        m_driver->click(m_driver->named(u"More ways to save"_s));
        QTRY_VERIFY(m_driver->item(u"Save As…"_s));
        QTest::qWait(5 * kToolTipDelayMs);
        QVERIFY(toolTip().isEmpty()); // nothing lies over the menu
        m_driver->key(Qt::Key_Escape);
        hover(u"New"_s);
        QTRY_VERIFY(toolTip().startsWith(u"New document"_s));
        hover(u"More ways to save"_s);
        QTRY_COMPARE(toolTip(), u"More ways to save"_s);
    }

    void toolTipGoesWithItsControl_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("while it is shown") << true;
        QTest::newRow("before it is shown") << false;
    }

    void toolTipGoesWithItsControl()
    {
        QFETCH(bool, shown);
        insertLayers({u"a"_s});
        m_driver->click(m_driver->tab(u"Layer"_s));
        QTRY_VERIFY(m_driver->named(u"Hide layer"_s));
        QTest::qWait(50); // the row gets its place
        hover(u"Hide layer"_s);
        QTRY_VERIFY(toolTips()->property("subject").value<QQuickItem *>());
        if (shown)
            QTRY_COMPARE(toolTip(), u"Hide layer"_s);
        document().clearSelection();
        (void)document().takeObject(document().objectAt(0)->id());
        QTRY_VERIFY(toolTip().isEmpty() && !toolTips()->property("subject").value<QQuickItem *>());
        QTest::qWait(3 * kToolTipDelayMs);
        QVERIFY(toolTip().isEmpty());
    }

    void toolTipShowsForTheKeysAndInDialogs()
    {
        QMetaObject::invokeMethod(m_driver->dialog("resetBoardDialog"), "open");
        QTRY_VERIFY(m_driver->named(u"Swap width and height"_s));
        m_driver->key(Qt::Key_Tab); // from the width
        QTRY_COMPARE(toolTip(), u"Swap width and height"_s);
        m_driver->key(Qt::Key_Space);
        QTRY_VERIFY(toolTip().isEmpty());
        QMetaObject::invokeMethod(m_driver->dialog("resetBoardDialog"), "close");
        QTRY_VERIFY(!m_driver->shows("resetBoardDialog"));
    }

    void toolTipShowsAPictureInTheSizeTold()
    {
        const QString square = u"data:image/svg+xml;utf8,<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 1'>"
                               "<rect width='2' height='1' fill='red'/></svg>"_s;
        QQuickItem *const control = m_driver->named(u"New"_s);
        QVERIFY(QMetaObject::invokeMethod(toolTips(), "askForPicture", Q_ARG(QQuickItem *, control),
                                          Q_ARG(QString, square), Q_ARG(QSizeF, QSizeF(120, 90))));
        QTRY_VERIFY(toolTipObject()->property("visible").toBool());
        const auto *content = toolTipObject()->property("contentItem").value<QQuickItem *>();
        QTRY_COMPARE(content->size(), QSizeF(120, 60));
        QVERIFY(QMetaObject::invokeMethod(toolTips(), "ask", Q_ARG(QQuickItem *, control), Q_ARG(QString, u"Words"_s),
                                          Q_ARG(bool, false)));
        QTRY_COMPARE(toolTip(), u"Words"_s);
        QVERIFY(content->height() < 60);
    }

    void panelsAreKeptAndShowTheNewSelection()
    {
        insertLayers({u"a"_s, u"b"_s});
        document().selectObject(document().objectAt(0)->id());
        QQuickItem *const summary = m_driver->item(u"LayerSummary"_s);
        QVERIFY(summary && m_driver->item(u"a"_s));
        document().selectObject(document().objectAt(1)->id());
        QTRY_VERIFY(m_driver->item(u"b"_s));
        document().clearSelection();
        QTRY_VERIFY(m_driver->item(u"DocumentPanel"_s));
        QVERIFY(!m_driver->item(u"LayerSummary"_s));
        document().selectObject(document().objectAt(0)->id());
        QTRY_VERIFY(m_driver->item(u"a"_s));
        QCOMPARE(m_driver->item(u"LayerSummary"_s), summary);
        QVERIFY(!m_driver->item(u"DocumentPanel"_s));
    }

    void whatIsHalfTypedStaysWithNobody()
    {
        insertLayers({u"a"_s, u"b"_s});
        document().clearSelection();
        const QSizeF size = document().size();
        QTRY_VERIFY(m_driver->named(u"Width"_s));
        type(u"Width"_s, {Qt::Key_7, Qt::Key_7});
        document().selectObject(document().objectAt(0)->id()); // by whatever leaves the keys where they are
        document().clearSelection();
        QTRY_VERIFY(m_driver->named(u"Width"_s));
        QCOMPARE(m_driver->named(u"Width"_s)->property("text").toDouble(), size.width());
        QCOMPARE(document().size(), size);

        document().selectObject(document().objectAt(0)->id());
        m_driver->click(m_driver->tab(u"Size"_s));
        QTRY_VERIFY(m_driver->named(u"X"_s));
        const double place = document().objectAt(1)->transform().position().x();
        type(u"X"_s, {Qt::Key_7, Qt::Key_7});
        document().selectObject(document().objectAt(1)->id());
        QTRY_COMPARE(m_driver->named(u"X"_s)->property("text").toDouble(), place);
        m_driver->key(Qt::Key_Return);
        QCOMPARE(document().objectAt(1)->transform().position().x(), place);
        QCOMPARE(m_driver->context().commandHistory.count(), 0);
    }

    void anotherTabTakesOverWhatIsTyped()
    {
        QTRY_VERIFY(m_driver->named(u"Width"_s));
        type(u"Width"_s, {Qt::Key_7, Qt::Key_7});
        m_driver->click(m_driver->tab(u"Layer"_s));
        QCOMPARE(document().size().width(), 77.0);
    }

    void unitIsAButtonOnlyWhereItCanBeSwitched()
    {
        insertLayers({u"a"_s});
        document().selectObject(document().objectAt(0)->id());
        m_driver->click(m_driver->tab(u"Size"_s));
        QTRY_VERIFY(m_driver->named(u"Width"_s));
        QCOMPARE(buttonsIn(u"X"_s), 0);
        QCOMPARE(buttonsIn(u"Width"_s), 1);
        QCOMPARE(m_driver->named(u"Width"_s)->property("text").toString(), u"40"_s);
        m_driver->click(m_driver->named(u"Width"_s));
        m_driver->key(Qt::Key_Tab);
        m_driver->key(Qt::Key_Space);
        QCOMPARE(m_driver->named(u"Width"_s)->property("text").toString(), u"100"_s);
        QVERIFY(m_driver->item(u"%"_s));
    }

    void wheelStepsTheFieldThatHasTheKeys()
    {
        const double width = document().size().width();
        QTRY_VERIFY(m_driver->named(u"Width"_s));
        const QPointF field = m_driver->centre(m_driver->named(u"Width"_s));
        turnWheel(field);
        QCOMPARE(document().size().width(), width);
        m_driver->click(m_driver->named(u"Width"_s));
        turnWheel(field);
        turnWheel(field);
        QCOMPARE(document().size().width(), width + 2);
        QCOMPARE(m_driver->context().commandHistory.count(), 1);
    }

    void selectBoxAsksAndShowsWhatTheModelSays()
    {
        insertLayers({u"a"_s});
        document().selectObject(document().objectAt(0)->id());
        m_driver->click(m_driver->tab(u"Layer"_s));
        QTRY_VERIFY(m_driver->named(u"Blend mode"_s));
        QQuickItem *const box = m_driver->named(u"Blend mode"_s);
        m_driver->click(box);
        QTRY_VERIFY(m_driver->item(u"Multiply"_s));
        QVERIFY(m_driver->click(u"Multiply"_s));
        QTRY_COMPARE(box->property("displayText").toString(), u"Multiply"_s);
        QCOMPARE(m_driver->context().sceneObjectAdapter.blendMode(), u"multiply"_s);
        box->forceActiveFocus(Qt::TabFocusReason);
        m_driver->key(Qt::Key_Up);
        QVERIFY(m_driver->context().sceneObjectAdapter.blendMode() != u"multiply"_s);
        m_driver->context().commandHistory.undo();
        QCOMPARE(box->property("displayText").toString(), u"Multiply"_s);
    }

    void labelsAreThereForScreenReaders()
    {
        insertLayers({u"a"_s});
        document().selectObject(document().objectAt(0)->id());
        QTRY_VERIFY(m_driver->item(u"Kind"_s));
        const QAccessibleInterface *label = QAccessible::queryAccessibleInterface(m_driver->item(u"Kind"_s));
        QVERIFY(label);
        QCOMPARE(label->role(), QAccessible::StaticText);
        QCOMPARE(label->text(QAccessible::Name), u"Kind"_s);
    }

private:
    static constexpr int kToolTipDelayMs = 30;

    Document &document() { return m_driver->context().document; }

    void insertLayers(const QStringList &names)
    {
        for (const QString &name : names)
            document().insertObject(std::make_unique<ImageLayer>(test::plainPicture(40, 30, Qt::red), name));
    }

    void hover(const QString &name) const
    {
        QQuickItem *control = m_driver->named(name);
        QVERIFY2(control, qPrintable(name));
        QTest::mouseMove(m_driver->window(), m_driver->centre(control).toPoint());
    }

    void type(const QString &field, const QList<Qt::Key> &keys) const
    {
        m_driver->click(m_driver->named(field));
        for (Qt::Key key : keys)
            m_driver->key(key);
        QCOMPARE(m_driver->named(field)->property("text").toString().size(), keys.size());
    }

    void turnWheel(const QPointF &place) const
    {
        QWheelEvent event(place, m_driver->window()->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_driver->window(), &event);
    }

    int buttonsIn(const QString &field) const
    {
        int buttons = 0;
        for (const QQuickItem *child : m_driver->named(field)->childItems())
            buttons += child->inherits("QQuickAbstractButton") ? 1 : 0;
        return buttons;
    }

    QObject *toolTips() const
    {
        return qmlEngine(m_driver->window())->singletonInstance<QObject *>("ZelmoraAtelier", "ToolTips");
    }

    /// Null before the first one was asked for.
    QObject *toolTipObject() const { return toolTips()->property("toolTip").value<QObject *>(); }

    /// What the tool tip says; empty if none is shown.
    QString toolTip() const
    {
        const QObject *shown = toolTipObject();
        return shown && shown->property("visible").toBool() ? shown->property("text").toString() : QString();
    }

    std::unique_ptr<test::WindowDriver> m_driver;
};

int main(int argc, char **argv)
{
    TestControls test;
    return test::runWindowTest(test, argc, argv);
}

#include "tst_controls.moc"
