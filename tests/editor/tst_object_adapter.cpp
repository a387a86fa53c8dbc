#include "commands/command_history.h"
#include "document/document.h"
#include "editor/document_properties_adapter.h"
#include "editor/scene_object_adapter.h"
#include "scene/scene_snapshot.h"
#include "support/document_log.h"
#include "support/pictures.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;
using enum ColorChange::ChangeReason;

namespace {

/// Three layers, bottom first with the ids #1, #2 and #3, of 40 by 20; the middle one is selected.
struct Fixture
{
    Document document;
    CommandHistory history{&document};
    SceneObjectAdapter object{&document, &history};
    DocumentPropertiesAdapter properties{&document, &history};

    Fixture()
    {
        for (uint i = 1; i <= 3; ++i)
            document.insertObject(
                std::make_unique<ImageLayer>(test::plainPicture(40, 20, Qt::red), QString::number(i), test::testId(i)));
        document.selectObject(test::testId(2));
    }

    QStringList order() const
    {
        QStringList names;
        for (qsizetype i = document.objectCount() - 1; i >= 0; --i)
            names << document.objectAt(i)->name();
        return names;
    }
};

} // namespace

class ObjectAdapterTest : public QObject
{
    Q_OBJECT

private slots:
    void dropsALayerIntoAGapOfTheList()
    {
        const struct
        {
            uint layer;
            int gap;
            QString order; // from the top
        } drops[] = {{3, 99, u"2 1 3"_s}, {3, 2, u"2 3 1"_s}, {1, -5, u"1 3 2"_s}, {1, 1, u"3 1 2"_s},
                     {2, 1, u"3 2 1"_s},  {2, 2, u"3 2 1"_s}, {9, 0, u"3 2 1"_s}};
        for (const auto &[layer, gap, order] : drops) {
            Fixture f;
            const bool moves = order != u"3 2 1";
            QCOMPARE(f.object.moveLayerToListIndex(test::testId(layer).toString(), gap), moves);
            QCOMPARE(f.order().join(u' '), order);
            QCOMPARE(f.history.count(), moves ? 1 : 0);
        }
    }

