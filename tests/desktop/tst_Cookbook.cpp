// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Desktop.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString contents(const QString &path)
{
    QFile file(QStringLiteral(ZEV_SOURCE_DIR "/") + path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/// Every program of the cookbook does what its page says, by keys, and the page shows that program. Where
/// ZEV_PICTURES names a folder, it gets a picture of each: see scripts/pictures.
class tst_Cookbook : public QObject {
    Q_OBJECT

private:
    void takePicture(const QString &program) const
    {
        if (!qEnvironmentVariableIsSet("ZEV_PICTURES"))
            return;
        QTest::qWait(500); // the pop-ups that are on their way
        m_desktop
            ->start(u"import"_s,
                    {u"-window"_s, u"root"_s, u"-trim"_s, u"+repage"_s,
                     qEnvironmentVariable("ZEV_PICTURES") + u'/' + program + u".png"_s})
            ->waitForFinished();
    }

    std::unique_ptr<Desktop> m_desktop;

private Q_SLOTS:
    void pagesShowTheirPrograms()
    {
        const QStringList programs = QDir(u"" ZEV_SOURCE_DIR "/examples/cookbook"_s).entryList({u"*.cpp"_s});
        QVERIFY(programs.size() >= 8);
        for (const QString &program : programs) {
            const QString source = contents(u"examples/cookbook/"_s + program);
            const QString shown = source.sliced(source.indexOf(u"#include"));
            QVERIFY2(shown.count(u'\n') < 40, qPrintable(program));
            const QString page = u"docs/cookbook/"_s + QString(program).replace(u".cpp"_s, u".md"_s);
            QVERIFY2(contents(page).contains(u"```cpp\n"_s + shown + u"```\n"_s), qPrintable(page));
        }
    }

    void programsDoWhatTheirPagesSay_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("more"); // once the picture was taken
        QTest::addColumn<QString>("title");
        const auto add = [](const char *program, const QString &keys, const QString &more,
                            const char *title) {
            QTest::newRow(program) << keys.split(u';', Qt::SkipEmptyParts)
                                   << more.split(u';', Qt::SkipEmptyParts) << QString::fromUtf8(title);
        };
        add("find_in_editor", u"ctrl+f;'Track"_s, {}, "2 found");
        add("find_in_model", u"ctrl+h;'Love;Tab;'Hope"_s, u"alt+l"_s, "Hope Songs");
        add("pattern_field", u"'%Artist% - %Title%"_s, u"Return"_s, "%Artist% - %Title%");
        add("cases_and_scores", u"'riv"_s, {}, "South of III Rivers");
        add("copy_files", u"alt+c"_s, u"Return"_s, "Track 2.mp3, Track.mp3");
        add("artwork_well", {}, u"Delete"_s, "No artwork");
        add("menus_and_recents", u"alt+g;'fad"_s, u"Return"_s, "Fado");
        add("observing", u"Up"_s, {}, "From 50 to 51");
    }
    void programsDoWhatTheirPagesSay()
    {
        QFETCH(const QStringList, keys);
        QFETCH(const QStringList, more);
        QFETCH(const QString, title);
        if (!m_desktop && Desktop::isPossible())
            m_desktop = std::make_unique<Desktop>();
        if (!m_desktop)
            QSKIP("There is no Xvfb to run a desktop on.");
        const QString program = QString::fromLatin1(QTest::currentDataTag());
        QProcess *process = m_desktop->start(QStringLiteral(ZEV_COOKBOOK "/cookbook_") + program, {});
        const QString window = m_desktop->activeWindow(*process);
        QVERIFY(!window.isEmpty());
        m_desktop->press(keys);
        takePicture(program);
        m_desktop->press(more);
        const auto name = [&] { return m_desktop->tool(u"getwindowname "_s + window); };
        Desktop::waitFor([&] { return name() == title; }, 5000);
        QCOMPARE(name(), title);
        m_desktop->activate(window);
        m_desktop->key(u"alt+F4"_s);
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_Cookbook)
#include "tst_Cookbook.moc"
