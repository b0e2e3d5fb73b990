// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Rooms = QMap<QString, QSet<QString>>;

const QString Root = QStringLiteral(ZEV_SOURCE_DIR);

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Which rooms each room may include, from the one table.
Rooms allowedRooms()
{
    Rooms rooms;
    for (const QString &line : contents(Root + u"/ZEVGlobalUtils/Rooms.txt"_s).split(u'\n')) {
        const qsizetype colon = line.indexOf(u':');
        if (line.startsWith(u'#') || colon < 0)
            continue;
        const QString room = line.first(colon);
        const QStringList names = line.sliced(colon + 1).simplified().split(u' ', Qt::SkipEmptyParts);
        rooms[room] = QSet<QString>(names.begin(), names.end()) + QSet<QString>{room};
    }
    return rooms;
}

/// What \a text, a source of \a room, includes against the table.
QStringList forbiddenIncludes(const QString &text, const QString &room, const Rooms &allowed)
{
    static const QRegularExpression include(
        u"^\\s*#\\s*include\\s*[<\"](?:\\.\\./)*(?:ZEVGlobalUtils/)?(\\w+)/"_s,
        QRegularExpression::MultilineOption);
    QStringList forbidden;
    for (auto match = include.globalMatch(text); match.hasNext();) {
        const QString target = match.next().captured(1);
        if (allowed.contains(target) && !allowed.value(room).contains(target))
            forbidden.append(target);
    }
    return forbidden;
}

QStringList sources(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

} // namespace

class tst_Rooms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aForbiddenIncludeIsSeen_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("forbidden");
        QTest::newRow("against") << u"#include <ZEVGlobalUtils/FindEngine/X.h>"_s
                                 << QStringList{u"FindEngine"_s};
        QTest::newRow("quoted") << u" # include \"../FindEngine/X.h\""_s << QStringList{u"FindEngine"_s};
        QTest::newRow("with") << u"#include <ZEVGlobalUtils/Platform/X.h>"_s << QStringList{};
        QTest::newRow("own room") << u"#include <ZEVGlobalUtils/Transforms/X.h>"_s << QStringList{};
        QTest::newRow("elsewhere") << u"#include <unicode/regex.h>"_s << QStringList{};
    }
    void aForbiddenIncludeIsSeen()
    {
        QFETCH(QString, line);
        QTEST(forbiddenIncludes(line, u"Transforms"_s, allowedRooms()), "forbidden");
    }

    void theTableHasNoCircle()
    {
        Rooms left = allowedRooms();
        QVERIFY(left.size() >= 8);
        while (!left.isEmpty()) {
            QStringList free;
            for (auto room = left.cbegin(); room != left.cend(); ++room) {
                const QSet<QString> waiting(left.keyBegin(), left.keyEnd());
                if ((room.value() & waiting) == QSet<QString>{room.key()})
                    free.append(room.key());
            }
            QVERIFY2(!free.isEmpty(), qPrintable(left.keys().join(u' ')));
            for (const QString &room : free)
                left.remove(room);
        }
    }

    void noIncludeRunsBackwards()
    {
        const Rooms allowed = allowedRooms();
        int read = 0;
        for (const QString &path : sources(Root + u"/ZEVGlobalUtils"_s)) {
            const QString room = path.section(u'/', -2, -2);
            QVERIFY2(allowed.contains(room), qPrintable(path + u" is in no room of Rooms.txt"_s));
            const QStringList forbidden = forbiddenIncludes(contents(path), room, allowed);
            QVERIFY2(forbidden.isEmpty(), qPrintable(path + u" includes "_s + forbidden.join(u' ')));
            ++read;
        }
        QVERIFY(read > 20);
    }

    void publicHeadersShowNothingPrivate()
    {
        static const QRegularExpression foreign(u"#include <(unicode/|glib|gio)|#include .*_p\\.h>"_s);
        for (const QString &path : sources(Root + u"/ZEVGlobalUtils"_s)) {
            if (path.endsWith(u".h"_s) && !path.endsWith(u"_p.h"_s))
                QVERIFY2(!contents(path).contains(foreign), qPrintable(path));
        }
        for (const QString &path : sources(Root + u"/examples"_s))
            QVERIFY2(!contents(path).contains(QRegularExpression(u"#include <ZEVGlobalUtils/.*_p\\.h>"_s)),
                     qPrintable(path));
    }
};

QTEST_GUILESS_MAIN(tst_Rooms)
#include "tst_Rooms.moc"