    void aGestureIsOneStep_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("x") << QByteArray("positionX") << 30.0 << u"Move Object"_s;
        QTest::newRow("rotation") << QByteArray("rotation") << 450.0 << u"Rotate Object"_s;
        QTest::newRow("skew x") << QByteArray("skewX") << 20.0 << u"Skew Object"_s;
        QTest::newRow("pivot x") << QByteArray("pivotX") << 0.25 << u"Set Transform Pivot"_s;
        QTest::newRow("scale x") << QByteArray("scaleX") << -2.0 << u"Scale Object"_s;
        QTest::newRow("scale y") << QByteArray("scaleY") << 3.0 << u"Scale Object"_s;
        QTest::newRow("width") << QByteArray("layerWidth") << 10.0 << u"Scale Object"_s;
        QTest::newRow("height") << QByteArray("layerHeight") << 10.0 << u"Scale Object"_s;
        QTest::newRow("opacity") << QByteArray("opacity") << 0.5 << u"Change Opacity"_s;
    }

    void aGestureIsOneStep()
    {
        QFETCH(const QByteArray, property);
        QFETCH(const double, value);
        QFETCH(const QString, text);
        Fixture f;
        const QVariant before = f.object.property(property);
        const QString documentBefore = test::describe(f.document);
        f.object.beginInspectorEdit();
        f.object.setProperty(property, value * 0.9);
        f.object.setProperty(property, value);
        f.object.endInspectorEdit();
        QCOMPARE(f.object.property(property), value);
        QCOMPARE(f.history.count(), 1);
        QCOMPARE(f.history.undoText(), text);
        f.object.setProperty(property, value);
        f.object.setProperty(property, std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(f.history.count(), 1);
        f.history.undo();
        QCOMPARE(f.object.property(property), before);
        QCOMPARE(test::describe(f.document), documentBefore);
        f.object.setProperty(property, value); // outside a gesture each stands alone
        f.object.setProperty(property, value * 0.8);
        QCOMPARE(f.history.count(), 2);
    }

    void sidesKeepTheirProportionsAndMirroring()
    {
        const struct
        {
            const char *method;
            double value;
            QPointF scale; // from (-2, 0.5) on a layer of 40 by 20
        } edits[] = {{"setLayerWidthPreservingAspect", 40.0, {-1.0, 0.25}},
                     {"setLayerHeightPreservingAspect", 20.0, {-4.0, 1.0}},
                     {"setScaleXPreservingAspect", 1.0, {1.0, 0.25}},
                     {"setScaleXPreservingAspect", 0.0, {0.004, 0.001}}};
        for (const auto &[method, value, scale] : edits) {
            Fixture f;
            f.object.setScaleX(-2.0);
            f.object.setScaleY(0.5);
            QCOMPARE(f.object.layerWidth(), 80.0);
            QMetaObject::invokeMethod(&f.object, method, value);
            QCOMPARE(QPointF(f.object.scaleX(), f.object.scaleY()), scale);
        }
    }

    void anotherPivotLeavesTheLayerInPlace()
    {
        Fixture f;
        f.object.setRotation(30.0);
        f.object.setSkewX(20.0);
        f.object.setScaleX(-3.0);
        const auto corners = [&f] {
            const QRectF box(0, 0, 40, 20);
            return f.document.selectedObject()->transform().matrix(box).map(QPolygonF(box));
        };
        const QPolygonF before = corners();
        f.object.setPivotX(0.1);
        f.object.setPivotY(0.9);
        for (qsizetype i = 0; i < before.size(); ++i)
            QVERIFY(QLineF(before[i], corners()[i]).length() < 1e-9);
    }

    void selectsWithoutAStepAndEditsNothingUnselected()
    {
        Fixture f;
        QVERIFY(f.object.selectLayer(test::testId(3).toString(QUuid::WithoutBraces)));
        QVERIFY(!f.object.selectLayer(u"nonsense"_s) && !f.object.moveSelectionUp());
        QCOMPARE(f.history.count(), 0);
        QVERIFY(f.object.moveSelectionDown());
        QVERIFY(f.object.setLayerHidden(test::testId(1).toString(), true));
        QVERIFY(!f.object.setLayerHidden(test::testId(1).toString(), true));
        QVERIFY(f.object.deleteSelection() && !f.object.deleteSelection());
        f.object.setName(u"nobody's"_s);
        f.object.mirrorHorizontal();
        QCOMPARE(f.history.count(), 3);
    }

    void fitsTheDocumentToWhatShows()
    {
        Fixture f;
        ObjectTransform shifted;
        shifted.setPosition({1000.25, 500.0});
        f.document.setObjectTransform(test::testId(1), shifted);
        f.document.setObjectVisible(test::testId(3), false);
        const QString before = test::describe(f.document);
        QVERIFY(f.properties.fitWorkareaToContent());
        // From (0, 0) of the second layer to the rounded corner of the first; an odd width shifts the pixel grid.
        QCOMPARE(f.document.size(), QSizeF(1041, 520));
        QVERIFY(f.document.documentRect().contains(unitedItemBounds(buildSceneSnapshot(f.document, {}, nullptr))));
        QCOMPARE(f.document.object(test::testId(3))->transform().position(), QPointF(-520.5, -260.0));
        QVERIFY(!f.properties.fitWorkareaToContent());
        QCOMPARE(f.history.count(), 1);
        QCOMPARE(f.history.undoText(), u"Fit Document Bounds to Content"_s);
        f.history.undo();
        QCOMPARE(test::describe(f.document), before);
    }

    void aPickerLeavesOneStepOrNothing_data()
    {
        QTest::addColumn<ColorChange::ChangeReason>("end");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<int>("steps");
        const QColor white(Qt::white);
        QTest::newRow("accepted") << DialogAccepted << QColor(Qt::blue) << QColor(Qt::blue) << 1;
        QTest::newRow("accepted as it was") << DialogAccepted << white << white << 0;
        QTest::newRow("rejected") << DialogRejected << white << white << 0;
    }

    void aPickerLeavesOneStepOrNothing()
    {
        QFETCH(const ColorChange::ChangeReason, end);
        QFETCH(const QColor, color);
        QFETCH(const QColor, background);
        QFETCH(const int, steps);
        Fixture f;
        f.properties.setBackgroundColorFromPicker(Qt::red, DialogSelection);
        f.properties.setBackgroundColorFromPicker(Qt::green, DialogSelection);
        QCOMPARE(f.document.backgroundColor(), QColor(Qt::green));
        f.properties.setBackgroundColorFromPicker(color, end);
        QCOMPARE(f.document.backgroundColor(), background);
        QCOMPARE(f.history.count(), steps);
        f.history.undo();
        QCOMPARE(f.document.backgroundColor(), QColor(Qt::white));
    }

    void anotherDocumentUnderAnOpenPickerKeepsItsBackground()
    {
        Fixture f;
        f.properties.setBackgroundColorFromPicker(Qt::red, DialogSelection);
        f.document.replaceContents({10, 10}, Qt::black, {});
        f.properties.setBackgroundColorFromPicker(Qt::white, DialogRejected);
        QCOMPARE(f.document.backgroundColor(), QColor(Qt::black));
    }
};

QTEST_MAIN(ObjectAdapterTest)
#include "tst_object_adapter.moc"
