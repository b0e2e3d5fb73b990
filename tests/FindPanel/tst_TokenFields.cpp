// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "Fields.h"

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

using namespace Qt::StringLiterals;

namespace {

constexpr bool Lossless = true;

QStringList titles(const QMenu &menu)
{
    QStringList titles;
    for (const QAction *item : menu.actions())
        titles << (item->isSeparator() ? u"-"_s : item->text().trimmed())
                + (item->isChecked() ? u"*"_s : u""_s) + (item->isEnabled() ? u""_s : u"!"_s);
    return titles;
}

} // namespace

class tst_TokenFields : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ZEVUserDefaults::setStandardStore(
            std::make_unique<QSettings>(m_folder.filePath(u"defaults.ini"_s), QSettings::IniFormat));
    }
    void cleanup() { QFile::remove(m_folder.filePath(u"defaults.ini"_s)); }

    void convertsPatternStrings_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("asDescribed");
        QTest::addColumn<QString>("lossless");
        QTest::newRow("nothing") << u""_s << u""_s << u""_s;
        QTest::newRow("text") << u"Ünï 漢"_s << u"Ünï 漢"_s << u"Ünï 漢"_s;
        QTest::newRow("token between texts") << u"a%Title%b"_s << u"a<Title>b"_s << u"a<Title>b"_s;
        QTest::newRow("neighbours") << u"%Title%%Artist%"_s << u"<Title><Artist>"_s << u"<Title><Artist>"_s;
        QTest::newRow("escape alone") << u"%%"_s << u""_s << u"%"_s;
        QTest::newRow("text before a last escape") << u"50%% off"_s << u" off"_s << u"50% off"_s;
        QTest::newRow("escape at the end") << u"100%%"_s << u""_s << u"100%"_s;
        QTest::newRow("escape before a token") << u"%%x%Title%"_s << u"%x<Title>"_s << u"%x<Title>"_s;
        QTest::newRow("unknown token") << u"a%Year%b"_s << u"a|b"_s << u"a%Year%b"_s;
        QTest::newRow("unbalanced") << u"a%Title"_s << u"a%Title"_s << u"a%Title"_s;
        QTest::newRow("unbalanced behind a token")
            << u"%Title%100%"_s << u"<Title>100%"_s << u"<Title>100%"_s;
        QTest::newRow("no token over a line") << u"%Ti\ntle%"_s << u"%Ti\ntle%"_s << u"%Ti\ntle%"_s;
        QTest::newRow("carriage return ends no line") << u"%Ti\rtle%"_s << u""_s << u"%Ti\rtle%"_s;
    }
    void convertsPatternStrings()
    {
        QFETCH(QString, text);
        Field field(!Lossless);
        QTEST(shown(field.field.conversionPatternForPatternString(text)), "asDescribed");
        field.field.setLossless(true);
        QTEST(shown(field.field.conversionPatternForPatternString(text)), "lossless");
    }

    void writesPatternStrings()
    {
        Field field;
        const auto written = [&](const QVariantList &pattern) {
            return field.field.patternStringForConversionPattern(pattern);
        };
        COMPARE_ROW("tokens and percent signs", written(pattern(u"100% <Title>-<Artist>"_s)),
                    u"100%% %Title%-%Artist%"_s);
        COMPARE_ROW("neither text nor known", written({1, u"a"_s, QVariant::fromValue(ZEVPatternItem())}),
                    u"a"_s);
        const QSignalSpy changes(&field.field, &ZEVTokenField::patternStringValueChanged);
        field.type(u"ab"_s);
        QCOMPARE(changes.size(), 2); // each key press
        field.field.setPatternStringValue(u"ab"_s);
        QCOMPARE(changes.size(), 2);
    }

    void insertsTokens_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<ZEVRange>("selection");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("lossless");
        QTest::addColumn<int>("caret");
        const auto row = [](const char *name, const QString &before, ZEVRange selection, const QString &after,
                            int caret, const QString &lossless = {}) {
            QTest::newRow(name) << before << selection << after << (lossless.isNull() ? after : lossless)
                                << caret;
        };
        row("into nothing", u""_s, {0, 0}, u"<Artist>"_s, 1);
        row("between characters", u"ab"_s, {1, 0}, u"a<Artist>b"_s, 2);
        row("over text and a token", u"ab<Title>cd"_s, {1, 3}, u"a<Artist>d"_s, 2);
        row("behind text that is a token's", u"Title"_s, {5, 0}, u"<Title><Artist>"_s, 2);
        row("before text that is a token's", u"Title"_s, {0, 0}, u"<Artist><Title>"_s, 1);
        row("between two such texts", u"TitleArtist"_s, {5, 0}, u"<Title><Artist><Artist>"_s, 2);
        row("beside other scripts", u"漢é"_s, {2, 0}, u"\"é<Artist>"_s, 3, u"漢é<Artist>"_s);
    }
    void insertsTokens()
    {
        QFETCH(QString, before);
        QFETCH(ZEVRange, selection);
        for (const bool lossless : {false, true}) {
            Field field(lossless);
            field.field.setObjectValue(pattern(before));
            field.field.setSelectedRange(selection);
            field.field.insertToken(QVariant::fromValue(item(u"Artist"_s)));
            QTEST(field.shownValue(), lossless ? "lossless" : "after");
            QTEST(int(field.field.selectedRange().location), "caret");
            field.field.undo();
            QCOMPARE(field.shownValue(), before);
        }
    }

    void editsTokensAsCharacters()
    {
        Field field;
        field.field.setObjectValue(pattern(u"ab<Title><Title>c"_s));
        field.press(Qt::Key_Home);
        for (int i = 0; i < 3; ++i)
            field.press(Qt::Key_Right);
        field.press(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(field.field.selectedRange(), (ZEVRange{3, 1}));
        field.press(Qt::Key_Backspace);
        QCOMPARE(field.shownValue(), u"ab<Title>c"_s);
        field.press(Qt::Key_Backspace);
        QCOMPARE(field.shownValue(), u"abc"_s);
        field.press(Qt::Key_Z, Qt::ControlModifier);
        field.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"ab<Title><Title>c"_s);
        field.field.setSelectedRange({4, 0});
        field.type(u"x"_s); // text behind a token is text, and no part of it
        QCOMPARE(field.shownValue(), u"ab<Title><Title>xc"_s);
        QList<qsizetype> stops;
        field.press(Qt::Key_Home);
        for (int i = 0; i < 4; ++i) {
            field.press(Qt::Key_Right, Qt::ControlModifier);
            stops << field.field.textCursor().position();
        }
        for (int i = 0; i < 2; ++i) {
            field.press(Qt::Key_Left, Qt::ControlModifier);
            stops << field.field.textCursor().position();
        }
        QCOMPARE(stops, QList<qsizetype>({2, 3, 4, 6, 4, 3}));
        field.press(Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"ab<Title>xc"_s);
    }

    void undoesOnlyWhatTheUserDid()
    {
        ZEVUserDefaults::standardUserDefaults()->setObject(u"%Title% b"_s, u"Find"_s);
        Field field;
        field.field.setAutosaveName(u"Find"_s);
        field.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"<Title> b"_s);
        field.field.setObjectValue(pattern(u"c"_s));
        field.type(u"d"_s);
        field.press(Qt::Key_Z, Qt::ControlModifier);
        field.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"c"_s);
        field.field.setObjectValue(pattern(u"e"_s), ZEVValueStep::User);
        field.field.clear();
        field.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"e"_s);
        field.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"c"_s);
    }

    void staysAsItIsWhenReadOnly()
    {
        Field field;
        field.field.setPatterns({u"a"_s, u"b"_s});
        field.field.setPatternStringValue(u"b"_s);
        field.field.menuNeedsUpdate(field.field.dropDownMenu());
        const QList<QAction *> items = field.field.dropDownMenu()->actions();
        field.field.setReadOnly(true);
        for (QAction *item : items)
            item->trigger();
        field.field.clear();
        field.field.removePattern();
        field.field.insertToken(QVariant::fromValue(item(u"Title"_s)));
        field.field.undo();
        QCOMPARE(field.shownValue(), u"b"_s);
        field.field.menuNeedsUpdate(field.field.dropDownMenu());
        QCOMPARE(titles(*field.field.dropDownMenu()).first(), u"Insert Pattern!"_s);
        QVERIFY(titles(*field.field.dropDownMenu()).contains(u"a!"_s));
    }

    void keepsLineBreaks()
    {
        Field field;
        field.field.setObjectValue(pattern(u"a\nb\r\n<Title>\n"_s));
        QCOMPARE(field.field.document()->blockCount(), 1);
        field.press(Qt::Key_Home);
        field.type(u"x"_s);
        field.press(Qt::Key_End);
        field.type(u"y"_s);
        QCOMPARE(field.shownValue(), u"xa\nb\r\n<Title>\ny"_s);
        field.field.selectAll();
        field.press(Qt::Key_X, Qt::ControlModifier);
        field.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"xa\nb\r\n<Title>\ny"_s);
    }

    void tellsOfWhatOnlySeemsEqual()
    {
        Field field;
        const QSignalSpy changes(&field.field, &OEXTokenField::objectValueChanged);
        ZEVPatternItem one = item(u"Title"_s);
        int told = 0;
        const auto set = [&] { field.field.setObjectValue({QVariant::fromValue(one)}); };
        const std::function<void()> steps[] = {
            [] {}, [&] { one.setEditingString(u"other"_s); }, [&] { one.setValueTransformerName(u"T"_s); },
            [&] { one.setTokenTitle(u"Title"_s), one.setTitle(u"Long title"_s); }};
        for (const auto &step : steps) {
            step();
            set();
            set();
            QCOMPARE(changes.size(), ++told);
            const auto held = field.field.objectValue().first().value<ZEVPatternItem>();
            QVERIFY(held.editingString() == one.editingString());
            QVERIFY(held.title() == one.title());
            QVERIFY(held.valueTransformerName() == one.valueTransformerName());
        }
        field.field.setObjectValue(field.field.objectValue());
        QCOMPARE(changes.size(), told);
        QStringList values;
        connect(&field.field, &OEXTokenField::objectValueChanged, this,
                [&] { values << field.shownValue(); });
        QInputMethodEvent committing;
        committing.setCommitString(u"a\nb"_s);
        QCoreApplication::sendEvent(&field.field, &committing);
        QCOMPARE(values, QStringList(u"<Long title>a b"_s));
    }

    void selectsOnTheFirstFocus()
    {
        for (const bool selects : {true, false}) {
            QWidget window, other;
            ZEVTokenField field(&window);
            field.setSelectsTextWhenFocused(selects);
            field.setPatternStringValue(u"abc"_s);
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QVERIFY(field.hasFocus());
            QCOMPARE(field.selectedRange(), (selects ? ZEVRange{0, 3} : ZEVRange{3, 0}));
            field.setSelectedRange({1, 0});
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QCOMPARE(field.selectedRange(), (ZEVRange{1, 0})); // it comes back
        }
    }

    void opensMenusAtItsBeginning()
    {
        Field field;
        field.window.move(300, 50);
        QMenu tokens;
        tokens.addAction(u"Token"_s);
        field.field.setMenu(&tokens);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            const auto distance = [&](void (ZEVTokenField::*open)(), const QMenu *menu, int place) {
                (field.field.*open)();
                const bool isLeft = direction == Qt::LeftToRight;
                const int end = isLeft ? menu->geometry().left() : menu->geometry().right();
                const int asked = field.field.mapToGlobal(QPoint(place, 0)).x();
                const_cast<QMenu *>(menu)->close();
                return qAbs(end - asked);
            };
            const int begin = direction == Qt::LeftToRight ? 0 : field.field.width();
            QVERIFY(distance(&ZEVTokenField::popUpRecentsMenu, field.field.dropDownMenu(), begin) <= 1);
            QVERIFY(distance(&ZEVTokenField::moveDown, field.field.patternsMenu(), begin) <= 1);
            const QPoint caret =
                field.field.viewport()->mapTo(&field.field, field.field.cursorRect().topLeft());
            QVERIFY(distance(&ZEVTokenField::popUpMenu, &tokens, caret.x()) <= 1);
        }
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void savesBlanks()
    {
        Field field;
        field.field.setPatternStringValue(u"  "_s);
        field.field.savePattern();
        QCOMPARE(field.field.patterns(), QStringList(u"  "_s));
        field.field.menuNeedsUpdate(field.field.patternsMenu());
        QCOMPARE(titles(*field.field.patternsMenu()),
                 QStringList({u"␣␣*"_s, u"-"_s, u"Remove From Saved"_s}));
    }

    void selectsTheTokenThatIsClicked()
    {
        Field field;
        field.field.setObjectValue(pattern(u"ab<Title>cd<Artist>"_s));
        QTest::mouseClick(field.field.viewport(), Qt::LeftButton, {}, field.centreOf(2));
        QCOMPARE(field.field.selectedRange(), (ZEVRange{2, 1}));
        field.field.selectAll();
        QTest::mouseClick(field.field.viewport(), Qt::LeftButton, {}, field.centreOf(5));
        QCOMPARE(field.field.selectedRange(), (ZEVRange{5, 1}));
        if (QGuiApplication::clipboard()->supportsSelection())
            QCOMPARE(QGuiApplication::clipboard()->text(QClipboard::Selection), u"Artist"_s);
        QTest::mouseClick(field.field.viewport(), Qt::LeftButton, {}, field.centreOf(3));
        QCOMPARE(field.field.selectedRange().length, 0);
        for (const auto &[index, range] :
             {std::pair(0, ZEVRange{0, 2}), {4, {3, 2}}, {2, {2, 1}}}) { // a word ends where a token is
            QTest::mouseDClick(field.field.viewport(), Qt::LeftButton, {}, field.centreOf(index));
            QCOMPARE(field.field.selectedRange(), range);
        }
    }

    void makesTokensOfTypedEditingStrings_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("value");
        QTest::newRow("between percent signs") << u"a %Title% b"_s << u"a <Title> b"_s;
        QTest::newRow("without the first") << u"Artist%"_s << u"<Artist>"_s;
        QTest::newRow("behind a token") << u"%Title%Artist%"_s << u"<Title><Artist>"_s;
        QTest::newRow("percents") << u"100% of 5%"_s << u"100% of 5%"_s;
    }
    void makesTokensOfTypedEditingStrings()
    {
        QFETCH(QString, typed);
        Field field;
        field.type(typed);
        QTEST(field.shownValue(), "value");
    }

    void keepsTokensOnTheClipboard()
    {
        Field field;
        QClipboard *clipboard = QGuiApplication::clipboard();
        ZEVPatternItem placeholder = item(u"Title"_s);
        placeholder.setMetadataKeyPath(u"tags.title"_s);
        field.tokens.setGroups({{placeholder}, {item(u"Artist"_s)}});
        field.field.setObjectValue({u"before"_s, QVariant::fromValue(placeholder), u"after"_s});
        field.field.selectAll();
        field.press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), QString());
        QCOMPARE(clipboard->text(), u"before%Title%after"_s);

        // Another process has only the bytes, in which an item loses its key path.
        auto *foreign = new QMimeData;
        for (const QString &format : clipboard->mimeData()->formats())
            foreign->setData(format, clipboard->mimeData()->data(format));
        field.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"before<Title>after"_s);
        clipboard->setMimeData(foreign);
        field.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(field.shownValue(), u"before<Title>afterbefore<Title>after"_s);
        QCOMPARE(field.field.objectValue().at(3).value<ZEVPatternItem>().metadataKeyPath(), u"tags.title"_s);
        QCOMPARE(field.field.textCursor().position(), 24);

        field.other.selectAll();
        field.other.paste();
        QCOMPARE(field.other.text(), u"before%Title%after"_s);
    }

    void takesWhateverIsPasted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("tokens");
        QTest::addColumn<QString>("value");
        const QByteArray none;
        QTest::newRow("line breaks") << u"a\r\nb\nc\u2029d"_s << none << u"a b c d"_s;
        QTest::newRow("tokens as text") << u"a%Title%b"_s << none << u"a<Title>b"_s;
        QTest::newRow("percent signs") << u"100% of 50%"_s << none << u"100% of 50%"_s;
        QTest::newRow("no escape") << u"50%%"_s << none << u"50%%"_s;
        QTest::newRow("escape in a pattern") << u"50%% %Title%"_s << none << u"50% <Title>"_s;
        QTest::newRow("no-break space") << u"a\u00a0b"_s << none << u"a\u00a0b"_s;
        QTest::newRow("damaged tokens") << u"text"_s << QByteArray("\xd9\xff\x00", 3) << u"text"_s;
    }
    void takesWhateverIsPasted()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, tokens);
        Field field;
        auto *data = new QMimeData;
        data->setText(text);
        if (!tokens.isNull())
            data->setData(u"application/x-zevglobalutils-tokens"_s, tokens);
        QGuiApplication::clipboard()->setMimeData(data);
        field.press(Qt::Key_V, Qt::ControlModifier);
        QTEST(field.shownValue(), "value");
        field.field.setReadOnly(true);
        field.field.paste();
        QTEST(field.shownValue(), "value");
    }

    void holdsAMegabyte()
    {
        Field field;
        const QString text = u"Ünï%"_s.repeated(256 * 1024);
        QGuiApplication::clipboard()->setText(text);
        field.field.paste();
        QCOMPARE(field.field.objectValue(), QVariantList{text});
        QCOMPARE(field.field.conversionPatternForPatternString(field.field.patternStringValue()),
                 QVariantList{text});
    }

    void obeysKeys()
    {
        Field field;
        const QSignalSpy actions(&field.field, &OEXTokenField::actionTriggered);
        field.type(u"a"_s);
        field.press(Qt::Key_Return);
        field.press(Qt::Key_Enter);
        QCOMPARE(actions.size(), 2);
        QCOMPARE(field.shownValue(), u"a"_s);
        field.field.clear();
        QCOMPARE(actions.size(), 3);
        QCOMPARE(field.shownValue(), QString());

        QMenu tokens;
        tokens.addAction(u"Token"_s);
        field.field.setMenu(&tokens);
        const auto opens = [&](QMenu *menu, Qt::Key key, Qt::KeyboardModifiers modifiers) {
            field.press(key, modifiers);
            const bool opened = menu->isVisible();
            menu->close();
            return opened;
        };
        const auto command = Qt::ControlModifier;
        QVERIFY(opens(&tokens, Qt::Key_Plus, command));
        QVERIFY(opens(&tokens, Qt::Key_Equal, command));
        QVERIFY(opens(&tokens, Qt::Key_P, command | Qt::AltModifier | Qt::MetaModifier));
        QVERIFY(opens(&tokens, Qt::Key_Plus, command | Qt::ShiftModifier)); // as on many keyboards
        QVERIFY(!opens(&tokens, Qt::Key_Plus, command | Qt::AltModifier));
        QVERIFY(opens(field.field.patternsMenu(), Qt::Key_Down, {}));
        field.press(Qt::Key_Tab);
        QVERIFY(field.other.hasFocus());
    }

    void remembersPatterns()
    {
        {
            Field field;
            field.field.setAutosaveName(u"Find"_s);
            field.field.setObjectValue(pattern(u" <Title> "_s));
            field.field.savePattern();
            field.field.setObjectValue(pattern(u"b"_s));
            field.field.savePattern();
            field.field.setObjectValue(pattern(u"<Title>"_s));
            field.field.savePattern();
            QCOMPARE(field.field.patterns(), QStringList({u"b"_s, u"%Title%"_s}));
            field.field.setObjectValue(pattern(u"left"_s));
            field.other.setFocus();
            field.field.setObjectValue(pattern(u"closed"_s));
            field.window.close();
        }
        Field field;
        field.field.setAutosaveName(u"Find"_s);
        QCOMPARE(field.shownValue(), u"closed"_s);
        QCOMPARE(field.field.patterns(), QStringList({u"b"_s, u"%Title%"_s}));
        field.field.setPatternStringValue(u"%Title%"_s);
        field.field.removePattern();
        QCOMPARE(field.field.objectValue(), QVariantList{u"b"_s});
        field.field.setAutosaveName({});
        field.field.setObjectValue(pattern(u"nowhere"_s));
        field.field.saveDefaults();
        QCOMPARE(ZEVUserDefaults::standardUserDefaults()->objectForKey(u"Find"_s), QVariant(u"b"_s));
    }

    void survivesForeignDefaults()
    {
        ZEVUserDefaults::standardUserDefaults()->setObject(QVariantList{1, 2}, u"Find"_s);
        ZEVUserDefaults::standardUserDefaults()->setObject(u"text"_s, u"Find.recentPatterns"_s);
        Field field;
        field.type(u"x"_s);
        field.field.setAutosaveName(u"Find"_s);
        QCOMPARE(field.shownValue(), QString());
        QCOMPARE(field.field.patterns(), QStringList());
    }

    void buildsItsMenus()
    {
        Field field;
        const QMenu &menu = *field.field.dropDownMenu();
        const auto shownTitles = [&] {
            field.field.menuNeedsUpdate(field.field.dropDownMenu());
            return titles(menu);
        };
        QCOMPARE(shownTitles(), QStringList({u"Insert Pattern"_s, u"-"_s, u"Save Current!"_s}));
        field.field.setPatterns({u"a%Title%"_s, u"%Year%"_s, u"b"_s, u"b"_s});
        field.field.setLossless(false); // the unknown token alone makes no item
        field.field.setPatternStringValue(u"b"_s);
        QCOMPARE(shownTitles(),
                 QStringList({u"Insert Pattern"_s, u"-"_s, u"Saved Patterns!"_s, u"a  Title"_s, u"b*"_s,
                              u"-"_s, u"Remove From Saved"_s}));
        QAction *first = menu.actions().at(3);
        QCOMPARE(ZEVMenuItem::indentationLevel(first), 1);
        first->trigger();
        QCOMPARE(field.shownValue(), u"a<Title>"_s);
        QCOMPARE(field.field.selectedRange(), (ZEVRange{2, 0}));
        field.type(u"x"_s);
        QCOMPARE(shownTitles().last(), u"Save Current"_s);
        menu.actions().last()->trigger();
        QCOMPARE(field.field.patterns().last(), u"a%Title%x"_s);
    }

    void survivesItsDelegates()
    {
        Field field;
        auto tokens = std::make_unique<ZEVPatternTokens>(field.tokens.groups());
        field.field.setDelegate(tokens.get());
        field.field.setObjectValue(pattern(u"a<Title>"_s));
        tokens.reset();
        field.type(u"b"_s);
        QCOMPARE(field.shownValue(), u"a<Title>b"_s);
        QCOMPARE(field.field.patternStringValue(), u"ab"_s);
        field.field.selectAll();
        field.field.cut();
        field.field.paste();
        QCOMPARE(field.shownValue(), u"a<Title>b"_s);
        field.field.setDelegate(nullptr);
        field.field.grab();
    }

    void tellsItsBackdrop()
    {
        ZEVTextFinderFakeCellView backdrop;
        Field field;
        auto cell = std::make_unique<ZEVFocusTokenFieldCell>();
        cell->setFakeCellView(&backdrop);
        field.field.setCell(std::move(cell));
        field.other.setFocus();
        QVERIFY(!backdrop.focused());
        field.field.setFocus();
        QVERIFY(backdrop.focused());
        field.other.setFocus();
        QVERIFY(!backdrop.focused());
        field.field.setObjectValue(pattern(u"<Title>"_s));
        QVERIFY(backdrop.focused());
        QCOMPARE(field.field.textStorage()->delegate(), nullptr);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_TokenFields)
#include "tst_TokenFields.moc"
