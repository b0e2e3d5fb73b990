// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TrackDelegate.h>

#include <tageditor/tracks/TagValues.h>

#include <QLineEdit>

namespace {

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
