// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

/// No cell shows more than this many units; laying out the rest of a huge comment would only cost time.
constexpr qsizetype LongestLine = 2000;

constexpr qreal EmptyMatchWidth = 2;

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &cell)
{
    if (!cell.state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

bool isSelected(const QStyleOptionViewItem &cell) { return cell.state.testFlag(QStyle::State_Selected); }

QColor cellColor(const QStyleOptionViewItem &cell, QPalette::ColorRole plain, QPalette::ColorRole selected)
{
    return cell.palette.color(colorGroup(cell), isSelected(cell) ? selected : plain);
}

QRect textRect(const QStyleOptionViewItem &cell, const QStyle *style)
{
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    return style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget)
        .adjusted(margin, 0, -margin, 0);
}

/// The text's own script decides on the order of what stands in the line; the cell keeps its side, so that a
/// column stays in line.
void layOut(QTextLayout &layout, const QStyleOptionViewItem &cell, qreal width)
{
    QTextOption option(QStyle::visualAlignment(cell.direction, cell.displayAlignment) | Qt::AlignAbsolute);
    option.setTextDirection(layout.text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine().setLineWidth(width);
    layout.endLayout();
}

QTextLayout::FormatRange mark(const ZEVRange &range, const ZEVMatchColors::Pair &colors)
{
    QTextCharFormat format;
    format.setBackground(colors.background);
    format.setForeground(colors.text);
    return {int(range.location), int(range.length), format};
}

/// Selections rather than formats: a format would break the joining of letters at its edges. Matches that
/// touch share one, since each costs a drawing of the line; the current one is drawn last, over the others.
QList<QTextLayout::FormatRange> marks(const ZEVCellMatches &matches, const QColor &base)
{
    QList<QTextLayout::FormatRange> marks;
    for (const ZEVRange &range : matches.ranges) {
        const bool touches = !marks.isEmpty() && range.length > 0 && marks.last().length > 0
            && marks.last().start + marks.last().length == range.location;
        if (touches)
            marks.last().length += int(range.length);
        else
            marks.append(mark(range, ZEVMatchColors::forMatchOver(base, false)));
    }
    if (matches.current >= 0)
        marks.append(mark(matches.ranges.at(matches.current), ZEVMatchColors::forMatchOver(base, true)));
    return marks;
}

/// A match of no length shows as a bar at its place.
void drawEmptyMatches(QPainter *painter, const QTextLine &line, QPointF origin,
                      const QList<QTextLayout::FormatRange> &marks)
{
    for (const QTextLayout::FormatRange &mark : marks) {
        if (mark.length > 0)
            continue;
        const QPointF place = origin + line.position() + QPointF(line.cursorToX(mark.start) - line.x(), 0);
        painter->fillRect(QRectF(place, QSizeF(EmptyMatchWidth, line.height())), mark.format.background());
    }
}

/// Eliding shapes the text once more, so only a text that does not fit pays for it.
void layOutElided(QTextLayout &layout, const QStyleOptionViewItem &cell, int width)
{
    layOut(layout, cell, width);
    if (layout.lineAt(0).naturalTextWidth() <= width)
        return;
    layout.setText(cell.fontMetrics.elidedText(layout.text(), cell.textElideMode, width));
    layOut(layout, cell, width);
}

void drawText(QPainter *painter, const QStyleOptionViewItem &cell, const QRect &rect,
              const ZEVCellMatches &matches)
{
    QTextLayout layout(cell.text.left(LongestLine), cell.font, painter->device());
    layOutElided(layout, cell, rect.width());
    const QTextLine line = layout.lineAt(0);
    const QPointF origin(rect.x(), rect.y() + (rect.height() - line.height()) / 2);
    const QColor base = cellColor(cell, QPalette::Base, QPalette::Highlight);
    const auto ranges = marks(ZEVHighlightDelegate::visibleMatches(matches, cell.text, layout.text()), base);
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->setPen(cellColor(cell, QPalette::Text, QPalette::HighlightedText));
    layout.draw(painter, origin, ranges);
    drawEmptyMatches(painter, line, origin, ranges);
    painter->restore();
}

} // namespace

ZEVCellMatches ZEVHighlightDelegate::matches(const QModelIndex &index) const
{
    return {.ranges = index.data(RangesRole).value<QList<ZEVRange>>()};
}

void ZEVHighlightDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    const QRect rect = textRect(cell, style);
    const QString text = std::exchange(cell.text, {});
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    cell.text = text;
    drawText(painter, cell, rect, matches(index));
}

QString ZEVHighlightDelegate::displayText(const QVariant &value, const QLocale &) const
{
    QString text = value.toString();
    for (QChar &character : text) {
        if (character == u'\t')
            character = u'→';
        else if (character == u'\n' || character == QChar::LineSeparator
                 || character == QChar::ParagraphSeparator)
            character = u'↵';
        else if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    return text;
}

ZEVCellMatches ZEVHighlightDelegate::visibleMatches(const ZEVCellMatches &matches, const QString &text,
                                                    const QString &visible)
{
    if (visible.size() == text.size() && visible == text)
        return matches;
    const qsizetype shown = std::ranges::mismatch(visible, text).in1 - visible.begin();
    ZEVCellMatches result;
    bool ellipsisIsMarked = false;
    for (qsizetype n = 0; n < matches.ranges.size(); ++n) {
        const ZEVRange &range = matches.ranges.at(n);
        const bool isCurrent = n == matches.current;
        const bool isHidden = range.location >= shown;
        if (isHidden && ellipsisIsMarked && !isCurrent)
            continue; // one mark says it for all that are hidden
        ellipsisIsMarked = ellipsisIsMarked || range.end() > shown;
        if (isCurrent)
            result.current = result.ranges.size();
        const qsizetype start = isHidden ? shown : range.location;
        const qsizetype end = range.end() > shown || isHidden ? visible.size() : range.end();
        result.ranges.append({start, end - start});
    }
    return result;
}
