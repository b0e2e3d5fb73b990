// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>

/// What a widget offers that can say which of its text is selected.
class ZEV_EXPORT ZEVSelectedRanges {
public:
    virtual ~ZEVSelectedRanges();
    virtual QList<ZEVRange> selectedRanges() const = 0;
};
