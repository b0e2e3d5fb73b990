// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <QPointer>

class ZEVItemModelFinderClient;

/// Draws the cells of a searched model with the matches marked in them, the selected one most of all.
class ZEV_EXPORT ZEVMatchHighlightDelegate : public ZEVHighlightDelegate {
    Q_OBJECT

public:
    explicit ZEVMatchHighlightDelegate(const ZEVItemModelFinderClient *client, QObject *parent = nullptr);
    ~ZEVMatchHighlightDelegate() override;

protected:
    ZEVCellMatches matches(const QModelIndex &index) const override;

private:
    QPointer<const ZEVItemModelFinderClient> m_client;
};
