// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

using Rooms = QMap<QString, QSet<QString>>;

const QString Root = QStringLiteral(ZEV_SOURCE_DIR);

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Which rooms each room may include, from the one table; the name of a box stands for the rooms in it.
Rooms allowedRooms()
{
    Rooms table;
    for (const QString &line : contents(Root + u"/ZEVGlobalUtils/Rooms.txt"_s).split(u'\n')) {
        const qsizetype colon = line.indexOf(u':');
        if (line.startsWith(u'#') || colon < 0)
            continue;
        const QStringList names = QString(line).remove(colon, 1).simplified().split(u' '); // itself, too
        table[names.first()] = QSet<QString>(names.begin(), names.end());
    }
    Rooms rooms;
    for (auto room = table.cbegin(); room != table.cend(); ++room) {
        for (const QString &name : room.value()) {
            for (auto inner = table.keyBegin(); inner != table.keyEnd(); ++inner) {
                if (*inner == name || inner->startsWith(name + u'/'))
                    rooms[room.key()].insert(*inner);
            }
        }
    }
    return rooms;
}

/// What \a text, a source of \a room, includes against the table.
QStringList forbiddenIncludes(const QString &text, const QString &room, const Rooms &allowed)
{
    static const QRegularExpression include(
        u"^\\s*#\\s*include\\s*[<\"](?:\\.\\./)*(?:ZEVGlobalUtils/)?(\\w+(?:/\\w+)?)/"_s,
        QRegularExpression::MultilineOption);
    QStringList forbidden;
    for (auto match = include.globalMatch(text); match.hasNext();) {
        const QString target = match.next().captured(1);
        if (allowed.contains(target) && !allowed.value(room).contains(target))
            forbidden.append(target);
    }
    return forbidden;
}

/// The folder of a source of the library, as the table names it.
QString roomOfSource(const QString &path)
{
    const QString inside = QString(path).remove(0, (Root + u"/ZEVGlobalUtils/"_s).size());
    return inside.left(inside.lastIndexOf(u'/'));
}

QStringList sources(const QString &folder)
{
    QStringList paths;
    QDirIterator files(Root + folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

} // namespace

class tst_Rooms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aForbiddenIncludeIsSeen()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"#include <ZEVGlobalUtils/FindEngine/X.h>"_s, u"FindEngine"_s},
            {u" # include \"../FindEngine/X.h\""_s, u"FindEngine"_s},
            {u"#include <ZEVGlobalUtils/FindPanel/MenuFilter/X.h>"_s, u"FindPanel/MenuFilter"_s},
            {u"#include <ZEVGlobalUtils/Platform/Text/X.h>"_s, {}},
            {u"#include <ZEVGlobalUtils/Transforms/Formatters/X.h>"_s, {}},
            {u"#include <unicode/regex.h>"_s, {}},
        };
        for (const auto &[line, forbidden] : rows)
            COMPARE_ROW(line, forbiddenIncludes(line, u"Transforms/Texts"_s, allowedRooms()).join(u' '),
                        forbidden);
    }

    void theTableHasNoCircle()
    {
        Rooms left = allowedRooms();
        QVERIFY(left.size() > 15);
        while (!left.isEmpty()) {
            const QSet<QString> waiting(left.keyBegin(), left.keyEnd());
            left.removeIf([&](Rooms::iterator room) { return (room.value() & waiting).size() == 1; });
            QVERIFY2(left.size() < waiting.size(), qPrintable(left.keys().join(u' ')));
        }
    }

    /// The names without the prefix are those that hosts look formatters up by.
    void filesCarryThePrefix()
    {
        static const QRegularExpression name(
            u"^(ZEV|OEX)|^(ByteSize|FileSize|Resolution|TagSize)Transformer\\.|^NS"_s);
        for (const QString &path : sources(u"/ZEVGlobalUtils"_s))
            QVERIFY2(path.section(u'/', -1).contains(name), qPrintable(path));
    }

    /// Who opens a room is to see what it is for: a larger one has rooms in it.
    void noRoomIsCrowded()
    {
        QMap<QString, int> files;
        for (const QString &path : sources(u"/ZEVGlobalUtils"_s))
            ++files[roomOfSource(path)];
        for (auto room = files.cbegin(); room != files.cend(); ++room)
            QVERIFY2(room.value() <= 45, qPrintable(room.key()));
    }

    /// What a script makes out of the sources is made anew with them.
    void pictureAndPromisesAreUpToDate()
    {
        const std::pair<QStringList, QString> rows[] = {
            {{}, u"/docs/images/rooms.svg"_s},
            {{u"--promises"_s}, u"/docs/promises.md"_s},
        };
        for (const auto &[arguments, path] : rows) {
            QProcess script;
            script.start(Root + u"/scripts/rooms"_s, arguments);
            QVERIFY(script.waitForFinished());
            const QString made = QString::fromUtf8(script.readAllStandardOutput());
            QVERIFY(made.size() > 1000);
            QVERIFY2(made == contents(Root + path), qPrintable(u"./scripts/rooms makes another "_s + path));
        }
    }

    void noIncludeRunsBackwardsOrShowsWhatIsPrivate()
    {
        static const QRegularExpression foreign(u"#include <(unicode/|glib|gio)|#include .*_p\\.h>"_s);
        static const QRegularExpression ours(u"#include <ZEVGlobalUtils/.*_p\\.h>"_s);
        const Rooms allowed = allowedRooms();
        const QStringList paths = sources(u"/ZEVGlobalUtils"_s);
        QVERIFY(paths.size() > 20);
        for (const QString &path : paths) {
            const QString text = contents(path), room = roomOfSource(path);
            QVERIFY2(allowed.contains(room), qPrintable(path + u" is in no room of Rooms.txt"_s));
            COMPARE_ROW(path, forbiddenIncludes(text, room, allowed).join(u' '), QString());
            if (path.endsWith(u".h"_s) && !path.endsWith(u"_p.h"_s))
                QVERIFY2(!text.contains(foreign), qPrintable(path));
        }
        for (const QString &path : sources(u"/examples"_s))
            QVERIFY2(!contents(path).contains(ours), qPrintable(path));
    }
};

QTEST_GUILESS_MAIN(tst_Rooms)
#include "tst_Rooms.moc"
