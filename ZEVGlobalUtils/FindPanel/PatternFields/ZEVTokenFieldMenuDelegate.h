// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QMenu;
class ZEVTokenField;

/// May change a pattern field's menus. Both operations are optional.
class ZEV_EXPORT ZEVTokenFieldMenuDelegate {
public:
    virtual ~ZEVTokenFieldMenuDelegate();

    /// At the end of every rebuild of the drop-down menu.
    virtual void customizeMenuBeforeDisplay(ZEVTokenField *tokenField, QMenu *menu);

    /// True when it has shown a menu of its own for inserting tokens.
    virtual bool tokenFieldShowCustomAddTokensMenu(ZEVTokenField *tokenField);
};
