// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVTextEditFinderClient.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

/// Tells our marks from other extra selections of the editor's.
constexpr int IsMatchProperty = QTextFormat::UserProperty + 0x5A45;

/// Both classes of editors can do the same, without a common base.
template <typename Action>
auto with(QAbstractScrollArea *editor, const Action &action)
{
    if (auto *rich = qobject_cast<QTextEdit *>(editor))
        return action(rich);
    return action(static_cast<QPlainTextEdit *>(editor));
}

QTextCursor cursorOfEditor(QAbstractScrollArea *editor)
{
    return with(editor, [](auto *edit) { return edit->textCursor(); });
}

void selectRange(QTextCursor &cursor, const ZEVRange &range)
{
    const auto last = qsizetype(cursor.document()->characterCount()) - 1;
    cursor.setPosition(int(std::clamp<qsizetype>(range.location, 0, last)));
    cursor.setPosition(int(std::clamp<qsizetype>(range.end(), 0, last)), QTextCursor::KeepAnchor);
}

/// toPlainText() would make plain spaces of those that do not break.
QString textOfDocument(const QTextDocument &document)
{
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text;
}

QTextEdit::ExtraSelection mark(QTextCursor cursor, const ZEVRange &range, const QPalette &palette)
{
    const auto colors = ZEVMatchColors::forMatchOver(palette.color(QPalette::Base), false);
    QTextEdit::ExtraSelection mark;
    selectRange(cursor, range);
    mark.cursor = cursor;
    mark.format.setBackground(colors.background);
    mark.format.setForeground(colors.text);
    mark.format.setProperty(IsMatchProperty, true);
    return mark;
}

/// Where \a selection, in which each replacement lies wholly or not at all, is after them.
ZEVRange rangeAfter(ZEVRange selection, const QList<ZEVTextReplacement> &replacements)
{
    const ZEVRange before = selection;
    for (const ZEVTextReplacement &replacement : replacements) {
        const qsizetype growth = replacement.after.size() - replacement.range.length;
        if (replacement.range.location < before.location)
            selection.location += growth;
        else if (replacement.range.end() <= before.end())
            selection.length += growth;
    }
    return selection;
}

} // namespace

ZEVTextEditFinderClient::ZEVTextEditFinderClient(QTextEdit *editor, ZEVTextFinder *finder, Piece piece)
    : ZEVTextEditFinderClient(editor, editor->document(), finder, piece)
{
}

ZEVTextEditFinderClient::ZEVTextEditFinderClient(QPlainTextEdit *editor, ZEVTextFinder *finder, Piece piece)
    : ZEVTextEditFinderClient(editor, editor->document(), finder, piece)
{
}

ZEVTextEditFinderClient::ZEVTextEditFinderClient(QAbstractScrollArea *editor, QTextDocument *document,
                                                 ZEVTextFinder *finder, Piece piece)
    : QObject(editor)
    , m_editor(editor)
    , m_document(document)
    , m_finder(finder)
    , m_piece(piece)
{
    finder->setClient(this);
    connect(document, &QTextDocument::contentsChange, this, &ZEVTextEditFinderClient::noteChange);
    connect(document, &QObject::destroyed, this, &ZEVTextEditFinderClient::noteChange);
    connect(finder, &ZEVTextFinder::searchPerformed, this, &ZEVTextEditFinderClient::noteSearch);
    connect(finder, &ZEVTextFinder::marksMatchesChanged, this, &ZEVTextEditFinderClient::markMatches);
    connect(editor->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &ZEVTextEditFinderClient::markMatches);
    editor->viewport()->installEventFilter(this);
}

ZEVTextEditFinderClient::~ZEVTextEditFinderClient()
{
    if (m_finder && m_finder->client() == this)
        m_finder->setClient(nullptr);
}

qsizetype ZEVTextEditFinderClient::stringLength() const
{
    return m_document && !m_document->isEmpty() ? m_document->characterCount() : 0;
}

QString ZEVTextEditFinderClient::stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const
{
    if (m_piece == Piece::WholeText) {
        effectiveRange = {0, stringLength()};
        return textOfDocument(*m_document);
    }
    const QTextBlock block = m_document->findBlock(int(index));
    effectiveRange = {block.position(), block.length()};
    return block.text();
}

