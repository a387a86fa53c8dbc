#include "application/runtime_flags.h"
#include "commands/command_history.h"
#include "commands/object_property_commands.h"
#include "document/document.h"
#include "editor/document_file_controller.h"
#include "support/pictures.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// A controller on a document of its own, with the signals that tell about the file.
struct Session
{
    Document document;
    CommandHistory history{&document};
    RuntimeFlags flags;
    DocumentFileController controller{&document, &history};
    QSignalSpy replaced{&controller, &DocumentFileController::documentReplaced};
    QSignalSpy named{&controller, &DocumentFileController::displayNameChanged};

    Session() { controller.setRuntimeFlags(&flags); }
};

} // namespace

class DocumentFileControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void opensAPictureAsADocument();
    void pairsOnlyWithAPristineDocument();
    void opensAnSvgWithoutPairing();
    void failureKeepsTheDocument_data();
    void failureKeepsTheDocument();
    void successClearsTheError();
    void missingCodecLeavesOtherFormatsAlone();
    void resetsToABlankDocument_data();
    void resetsToABlankDocument();
    void showsUrls();

private:
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(m_folder.filePath(name)); }
    void writeFile(const QString &name, const QByteArray &bytes) const;

    QTemporaryDir m_folder;
};

void DocumentFileControllerTest::writeFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void DocumentFileControllerTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(test::gradientPicture(31, 20).save(m_folder.filePath(u"photo.png"_s)));
    QVERIFY(test::gradientPicture(8, 9).save(m_folder.filePath(u"other.png"_s)));
    writeFile(u"drawing.svg"_s,
              R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="30"><rect width="9" height="9"/></svg>)");
    writeFile(u"broken.png"_s, "no picture");
    writeFile(u"broken.svg"_s, "no drawing");
}

void DocumentFileControllerTest::opensAPictureAsADocument()
{
    Session session;
    QVERIFY(session.controller.load(url(u"photo.png"_s)));
    QCOMPARE(session.document.size(), QSizeF(31, 20));
    QCOMPARE(session.document.objectCount(), 1);
    const SceneObject *layer = session.document.objectAt(0);
    QCOMPARE(layer->name(), u"photo"_s);
    QCOMPARE(layer->transform().position(), QPointF(-15.5, -10));
    QCOMPARE(session.document.selectedObject(), layer);
    QVERIFY(session.history.isClean());
    QVERIFY(!session.history.canUndo());
    QCOMPARE(session.controller.pairedImageUrl(), url(u"photo.png"_s));
    QCOMPARE(session.controller.displayName(), u"photo.png"_s);
    QCOMPARE(session.replaced.count(), 1);
    QCOMPARE(session.named.count(), 1);
}

void DocumentFileControllerTest::pairsOnlyWithAPristineDocument()
{
    Session session;
    QVERIFY(session.controller.load(url(u"photo.png"_s)));
    QVERIFY(session.controller.load(url(u"other.png"_s)));
    QVERIFY(session.controller.pairedImageUrl().isEmpty());
    QCOMPARE(session.controller.displayName(), u"Untitled"_s);
    QCOMPARE(session.document.size(), QSizeF(8, 9));

    Session edited;
    const auto *layer = edited.document.insertObject(std::make_unique<ImageLayer>(test::gradientPicture(4, 4), u"a"_s));
    edited.history.push(std::make_unique<RenameSceneObjectCommand>(&edited.document, layer->id(), u"b"_s));
    QVERIFY(edited.controller.load(url(u"photo.png"_s)));
    QVERIFY(edited.controller.pairedImageUrl().isEmpty());
    QVERIFY(edited.history.isClean());
    QVERIFY(!edited.history.canUndo());
}

void DocumentFileControllerTest::opensAnSvgWithoutPairing()
{
    Session session;
    QVERIFY(session.controller.load(url(u"drawing.svg"_s)));
    QCOMPARE(session.document.size(), QSizeF(40, 30));
    const auto *layer = dynamic_cast<ImageLayer *>(session.document.objectAt(0));
    QVERIFY(layer && layer->svgSource());
    QVERIFY(session.controller.pairedImageUrl().isEmpty());
}

void DocumentFileControllerTest::failureKeepsTheDocument_data()
{
    QTest::addColumn<QUrl>("target");
    QTest::addColumn<QString>("message");
    QTest::newRow("remote") << QUrl(u"https://example.org/a.png"_s) << u"Only local files are supported."_s;
    QTest::newRow("empty") << QUrl() << u"Only local files are supported."_s;
    QTest::newRow("missing") << url(u"missing.png"_s) << u"Choose an existing file."_s;
    QTest::newRow("folder") << url(QString()) << u"Choose an existing file."_s;
    QTest::newRow("damaged picture") << url(u"broken.png"_s) << u"Could not load the selected image file."_s;
    QTest::newRow("damaged drawing") << url(u"broken.svg"_s) << u"Could not load the selected SVG image."_s;
}

