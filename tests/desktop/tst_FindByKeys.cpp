// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Desktop.h"

using namespace Qt::StringLiterals;

/// Find and replace in programs that have no more of it than one line, by the keys of a keyboard.
class tst_FindByKeys : public QObject {
    Q_OBJECT

private:
    /// What the program has left when its window is closed, after \a keys.
    QString textAfter(const QString &program, const QStringList &keys) const
    {
        QProcess *process = m_desktop->start(QStringLiteral(ZEV_CONSUMERS "/consumer_") + program, {});
        if (m_desktop->activeWindow(*process).isEmpty())
            return u"no window"_s;
        m_desktop->press(keys);
        m_desktop->key(u"alt+F4"_s);
        process->waitForFinished();
        return QString::fromUtf8(process->readAllStandardOutput()).trimmed();
    }

    std::unique_ptr<Desktop> m_desktop;

private Q_SLOTS:
    void initTestCase()
    {
        if (!Desktop::isPossible())
            QSKIP("There is no Xvfb to run a desktop on.");
        m_desktop = std::make_unique<Desktop>();
    }

    void keysFindAndReplace_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QString>("left");
        const QStringList find{u"ctrl+f"_s, u"'one"_s, u"F3"_s, u"F3"_s};
        const QStringList replace{u"ctrl+h"_s, u"'one"_s, u"Tab"_s, u"'1"_s};
        QTest::addRow("next, and over it")
            << u"editor"_s << find + QStringList{u"Escape"_s, u"'X"_s} << u"one two X\nthree one"_s;
        QTest::addRow("previous") << u"editor"_s << find + QStringList{u"shift+F3"_s, u"Escape"_s, u"'X"_s}
                                  << u"X two one\nthree one"_s;
        QTest::addRow("replace") << u"editor"_s << replace + QStringList{u"alt+r"_s, u"alt+r"_s, u"Escape"_s}
                                 << u"1 two one\nthree one"_s;
        QTest::addRow("replace all") << u"editor"_s << replace + QStringList{u"alt+l"_s, u"Escape"_s}
                                     << u"1 two 1\nthree 1"_s;
        QTest::addRow("previous in a table")
            << u"table"_s << find + QStringList{u"shift+F3"_s, u"Escape"_s, u"'X"_s, u"Return"_s}
            << u"b one\nX\nhidden one"_s;
        QTest::addRow("replace in a table")
            << u"table"_s << replace + QStringList{u"alt+r"_s, u"alt+r"_s, u"Escape"_s}
            << u"b one\na 1\nhidden one"_s;
        QTest::addRow("replace all in a table")
            << u"table"_s << replace + QStringList{u"alt+l"_s, u"Escape"_s} << u"b 1\na 1\nhidden one"_s;
    }
    void keysFindAndReplace()
    {
        QFETCH(const QString, program);
        QFETCH(const QStringList, keys);
        QFETCH(const QString, left);
        QCOMPARE(textAfter(program, keys), left);
    }
};

QTEST_GUILESS_MAIN(tst_FindByKeys)
#include "tst_FindByKeys.moc"
