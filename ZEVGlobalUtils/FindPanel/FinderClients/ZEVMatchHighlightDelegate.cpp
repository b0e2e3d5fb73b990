// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchHighlightDelegate.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>

ZEVMatchHighlightDelegate::ZEVMatchHighlightDelegate(const ZEVItemModelFinderClient *client, QObject *parent)
    : ZEVHighlightDelegate(parent)
    , m_client(client)
{
}

ZEVMatchHighlightDelegate::~ZEVMatchHighlightDelegate() = default;

ZEVCellMatches ZEVMatchHighlightDelegate::matches(const QModelIndex &index) const
{
    return m_client ? m_client->matchesInCell(index) : ZEVCellMatches();
}
