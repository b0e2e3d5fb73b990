// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "Shown.h"

#include <tageditor/find/TagTokens.h>
#include <tageditor/text/AllTagsDialog.h>
#include <tageditor/text/FillTagsDialog.h>
#include <tageditor/text/NumberingDialog.h>
#include <tageditor/text/TransformDialog.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagValues.h>

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// The dialog that a choice of the Text menu has opened, as its user sees it.
struct Dialog {
    Dialog(const Shown &shown, const QString &transform)
    {
        shown.action(transform)->trigger();
        dialog = shown.window.findChild<TransformDialog *>();
        visible = dialog && QTest::qWaitForWindowExposed(dialog);
    }

    QAbstractItemModel &preview() const { return *dialog->findChild<QTableView *>()->model(); }
    QStringList column(int column) const
    {
        QStringList texts;
        for (int row = 0; row < preview().rowCount(); ++row)
            texts.append(preview().index(row, column).data().toString());
        return texts;
    }
    void press(Qt::Key key) const { QTest::keyClick(dialog, key); }

    QPointer<TransformDialog> dialog;
    bool visible = false;
};

QStringList titles(const Shown &shown)
{
    QStringList titles;
    for (int row = 0; row < shown.window.tracks().rowCount(); ++row)
        titles.append(shown.text(row, TrackField::Title));
    return titles;
}

} // namespace

