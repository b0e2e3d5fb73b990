// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelSharedScope.h>

ZEVFindPanelSharedScope::~ZEVFindPanelSharedScope() = default;

std::shared_ptr<ZEVFindPanelScope> ZEVFindPanelSharedScope::copy() const
{
    return std::const_pointer_cast<ZEVFindPanelSharedScope>(shared_from_this());
}
