// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TrackDelegate.h>

#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>

#include <QLineEdit>
#include <QTableView>

namespace {

/// How much of the colour of the selection a row is tinted with, of 255.
constexpr int Tint = 40;

QColor blended(const QColor &base, const QColor &over)
{
    const auto mixed = [](int one, int other) { return (one * (255 - Tint) + other * Tint) / 255; };
    return {mixed(base.red(), over.red()), mixed(base.green(), over.green()),
            mixed(base.blue(), over.blue())};
}

QString shown(QString text) { return text.replace(TagValues::Separator, TagValues::ShownSeparator); }

} // namespace

void TrackDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *line = qobject_cast<QLineEdit *>(editor))
        line->setText(shown(index.data(Qt::EditRole).toString()));
}

/// What was not touched is not told of: the mark may stand in a value itself.
void TrackDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *line = qobject_cast<QLineEdit *>(editor);
    if (line && line->text() != shown(index.data(Qt::EditRole).toString()))
        model->setData(index, line->text().replace(TagValues::ShownSeparator, TagValues::Separator));
}

void TrackDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    ZEVMatchHighlightDelegate::initStyleOption(option, index);
    const auto *table = qobject_cast<const QTableView *>(option->widget);
    const bool isSelected = option->state.testFlag(QStyle::State_Selected);
    if (table && !isSelected && table->selectionModel()->rowIntersectsSelection(index.row(), {})) {
        const QPalette &palette = option->palette;
        const bool isAlternate = option->features.testFlag(QStyleOptionViewItem::Alternate);
        const QColor base = palette.color(isAlternate ? QPalette::AlternateBase : QPalette::Base);
        option->backgroundBrush = blended(base, palette.color(QPalette::Highlight));
    }
    if (index.column() == int(TrackField::Title) && index.data(TrackTableModel::IsUnreadableRole).toBool()) {
        option->text = index.data(TrackTableModel::ErrorRole).toString();
        option->font.setItalic(true);
        if (!isSelected)
            option->palette.setColor(QPalette::Text, ZEVMatchColors::errorText(option->palette));
    }
}
