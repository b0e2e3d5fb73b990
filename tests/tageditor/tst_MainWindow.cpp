// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Shown.h"

#include <tageditor/DarkPalette.h>

#include <ZEVGlobalUtils/FindPanel/ZEVMatchColors.h>
#include <ZEVGlobalUtils/Transforms/FileSizeTransformer.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

bool hasColor(const QImage &picture, const QColor &color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == color.rgb())
                return true;
        }
    }
    return false;
}

/// Counts how often a widget is painted, and what it says then.
class PaintLog : public QObject {
public:
    explicit PaintLog(QLabel *label)
        : m_label(label)
    {
        label->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            texts.append(m_label->text());
        return false;
    }

    QStringList texts;

private:
    QLabel *m_label;
};

} // namespace

class tst_MainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { useStoreIn(m_store); }

    void theSampleIsShown()
    {
        Shown shown;
        QVERIFY(shown.visible);
        auto *progress = shown.window.findChild<QProgressBar *>();
        QVERIFY(!progress->isVisible());
        shown.window.openFolder(Samples::folder());
        QVERIFY(progress->isVisible()); // the window is there before the first track is
        QCOMPARE(shown.window.tracks().rowCount(), 0);
        QSignalSpy read(&shown.window, &MainWindow::folderRead);
        QVERIFY(read.wait());
        QVERIFY(!progress->isVisible());
        QCOMPARE(shown.status(), u"16 tracks|"_s);
    }

    void typingFindsAndReturnSteps()
    {
        Shown shown;
        QVERIFY(shown.visible && shown.open(Samples::folder()));
        QTest::keyClick(&shown.window, Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(shown.line->hasFocus());
        QTest::keyClicks(shown.line, u"tra"_s);
        QTRY_COMPARE(shown.message(), u"4 matches"_s);
        QTest::keyClick(shown.line, Qt::Key_Return);
        QCOMPARE(shown.message(), u"Match 1 of 4"_s);
        QCOMPARE(shown.currentCell(), u"01 Track 12.mp3/0"_s);
        QTest::keyClick(shown.line, Qt::Key_F3);
        QCOMPARE(shown.currentCell(), u"01 Track 12.mp3/1"_s);
        QTest::keyClick(shown.line, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClick(shown.line, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(shown.message(), u"Match 4 of 4"_s);
        QTest::keyClick(shown.line, Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(shown.message(), u"Match 1 of 4"_s);
    }

    void theCountGrowsWithoutBeingPaintedForEveryMatch()
    {
        TrackTableModel model;
        model.append({12, Samples::track({QString(100'000, u'a')})});
        TrackSearch search(&model);
        FindLine findLine(&search);
        findLine.show();
        QVERIFY(QTest::qWaitForWindowExposed(&findLine));
        const PaintLog log(findLine.findChild<QLabel *>());
        findLine.setPatternText(u"a"_s);
        QElapsedTimer elapsed;
        elapsed.start();
        search.searchIfPending();
        QCOMPARE(search.numberOfMatches(), 1'200'000);
        QVERIFY(!log.texts.isEmpty()); // painted while the search had the thread
        QVERIFY2(log.texts.size() <= elapsed.elapsed() / 50 + 1, qPrintable(log.texts.join(u", ")));
        QVERIFY(!log.texts.first().startsWith(u"1,200,000"));
        QTRY_COMPARE(log.texts.last(), u"1,200,000 matches"_s);
    }

    void tokensTypesAndCaseCount()
    {
        Shown shown;
        QVERIFY(shown.visible && shown.open(Samples::folder()));
        QMenu *tokens = shown.line->menu();
        Q_EMIT tokens->aboutToShow();
        QCOMPARE(tokens->actions().size(), 10);
        tokens->actions().at(8)->trigger();
        QTRY_COMPARE(shown.line->patternStringValue(), u"%(\\@)%"_s);
        QTRY_COMPARE(shown.message(), u"3 matches"_s); // comments that are an address and nothing else
        shown.line->setPatternStringValue(u"folk"_s);
        shown.window.findLine().setMatchingType(ZEVFindPanelQuery::MatchesContents);
        QTRY_COMPARE(shown.message(), u"3 matches"_s);
        shown.window.findLine().setCaseSensitive(true);
        QTRY_COMPARE(shown.message(), u"No matches"_s);
        QCOMPARE(shown.window.findChild<QComboBox *>()->currentText(), u"Matches Contents"_s);
    }

    void anInvalidExpressionOpensNoDialog()
    {
        Shown shown;
        QVERIFY(shown.visible && shown.open(Samples::folder()));
        shown.window.findLine().setMatchingType(ZEVFindPanelQuery::RegularExpression);
        shown.window.findLine().beginEditing();
        QTest::keyClicks(shown.line, u"(tr"_s);
        QTRY_VERIFY2(shown.message().contains(u"(tr"), qPrintable(shown.message()));
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        for (const QPalette &palette : {QPalette(), darkPalette()}) {
            QApplication::setPalette(palette);
            const QImage picture = shown.messageLabel()->grab().toImage();
            QVERIFY(hasColor(picture, ZEVMatchColors::errorText(shown.window.palette())));
        }
        QApplication::setPalette(QPalette());
        QTest::keyClicks(shown.line, u")"_s);
        QTRY_COMPARE(shown.message(), u"6 matches"_s);
    }

    void aClickOnAHeaderSorts()
    {
        Shown shown;
        QVERIFY(shown.visible && shown.open(Samples::folder()));
        const auto firstYear = [&] { return shown.window.tracks().track(0).text(TrackField::Year); };
        QHeaderView *header = shown.window.table().horizontalHeader();
        const int x = header->sectionViewportPosition(int(TrackField::Year)) + 10;
        const QPoint year(x, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
        QCOMPARE(firstYear(), u"1987"_s);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
        QCOMPARE(firstYear(), u"2021"_s);
        QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s)); // what is read next is sorted too
        QCOMPARE(firstYear(), u"1999"_s);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
        QCOMPARE(firstYear(), u"1998"_s); // as it was read
    }

    void aFolderThatIsNotThereIsTold()
    {
        Shown shown;
        QVERIFY(shown.visible && shown.open(u"/no/such/folder"_s));
        QCOMPARE(shown.status(),
                 u"0 tracks|The folder “/no/such/folder” could not be read: No such file or directory"_s);
        QVERIFY(shown.open(Samples::folder() + u"/Sever"_s));
        QCOMPARE(shown.status(), u"2 tracks|"_s);
    }

    void unreadableFilesAreRowsOfTheirOwn()
    {
        const QTemporaryDir folder;
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"<b>.ogg"_s), 0));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"a.ogg"_s)));
        Shown shown;
        QVERIFY(shown.visible && shown.open(folder.path()));
        QCOMPARE(shown.status(), u"2 tracks, 1 unreadable|"_s);
        const QModelIndex title = shown.window.table().model()->index(0, int(TrackField::Title));
        QCOMPARE(title.data().toString(), u"Empty file"_s);
        QVERIFY(title.data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;.ogg"));
    }

    void theSizesAreThoseOfTheSelectionOrOfAll()
    {
        const QTemporaryDir folder;
        const auto size = [&](const char *name) {
            return QFileInfo(folder.filePath(QLatin1String(name))).size();
        };
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"a.ogg"_s)));
        QVERIFY(Samples::copy(u"Track 7.m4a"_s, folder.filePath(u"b.m4a"_s)));
        QFile damaged(folder.filePath(u"c.ogg"_s)); // and too large to be lost in the rounding
        QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.resize(500'000));
        const auto texts = [](const QVariantList &sizes) {
            return FileSizeTransformer().transformedValue(sizes).toString();
        };
        const QVariant none = QVariant::fromValue(nullptr);
        const QVariantList all{size("a.ogg"), size("b.m4a"), none};
        Shown shown;
        QVERIFY(shown.visible && shown.open(folder.path()));
        QVERIFY(all.at(0) != all.at(1));
        QCOMPARE(shown.sizes(), texts(all));
        shown.select(1, TrackField::Year);
        shown.select(1, TrackField::Title); // another cell of the same track
        QCOMPARE(shown.sizes(), u"1 selected: "_s + texts({size("b.m4a")}));
        shown.select(0, TrackField::Title);
        QCOMPARE(shown.sizes(), u"2 selected: "_s + texts({size("a.ogg"), size("b.m4a")}));
        shown.select(2, TrackField::Title);
        QCOMPARE(shown.sizes(), u"3 selected: "_s + texts(all));
        shown.window.table().clearSelection();
        QCOMPARE(shown.sizes(), texts(all));
        QVERIFY(shown.open(Samples::folder() + u"/Sever"_s)); // nothing of the other folder remains
        QVERIFY(!shown.sizes().isEmpty() && shown.sizes() != texts(all));
    }

    void everyControlHasANameForScreenReaders()
    {
        Shown shown;
        const auto named = [](const QWidget *control) {
            const QAccessibleInterface *face =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(control));
            return face && !face->text(QAccessible::Name).isEmpty();
        };
        int controls = 0;
        for (const QWidget *control : shown.window.findChild<FindLine *>()->findChildren<QWidget *>()) {
            if (control->focusPolicy() == Qt::NoFocus || control->parentWidget() != &shown.window.findLine())
                continue;
            ++controls;
            QVERIFY2(named(control), control->metaObject()->className());
        }
        QCOMPARE(controls, 6);
        QVERIFY(named(&shown.window.table()));
    }

    void theSizeIsRemembered()
    {
        const QSize size(871, 477);
        {
            Shown shown;
            shown.window.resize(size);
            QTRY_COMPARE(shown.window.size(), size);
            shown.window.close();
        }
        const MainWindow window;
        QCOMPARE(window.size(), size);
    }

private:
    QTemporaryDir m_store;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
