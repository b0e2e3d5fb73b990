// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenFieldAccessible_p.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVShownTokenText_p.h>

namespace {

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    auto *field =
        className == QLatin1StringView("OEXTokenField") ? qobject_cast<OEXTokenField *>(object) : nullptr;
    return field ? new ZEVTokenFieldAccessible(field) : nullptr;
}

} // namespace

void ZEVTokenFieldAccessible::install()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

ZEVTokenFieldAccessible::ZEVTokenFieldAccessible(OEXTokenField *field)
    : QAccessibleWidget(field, QAccessible::EditableText)
{
}

OEXTokenField *ZEVTokenFieldAccessible::field() const { return qobject_cast<OEXTokenField *>(object()); }

ZEVShownTokenText ZEVTokenFieldAccessible::shownText() const
{
    return ZEVShownTokenText(*field()->textStorage());
}

void *ZEVTokenFieldAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString ZEVTokenFieldAccessible::text(QAccessible::Text type) const
{
    if (type == QAccessible::Value)
        return shownText().string();
    const QString text = QAccessibleWidget::text(type);
    return type == QAccessible::Name && text.isEmpty() ? field()->placeholderText() : text;
}

void ZEVTokenFieldAccessible::setText(QAccessible::Text type, const QString &text)
{
    if (type != QAccessible::Value)
        QAccessibleWidget::setText(type, text);
    else if (!field()->isReadOnly())
        field()->textStorage()->replaceCharactersInRange({0, field()->textStorage()->length()}, text);
}

QAccessible::State ZEVTokenFieldAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = !field()->isReadOnly();
    state.readOnly = field()->isReadOnly();
    state.selectableText = true;
    return state;
}

void ZEVTokenFieldAccessible::selection(int selectionIndex, int *startOffset, int *endOffset) const
{
    *startOffset = *endOffset = 0;
    const ZEVRange range = field()->selectedRange();
    if (selectionIndex != 0 || range.length == 0)
        return;
    const ZEVShownTokenText shown = shownText();
    *startOffset = int(shown.shownIndex(range.location));
    *endOffset = int(shown.shownIndex(range.end()));
}

int ZEVTokenFieldAccessible::selectionCount() const { return field()->selectedRange().length > 0 ? 1 : 0; }

void ZEVTokenFieldAccessible::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void ZEVTokenFieldAccessible::removeSelection(int selectionIndex)
{
    if (selectionIndex == 0)
        field()->setSelectedRange({field()->selectedRange().end(), 0});
}

void ZEVTokenFieldAccessible::setSelection(int selectionIndex, int startOffset, int endOffset)
{
    if (selectionIndex == 0)
        field()->setSelectedRange(shownText().storageRange(startOffset, endOffset));
}

int ZEVTokenFieldAccessible::cursorPosition() const
{
    return int(shownText().shownIndex(field()->textCursor().position()));
}

void ZEVTokenFieldAccessible::setCursorPosition(int position)
{
    field()->setSelectedRange({shownText().storageIndex(position), 0});
}

QString ZEVTokenFieldAccessible::text(int startOffset, int endOffset) const
{
    return shownText().string().mid(startOffset, endOffset - startOffset);
}

int ZEVTokenFieldAccessible::characterCount() const { return int(shownText().string().size()); }

/// All characters of a title lie where its token lies.
QRect ZEVTokenFieldAccessible::characterRect(int offset) const
{
    const ZEVRange character = shownText().storageRange(offset, offset + 1);
    QRect place = field()->characterRect(character.location).toAlignedRect();
    if (place.isEmpty()) { // behind the text
        QTextCursor end(field()->document());
        end.movePosition(QTextCursor::End);
        place = field()->cursorRect(end);
    }
    return {field()->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int ZEVTokenFieldAccessible::offsetAtPoint(const QPoint &point) const
{
    const QPoint inside = field()->viewport()->mapFromGlobal(point);
    if (!field()->viewport()->rect().contains(inside))
        return -1;
    return int(shownText().shownIndex(field()->cursorForPosition(inside).position()));
}

void ZEVTokenFieldAccessible::scrollToSubstring(int startIndex, int endIndex)
{
    setSelection(0, startIndex, endIndex);
    field()->ensureCursorVisible();
}

QString ZEVTokenFieldAccessible::attributes(int /*offset*/, int *startOffset, int *endOffset) const
{
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

void ZEVTokenFieldAccessible::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset, QString());
}

void ZEVTokenFieldAccessible::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void ZEVTokenFieldAccessible::replaceText(int startOffset, int endOffset, const QString &text)
{
    if (!field()->isReadOnly())
        field()->textStorage()->replaceCharactersInRange(shownText().storageRange(startOffset, endOffset),
                                                         text);
}
