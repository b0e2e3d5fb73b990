// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderEditableClient.h>

/// What replacing would do, before it is done. Replacements that the user does not want may be taken out.
struct ZEVReplacementPreview {
    QList<ZEVTextReplacement> replacements;
    quint64 changeStamp = 0; ///< of the text that they are for
};
