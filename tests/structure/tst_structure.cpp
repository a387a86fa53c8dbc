#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A row of the table in src/README.md.
struct Room
{
    int floor = 0;
    QString readme;
    QString library;
};

struct Include
{
    QString file;
    int line = 0;
    QString target;
    bool quoted = false;

    QString place() const { return u"%1:%2 includes %3"_s.arg(file).arg(line).arg(target); }
};

const QString kSources = QStringLiteral(SOURCE_FOLDER);

QStringList linesOf(const QString &path)
{
    QFile file(kSources + u'/' + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n') : QStringList();
}

QMap<QString, Room> roomsOfTheTable()
{
    static const QRegularExpression row(u"^\\| (\\d+) \\| \\[(\\w+)\\]\\(([^)]+)\\) \\| .+ \\| `(\\w+)` \\|$"_s);
    QMap<QString, Room> rooms;
    for (const QString &line : linesOf(u"README.md"_s)) {
        if (const QRegularExpressionMatch match = row.match(line); match.hasMatch())
            rooms.insert(match.captured(2), {match.captured(1).toInt(), match.captured(3), match.captured(4)});
    }
    return rooms;
}

/// All files of C++, from src/.
QStringList sourceFiles()
{
    QStringList files;
    QDirIterator found(kSources, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files.append(QDir(kSources).relativeFilePath(found.next()));
    files.sort();
    return files;
}

QList<Include> includesOf(const QStringList &files)
{
    static const QRegularExpression directive(u"^\\s*#\\s*include\\s*([\"<])([^\">]+)[\">]"_s);
    QList<Include> includes;
    for (const QString &file : files) {
        int line = 0;
        for (const QString &text : linesOf(file)) {
            ++line;
            if (const QRegularExpressionMatch match = directive.match(text); match.hasMatch())
                includes.append({file, line, match.captured(2), match.captured(1) == u'"'});
        }
    }
    return includes;
}

QString roomOf(const QString &file)
{
    return file.section(u'/', 0, 0);
}

/// The folder of a room that the file lies in, such as "io/pictures"; empty for a file of the room itself.
QString innerFolderOf(const QString &file)
{
    return file.count(u'/') > 1 ? file.section(u'/', 0, 1) : QString();
}

using Graph = QMap<QString, QStringList>;

/// Goes on from the last place of the path; true when it came back to a place of it, which then stands last.
bool findCircle(const Graph &graph, QStringList &path, QSet<QString> &done)
{
    for (const QString &next : graph.value(path.last())) {
        if (done.contains(next))
            continue;
        const bool closes = path.contains(next);
        path.append(next);
        if (closes || findCircle(graph, path, done))
            return true;
        path.removeLast();
    }
    done.insert(path.last());
    return false;
}

/// Such as "a -> b -> a"; empty when there is none.
QString circleIn(const Graph &graph)
{
    QSet<QString> done;
    for (auto place = graph.keyBegin(); place != graph.keyEnd(); ++place) {
        QStringList path{*place};
        if (!done.contains(*place) && findCircle(graph, path, done))
            return path.sliced(path.indexOf(path.last())).join(" -> "_L1);
    }
    return {};
}

} // namespace

/// Whether the includes keep to the ladder that src/README.md draws.
class TestStructure : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rooms = roomsOfTheTable();
        m_files = sourceFiles();
        m_includes = includesOf(m_files);
        QVERIFY(!m_includes.isEmpty());
    }

    void everyRoomHasAFloorAndAReadme()
    {
        const QStringList folders = QDir(kSources).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &folder : folders)
            QVERIFY2(m_rooms.contains(folder), qPrintable(u"src/README.md has no row for "_s + folder));
        for (const Room &room : std::as_const(m_rooms))
            QVERIFY2(QFile::exists(kSources + u'/' + room.readme), qPrintable(room.readme));
    }

    void includesNameFilesOfLowerFloorsOrTheSameRoom()
    {
        QStringList wrong;
        for (const Include &include : std::as_const(m_includes)) {
            if (!include.quoted || include.target.endsWith(".moc"_L1))
                continue;
            const QString from = roomOf(include.file);
            const QString to = roomOf(include.target);
            if (!m_files.contains(include.target))
                wrong.append(include.place() + u", which is no file of src/"_s);
            else if (to != from && m_rooms.value(to).floor >= m_rooms.value(from).floor)
                wrong.append(include.place() + u", which is not on a lower floor"_s);
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(u'\n' + wrong.join(u'\n')));
    }

    void noCircles()
    {
        Graph files;
        Graph folders;
        for (const Include &include : std::as_const(m_includes)) {
            if (!include.quoted)
                continue;
            files[include.file].append(include.target);
            const QString from = innerFolderOf(include.file);
            const QString to = innerFolderOf(include.target);
            if (!from.isEmpty() && !to.isEmpty() && from != to && roomOf(from) == roomOf(to))
                folders[from].append(to);
        }
        QCOMPARE(circleIn(files), QString());
        QCOMPARE(circleIn(folders), QString());
    }

    void theCoreKnowsNoInterface()
    {
        static const QRegularExpression qtQuick(u"^Qt?(Qml|Quick|JS)"_s);
        QStringList wrong;
        for (const Include &include : std::as_const(m_includes)) {
            if (m_rooms.value(roomOf(include.file)).library != "atelier_editor"_L1
                && qtQuick.match(include.target).hasMatch())
                wrong.append(include.place());
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(u'\n' + wrong.join(u'\n')));
    }

private:
    QMap<QString, Room> m_rooms;
    QStringList m_files;
    QList<Include> m_includes;
};

QTEST_GUILESS_MAIN(TestStructure)
#include "tst_structure.moc"
