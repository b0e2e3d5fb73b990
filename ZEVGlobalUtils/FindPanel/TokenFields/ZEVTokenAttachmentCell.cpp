// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenAttachmentCell.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVGreenTokenAttachmentCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVRoundTokenAttachmentCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVSelectedRanges.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QWidget>

#include <array>

using namespace Qt::StringLiterals;

namespace {

enum DrawingMode : qint64 { Normal = 0, Highlighted = 1, Selected = 2 };

// One number a control size: regular, small, mini, large, extra large.
using SizeTable = std::array<qreal, 5>;
constexpr SizeTable Insets = {3, 0, 0, 3, 3};
constexpr SizeTable Spacings = {11, 7, 3, 14, 16};
constexpr SizeTable RoundSpacings = {9, 7, 3, 11, 13};

constexpr qreal HeightOverCapitals = 6;
constexpr float RestingAlpha = 0.3F;

/// Nothing for a size that is in no table.
qreal valueForSize(const SizeTable &table, ZEVControlSize size)
{
    const auto index = size_t(size);
    return index < table.size() ? table.at(index) : 0;
}

bool isInActiveWindow(const QWidget *view) { return view && view->isActiveWindow(); }

QPalette paletteOf(const QWidget *view) { return view ? view->palette() : QGuiApplication::palette(); }

QColor restingColor(const QColor &base, float level)
{
    QColor color = ZEVNamedColors::highlightWithLevel(base, level);
    color.setAlphaF(color.alphaF() * RestingAlpha);
    return color;
}

} // namespace

qreal ZEVTokenAttachmentCell::inset() const { return valueForSize(Insets, controlSize()); }

qreal ZEVTokenAttachmentCell::spacing() const { return valueForSize(Spacings, controlSize()); }

QSizeF ZEVTokenAttachmentCell::cellSize() const
{
    const QSizeF title = ZEVTextAttachmentCell::cellSize();
    return {2 * (inset() + spacing()) + title.width(), title.height()};
}

QRectF ZEVTokenAttachmentCell::tokenRectForBounds(const QRectF &bounds) const
{
    QRectF token = bounds;
    token.setTop(bounds.bottom() - (QFontMetricsF(font()).capHeight() + HeightOverCapitals));
    return token.adjusted(inset(), 0, -inset(), 0);
}

void ZEVTokenAttachmentCell::drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view,
                                           qsizetype characterIndex)
{
    m_drawingMode = drawingModeAtIndex(view, characterIndex);
    drawWithFrame(painter, frame, view);
    drawInteriorWithFrame(painter, frame, view);
}

void ZEVTokenAttachmentCell::drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view) const
{
    const QPalette palette = paletteOf(view);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isInActiveWindow(view) ? tokenFillColorForDrawingMode(m_drawingMode, palette)
                                             : ZEVNamedColors::colorNamed(u"tokenDisabledColor", palette));
    painter->drawRoundedRect(tokenRectForBounds(frame), cornerRadius(), cornerRadius());
    painter->restore();
}

void ZEVTokenAttachmentCell::drawInteriorWithFrame(QPainter *painter, const QRectF &frame,
                                                   const QWidget *view) const
{
    drawTitle(painter, titleRectForBounds(frame),
              tokenTitleColorForDrawingMode(m_drawingMode, paletteOf(view)));
}

qint64 ZEVTokenAttachmentCell::drawingModeAtIndex(const QWidget *view, qsizetype characterIndex) const
{
    if (!isInActiveWindow(view))
        return Normal;
    if (const auto *text = dynamic_cast<const ZEVSelectedRanges *>(view)) {
        for (const ZEVRange &range : text->selectedRanges()) {
            if (range.location <= characterIndex && characterIndex < range.end())
                return Selected;
        }
    }
    return isHighlighted() ? Highlighted : Normal;
}

QColor ZEVTokenAttachmentCell::tokenFillColorForDrawingMode(qint64 mode, const QPalette &palette) const
{
    const QColor accent = palette.color(QPalette::Highlight);
    return mode == Selected ? accent : restingColor(accent, 0.5F);
}

QColor ZEVTokenAttachmentCell::tokenTitleColorForDrawingMode(qint64 mode, const QPalette &palette) const
{
    return palette.color(mode == Selected ? QPalette::HighlightedText : QPalette::Text);
}

QColor ZEVGreenTokenAttachmentCell::tokenFillColorForDrawingMode(qint64 mode, const QPalette &palette) const
{
    const QColor green = ZEVNamedColors::colorNamed(u"tokenGreenColor", palette);
    return mode == Selected ? green : restingColor(green, 0.2F);
}

qreal ZEVRoundTokenAttachmentCell::cornerRadius() const { return qFloor(cellSize().height() / 2); }

qreal ZEVRoundTokenAttachmentCell::inset() const
{
    return m_withoutSpacing ? 0 : ZEVTokenAttachmentCell::inset();
}

qreal ZEVRoundTokenAttachmentCell::spacing() const { return valueForSize(RoundSpacings, controlSize()); }
