// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Shown.h"

#include <tageditor/find/FindPanelDialog.h>
#include <tageditor/find/ReplaceDialog.h>
#include <tageditor/inspector/Inspector.h>
#include <tageditor/inspector/TagField.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TagWriter.h>

#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// A folder with two tracks of the samples, to be written to.
struct Folder {
    Folder()
    {
        if (!Samples::copy(u"Harbour/01 Track 12.mp3"_s, path.filePath(u"a.mp3"_s))
            || !Samples::copy(u"Track 7.m4a"_s, path.filePath(u"b.m4a"_s)))
            qFatal("No samples");
    }
    QString written(const QString &name, TrackField field) const
    {
        return TagReader::read(path.filePath(name).toStdString()).text(field);
    }

    QTemporaryDir path;
};

QAbstractButton *button(const QWidget *parent, const QString &text)
{
    for (auto *button : parent->findChildren<QAbstractButton *>()) {
        if (button->text().remove(u'&') == text)
            return button;
    }
    qFatal("No button %s", qPrintable(text));
}

void insertToken(QMenu *menu, const QString &title)
{
    Q_EMIT menu->aboutToShow();
    for (QAction *action : menu->actions()) {
        if (action->text() != title)
            continue;
        action->trigger();
        return QCoreApplication::processEvents(); // the menu first has done with the event
    }
    qFatal("No token %s", qPrintable(title));
}

} // namespace

