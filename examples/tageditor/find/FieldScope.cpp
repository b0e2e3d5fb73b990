// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/FieldScope.h>

#include <tageditor/tracks/TrackTableModel.h>

#include <QCoreApplication>

FieldScope::FieldScope(const QString &title, QList<int> columns)
    : ZEVFindPanelSharedScope(title)
    , m_columns(std::move(columns))
{
}

const QList<std::shared_ptr<ZEVFindPanelScope>> &FieldScope::all()
{
    static const QList<std::shared_ptr<ZEVFindPanelScope>> scopes = [] {
        const QString everywhere = QCoreApplication::translate("FieldScope", "All Fields");
        QList<std::shared_ptr<ZEVFindPanelScope>> all{std::make_shared<FieldScope>(everywhere, QList<int>())};
        for (int field = 0; field < TrackFieldCount; ++field)
            all.append(std::make_shared<FieldScope>(TrackTableModel::titleForField(TrackField(field)),
                                                    QList<int>{field}));
        return all;
    }();
    return scopes;
}
