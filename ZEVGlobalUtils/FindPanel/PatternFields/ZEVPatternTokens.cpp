// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>

#include <ZEVGlobalUtils/FindEngine/ZEVPattern_p.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVRoundTokenAttachmentCell.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>

#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QProxyStyle>

using namespace Qt::StringLiterals;

namespace {

/// Gives the images of a menu a column as wide as they are.
class WideImagesStyle : public QProxyStyle {
public:
    explicit WideImagesStyle(int width)
        : m_width(width)
    {
    }

    void setWidth(int width) { m_width = width; }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_SmallIconSize ? m_width : QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    int m_width;
};

/// A menu is filled again at every opening, and keeps the one style that it has got.
void setImageWidth(QMenu *menu, int width)
{
    for (QObject *child : menu->children()) {
        if (auto *style = dynamic_cast<WideImagesStyle *>(child))
            return style->setWidth(width);
    }
    auto *style = new WideImagesStyle(width);
    style->setParent(menu);
    menu->setStyle(style);
}

/// The token as fields show it, without the room around it.
QPixmap imageOfItem(const ZEVPatternItem &item, const QMenu &menu, const QWidget &view)
{
    ZEVRoundTokenAttachmentCell cell;
    cell.setWithoutSpacing(true);
    cell.setFont(menu.font());
    cell.setTitle(item.tokenTitle().value_or(QString()));
    const QSize size(qCeil(cell.cellSize().width()), qCeil(cell.cellSize().height()));
    QPixmap image(size * view.devicePixelRatioF());
    image.setDevicePixelRatio(view.devicePixelRatioF());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    cell.drawWithFrame(&painter, QRect({0, 0}, size), &view, 0);
    return image;
}

int widestImage(const QMenu &menu)
{
    int width = 0;
    for (const QAction *item : menu.actions()) {
        for (const QSize size : item->icon().availableSizes())
            width = qMax(width, size.width());
    }
    return width;
}

QAction *madeItem(const ZEVPatternItem &item, QMenu *menu, ZEVTokenField *tokenField)
{
    const QPointer field = tokenField;
    QAction *action = ZEVMenuItemBlockAdditions::itemWithTitle(
        item.title().value_or(QString()),
        [field, item](QAction *) {
            if (field)
                field->insertToken(QVariant::fromValue(item));
        },
        menu);
    action->setIcon(imageOfItem(item, *menu, *tokenField->window()));
    action->setIconVisibleInMenu(true);
    return action;
}

} // namespace

ZEVPatternTokens::ZEVPatternTokens(const Groups &groups, QObject *parent)
    : QObject(parent)
    , m_groups(groups)
{
}

void ZEVPatternTokens::fillMenu(QMenu *menu, ZEVTokenField *tokenField, const Groups &groups)
{
    menu->clear();
    for (qsizetype group = 0; group < groups.size(); ++group) {
        for (const ZEVPatternItem &item : groups[group])
            menu->addAction(madeItem(item, menu, tokenField));
        if (!groups[group].isEmpty() && group + 1 < groups.size())
            menu->addSeparator();
    }
    setImageWidth(menu, widestImage(*menu));
}

ZEVTokenStyle ZEVPatternTokens::styleForRepresentedObject(const OEXTokenField *, const QVariant &object) const
{
    return ZEVPattern::item(object) ? ZEVTokenStyle::Rounded : ZEVTokenStyle::None;
}

OEXTokenFieldDelegate::AttachmentCellClass
ZEVPatternTokens::attachmentCellClassForRepresentedObject(const OEXTokenField *, const QVariant &object) const
{
    if (!ZEVPattern::item(object))
        return {};
    return [] { return std::make_unique<ZEVRoundTokenAttachmentCell>(); };
}

std::optional<QString> ZEVPatternTokens::displayStringForRepresentedObject(const OEXTokenField *,
                                                                           const QVariant &object) const
{
    const ZEVPatternItem *item = ZEVPattern::item(object);
    return item ? item->tokenTitle() : std::nullopt;
}

std::optional<QString> ZEVPatternTokens::editingStringForRepresentedObject(const OEXTokenField *,
                                                                           const QVariant &object) const
{
    const ZEVPatternItem *item = ZEVPattern::item(object);
    return item ? item->editingString() : std::nullopt;
}

QVariant ZEVPatternTokens::representedObjectForEditingString(const OEXTokenField *,
                                                             const QString &editingString) const
{
    for (const QList<ZEVPatternItem> &group : m_groups) {
        for (const ZEVPatternItem &item : group) {
            if (item.editingString() == editingString)
                return QVariant::fromValue(item);
        }
    }
    return {};
}

bool ZEVPatternTokens::writeRepresentedObjects(const OEXTokenField *tokenField, const QVariantList &objects,
                                               QMimeData *pasteboard) const
{
    QStringList texts;
    for (const QVariant &object : objects) {
        if (const QString *text = ZEVPattern::literalText(object))
            texts.append(*text);
        else if (const auto editingString = editingStringForRepresentedObject(tokenField, object))
            texts.append(*editingString);
    }
    if (!texts.isEmpty())
        pasteboard->setText(texts.join(u'%'));
    return true;
}
