// Measures the real window and prints a line for each figure: name, milliseconds and note, separated by tabs. The
// arguments are a folder for files and what to measure: window or controls.

#include "application/application.h"
#include "application/application_context.h"
#include "base/memory_tuning.h"
#include "bench.h"
#include "io/image_allocation.h"
#include "pictures.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QImageReader>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <atomic>
#include <cstdio>

Q_IMPORT_QML_PLUGIN(ZelmoraAtelierPlugin)

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr int kRuns = 9;
constexpr int kCreations = 60;
constexpr int kLayers = 100;
constexpr QSize kPhotograph(6000, 4000);
constexpr QSize kDocument(1920, 1080);
constexpr QSize kLayer(480, 360);

void print(const QString &name, double milliseconds, const QString &note)
{
    std::printf("%s\t%.3f\t%s\n", qUtf8Printable(name), milliseconds, qUtf8Printable(note));
    std::fflush(stdout);
}

template<typename Condition>
void waitUntil(Condition &&condition)
{
    const QDeadlineTimer limit(60 * 1000);
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        if (limit.hasExpired())
            qFatal("What is measured never happened.");
    }
}

double elapsedMs(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Counts what the window shows.
class Frames
{
public:
    Frames(QQuickWindow *window, const ScenePresentationModel &scene)
        : m_window(window)
    {
        // The thread that draws takes the revision along while this one waits for it.
        QObject::connect(
            window, &QQuickWindow::afterSynchronizing, window, [this, &scene] { m_drawnRevision = scene.revision(); },
            Qt::DirectConnection);
        QObject::connect(
            window, &QQuickWindow::frameSwapped, window,
            [this] {
                ++m_count;
                m_shownRevision = m_drawnRevision;
            },
            Qt::QueuedConnection);
    }

    /// Of the scene, in the last frame that reached the screen.
    quint64 shownRevision() const { return m_shownRevision; }

    /// Waits for a frame that was begun after now. What changed may have had its own already, so one is asked for.
    void waitForNext() const
    {
        const int first = m_count;
        m_window->update();
        waitUntil([&] { return m_count > first; });
    }

    /// Waits until nothing is drawn any more.
    void settle() const
    {
        for (int last = -1; last != m_count;) {
            last = m_count;
            QElapsedTimer quiet;
            quiet.start();
            while (quiet.elapsed() < 120)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
    }

private:
    QQuickWindow *m_window;
    int m_count = 0;
    std::atomic<quint64> m_drawnRevision = 0;
    quint64 m_shownRevision = 0;
};

QQuickItem *itemNamed(QQuickWindow *window, const char *property, const QString &value)
{
    for (QList<QQuickItem *> items{window->contentItem()}; !items.isEmpty();) {
        QQuickItem *item = items.takeFirst();
        if (item->isVisible() && item->property(property).toString() == value)
            return item;
        items = item->childItems() + items;
    }
    return nullptr;
}

void benchOpening(ApplicationContext &context, QQuickWindow *window, const Frames &frames, const QString &path)
{
    bench::photograph(kPhotograph).save(path, "JPEG", 92);
    const double decode = bench::medianMilliseconds(3, [&] { QImageReader(path).read(); });
    const QUrl url = QUrl::fromLocalFile(path);
    QList<double> times;
    for (int run = 0; run < kRuns; ++run) {
        context.documentFileController.resetDocument(100, 100, Qt::white);
        QMetaObject::invokeMethod(window, "fitLoadedDocumentToView"); // at 100 %
        frames.settle();
        const quint64 revision = context.scenePresentationModel.revision();
        QElapsedTimer timer;
        timer.start();
        context.documentFlow.loadDocumentFile(url);
        waitUntil([&] {
            const bool fitted = context.editorController.viewScale() < 1.0;
            return fitted && frames.shownRevision() > revision
                && frames.shownRevision() == context.scenePresentationModel.revision();
        });
        times.append(elapsedMs(timer));
    }
    std::ranges::sort(times);
    const double median = times[kRuns / 2];
    print(u"24 MP JPEG to its first full frame"_s, median,
          u"%1 x the decode alone (%2 ms), goal 1.3"_s.arg(median / decode, 0, 'f', 2).arg(decode, 0, 'f', 0));
}

/// The median time that `work` and all that follows from it take the interface's thread, and until the next frame.
template<typename Work>
void benchAnswer(const QString &name, const Frames &frames, Work &&work)
{
    QList<double> answers;
    QList<double> untilFrame;
    for (int run = 0; run < kRuns; ++run) {
        frames.settle();
        QElapsedTimer timer;
        timer.start();
        work(run);
        QCoreApplication::sendPostedEvents();
        answers.append(elapsedMs(timer));
        frames.waitForNext();
        untilFrame.append(elapsedMs(timer));
    }
    std::ranges::sort(answers);
    std::ranges::sort(untilFrame);
    print(name, answers[kRuns / 2],
          u"goal 16 ms; %1 ms until it is on the screen"_s.arg(untilFrame[kRuns / 2], 0, 'f', 1));
}

void makeLayers(ApplicationContext &context, QQuickWindow *window, const Frames &frames)
{
    context.documentFileController.resetDocument(kDocument.width(), kDocument.height(), Qt::white);
    for (int index = 0; index < kLayers; ++index) {
        auto layer = std::make_unique<ImageLayer>(bench::photograph(kLayer, index + 1), u"Layer %1"_s.arg(index));
        ObjectTransform transform;
        transform.setPosition(QPointF(index % 10 * 160 - 960, index / 10 * 80 - 540));
        layer->setTransform(transform);
        context.document.insertObject(std::move(layer));
    }
    QMetaObject::invokeMethod(window, "fitLoadedDocumentToView");
    context.document.selectObject(context.document.objectAt(kLayers - 1)->id());
    frames.settle();
}

void benchLayers(ApplicationContext &context, QQuickWindow *window, const Frames &frames)
{
    makeLayers(context, window, frames);
    if (QQuickItem *tab = itemNamed(window, "text", u"Layer"_s))
        QMetaObject::invokeMethod(tab, "click");
    frames.settle();

    SceneObjectAdapter &adapter = context.sceneObjectAdapter;
    const auto id = [&](int index) { return context.document.objectAt(index)->id().toString(); };
    benchAnswer(u"select a layer of 100"_s, frames, [&](int run) { adapter.selectLayer(id(run)); });
    benchAnswer(u"hide or show a layer of 100"_s, frames,
                [&](int run) { adapter.setLayerHidden(id(kLayers - 1), run % 2 == 0); });
    benchAnswer(u"rename a layer of 100"_s, frames, [&](int run) { adapter.setName(u"Name %1"_s.arg(run)); });
}

/// Does at once what the next frame would do first: layouts give their items places and sizes.
void layOut(QQuickItem *item)
{
    item->ensurePolished();
    for (QQuickItem *child : item->childItems())
        layOut(child);
}

/// Creates an item in the window and lays it out, many times. Some of the items are also drawn, which is not counted.
void benchCreation(const QString &name, const QString &goal, QQmlComponent &component, QQuickWindow *window,
                   const Frames &frames)
{
    QList<double> times;
    for (int run = 0; run < kCreations; ++run) {
        QElapsedTimer timer;
        timer.start();
        auto *item = qobject_cast<QQuickItem *>(component.beginCreate(component.engine()->rootContext()));
        if (!item) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(component.errorString()));
            return;
        }
        item->setParentItem(window->contentItem());
        component.completeCreate();
        layOut(item);
        times.append(elapsedMs(timer));
        if (run % 8 == 0)
            frames.waitForNext();
        delete item;
    }
    std::ranges::sort(times);
    print(u"create %1"_s.arg(name), times[kCreations / 2],
          u"%1best of %2: %3 ms"_s.arg(goal).arg(kCreations).arg(times.first(), 0, 'f', 3));
}

