// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>

ZEVFindPanelScope::~ZEVFindPanelScope() = default;

void ZEVFindPanelScope::setTitle(const std::optional<QString> &title)
{
    if (title == m_title)
        return;
    m_title = title;
    Q_EMIT titleChanged();
}

std::shared_ptr<ZEVFindPanelScope> ZEVFindPanelScope::copy() const
{
    return std::make_shared<ZEVFindPanelScope>(m_title);
}
