#include "commands/command_history.h"
#include "commands/object_property_commands.h"
#include "document/document.h"
#include "editor/document_file_controller.h"
#include "services/runtime_flags.h"
#include "support/pictures.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// A controller on a document of its own, with the signals that tell about the file.
struct Fixture
{
    Document document;
    CommandHistory history{&document};
    RuntimeFlags flags;
    DocumentFileController controller{&document, &history};
    QSignalSpy replaced{&controller, &DocumentFileController::documentReplaced};
    QSignalSpy named{&controller, &DocumentFileController::displayNameChanged};
    QSignalSpy errors{&controller, &DocumentFileController::lastErrorChanged};
    QStringList files; // what was told of files, in order

    Fixture()
    {
        flags.setNoHevcCodec(true); // must leave every other format alone
        controller.setRuntimeFlags(&flags);
        const auto note = [this](const QString &what) {
            return [this, what](const QUrl &url) { files.append(what + u' ' + url.fileName()); };
        };
        QObject::connect(&controller, &DocumentFileController::documentLoaded, note(u"loaded"_s));
        QObject::connect(&controller, &DocumentFileController::documentSaved, note(u"saved"_s));
        QObject::connect(&controller, &DocumentFileController::documentReplaced,
                         [this] { files.append(u"replaced"_s); });
    }

    void rename(const QString &name)
    {
        history.push(std::make_unique<RenameSceneObjectCommand>(&document, document.objectAt(0)->id(), name));
    }
};

} // namespace

class DocumentFileControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(test::gradientPicture(31, 20).save(m_folder.filePath(u"photo.png"_s)));
        QVERIFY(test::gradientPicture(8, 9).save(m_folder.filePath(u"other.png"_s)));
        write(u"drawing.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'/>");
        write(u"broken.png"_s, "no picture");
    }

    void picturesPairOnlyWithAPristineDocument()
    {
        Fixture fixture;
        QVERIFY(fixture.controller.load(url(u"photo.png"_s)));
        QCOMPARE(fixture.document.size(), QSizeF(31, 20));
        QCOMPARE(fixture.document.objectAt(0)->transform().position(), QPointF(-15.5, -10));
        QCOMPARE(fixture.controller.pairedImageUrl(), url(u"photo.png"_s));
        QCOMPARE(fixture.controller.displayName(), u"photo.png"_s);
        QCOMPARE(fixture.replaced.count(), 1);
        QCOMPARE(fixture.named.count(), 1);
        QVERIFY(fixture.controller.load(url(u"other.png"_s)));
        QCOMPARE(fixture.document.size(), QSizeF(8, 9));
        QCOMPARE(fixture.document.objectCount(), 1);
        QVERIFY(fixture.controller.pairedImageUrl().isEmpty());
        QCOMPARE(fixture.controller.displayName(), u"Untitled"_s);

        Fixture edited;
        auto added = std::make_unique<ImageLayer>(test::gradientPicture(4, 4), u"a"_s);
        edited.document.insertObject(std::move(added));
        edited.rename(u"b"_s);
        QVERIFY(edited.controller.load(url(u"photo.png"_s)));
        QVERIFY(edited.controller.pairedImageUrl().isEmpty());
        QVERIFY(edited.history.isClean() && !edited.history.canUndo());

        Fixture vector;
        QVERIFY(vector.controller.load(url(u"drawing.svg"_s)));
        QCOMPARE(vector.document.size(), QSizeF(40, 30));
        QVERIFY(vector.controller.pairedImageUrl().isEmpty());
    }

    void savingNamesTheDocumentAndKeepsItsPair()
    {
        Fixture fixture;
        DocumentFileController &controller = fixture.controller;
        QVERIFY(controller.load(url(u"photo.png"_s)));
        fixture.rename(u"b"_s);
        QVERIFY(!controller.save());
        QCOMPARE(controller.lastError(), u"Choose a file name before saving the document."_s);
        QVERIFY(controller.saveAs(url(u"doc"_s)));
        QCOMPARE(controller.documentUrl(), url(u"doc.zelmora"_s));
        QVERIFY(controller.pairedImageUrl().isEmpty() && fixture.history.isClean());
        QCOMPARE(controller.displayName(), u"doc.zelmora"_s);
        controller.setPairedImageUrl(url(u"photo.png"_s));
        QCOMPARE(controller.displayName(), u"doc.zelmora (%1)"_s.arg(m_folder.filePath(u"photo.png"_s)));
        fixture.rename(u"c"_s);
        QVERIFY(controller.save());
        QCOMPARE(controller.pairedImageUrl(), url(u"photo.png"_s));

        fixture.rename(u"d"_s);
        QVERIFY(QDir(m_folder.path()).mkpath(u"taken.zelmora"_s));
        for (const QUrl &target : {url(u"taken.zelmora"_s), QUrl(u"https://example.org/a.zelmora"_s)}) {
            QVERIFY(!controller.saveAs(target));
            QVERIFY(!controller.lastError().isEmpty() && !fixture.history.isClean());
            QCOMPARE(controller.documentUrl(), url(u"doc.zelmora"_s));
        }
        QVERIFY(controller.resetDocument(10, 10, Qt::white));
        QVERIFY(!controller.hasDocumentUrl() && controller.pairedImageUrl().isEmpty());
        QVERIFY(controller.load(url(u"doc.zelmora"_s)));
        QCOMPARE(fixture.document.objectAt(0)->name(), u"c"_s);
        QVERIFY(controller.load(url(u"other.png"_s)));
        QVERIFY2(controller.pairedImageUrl().isEmpty(), "a document that has a file is not pristine");
        QCOMPARE(fixture.files,
                 QStringList({u"replaced"_s, u"saved doc.zelmora"_s, u"saved doc.zelmora"_s, u"replaced"_s,
                              u"replaced"_s, u"loaded doc.zelmora"_s, u"replaced"_s}));
    }

    void pictureOpensTheDocumentBesideIt()
    {
        Fixture fixture;
        DocumentFileController &controller = fixture.controller;
        QVERIFY(controller.load(url(u"photo.png"_s)));
        fixture.rename(u"edited"_s);
        for (const QString &name : {u"IMG.1.zelmora"_s, u"A.ZELMORA"_s})
            QVERIFY(controller.saveAs(url(name)));
        QVERIFY(QFile::copy(m_folder.filePath(u"other.png"_s), m_folder.filePath(u"IMG.1.PNG"_s)));
        QVERIFY(controller.load(url(u"IMG.1.PNG"_s)));
        QCOMPARE(fixture.document.objectAt(0)->name(), u"edited"_s);
        QCOMPARE(controller.documentUrl(), url(u"IMG.1.zelmora"_s));
        QCOMPARE(controller.pairedImageUrl(), url(u"IMG.1.PNG"_s));
        QVERIFY(fixture.history.isClean() && !fixture.history.canUndo());
        QVERIFY(controller.load(url(u"A.ZELMORA"_s)));
        QCOMPARE(controller.displayName(), u"A.ZELMORA"_s);

        write(u"IMG.1.zelmora"_s, "damaged");
        QVERIFY2(!controller.load(url(u"IMG.1.PNG"_s)), "the picture must not take the place of the work on it");
        QVERIFY(!controller.lastError().isEmpty());
        QCOMPARE(controller.documentUrl(), url(u"A.ZELMORA"_s));
        QCOMPARE(fixture.document.objectAt(0)->name(), u"edited"_s);
    }

    void failureKeepsTheDocument()
    {
        Fixture fixture;
        QVERIFY(fixture.controller.load(url(u"photo.png"_s)));
        const QUuid id = fixture.document.objectAt(0)->id();
        const std::pair<QUrl, QString> failures[] = {
            {QUrl(u"https://example.org/a.png"_s), u"Only local files are supported."_s},
            {url(u"missing.png"_s), u"Choose an existing file."_s},
            {QUrl(), u"Only local files are supported."_s},
            {url(u"broken.png"_s), u"Could not load the selected image file."_s},
        };
        for (const auto &[target, message] : failures) {
            QVERIFY(!fixture.controller.load(target));
            QVERIFY(!fixture.controller.load(target)); // the same error is told once
            QCOMPARE(fixture.controller.lastError(), message);
            QVERIFY(!fixture.controller.lastErrorOffersHeifInstallHelp());
        }
        QCOMPARE(fixture.errors.count(), 4);
        QCOMPARE(fixture.document.objectAt(0)->id(), id);
        QCOMPARE(fixture.controller.pairedImageUrl(), url(u"photo.png"_s));
        QCOMPARE(fixture.replaced.count(), 1);
        QVERIFY(fixture.controller.load(url(u"photo.png"_s)));
        QCOMPARE(fixture.controller.lastError(), QString());
        QCOMPARE(fixture.errors.count(), 5);
    }

    void resetsToABlankDocument_data()
    {
        QTest::addColumn<QSizeF>("asked");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QSizeF>("size"); // empty: refused
        QTest::newRow("usual") << QSizeF(640.4, 479.6) << QColor(Qt::red) << QSizeF(640, 480);
        QTest::newRow("largest") << QSizeF(10000, 10000) << QColor(Qt::red) << QSizeF(10000, 10000);
        QTest::newRow("invalid colour") << QSizeF(1, 1) << QColor() << QSizeF(1, 1);
        QTest::newRow("no width") << QSizeF(0, 100) << QColor(Qt::red) << QSizeF();
        QTest::newRow("too wide") << QSizeF(10001, 100) << QColor(Qt::red) << QSizeF();
        QTest::newRow("not a number") << QSizeF(100, qQNaN()) << QColor(Qt::red) << QSizeF();
    }

    void resetsToABlankDocument()
    {
        QFETCH(const QSizeF, asked);
        QFETCH(const QColor, color);
        QFETCH(const QSizeF, size);
        Fixture fixture;
        QVERIFY(fixture.controller.load(url(u"photo.png"_s)));
        const bool accepted = fixture.controller.resetDocument(asked.width(), asked.height(), color);
        QCOMPARE(accepted, !size.isEmpty());
        QCOMPARE(fixture.controller.lastError(), accepted ? QString() : u"Enter a valid width and height."_s);
        QCOMPARE(fixture.document.size(), accepted ? size : QSizeF(31, 20));
        QCOMPARE(fixture.document.objectCount(), accepted ? 0 : 1);
        QCOMPARE(fixture.controller.displayName(), accepted ? u"Untitled"_s : u"photo.png"_s);
        QCOMPARE(fixture.document.backgroundColor(), accepted && color.isValid() ? color : QColor(Qt::white));
    }

    void tellsWhatOpensSlowlyFromTheHeadOfTheFile()
    {
        const QTemporaryDir folder;
        const auto slow = [&folder](const QSize &size, const QString &name) {
            QImage picture(size, QImage::Format_Mono); // little to write, and as many pixels to decode
            picture.fill(0);
            const QString path = folder.filePath(name);
            Document document;
            CommandHistory history{&document};
            return picture.save(path)
                && DocumentFileController(&document, &history).opensSlowly(QUrl::fromLocalFile(path));
        };
        QVERIFY(!slow({2000, 2000}, u"small.png"_s));
        QVERIFY(slow({6000, 4000}, u"large.png"_s));
        QVERIFY(!slow({6000, 4000}, u"large.jpg"_s)); // decodes several times faster
        Document document;
        CommandHistory history{&document};
        QVERIFY(!DocumentFileController(&document, &history).opensSlowly(QUrl(u"https://example.org/a.png"_s)));
    }

    void showsUrls()
    {
        const Fixture fixture;
        const QUrl remote(u"https://example.org/a/b.png"_s);
        const QString path = m_folder.filePath(u"a b.png"_s);
        QCOMPARE(fixture.controller.displayPath(QUrl::fromLocalFile(path)), QDir::toNativeSeparators(path));
        QCOMPARE(fixture.controller.displayPath(remote), u"https://example.org/a/b.png"_s);
        QCOMPARE(fixture.controller.displayFileName(remote), u"b.png"_s);
    }

private:
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(m_folder.filePath(name)); }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(DocumentFileControllerTest)
#include "tst_document_file_controller.moc"
