// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

/// What to do with an item whose name is taken at its destination.
enum ZEVFileExistsRecovery : unsigned {
    ZEVFileExistsRecoveryNone = 0, ///< the operation fails; as an answer of the user, "Stop"
    ZEVFileExistsRecoverySkip = 1, ///< the operation fails, the caller goes on with the next item
    ZEVFileExistsRecoveryKeepBoth = 2, ///< the item comes under a name of its own
    ZEVFileExistsRecoveryReplace = 3, ///< it takes the place of the one that is there
};
