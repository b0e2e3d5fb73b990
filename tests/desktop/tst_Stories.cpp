// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../tageditor/Samples.h"
#include "Desktop.h"

#include <tageditor/tracks/TagWriter.h>

#include <fileref.h>
#include <tag.h>

using namespace Qt::StringLiterals;

/// What an evening with the tag editor is made of, by the keys of a keyboard; the files are read by TagLib.
class tst_Stories : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Desktop> m_desktop;
    QTemporaryDir m_folder;
    QString m_editor;

    QString path(const QString &name) const { return m_folder.filePath(u"music/"_s + name); }

    QString title(const QString &name) const
    {
        const TagLib::FileRef file(QFile::encodeName(path(name)).constData(), false);
        return file.isNull() ? QString() : QString::fromStdString(file.tag()->title().to8Bit(true));
    }
    QStringList names() const { return QDir(path({})).entryList(QDir::Files, QDir::Name); }

    /// One after the other.
    void keys(const QString &keys) const { m_desktop->key(keys); }
    void press(const QString &key, int times) const { keys(QStringList(times, key).join(u' ')); }
    void type(const QString &text) const { m_desktop->type(text); }

    /// The window of a question or dialog, with the focus.
    bool comes(const QString &name) const
    {
        return Desktop::waitFor([&] {
            const QString windows = m_desktop->tool(u"search --onlyvisible --name ^"_s + name);
            return !windows.isEmpty() && windows.split(u'\n').contains(m_desktop->tool(u"getactivewindow"_s));
        });
    }
    bool isBack() const
    {
        return Desktop::waitFor([this] { return m_desktop->tool(u"getactivewindow"_s) == m_editor; });
    }
    bool saved(const QString &name, const QString &wanted) const
    {
        m_desktop->key(u"ctrl+s"_s);
        return Desktop::waitFor([&] { return title(name) == wanted; });
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!Desktop::isPossible())
            QSKIP("There is no Xvfb to run a desktop on.");
        QVERIFY(QDir(m_folder.path()).mkpath(u"music"_s));
        QVERIFY(Samples::copy(u"Harbour/01 Track 12.mp3"_s, path(u"a.mp3"_s)));
        QVERIFY(Samples::copy(u"Track 7.m4a"_s, path(u"b.m4a"_s)));
        m_desktop = std::make_unique<Desktop>();
        QProcess *editor = m_desktop->start(QStringLiteral(TAGEDITOR_PROGRAM), {u"--report"_s, path({})});
        m_editor = m_desktop->placedWindow(u"music"_s, {20, 30, 1200, 800});
        QVERIFY(!m_editor.isEmpty());
        QVERIFY(
            Desktop::waitFor([&] { return editor->readAllStandardOutput().contains("0 matches"); })); // read
        m_desktop->activate(m_editor);
        QVERIFY(isBack());
    }

    void tokensAreFoundReplacedAfterAPreviewAndUndone()
    {
        keys(u"ctrl+h ctrl+f"_s);
        type(u"track "_s);
        keys(u"ctrl+equal"_s); // the tokens
        press(u"Down"_s, 6);
        keys(u"Return Tab"_s);
        keys(u"ctrl+equal"_s);
        press(u"Down"_s, 3); // the artist
        keys(u"Return"_s);
        type(u" no. "_s);
        keys(u"ctrl+equal"_s);
        press(u"Down"_s, 19); // the digits
        keys(u"Return"_s);
        keys(u"ctrl+shift+h"_s);
        QVERIFY(comes(u"Preview"_s));
        keys(u"Return"_s);
        QVERIFY(isBack());
        QVERIFY2(saved(u"a.mp3"_s, u"The Paper Lanterns no. 12"_s), qPrintable(title(u"a.mp3"_s)));
        QCOMPARE(title(u"b.m4a"_s), u"Nobody & the 404s no. 7"_s);
        keys(u"ctrl+f Escape ctrl+z"_s);
        QVERIFY2(saved(u"a.mp3"_s, u"Track 12"_s), qPrintable(title(u"a.mp3"_s)));
        QVERIFY(Desktop::waitFor([this] { return title(u"b.m4a"_s) == u"Track 7"; }));
    }

    void textsAreTransformed()
    {
        keys(u"ctrl+a alt+x Down"_s);
        keys(u"Return"_s);
        QVERIFY(comes(u"Transform"_s));
        type(u"spaces"_s); // the choice has the focus
        keys(u"Return"_s);
        QVERIFY(isBack());
        QVERIFY2(saved(u"a.mp3"_s, u"Track_12"_s), qPrintable(title(u"a.mp3"_s)));
        QVERIFY(Desktop::waitFor([this] { return title(u"b.m4a"_s) == u"Track_7"; }));
    }

    void renamingKeepsWhatIsInTheWay()
    {
        for (const QString &name : {u"Track_12.mp3"_s, u"Track_7.m4a"_s}) {
            QFile other(path(name));
            QVERIFY(other.open(QFile::WriteOnly));
            QVERIFY(other.write("another") > 0);
        }
        keys(u"ctrl+a ctrl+shift+r"_s);
        QVERIFY(comes(u"Rename"_s));
        keys(u"ctrl+a"_s);
        type(u"%title%"_s);
        keys(u"Return"_s);
        QVERIFY(comes(u"Tag"_s));
        keys(u"shift+Tab space Return"_s); // to all: keep both
        QVERIFY(isBack());
        QVERIFY(Desktop::waitFor([this] { return names().size() == 4 && !names().contains(u"b.m4a"); }));
        QCOMPARE(names(),
                 (QStringList{u"Track_12 2.mp3"_s, u"Track_12.mp3"_s, u"Track_7 2.m4a"_s, u"Track_7.m4a"_s}));
        QCOMPARE(title(u"Track_12 2.mp3"_s), u"Track_12"_s);
        keys(u"ctrl+z"_s);
        QVERIFY(
            Desktop::waitFor([this] { return names().contains(u"a.mp3") && names().contains(u"b.m4a"); }));
    }
};

QTEST_GUILESS_MAIN(tst_Stories)
#include "tst_Stories.moc"
