// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QUrl;
class ZEVOpenPanel;
class ZEVURLPopUpButton;

/// Both operations are optional.
class ZEV_EXPORT ZEVURLPopUpButtonDelegate {
public:
    virtual ~ZEVURLPopUpButtonDelegate();

    /// The user has chosen; an invalid URL for "None".
    virtual void didSelectURL(ZEVURLPopUpButton *, const QUrl &) { }

    /// To adjust the panel before it is shown: it asks for a file.
    virtual void willDisplayOpenPanel(ZEVURLPopUpButton *, ZEVOpenPanel &) { }
};
