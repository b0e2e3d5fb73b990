// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>

/// A scope that a host has one of for each part of its data, and that is its own copy: a query with it equals
/// its copy, so that a find interface knows when it has searched for it already. With any other scope it never
/// does, and a query panel's buttons for replacing stay off. Derive the host's scopes from this class, and
/// hold them by std::shared_ptr.
class ZEV_EXPORT ZEVFindPanelSharedScope : public ZEVFindPanelScope,
                                           public std::enable_shared_from_this<ZEVFindPanelSharedScope> {
    Q_OBJECT

public:
    using ZEVFindPanelScope::ZEVFindPanelScope;
    ~ZEVFindPanelSharedScope() override;

    std::shared_ptr<ZEVFindPanelScope> copy() const override;
};