void benchControls(QQmlEngine &engine, QQuickWindow *window, const Frames &frames)
{
    frames.settle();
    QQmlComponent card(&engine, QUrl(u"qrc:/EffectCard.qml"_s));
    benchCreation(u"the card of an effect: 8 sliders and more"_s, u"goal 5 ms; "_s, card, window, frames);

    const std::pair<QString, QByteArray> controls[] = {
        {u"a slider"_s, "ZmSlider { value: 0.5 }"},
        {u"a number field"_s, "NumericInput { value: 12.5; decimals: 1; unit: 'px' }"},
        {u"a select box"_s, "ZmSelectBox { options: [{ text: 'One', value: 1 }]; value: 1 }"},
        {u"a colour button"_s, "ColorPickerButton {}"},
        {u"a small icon button"_s, "ZmSmallIconButton { icon.name: 'close'; toolTip: 'Remove' }"},
        {u"a row with a label"_s, "InspectorRow { label: 'Strength' }"},
    };
    for (const auto &[name, source] : controls) {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport ZelmoraAtelier\n" + source, {});
        benchCreation(name, {}, component, window, frames);
    }
}

void benchFacts(ApplicationContext &context, QQuickWindow *window, const Frames &frames)
{
    makeLayers(context, window, frames);
    const auto id = [&](int index) { return context.document.objectAt(index)->id().toString(); };
    benchAnswer(u"select another layer, its facts shown"_s, frames,
                [&](int run) { context.sceneObjectAdapter.selectLayer(id(run)); });
    benchAnswer(u"select none and again one, facts shown"_s, frames, [&](int run) {
        context.document.clearSelection();
        QCoreApplication::sendPostedEvents();
        context.sceneObjectAdapter.selectLayer(id(run));
    });
}

