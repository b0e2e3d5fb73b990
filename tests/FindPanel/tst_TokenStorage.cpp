// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Fields.h"

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorageDelegate.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

#include <QAccessible>

namespace {

/// Notes what it is asked and what has been reported by then.
struct Listener : OEXTokenTextStorageDelegate {
    void updateTokenAttachment(OEXTokenTextStorage *storage, ZEVTextAttachment *attachment,
                               ZEVRange range) override
    {
        calls << u"%1 at %2+%3 of %4, %5 edits"_s.arg(attachment->contents().toString())
                     .arg(range.location)
                     .arg(range.length)
                     .arg(storage->length())
                     .arg(edits);
    }

    QStringList calls;
    int edits = 0;
};

ZEVAttributedString attachmentText(const QVariant &contents)
{
    return ZEVTextAttachments::attributedStringWithAttachment(std::make_shared<ZEVTextAttachment>(contents));
}

ZEVAttributedString operator+(ZEVAttributedString a, const ZEVAttributedString &b)
{
    a.append(b);
    return a;
}

ZEVAttributedString text(const QString &string) { return ZEVAttributedString(string); }

/// Gives every object a cell of its own class.
struct CellDelegate : QObject, OEXTokenFieldCellDelegate {
    std::unique_ptr<ZEVTextAttachmentCell> attachmentCellForRepresentedObject(const OEXTokenFieldCell *,
                                                                              const QVariant &) const override
    {
        ++asked;
        return givesCells ? std::make_unique<ZEVTextAttachmentCell>() : nullptr;
    }
    std::optional<QString> displayStringForRepresentedObject(const OEXTokenFieldCell *,
                                                             const QVariant &object) const override
    {
        return u"shown "_s + object.toString();
    }

    bool givesCells = true;
    mutable int asked = 0;
};

} // namespace

