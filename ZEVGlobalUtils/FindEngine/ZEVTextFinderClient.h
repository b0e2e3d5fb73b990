// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QString>

/// What a searchable client offers: its text, in pieces that are searched each on its own.
class ZEV_EXPORT ZEVTextFinderClient {
public:
    virtual ~ZEVTextFinderClient();

    /// The length of the whole text in UTF-16 units.
    virtual qsizetype stringLength() const = 0;

    /// The piece that begins at \a index, and the range that it covers in the whole text. The next piece is
    /// asked for behind that range; one of length 0 ends the walk.
    virtual QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const = 0;
};