void DocumentFileControllerTest::failureKeepsTheDocument()
{
    QFETCH(const QUrl, target);
    QFETCH(const QString, message);
    Session session;
    QVERIFY(session.controller.load(url(u"photo.png"_s)));
    const QUuid id = session.document.objectAt(0)->id();
    QVERIFY(!session.controller.load(target));
    QCOMPARE(session.controller.lastError(), message);
    QVERIFY(!session.controller.lastErrorOffersHeifInstallHelp());
    QCOMPARE(session.document.objectAt(0)->id(), id);
    QCOMPARE(session.controller.pairedImageUrl(), url(u"photo.png"_s));
    QCOMPARE(session.replaced.count(), 1);
}

void DocumentFileControllerTest::successClearsTheError()
{
    Session session;
    QSignalSpy errors(&session.controller, &DocumentFileController::lastErrorChanged);
    QVERIFY(!session.controller.load(url(u"missing.png"_s)));
    QVERIFY(!session.controller.load(url(u"missing.png"_s)));
    QCOMPARE(errors.count(), 1);
    QVERIFY(session.controller.load(url(u"photo.png"_s)));
    QCOMPARE(session.controller.lastError(), QString());
    QCOMPARE(errors.count(), 2);
}

void DocumentFileControllerTest::missingCodecLeavesOtherFormatsAlone()
{
    Session session;
    session.flags.setNoHevcCodec(true);
    QVERIFY(session.controller.load(url(u"photo.png"_s)));
    QVERIFY(!session.controller.lastErrorOffersHeifInstallHelp());
}

void DocumentFileControllerTest::resetsToABlankDocument_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QSizeF>("size"); // empty: refused
    QTest::newRow("usual") << 640.4 << 479.6 << QColor(Qt::red) << QSizeF(640, 480);
    QTest::newRow("largest") << 10000.0 << 10000.0 << QColor(Qt::red) << QSizeF(10000, 10000);
    QTest::newRow("invalid colour") << 1.0 << 1.0 << QColor() << QSizeF(1, 1);
    QTest::newRow("no width") << 0.0 << 100.0 << QColor(Qt::red) << QSizeF();
    QTest::newRow("too wide") << 10001.0 << 100.0 << QColor(Qt::red) << QSizeF();
    QTest::newRow("not a number") << 100.0 << qQNaN() << QColor(Qt::red) << QSizeF();
    QTest::newRow("infinite") << qInf() << 100.0 << QColor(Qt::red) << QSizeF();
}

void DocumentFileControllerTest::resetsToABlankDocument()
{
    QFETCH(const double, width);
    QFETCH(const double, height);
    QFETCH(const QColor, color);
    QFETCH(const QSizeF, size);
    Session session;
    QVERIFY(session.controller.load(url(u"photo.png"_s)));
    const bool accepted = session.controller.resetDocument(width, height, color);
    QCOMPARE(accepted, !size.isEmpty());
    QCOMPARE(session.controller.lastError(), accepted ? QString() : u"Enter a valid width and height."_s);
    QCOMPARE(session.document.size(), accepted ? size : QSizeF(31, 20));
    QCOMPARE(session.document.objectCount(), accepted ? 0 : 1);
    if (accepted) {
        QCOMPARE(session.document.backgroundColor(), color.isValid() ? color : QColor(Qt::white));
        QCOMPARE(session.controller.displayName(), u"Untitled"_s);
        QVERIFY(session.history.isClean());
    }
}

void DocumentFileControllerTest::showsUrls()
{
    const Session session;
    QCOMPARE(session.controller.displayPath(url(u"a b.png"_s)),
             QDir::toNativeSeparators(m_folder.filePath(u"a b.png"_s)));
    QCOMPARE(session.controller.displayFileName(url(u"a b.png"_s)), u"a b.png"_s);
    QCOMPARE(session.controller.displayPath(QUrl(u"https://example.org/a/b.png"_s)), u"https://example.org/a/b.png"_s);
    QCOMPARE(session.controller.displayFileName(QUrl(u"https://example.org/a/b.png"_s)), u"b.png"_s);
    QVERIFY(session.controller.supportedImageFilePatterns().split(u' ').contains(u"*.jpg"_s));
    QVERIFY(session.controller.supportedImageFilePatterns().split(u' ').contains(u"*.svg"_s));
}

QTEST_GUILESS_MAIN(DocumentFileControllerTest)
#include "tst_document_file_controller.moc"
