// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>

#include <QStyleOptionMenuItem>

#include <optional>

class QAction;
class QMenu;
class QPainter;
class QPaintEvent;

/// Draws attributed titles over what a menu's style has drawn, so that every style keeps its own look of
/// items, check marks, shortcuts and the item under the pointer.
namespace ZEVMenuTitleDrawing {

/// From now on every menu that is given an item with an attributed title has a keeper, which draws it.
void begin();

/// Lets \a menu paint itself, and paints the attributed titles after it; false where it has none.
bool paint(QMenu *menu, QPaintEvent *event);

/// What stands in place of the action's text; nil where the style's own drawing is right.
struct ShownTitle {
    ZEVAttributedString text;
    QString indentation; ///< stands before the text in the direction of the menu, not of the text
};
std::optional<ShownTitle> shownTitle(const QAction *item);

/// How \a menu would ask its style to draw \a item.
QStyleOptionMenuItem styleOption(const QMenu &menu, const QAction *item);

/// Where the style begins an item's text: the baseline at the left edge, at the right edge from right to
/// left.
struct TextPlace {
    QPointF baseline;
    QFont font;
    QPen pen;
};

/// Nil where the style draws no text.
std::optional<TextPlace> textPlace(const QMenu &menu, QStyleOptionMenuItem option);

/// Text without a format of its own takes the font and the pen of \a place.
void drawTitle(QPainter &painter, const ShownTitle &title, const TextPlace &place,
               Qt::LayoutDirection direction);

} // namespace ZEVMenuTitleDrawing