class tst_TextEditing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_store = std::make_unique<QTemporaryDir>();
        useStoreIn(*m_store);
    }

    void withoutAnEditableTextThereIsNothingToChoose()
    {
        const QTemporaryDir folder;
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"a.ogg"_s)));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"b.ogg"_s), 0));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        QAction *action = shown.action(u"Title Case"_s);
        QVERIFY(!action->isEnabled());
        shown.select(0, TrackField::FileName);
        shown.select(1, TrackField::Title); // where the reason stands
        QVERIFY(!action->isEnabled());
        shown.select(0, TrackField::Title);
        QVERIFY(action->isEnabled());
        shown.window.openFolder(folder.path());
        QVERIFY(!action->isEnabled());
    }

    void thePreviewIsWhatIsAppliedInOneStep()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        const QStringList before = titles(shown);
        shown.window.table().setFocus();
        QTest::keyClick(&shown.window.table(), Qt::Key_A, Qt::ControlModifier);
        const Dialog preview(shown, u"Capitalize Words"_s);
        QVERIFY(preview.visible);
        const auto *model =
            qobject_cast<TransformPreviewModel *>(preview.dialog->findChild<QTableView *>()->model());
        QTRY_VERIFY(model->isFinished());
        QVERIFY(preview.column(0).contains(u"Été à la plage"_s));
        QVERIFY(!preview.column(0).contains(u"Track 12"_s)); // does not change
        const QStringList olds = preview.column(0);
        const QStringList news = preview.column(1);
        QCOMPARE(titles(shown), before); // nothing is done yet
        preview.press(Qt::Key_Return);
        QTRY_VERIFY(!preview.dialog);

        const QStringList after = titles(shown);
        for (qsizetype n = 0; n < before.size(); ++n) {
            const qsizetype row = olds.indexOf(before.at(n));
            QCOMPARE(after.at(n), row < 0 ? before.at(n) : news.at(row));
        }
        QVERIFY(after.contains(u"Été À La Plage"_s));
        QCOMPARE(shown.text(0, TrackField::FileName), u"01 Track 12.mp3"_s);
        QVERIFY(shown.action(u"Undo Capitalize Words"_s));
        QVERIFY(shown.window.isWindowModified());
        shown.window.table().sortByColumn(int(TrackField::Title), Qt::DescendingOrder);
        QVERIFY(shown.activate());
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier);
        shown.window.table().sortByColumn(-1, Qt::AscendingOrder);
        QCOMPARE(titles(shown), before);
        QVERIFY(!shown.window.isWindowModified());
        QVERIFY(!shown.action(u"Undo"_s)->isEnabled());
        QTest::keyClick(&shown.window.table(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(titles(shown), after);
    }

    void thePreviewFollowsEveryChoice()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Maree"_s));
        shown.select(0, TrackField::Title);
        const Dialog preview(shown, u"Title Case"_s);
        QVERIFY(preview.visible);
        QTRY_COMPARE(preview.column(1), QStringList{u"Été À la Plage"_s});
        auto *never = preview.dialog->findChild<QLineEdit *>();
        QTest::keyClicks(never, u"x, plage"_s);
        QTRY_COMPARE(preview.column(1), QStringList{u"Été À la plage"_s});
        auto *transform = preview.dialog->findChild<QComboBox *>();
        transform->setFocus();
        QTest::keyClicks(transform, u"Spaces"_s);
        QTRY_COMPARE(preview.column(1), QStringList{u"Été_à_la_plage"_s});
        QVERIFY(!never->isEnabled()); // makes no difference to this one
        preview.press(Qt::Key_Escape);
        QTRY_VERIFY(!preview.dialog);
        QCOMPARE(shown.text(0, TrackField::Title), u"Été à la plage"_s);
        QVERIFY(!shown.window.isWindowModified());
        QVERIFY(!shown.action(u"Undo"_s)->isEnabled());
        const Dialog again(shown, u"Title Case"_s); // what was cancelled is not remembered
        QCOMPARE(again.dialog->findChild<QLineEdit *>()->text(), QString());
    }

    void everyValueIsATextOfItsOwn()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Maree"_s));
        auto &tracks = const_cast<TrackTableModel &>(shown.window.tracks());
        tracks.setTexts({{tracks.track(0).id, TrackField::Artist, TagValues::text({u"_a_b"_s, u" c"_s})}});
        shown.select(0, TrackField::Artist);
        const Dialog preview(shown, u"Trim Spaces"_s);
        preview.press(Qt::Key_Return);
        QTRY_COMPARE(shown.text(0, TrackField::Artist), TagValues::text({u"_a_b"_s, u"c"_s}));
    }

    void cellsAreCopiedAndPastedAsATable()
    {
        const QString several = TagValues::text({u"a ↵ b"_s, u"c\td \"e\""_s});
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s));
        auto &tracks = const_cast<TrackTableModel &>(shown.window.tracks());
        tracks.setTexts({{tracks.track(0).id, TrackField::Title, several}});
        shown.window.table().horizontalHeader()->moveSection(int(TrackField::Artist), int(TrackField::Title));
        const auto press = [&](QKeySequence::StandardKey key) {
            QTest::keySequence(&shown.window.table(), key);
        };
        const auto selectOnly = [&](int row, TrackField field) {
            shown.select(row, field, QItemSelectionModel::ClearAndSelect);
        };
        selectOnly(0, TrackField::Title);
        shown.select(0, TrackField::Artist);
        shown.select(1, TrackField::Artist);
        press(QKeySequence::Cut);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 u"The Paper Lanterns\t\"a ↵ b↵c\td \"\"e\"\"\"\nThe Paper Lanterns\t\n"_s);
        QCOMPARE(shown.text(0, TrackField::Title) + shown.text(1, TrackField::Artist), QString());
        selectOnly(1, TrackField::Artist);
        press(QKeySequence::Paste);
        QCOMPARE(shown.text(1, TrackField::Title), several);
        QCOMPARE(shown.text(2, TrackField::Artist), u"The Paper Lanterns"_s);
        QGuiApplication::clipboard()->setText(u"1\t\"2\n3\"\r\n4"_s); // from a spreadsheet
        selectOnly(0, TrackField::Artist);
        press(QKeySequence::Paste);
        QCOMPARE(shown.text(0, TrackField::Artist) + shown.text(0, TrackField::Title), u"12\n3"_s);
        QCOMPARE(shown.text(1, TrackField::Artist) + shown.text(1, TrackField::Title), u"4"_s + several);
        QGuiApplication::clipboard()->setText(u"one"_s); // into every selected cell
        shown.select(2, TrackField::Comment);
        press(QKeySequence::Paste);
        QCOMPARE(shown.text(0, TrackField::Artist) + shown.text(2, TrackField::Comment), u"oneone"_s);
        press(QKeySequence::Delete);
        QCOMPARE(shown.text(0, TrackField::Artist) + shown.text(2, TrackField::Comment), QString());
        for (int step = 0; step < 5; ++step)
            press(QKeySequence::Undo);
        QCOMPARE(shown.text(0, TrackField::Title), several);
        QCOMPARE(shown.text(1, TrackField::Artist), u"The Paper Lanterns"_s);
    }

    void textsAreTakenApartByAPattern()
    {
        const std::tuple<QString, QString, QString> rows[] = {
            {u"%track% - %title%"_s, u"07 - A - B"_s, u"Track=07|Title=A - B"_s},
            {u"%artist% - %title%"_s, u"A - B - C"_s, u"Artist=A|Title=B - C"_s},
            {u"%track%.%title%"_s, u"1. (Live) [x]"_s, u"Track=1|Title=(Live) [x]"_s},
            {u"%artist%/%track% %title%"_s, u"K/01 夜の電車"_s, u"Artist=K|Track=01|Title=夜の電車"_s},
            {u"%track% - %title%"_s, u"A1 - B"_s, {}},
            {u"%title%"_s, u"a/b"_s, {}},
            {QString(), u"a"_s, QString()},
        };
        ZEVPatternTokens tokens({TagTokens::captureTokens(u"/"_s)});
        ZEVTokenField field;
        field.setLossless(true);
        field.setDelegate(&tokens);
        for (const auto &[pattern, text, expected] : rows) {
            TagCapture capture(field.conversionPatternForPatternString(pattern));
            QStringList texts;
            for (const auto &[tag, captured] : capture.captured(text).value_or(TagCapture::Captured()))
                texts.append(TrackTableModel::titleForField(tag) + u'=' + captured);
            COMPARE_ROW(pattern + text, texts.join(u'|'), expected);
        }
    }

    void tagsAreFilledFromNamesAndNumbered()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.window.table().selectAll();
        shown.action(u"Fill Tags"_s)->trigger();
        QPointer fill = shown.window.findChild<FillTagsDialog *>();
        auto *pattern = fill->findChild<ZEVTokenField *>();
        pattern->setPatternStringValue(u"%album%/%track% %title%"_s);
        const QAbstractItemModel &preview = *fill->findChild<QTableView *>()->model();
        QCOMPARE(preview.index(0, 0).data().toString(), u"Harbour/01 Track 12"_s);
        QCOMPARE(preview.index(0, 1).data().toString(),
                 u"Album: Harbour  ·  Track: 01  ·  Title: Track 12"_s);
        QTest::keyClick(fill, Qt::Key_Return);
        QTRY_VERIFY(!fill);
        QCOMPARE(shown.text(1, TrackField::Album) + shown.text(1, TrackField::Number), u"Harbour02"_s);
        QCOMPARE(shown.text(3, TrackField::Title), u"Interlude"_s); // fits no pattern
        shown.action(u"Number Tracks"_s)->trigger();
        QPointer numbers = shown.window.findChild<NumberingDialog *>();
        QTest::keyClick(numbers, Qt::Key_Return);
        QTRY_VERIFY(!numbers);
        const auto number = [&](int row) {
            return shown.text(row, TrackField::Number) + u'/' + shown.text(row, TrackField::TrackTotal);
        };
        QCOMPARE(number(0) + u' ' + number(2) + u' ' + number(5),
                 u"1/3 3/3 2/2"_s); // three in the first folder
        shown.action(u"Undo Number"_s)->trigger();
        QCOMPARE(number(1), u"02/"_s);
        shown.action(u"Fill Tags"_s)->trigger(); // from one tag to another, with the last pattern at first
        fill = shown.window.findChild<FillTagsDialog *>();
        pattern = fill->findChild<ZEVTokenField *>();
        QCOMPARE(pattern->patternStringValue(), u"%album%/%track% %title%"_s);
        fill->findChild<QComboBox *>()->setCurrentText(u"Album"_s);
        pattern->setPatternStringValue(u"%albumartist%"_s);
        QTest::keyClick(fill, Qt::Key_Return);
        QTRY_COMPARE(shown.text(0, TrackField::AlbumArtist), u"Harbour"_s);
    }

    void allTagsAreChangedAndAddedInOneStep()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.flac"_s);
        QVERIFY(Samples::copy(u"Maree/05 Fenetre.flac"_s, path));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        const auto open = [&] {
            shown.select(0, TrackField::Title);
            shown.action(u"All Tags"_s)->trigger();
            return shown.window.findChild<AllTagsDialog *>();
        };
        const auto table = [](const QDialog *dialog) { return dialog->findChild<QTableWidget *>(); };
        QPointer dialog = open();
        dialog->addTag(u"MOOD"_s);
        table(dialog)->item(table(dialog)->rowCount() - 1, 1)->setText(u"calm↵slow"_s);
        table(dialog)->item(0, 1)->setText(u"changed"_s);
        dialog->accept();
        QTRY_VERIFY(!dialog);
        QVERIFY(shown.window.isWindowModified());
        QCOMPARE(shown.text(0, TrackField::Title), u"changed"_s);
        QVERIFY(shown.window.save());
        const auto mood = [&] { return TagReader::readOthers(path.toStdString()).value(u"MOOD"_s); };
        QCOMPARE(mood(), TagValues::text({u"calm"_s, u"slow"_s}));
        shown.action(u"Undo All Tags"_s)->trigger();
        QCOMPARE(shown.text(0, TrackField::Title), u"La fenêtre d’Édouard"_s);
        QVERIFY(shown.window.isWindowModified());
        QVERIFY(shown.window.save());
        QCOMPARE(mood(), QString());
        QVERIFY(!shown.window.isWindowModified());
    }

    void languageAndSpellingsAreRemembered()
    {
        const auto languageOf = [](const Dialog &dialog) {
            return dialog.dialog->findChildren<QComboBox *>().at(1);
        };
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.select(3, TrackField::Title);
        QCOMPARE(shown.text(3, TrackField::Title), u"Interlude"_s);
        const Dialog first(shown, u"camelCase"_s);
        languageOf(first)->setCurrentText(u"Turkish"_s);
        QTest::keyClicks(first.dialog->findChild<QLineEdit *>(), u"k.d. lang"_s);
        first.press(Qt::Key_Return);
        QTRY_VERIFY(!first.dialog);
        QCOMPARE(shown.text(3, TrackField::Title), u"ınterlude"_s);
        const Dialog second(shown, u"Capitalize"_s);
        QCOMPARE(languageOf(second)->currentText(), u"Turkish"_s);
        QCOMPARE(second.dialog->findChild<QLineEdit *>()->text(), u"k.d. lang"_s);
        second.press(Qt::Key_Escape);
    }

    void whatChangesNothingIsNoStep()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        shown.select(0, TrackField::Artist);
        const Dialog preview(shown, u"Trim Spaces"_s);
        preview.press(Qt::Key_Return);
        QTRY_VERIFY(!preview.dialog);
        QCOMPARE(shown.window.statusBar()->currentMessage(), u"Trim Spaces: nothing to change"_s);
        QVERIFY(!shown.action(u"Undo"_s)->isEnabled());
        QVERIFY(!shown.window.isWindowModified());
    }

    void applyingDoesNotWaitForThePreview()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder() + u"/Maree"_s));
        shown.select(0, TrackField::Title);
        const Dialog preview(shown, u"Spaces to"_s);
        QTest::keyClicks(preview.dialog->findChild<QComboBox *>(), u"camel"_s);
        preview.press(Qt::Key_Return); // at once
        QCOMPARE(shown.text(0, TrackField::Title), u"étéÀLaPlage"_s);
    }

    void rowsAndColumnsAreSelectedByKeys()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        QTableView &table = shown.window.table();
        table.setCurrentIndex(shown.window.tracks().index(2, 1));
        QCOMPARE(table.selectionModel()->selectedIndexes().size(), 1);
        QTest::keyClick(&table, Qt::Key_Space, Qt::ShiftModifier);
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
        table.setCurrentIndex(shown.window.tracks().index(2, 1));
        QTest::keyClick(&table, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(table.selectionModel()->selectedColumns().size(), 1);
        shown.find({});
        QTest::keyClick(shown.bar().findTokenField(), Qt::Key_Space, Qt::ShiftModifier);
        QTest::keyClicks(shown.bar().findTokenField(), u"a"_s);
        QCOMPARE(shown.bar().findTokenField()->patternStringValue(),
                 u" a"_s); // elsewhere the keys are what they were
    }

    void changedTextsAreNotLostUnasked()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        int asked = 0;
        bool answer = false;
        shown.window.setDiscardQuestion([&] { return ++asked, answer; });
        shown.select(4, TrackField::Title);
        const Dialog preview(shown, u"Capitalize"_s);
        preview.press(Qt::Key_Return);
        QVERIFY(!shown.window.close());
        QVERIFY(shown.window.isVisible());
        shown.window.openFolder(Samples::folder() + u"/Sever"_s);
        QCOMPARE(asked, 2);
        QCOMPARE(shown.window.folder(), Samples::folder());
        QCOMPARE(shown.text(4, TrackField::Title), u"Été À La Plage"_s);

        answer = true;
        QVERIFY(shown.open(Samples::folder() + u"/Sever"_s));
        QCOMPARE(asked, 3);
        QVERIFY(!shown.window.isWindowModified());
        QVERIFY(!shown.action(u"Undo"_s)->isEnabled());
        QVERIFY(shown.window.close()); // nothing to lose any more
        QCOMPARE(asked, 3);
    }

    void theTitleMarksChangesWhateverTheFolderIsNamed()
    {
        const QTemporaryDir folder;
        const QString odd = folder.filePath(u"a[*]b"_s);
        QVERIFY(QDir().mkdir(odd));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, odd + u"/a.ogg"_s));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(odd));
        const auto title = [&shown] { return shown.window.windowHandle()->title(); };
        QVERIFY(title().startsWith(u"a[*]b"));
        QVERIFY(!title().startsWith(u"a[*]b*"));
        shown.select(0, TrackField::Title);
        const Dialog preview(shown, u"camelCase"_s);
        preview.press(Qt::Key_Return);
        QVERIFY(title().startsWith(u"a[*]b*"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_store;
};

QTEST_MAIN(tst_TextEditing)
#include "tst_TextEditing.moc"