QList<ZEVRange> ZEVTextEditFinderClient::selectedRanges() const
{
    const QTextCursor cursor = cursorOfEditor(m_editor);
    return {{cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()}};
}

void ZEVTextEditFinderClient::setSelectedRanges(const QList<ZEVRange> &ranges)
{
    QTextCursor cursor = cursorOfEditor(m_editor);
    if (ranges.isEmpty())
        cursor.clearSelection();
    else
        selectRange(cursor, ranges.first());
    with(m_editor, [&cursor](auto *edit) { edit->setTextCursor(cursor); });
}

void ZEVTextEditFinderClient::scrollSelectionToVisible()
{
    with(m_editor, [](auto *edit) { edit->ensureCursorVisible(); });
}

bool ZEVTextEditFinderClient::isEditable(const ZEVRange &) const
{
    return !with(m_editor, [](auto *edit) { return edit->isReadOnly(); });
}

bool ZEVTextEditFinderClient::replace(const QList<ZEVTextReplacement> &replacements, const QString &)
{
    const ZEVRange selection = rangeAfter(selectedRanges().first(), replacements);
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    for (qsizetype n = replacements.size(); n-- > 0;) { // from the end, so that the ranges stay right
        selectRange(cursor, replacements[n].range);
        cursor.insertText(replacements[n].after);
    }
    cursor.endEditBlock();
    setSelectedRanges({selection});
    return true;
}

void ZEVTextEditFinderClient::noteChange()
{
    ++m_changeStamp;
    Q_EMIT textChanged();
}

void ZEVTextEditFinderClient::noteSearch()
{
    m_searchedStamp = m_changeStamp;
    markMatches();
}

bool ZEVTextEditFinderClient::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::PaletteChange)
        QMetaObject::invokeMethod(this, &ZEVTextEditFinderClient::markMatches, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

/// Every mark costs the editor time at every painting, so only those in sight are made.
void ZEVTextEditFinderClient::markMatches()
{
    auto marks = with(m_editor, [](auto *edit) { return edit->extraSelections(); });
    const bool hadMarks = marks.removeIf([](const QTextEdit::ExtraSelection &selection) {
        return selection.format.hasProperty(IsMatchProperty);
    }) > 0;
    const bool marksMatches = m_finder && m_finder->client() == this && m_finder->marksMatches()
        && m_searchedStamp == m_changeStamp;
    const QList<ZEVRange> matches = marksMatches ? m_finder->foundMatches() : QList<ZEVRange>();
    if (!matches.isEmpty())
        marks += marksInSight(matches);
    else if (!hadMarks)
        return;
    with(m_editor, [&marks](auto *edit) { edit->setExtraSelections(marks); });
}

QList<QTextEdit::ExtraSelection> ZEVTextEditFinderClient::marksInSight(const QList<ZEVRange> &matches) const
{
    QList<QTextEdit::ExtraSelection> marks;
    const ZEVRange sight = rangeInSight();
    auto match = std::ranges::lower_bound(matches, sight.location, {}, &ZEVRange::end);
    for (; match != matches.end() && match->location <= sight.end(); ++match)
        marks.append(mark(QTextCursor(m_document), *match, m_editor->palette()));
    return marks;
}

/// A point in the document's margin may be taken for any of its lines, so the points are moved off the edges
/// and a paragraph more is taken in at either end.
ZEVRange ZEVTextEditFinderClient::rangeInSight() const
{
    const int margin = int(m_document->documentMargin()) + 1;
    const QRect sight = m_editor->viewport()->rect().adjusted(margin, margin, -margin, -margin);
    const auto paragraph = [this](const QPoint &point) {
        return with(m_editor, [&point](auto *edit) { return edit->cursorForPosition(point).block(); });
    };
    const QTextBlock first = paragraph(sight.topLeft());
    const QTextBlock last = paragraph(sight.bottomLeft());
    const qsizetype start = std::max(0, first.previous().position());
    const qsizetype end = last.next().isValid() ? last.next().position() + last.next().length()
                                                : last.position() + last.length();
    return {start, end - start};
}