/// Find and replace as the user of the window does it.
class tst_Finding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { useStoreIn(m_store); }

    void typingFindsAndReturnSteps()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.find(u"tra"_s);
        QTRY_COMPARE(shown.count(), u"4 matches"_s);
        ZEVTokenField *field = shown.bar().findTokenField();
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(shown.currentCell(), u"01 Track 12.mp3/0"_s);
        QTest::keyClick(field, Qt::Key_F3);
        QCOMPARE(shown.currentCell(), u"01 Track 12.mp3/1"_s);
        QTest::keyClick(field, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(shown.currentCell(), u"Track 7.m4a/1"_s);
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(!shown.window.find().isFindBarVisible());
        QTRY_VERIFY(shown.window.table().hasFocus());
    }

    void theWholeRound()
    {
        const Folder folder;
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path.path()));
        QTest::keyClick(&shown.window, Qt::Key_H, Qt::ControlModifier);
        ZEVTokenField *find = shown.bar().findTokenField();
        ZEVTokenField *replace = shown.bar().replaceTokenField();
        find->setFocus();
        QTest::keyClicks(find, u"track "_s);
        insertToken(find->menu(), u"Digits"_s);
        shown.bar().matchingTypeSelector()->setFocus();
        QTest::keyClick(shown.bar().matchingTypeSelector(), Qt::Key_End);
        find->setFocus();
        QTRY_COMPARE(shown.count(), u"2 matches"_s);
        replace->setFocus();
        insertToken(replace->menu(), u"Artist"_s);
        QTest::keyClicks(replace, u": "_s);
        insertToken(replace->menu(), u"Digits"_s);
        QTest::mouseClick(button(shown.bar().view(), u"Replace All"_s), Qt::LeftButton);
        QCOMPARE(shown.text(0, TrackField::Title), u"The Paper Lanterns: 12"_s);
        QCOMPARE(shown.text(1, TrackField::Title), u"Nobody & the 404s: 7"_s);
        QTRY_COMPARE(shown.count(), u"0 matches"_s);
        shown.window.table().setFocus();
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(1, TrackField::Title), u"Track 7"_s);
        QTRY_COMPARE(shown.count(), u"2 matches"_s);
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&shown.window, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(folder.written(u"a.mp3"_s, TrackField::Title), u"The Paper Lanterns: 12"_s);
        QCOMPARE(folder.written(u"b.m4a"_s, TrackField::Title), u"Nobody & the 404s: 7"_s);
        QVERIFY(!shown.window.isWindowModified());
    }

    void thePanelSearchesItsFieldsAndThePreviewSparesTexts()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        QTest::keyClick(&shown.window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        auto *dialog = shown.window.findChild<FindPanelDialog *>();
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        FindPanel &panel = dialog->panel();
        QTest::keyClicks(panel.findTokenField(), u"track"_s);
        QTest::keyClick(panel.findTokenField(), Qt::Key_Return);
        QTRY_COMPARE(panel.numberOfMatches(), 4);
        QTimer::singleShot(0, this, [] { // a menu of a button runs until it is closed
            for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key(key));
        });
        QTest::mouseClick(button(panel.view(), u"All Fields"_s), Qt::LeftButton);
        QAbstractButton *preview = button(dialog, u"Preview Replacements…"_s);
        QVERIFY(!preview->isEnabled()); // another search
        QTest::mouseClick(button(panel.view(), u"Find"_s), Qt::LeftButton);
        QTRY_COMPARE(panel.numberOfMatches(), 2); // titles
        QVERIFY(preview->isEnabled());
        QTest::keyClicks(panel.replaceTokenField(), u"$1\\"_s);
        QTest::mouseClick(preview, Qt::LeftButton);
        auto *replacements = dialog->findChild<ReplaceDialog *>();
        QVERIFY(replacements);
        auto *list = replacements->findChild<QTableView *>();
        QCOMPARE(list->model()->index(1, ReplacePreviewModel::After).data().toString(), u"$1\\ 7"_s);
        list->setCurrentIndex(list->model()->index(0, ReplacePreviewModel::File));
        QTest::keyClick(list, Qt::Key_Space); // the first is not wanted
        QTest::mouseClick(button(replacements, u"Replace"_s), Qt::LeftButton);
        QCOMPARE(shown.text(0, TrackField::Title), u"Track 12"_s);
        QCOMPARE(shown.text(15, TrackField::Title), u"$1\\ 7"_s);
        QTRY_COMPARE(panel.numberOfMatches(), 1);
    }

    void anExpressionThatIsNoneOpensNoDialog()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.find(u"(tr"_s, ZEVFindPanelQuery::RegularExpression);
        QTRY_VERIFY2(shown.message().contains(u"(tr"), qPrintable(shown.message()));
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QTest::keyClicks(shown.bar().findTokenField(), u")"_s);
        QTRY_COMPARE(shown.count(), u"6 matches"_s);
        QVERIFY(shown.message().isEmpty());
    }

    void aRunawayExpressionSaysSoAndKeepsWhatItFound()
    {
        const Folder folder;
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path.path()));
        QVERIFY(shown.window.tracks().rowCount() == 2);
        auto *model = const_cast<TrackTableModel *>(&shown.window.tracks());
        model->setTexts({{model->track(0).id, TrackField::Comment, QString(40, u'a')}});
        shown.find(u"(a+)+b|Track"_s, ZEVFindPanelQuery::RegularExpression);
        QTRY_VERIFY2(shown.message().contains(u"too complex"), qPrintable(shown.message()));
        QTRY_COMPARE(shown.count(), u"2 matches"_s); // the titles
    }

    void tracksThatComeInAreFoundAndMatchesFollowTheSorting()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Sever"_s));
        shown.find(u"tra"_s);
        QTRY_COMPARE(shown.count(), u"0 matches"_s);
        QVERIFY(shown.open(Samples::folder()));
        QTRY_COMPARE(shown.count(), u"4 matches"_s);
        QTest::keyClick(shown.bar().findTokenField(), Qt::Key_Return);
        const QString before = shown.currentCell();
        shown.window.table().sortByColumn(int(TrackField::Year), Qt::DescendingOrder);
        QCOMPARE(shown.currentCell(), before);
        QTRY_COMPARE(shown.count(), u"4 matches"_s);
        QTest::keyClick(shown.bar().findTokenField(), Qt::Key_Return);
        QCOMPARE(shown.currentCell(), u"01 Track 12.mp3/1"_s);
    }

    void patternsAreRemembered()
    {
        {
            Shown shown;
            QVERIFY(shown.visible);
            QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s));
            shown.find(u"boat "_s);
            insertToken(shown.findField()->menu(), u"Any Word"_s);
            shown.window.close();
        }
        Shown shown;
        QCOMPARE(shown.findField()->objectValue().size(), 2);
        QCOMPARE(shown.findField()->objectValue().first(), u"boat "_s);
    }

    void theCommentIsAPlaceOfItsOwn()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.select(0, TrackField::Title);
        auto *comment = shown.window.findChild<QPlainTextEdit *>();
        QTRY_VERIFY(comment->toPlainText().startsWith(u"Recorded"));
        comment->setFocus();
        QTest::keyClick(comment, Qt::Key_H, Qt::ControlModifier);
        ZEVFindPlace &place = shown.window.inspector().commentFind();
        QVERIFY(place.isFindBarVisible());
        QVERIFY(!shown.window.find().isFindBarVisible());
        QTRY_VERIFY(place.bar().hasFocus());
        place.bar().findTokenField()->setFocus();
        QTest::keyClicks(place.bar().findTokenField(), u"19"_s);
        QTRY_COMPARE(place.bar().numberOfMatches(), 1);
        QTest::keyClick(place.bar().findTokenField(), Qt::Key_F3);
        QCOMPARE(comment->textCursor().selectedText(), u"19"_s);
        QTest::keyClicks(place.bar().replaceTokenField(), u"20"_s);
        QTest::mouseClick(button(place.bar().view(), u"Replace All"_s), Qt::LeftButton);
        shown.window.table().setFocus(); // which takes the new text over
        QVERIFY(shown.text(0, TrackField::Comment).contains(u"2097"));
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier);
        QTRY_VERIFY(comment->toPlainText().contains(u"1997"));
    }

    void theInspectorEditsAllSelectedTracks()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s));
        shown.window.table().selectAll();
        const QList<TagField *> fields = shown.window.findChildren<TagField *>();
        TagField *title = fields.at(0);
        TagField *artist = fields.at(1);
        QTRY_COMPARE(artist->stringValue(), u"The Paper Lanterns"_s);
        QCOMPARE(title->stringValue(), QString());
        QCOMPARE(title->placeholderText(), u"Mixed"_s);
        const QString before = shown.text(1, TrackField::Title);
        title->setFocus();
        shown.window.table().setFocus(); // nothing was typed
        QCOMPARE(shown.text(1, TrackField::Title), before);
        title->setFocus();
        insertToken(title->menu(), u"Track"_s);
        QTest::keyClicks(title, u"/100%"_s);
        QTest::keyClick(&shown.window, Qt::Key_S,
                        Qt::ControlModifier | Qt::AltModifier); // no key of the window
        shown.select(0, TrackField::Title, QItemSelectionModel::ClearAndSelect); // while it is being typed
        QCOMPARE(shown.text(0, TrackField::Title), u"1/100%"_s);
        QCOMPARE(shown.text(1, TrackField::Title), u"2/100%"_s);
        QTRY_COMPARE(title->stringValue(), u"1/100%"_s);
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(1, TrackField::Title), before);
    }

    void typedTextsAreTakenBackAndMixedOnesEmptied()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s));
        TagField *title = shown.window.findChildren<TagField *>().at(0);
        auto *comment = shown.window.findChild<QPlainTextEdit *>();
        shown.select(0, TrackField::Title);
        QTRY_COMPARE(title->stringValue(), u"Track 12"_s);
        const QString note = comment->toPlainText();
        title->setFocus();
        QVERIFY(title->textCursor().hasSelection());
        QTest::keyClick(title, Qt::Key_Tab);
        QVERIFY(!title->textCursor().hasSelection());
        shown.window.table().setCurrentIndex(shown.window.tracks().index(0, int(TrackField::Title)));
        title->setFocus(); // from where one steps to the next
        QTest::keyClick(title, Qt::Key_PageDown, Qt::ControlModifier);
        QTRY_COMPARE(title->stringValue(), u"Slow Boat (Part 2)"_s);
        QTest::keyClick(title, Qt::Key_PageUp, Qt::ControlModifier);
        QTRY_COMPARE(title->stringValue(), u"Track 12"_s);
        for (QWidget *field : QWidgetList{title, comment}) {
            field->setFocus();
            QTest::keyClicks(field, u"x"_s);
            QTest::keyClick(field, Qt::Key_Escape);
            shown.window.table().setFocus();
        }
        QCOMPARE(title->stringValue() + comment->toPlainText(), u"Track 12"_s + note);
        QVERIFY(!shown.window.isWindowModified());
        QTest::keyClick(title, Qt::Key_Delete); // they do not differ, so the key has its usual meaning
        QCOMPARE(shown.text(0, TrackField::Title), u"Track 12"_s);
        QTest::keyClick(title, Qt::Key_Escape);
        shown.window.table().selectAll();
        QTRY_COMPARE(title->placeholderText(), u"Mixed"_s);
        QTest::keyClick(title, Qt::Key_Delete);
        QTest::keyClick(comment, Qt::Key_Backspace);
        for (const int row : {0, 1, 2})
            QCOMPARE(shown.text(row, TrackField::Title) + shown.text(row, TrackField::Comment), QString());
    }

    /// Where undo and redo of a field end, those of the window begin.
    void anUntouchedFieldLeavesUndoToTheWindow()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s));
        const QList<TagField *> fields = shown.window.findChildren<TagField *>();
        auto *comment = shown.window.findChild<QPlainTextEdit *>();
        const auto press = [&](QWidget *field, Qt::KeyboardModifiers more = {}) {
            field->setFocus();
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | more);
        };
        shown.select(0, TrackField::Title);
        QTRY_COMPARE(fields.at(0)->stringValue(), u"Track 12"_s);
        fields.at(0)->setFocus();
        QTest::keyClicks(fields.at(0), u"x"_s);
        const QString typed = fields.at(0)->stringValue();
        press(fields.at(0)); // its own
        QCOMPARE(fields.at(0)->stringValue(), u"Track 12"_s);
        QTest::keyClick(fields.at(0), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(fields.at(0)->stringValue(), typed);
        QTest::keyClick(fields.at(0), Qt::Key_Return);
        QTRY_COMPARE(shown.text(0, TrackField::Title), typed);
        shown.select(1, TrackField::Title, QItemSelectionModel::ClearAndSelect);
        QTRY_COMPARE(fields.at(0)->stringValue(), shown.text(1, TrackField::Title));
        press(fields.at(0));
        QCOMPARE(shown.text(0, TrackField::Title), u"Track 12"_s);
        press(comment, Qt::ShiftModifier);
        QCOMPARE(shown.text(0, TrackField::Title), typed);
        press(comment);
        fields.at(1)->setFocus();
        QTest::qWait(0);
        QVERIFY(!shown.window.isWindowModified());
        QVERIFY(comment->toPlainText().startsWith(u"lanterns"));
    }

    void whatAnOpenCellHoldsIsSaved()
    {
        const Folder folder;
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path.path()));
        QTableView &table = shown.window.table();
        table.setCurrentIndex(shown.window.tracks().index(0, int(TrackField::Title)));
        QTest::keyClick(&table, Qt::Key_F2);
        QTest::keyClicks(table.findChild<QLineEdit *>(), u"typed"_s);
        QTest::keyClick(table.findChild<QLineEdit *>(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(folder.written(u"a.mp3"_s, TrackField::Title), u"typed"_s);
        QTest::keyClick(&table, Qt::Key_F2);
        QTest::keyClicks(table.indexWidget(table.currentIndex()), u"lost?"_s);
        int asked = 0;
        shown.window.setDiscardQuestion([&] { return ++asked, false; });
        QTest::keyClick(&shown.window, Qt::Key_F5);
        QVERIFY(!shown.window.close());
        QCOMPARE(asked, 2);
        QCOMPARE(shown.text(0, TrackField::Title), u"lost?"_s);
    }

    void valuesAreFoundReplacedAndEditedApart()
    {
        const Folder folder;
        const QString values = TagValues::text({u"Rock"_s, u"Pop"_s, u"Pop Rock"_s});
        QCOMPARE(
            TagWriter::write(folder.path.filePath(u"a.mp3"_s).toStdString(), {{{TrackField::Genre, values}}})
                .problem,
            QString());
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path.path()));
        QTableView &table = shown.window.table();
        shown.find(u"^(Rock|Pop|Rock.Pop)$"_s, ZEVFindPanelQuery::RegularExpression);
        QTRY_COMPARE(shown.count(), u"2 matches"_s);
        QTest::keyClick(&shown.window, Qt::Key_H, Qt::ControlModifier);
        QTest::keyClicks(shown.bar().replaceTokenField(), u"Indie"_s);
        QTest::mouseClick(button(shown.bar().view(), u"Replace All"_s), Qt::LeftButton);
        const auto genres = [&] { return TagValues::of(shown.text(0, TrackField::Genre)).join(u'|'); };
        QCOMPARE(genres(), u"Indie|Indie|Pop Rock"_s);

        table.setCurrentIndex(shown.window.tracks().index(0, int(TrackField::Genre)));
        TagField *field = shown.window.findChildren<TagField *>().at(5);
        QTRY_COMPARE(field->objectValue().size(), 5); // a token between two values
        field->setFocus();
        QTest::keyClick(field, Qt::Key_End);
        insertToken(field->menu(), u"Next Value"_s);
        QTest::keyClicks(field, u"Folk"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(genres(), u"Indie|Indie|Pop Rock|Folk"_s);
        table.setFocus();
        QTest::keyClick(&table, Qt::Key_F2);
        auto *editor = qobject_cast<QLineEdit *>(table.indexWidget(table.currentIndex()));
        QVERIFY(editor);
        QCOMPARE(editor->text(), u"Indie↵Indie↵Pop Rock↵Folk"_s);
        editor->setText(u"Indie↵Soul"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(genres(), u"Indie|Soul"_s);
        QVERIFY(shown.window.save());
        QCOMPARE(folder.written(u"a.mp3"_s, TrackField::Genre), TagValues::text({u"Indie"_s, u"Soul"_s}));
    }

    void cellsAreEditedInPlace()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.window.table().setCurrentIndex(shown.window.tracks().index(0, int(TrackField::Year)));
        QTest::keyClick(&shown.window.table(), Qt::Key_F2);
        auto *editor = shown.window.table().findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, u"1984"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(shown.text(0, TrackField::Year), u"1984"_s);
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(0, TrackField::Year), u"1998"_s);
    }

private:
    QTemporaryDir m_store;
};

QTEST_MAIN(tst_Finding)
#include "tst_Finding.moc"
