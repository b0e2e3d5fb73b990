// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVOneLineLayout_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>

#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QTextBlock>
#include <QTextLayout>

#include <utility>

namespace {

/// Under this name an editor looks for the width of its caret.
constexpr char CursorWidthKey[] = "cursorWidth";

} // namespace

ZEVOneLineLayout::ZEVOneLineLayout(QTextDocument *document)
    : QAbstractTextDocumentLayout(document)
{
    setProperty(CursorWidthKey, 1);
}

void ZEVOneLineLayout::setAvailableWidth(qreal width)
{
    if (width == m_availableWidth)
        return;
    m_availableWidth = width;
    documentChanged(0, 0, document()->characterCount());
}

QPointF ZEVOneLineLayout::origin() const
{
    return {document()->documentMargin(), document()->documentMargin()};
}

/// The document is for a moment of several blocks when a line break comes in: all of them have a layout then,
/// and the first is shown.
void ZEVOneLineLayout::documentChanged(int /*from*/, int /*oldLength*/, int /*length*/)
{
    m_objects.clear();
    m_isMeasured = false;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        layOut(block);
    const QSizeF line = blockBoundingRect(document()->firstBlock()).size();
    const QSizeF size = line + QSizeF(2 * origin().x(), 2 * origin().y());
    const bool isChanged = std::exchange(m_size, size) != size;
    if (isChanged)
        Q_EMIT documentSizeChanged(m_size);
    Q_EMIT update();
}

void ZEVOneLineLayout::layOut(const QTextBlock &block) const
{
    QTextLayout *layout = block.layout();
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(block.textDirection());
    option.setAlignment(QStyle::visualAlignment(block.textDirection(), Qt::AlignLeft));
    layout->setTextOption(option);
    layout->beginLayout();
    QTextLine line = layout->createLine();
    if (line.isValid()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(m_availableWidth - 2 * origin().x());
        // A line that is longer begins at its beginning, from whichever end that is.
        line.setLineWidth(qMax(line.width(), line.naturalTextWidth()));
        line.setPosition({});
    }
    layout->endLayout();
}

QRectF ZEVOneLineLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (!block.isValid())
        return {};
    if (block.layout()->lineCount() == 0)
        layOut(block);
    return block.layout()->boundingRect().translated(origin());
}

qsizetype ZEVOneLineLayout::documentPosition(qsizetype layoutPosition) const
{
    const QTextLayout *layout = document()->firstBlock().layout();
    const qsizetype start = layout->preeditAreaPosition();
    const qsizetype length = layout->preeditAreaText().size();
    if (length == 0 || layoutPosition < start)
        return layoutPosition;
    return layoutPosition < start + length ? -1 : layoutPosition - length;
}

QRectF ZEVOneLineLayout::characterRect(qsizetype position)
{
    const QTextBlock block = document()->firstBlock();
    const QTextLayout *layout = block.layout();
    if (position < 0 || position >= block.length() - 1 || layout->lineCount() == 0)
        return {};
    const qsizetype composed =
        position < layout->preeditAreaPosition() ? 0 : layout->preeditAreaText().size();
    const int place = int(position + composed);
    const QTextLine line = layout->lineAt(0);
    measureObjects();
    qreal left = line.cursorToX(place), right = line.cursorToX(place, QTextLine::Trailing);
    if (const auto object = m_objects.constFind(place); object != m_objects.cend())
        return {object->rect.left(), origin().y() + line.y(), object->rect.width(), line.height()};
    if (const QList<QGlyphRun> glyphs = line.glyphRuns(place, 1); left == right && !glyphs.isEmpty()) {
        // Where the direction changes the caret has two places, of which Qt tells one.
        left = glyphs.first().boundingRect().left();
        right = glyphs.first().boundingRect().right();
    }
    return QRectF(qMin(left, right), line.y(), qAbs(left - right), line.height()).translated(origin());
}

/// Only the drawing of a line says where its objects stand: the places of the caret beside one need not be.
void ZEVOneLineLayout::measureObjects()
{
    if (std::exchange(m_isMeasured, true))
        return;
    QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&nothing);
    document()->firstBlock().layout()->draw(&painter, origin());
}

std::optional<qsizetype> ZEVOneLineLayout::objectAt(qreal x)
{
    measureObjects();
    for (auto it = m_objects.cbegin(); it != m_objects.cend(); ++it) {
        if (it->rect.left() <= x && x <= it->rect.right())
            return documentPosition(it.key());
    }
    return std::nullopt;
}

int ZEVOneLineLayout::hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const
{
    const QTextBlock block = document()->firstBlock();
    const QRectF bounds = blockBoundingRect(block);
    if (accuracy == Qt::ExactHit && !bounds.contains(point))
        return -1;
    const QTextLayout *layout = block.layout();
    const int index = layout->lineAt(0).xToCursor(
        point.x() - origin().x(),
        accuracy == Qt::ExactHit ? QTextLine::CursorOnCharacter : QTextLine::CursorBetweenCharacters);
    const qsizetype position = documentPosition(index);
    return position < 0 ? layout->preeditAreaPosition() : int(position);
}

void ZEVOneLineLayout::draw(QPainter *painter, const PaintContext &context)
{
    const QTextBlock block = document()->firstBlock();
    painter->setPen(context.palette.color(QPalette::Text));
    block.layout()->draw(painter, origin(), selectedTexts(context), context.clip);
    drawObjects(painter, context.clip);
    drawCursor(painter, context.cursorPosition);
}

/// The selections without the inline objects in them, in the positions of the layout.
QList<QTextLayout::FormatRange> ZEVOneLineLayout::selectedTexts(const PaintContext &context) const
{
    const QString text = document()->firstBlock().text();
    QList<QTextLayout::FormatRange> ranges;
    for (const Selection &selection : context.selections) {
        const qsizetype end = qMin<qsizetype>(selection.cursor.selectionEnd(), text.size());
        for (qsizetype start = selection.cursor.selectionStart(); start < end; ++start) {
            qsizetype next = text.indexOf(ZEVTextAttachments::Character, start);
            next = next < 0 ? end : qMin(next, end);
            if (next > start)
                ranges.append({int(start), int(next - start), selection.format});
            start = next;
        }
    }
    return ranges;
}

/// Only notes it: a selection lets Qt draw its line several times, each time a part.
void ZEVOneLineLayout::drawInlineObject(QPainter * /*painter*/, const QRectF &rect,
                                        QTextInlineObject /*object*/, int position, const QTextFormat &format)
{
    m_objects.insert(position, {rect, format});
}

void ZEVOneLineLayout::drawObjects(QPainter *painter, const QRectF &area)
{
    for (auto it = m_objects.cbegin(); it != m_objects.cend(); ++it) {
        const bool isInArea = it->rect.right() >= area.left() && it->rect.left() <= area.right();
        QTextObjectInterface *handler = handlerForObject(it->format.objectType());
        if (handler && (isInArea || area.isNull()))
            handler->drawObject(painter, it->rect, document(), int(documentPosition(it.key())), it->format);
    }
}

/// Numbers below -1 count within what is being composed.
void ZEVOneLineLayout::drawCursor(QPainter *painter, int position) const
{
    const QTextLayout *layout = document()->firstBlock().layout();
    const bool isComposing = !layout->preeditAreaText().isEmpty();
    if (position == -1 || (position < -1 && !isComposing))
        return;
    const int place = position < -1 ? layout->preeditAreaPosition() - (position + 2) : position;
    layout->drawCursor(painter, origin(), place, property(CursorWidthKey).toInt());
}