class tst_TokenStorage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksBeforeItReports()
    {
        Listener listener;
        OEXTokenTextStorage storage(text(u"ab"_s));
        storage.setDelegate(&listener);
        storage.documentLayout(); // without one nothing is reported
        connect(&storage, &QTextDocument::contentsChange, this, [&] { ++listener.edits; });
        storage.replaceCharactersInRange({1, 1}, text(u"x"_s) + attachmentText(1) + attachmentText(2));
        QCOMPARE(listener.calls, QStringList({u"1 at 2+1 of 4, 0 edits"_s, u"2 at 3+1 of 4, 0 edits"_s}));
        listener.calls.clear();
        const auto attachment = std::make_shared<ZEVTextAttachment>(3);
        storage.setAttributes(ZEVTextAttachments::formatWithAttachment(attachment), {2, 1});
        QCOMPARE(listener.calls, QStringList(u"3 at 2+1 of 4, 1 edits"_s));
        QCOMPARE(storage.attachmentAtIndex(2), attachment);
        storage.removeAttribute(ZEVTextAttachments::NSAttachmentAttributeName, {0, 4});
        QVERIFY(!storage.attachmentAtIndex(2));
        QVERIFY(!storage.attachmentAtIndex(3));
        storage.setDelegate(nullptr);
        storage.replaceCharactersInRange({0, 99}, attachmentText(4));
        QCOMPARE(storage.string(), QString(QChar::ObjectReplacementCharacter));
    }

    void staysOneLine()
    {
        OEXTokenTextStorage storage;
        const QString lines = u"a\nb\r\nc\u2028"_s;
        storage.replaceCharactersInRange({}, lines);
        QCOMPARE(storage.string(), lines);
        QCOMPARE(storage.toPlainText(), u"a↵b↵↵c↵"_s);
        QTextCursor cursor(&storage);
        cursor.setPosition(2);
        cursor.insertText(u"↵"_s); // that somebody types behind one
        QCOMPARE(storage.string(), u"a\n↵b\r\nc\u2028"_s);
        storage.undo();
        QStringList reported;
        connect(&storage, &QTextDocument::contentsChanged, this, [&] { reported << storage.string(); });
        cursor.setPosition(0);
        cursor.insertText(u"x\ny\n"_s); // as an input method commits it
        reported.removeDuplicates();
        QCOMPARE(reported, QStringList(u"x y "_s + lines));
        storage.undo();
        QCOMPARE(storage.string(), lines);
    }

    void convertsValues()
    {
        CellDelegate delegate;
        OEXTokenFieldCell cell;
        cell.setDelegate(&delegate);
        cell.setObjectValue({1}); // which has no place yet
        QTextEdit editor;
        cell.setUpFieldEditorAttributes(&editor);
        cell.setAttributedStringValue({});
        QCOMPARE(cell.objectValue(), QVariantList());
        cell.setAttributedStringValue(text(u"one, two"_s));
        QCOMPARE(cell.objectValue(), QVariantList{u"one, two"_s});
        // What calls itself text is none of the tokens that come from elsewhere.
        QCOMPARE(OEXTokenFieldCell::objectsForAttributedString(text(u"a"_s) + attachmentText(7)
                                                               + attachmentText(u"text"_s) + text(u"b"_s)),
                 QVariantList({u"a"_s, 7, QString(QChar::ObjectReplacementCharacter), u"b"_s}));
        cell.setObjectValue({u"a"_s, u"b"_s, QVariant(), 8});
        QCOMPARE(cell.objectValue(), QVariantList({u"ab"_s, 8}));
        const auto run = ZEVTextAttachments::runs(cell.attributedStringValue()).at(1);
        QCOMPARE(run.attachment->representedObject(), QVariant(8));
        QCOMPARE(run.attachment->attachmentCell()->title(), u"shown 8"_s);
        QCOMPARE(run.attachment->attachmentCell()->representedObject(), QVariant(8));
    }

    void convertsAnAttachmentOnce()
    {
        CellDelegate delegate;
        OEXTokenFieldCell cell;
        cell.setDelegate(&delegate);
        ZEVTextAttachment attachment(1);
        cell.updateTokenAttachment(&attachment, {});
        ZEVTextAttachmentCell *first = attachment.attachmentCell();
        QCOMPARE(first->attachment(), &attachment);
        cell.updateTokenAttachment(&attachment, {});
        QCOMPARE(attachment.attachmentCell(), first);
        QCOMPARE(delegate.asked, 1);

        delegate.givesCells = false;
        ZEVTextAttachment other(2);
        auto own = std::make_unique<ZEVTextAttachmentCell>();
        ZEVTextAttachmentCell *kept = own.get();
        other.setAttachmentCell(std::move(own));
        cell.updateTokenAttachment(&other, {});
        QCOMPARE(other.attachmentCell(), kept);
        QCOMPARE(other.representedObject(), QVariant(2));
    }

    void keepsTheSettingsOfItsCell()
    {
        Field field;
        field.field.setBezeled(false);
        field.field.setControlSize(ZEVControlSize::Mini);
        field.field.setObjectValue(pattern(u"a<Title>"_s));
        field.field.setCell(std::make_unique<OEXTokenFieldCell>());
        QVERIFY(!field.field.isBezeled());
        QCOMPARE(field.field.controlSize(), ZEVControlSize::Mini);
        QCOMPARE(field.shownValue(), u"a<Title>"_s);
        field.type(u"b"_s);
        QCOMPARE(field.shownValue(), u"a<Title>b"_s);
    }

    void speaksItsTokens()
    {
        Field field;
        field.field.setAccessibleName(u"Find"_s);
        field.field.setObjectValue(pattern(u"ab<Title>c"_s));
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&field.field);
        QCOMPARE(accessible->role(), QAccessible::EditableText);
        QVERIFY(accessible->state().editable);
        QVERIFY(accessible->state().focused);
        QVERIFY(!accessible->state().multiLine);
        QCOMPARE(accessible->text(QAccessible::Name), u"Find"_s);
        QCOMPARE(accessible->text(QAccessible::Value), u"abTitlec"_s);
        QAccessibleTextInterface *spoken = accessible->textInterface();
        QCOMPARE(spoken->characterCount(), 8);
        QCOMPARE(spoken->text(1, 4), u"bTi"_s);
        spoken->setCursorPosition(7);
        QCOMPARE(field.field.textCursor().position(), 3);
        QCOMPARE(spoken->cursorPosition(), 7);
        spoken->setSelection(0, 4, 8); // from within the title
        QCOMPARE(field.field.selectedRange(), (ZEVRange{2, 2}));
        int start = -1, end = -1;
        spoken->selection(0, &start, &end);
        QCOMPARE(std::pair(start, end), std::pair(2, 8));
        int from = -1, to = -1;
        QCOMPARE(spoken->textAtOffset(3, QAccessible::WordBoundary, &from, &to), u"abTitlec"_s);
        QCOMPARE(spoken->characterRect(3), spoken->characterRect(6));
        QVERIFY(spoken->characterRect(7).left() >= spoken->characterRect(6).right() - 1);
        accessible->editableTextInterface()->replaceText(3, 4, u"x"_s);
        QCOMPARE(field.shownValue(), u"abxc"_s);
        field.field.setReadOnly(true);
        accessible->setText(QAccessible::Value, u"no"_s);
        QCOMPARE(field.shownValue(), u"abxc"_s);
    }
};

QTEST_MAIN(tst_TokenStorage)
#include "tst_TokenStorage.moc"
