// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemHeadings.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <QFontDatabase>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QTextBlockFormat>
#include <QWidgetAction>

using namespace ZEVMenuTitleDrawing;

namespace {

constexpr qreal LineHeight = 16;
constexpr qreal LineHeightWithLeadingSpace = 20;
constexpr qreal FontSize = 11;
constexpr float GreyLevel = 0.6F;

QTextCharFormat headingFormat()
{
    QTextCharFormat format;
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSizeF(FontSize * 72 / 96); // a font's point is 1/72 inch
    format.setFont(font);
    format.setForeground(QColor::fromRgbF(GreyLevel, GreyLevel, GreyLevel));
    return format;
}

/// An item of a menu cannot be made higher than its style wants, but a widget in its place can.
class HeadingWidget : public QWidget {
public:
    HeadingWidget(const QAction *item, qreal lineHeight, QWidget *parent)
        : QWidget(parent)
        , m_item(item)
        , m_lineHeight(lineHeight)
    {
        setFont(headingFormat().font());
        setAccessibleName(ZEVMenuItem::title(item));
    }

    QSize sizeHint() const override
    {
        const auto *menu = qobject_cast<const QMenu *>(parentWidget());
        const qreal width = m_item ? QFontMetricsF(font()).horizontalAdvance(ZEVMenuItem::title(m_item)) : 0;
        const QSize text(qCeil(width), qCeil(lineHeight()));
        return menu && m_item ? text + margins(*menu, text) : text;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const auto title = m_item ? shownTitle(m_item) : std::nullopt;
        if (!title)
            return;
        QPainter painter(this);
        drawTitle(painter, *title, place(), layoutDirection());
    }

private:
    qreal lineHeight() const { return qMax(QFontMetricsF(font()).height(), m_lineHeight); }

    /// What the style puts around the text of an item. Some styles take the height from the menu's font
    /// alone.
    QSize margins(const QMenu &menu, QSize text) const
    {
        QStyleOptionMenuItem option = styleOption(menu, m_item);
        const QSize ordinary(text.width(), option.fontMetrics.height());
        return menu.style()->sizeFromContents(QStyle::CT_MenuItem, &option, ordinary, &menu) - ordinary;
    }

    /// In the column of the other items' texts.
    TextPlace place() const
    {
        TextPlace place{QPointF(layoutDirection() == Qt::RightToLeft ? width() : 0, 0), font(), {}};
        if (const auto *menu = qobject_cast<const QMenu *>(parentWidget())) {
            QStyleOptionMenuItem option = styleOption(*menu, m_item);
            option.rect = rect();
            place = textPlace(*menu, option).value_or(place);
        }
        place.baseline.setY((height() + lineHeight()) / 2 - QFontMetricsF(font()).descent());
        return place;
    }

    QPointer<const QAction> m_item; // a menu deletes the widgets of removed items later
    qreal m_lineHeight;
};

class HeadingItem : public QWidgetAction {
public:
    HeadingItem(const QTextBlockFormat &paragraphStyle, QObject *parent)
        : QWidgetAction(parent)
        , m_lineHeight(paragraphStyle.lineHeight())
    {
    }

protected:
    QWidget *createWidget(QWidget *parent) override { return new HeadingWidget(this, m_lineHeight, parent); }

private:
    qreal m_lineHeight;
};

} // namespace

QAction *ZEVMenuItemHeadings::disabledItemWithTitle(const QString &title, QObject *parent)
{
    return disabledItemWithTitle(title, {}, parent);
}

QAction *ZEVMenuItemHeadings::disabledItemWithTitle(const QString &title, const QIcon &image, QObject *parent)
{
    QAction *item = ZEVMenuItemBlockAdditions::itemWithTitle(title, parent);
    item->setEnabled(false);
    item->setIcon(image);
    return item;
}

QAction *ZEVMenuItemHeadings::headingItemWithTitle(const QString &title, QObject *parent)
{
    return headingItemWithTitle(title, false, parent);
}

QAction *ZEVMenuItemHeadings::headingItemWithTitle(const QString &title, bool leadingSpace, QObject *parent)
{
    QTextBlockFormat paragraphStyle;
    paragraphStyle.setLineHeight(leadingSpace ? LineHeightWithLeadingSpace : LineHeight,
                                 QTextBlockFormat::MinimumHeight);
    return headingItemWithTitle(title, paragraphStyle, parent);
}

QAction *ZEVMenuItemHeadings::headingItemWithTitle(const QString &title,
                                                   const QTextBlockFormat &paragraphStyle, QObject *parent)
{
    auto *item = new HeadingItem(paragraphStyle, parent);
    item->setEnabled(false);
    ZEVAttributedString attributedTitle;
    attributedTitle.append(title, headingFormat());
    ZEVMenuItem::setTitle(item, title);
    ZEVMenuItem::setAttributedTitle(item, attributedTitle);
    return item;
}