void benchPreview(ApplicationContext &context, QQuickWindow *window, const Frames &frames, const QString &photograph)
{
    context.documentFileController.load(QUrl::fromLocalFile(photograph));
    frames.settle();
    ExportController &exporter = context.exportController;
    exporter.begin(true);
    waitUntil([&] { return exporter.previewReady(); });
    frames.settle();

    // A heart that beats as fast as the event loop turns tells the longest time that it stood still.
    QTimer heart;
    QElapsedTimer sinceBeat;
    double longestGap = 0.0;
    QObject::connect(&heart, &QTimer::timeout, window, [&] {
        longestGap = std::max(longestGap, elapsedMs(sinceBeat));
        sinceBeat.restart();
    });
    sinceBeat.start();
    heart.start(1);
    QElapsedTimer timer;
    timer.start();
    double lastChange = 0.0;
    for (int quality = 60; quality < 70; ++quality) {
        exporter.setQuality(quality);
        lastChange = elapsedMs(timer);
        QCoreApplication::processEvents();
    }
    waitUntil([&] { return exporter.previewReady(); });
    const double ready = elapsedMs(timer) - lastChange;
    frames.waitForNext();
    print(u"preview of a 24 MP export: longest stop of the window"_s, longestGap,
          u"goal 16 ms; shown %1 ms after the last change, of which %2 are waited"_s.arg(ready, 0, 'f', 0)
              .arg(ExportController::kPreviewDelayMs));
    exporter.end();
}

} // namespace

int main(int argc, char **argv)
{
    keepFreedMemoryWarm();
    raiseImageAllocationLimit();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    Application application(argc, argv);
    QLoggingCategory::setFilterRules(u"*.debug=false\n*.info=false"_s);
    ApplicationContext context;
    QQmlApplicationEngine engine;
    prepareEngine(engine, application, context);
    engine.loadFromModule("ZelmoraAtelier"_L1, "Main"_L1);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window || argc < 3)
        return 1;
    const Frames frames(window, context.scenePresentationModel);
    frames.settle();
    if (QByteArrayView(argv[2]) == "controls") {
        benchControls(engine, window, frames);
        benchFacts(context, window, frames);
        return 0;
    }
    const QString photograph = QString::fromLocal8Bit(argv[1]) + "/photograph.jpg"_L1;
    benchOpening(context, window, frames, photograph);
    benchLayers(context, window, frames);
    benchPreview(context, window, frames, photograph);
    return 0;
}
