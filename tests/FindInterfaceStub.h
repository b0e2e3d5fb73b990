// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderUserInterface.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

/// Has a replacement, and notes the counts that it is told.
struct FindInterfaceStub : ZEVTextFinderUserInterface {
    explicit FindInterfaceStub(const QVariantList &pattern = {})
        : replacement(pattern)
    {
    }
    QWidget *view() override { return nullptr; }
    void setDelegate(ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate>) override { }
    bool hasFocus() const override { return false; }
    void setShowReplace(bool) override { }
    void focusFieldForAction(qint64) override { }
    void setNumberOfMatches(std::optional<qsizetype> number) override { count = number; }
    void setSearchLimitReached(bool) override { }
    void setSearching(bool searching) override { searchings += searching; }
    bool wrapAround() const override { return wraps; }
    QVariantList replacePattern() const override { return replacement; }

    QVariantList replacement;
    std::optional<qsizetype> count;
    QList<bool> searchings;
    bool wraps = true;
};
