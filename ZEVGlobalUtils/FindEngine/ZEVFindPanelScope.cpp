// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>

ZEVFindPanelScope::~ZEVFindPanelScope() = default;

std::shared_ptr<ZEVFindPanelScope> ZEVFindPanelScope::copy() const
{
    return std::make_shared<ZEVFindPanelScope>(m_title);
}
