// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QWidget;
class ZEVTextFinder;

/// What a window part offers that can show a find bar above or below its own content.
class ZEV_EXPORT ZEVFindBarContainer {
public:
    virtual ~ZEVFindBarContainer();

    /// Null when none is installed. The container takes the view in, and does not own it.
    virtual QWidget *findBarView() const = 0;
    virtual void setFindBarView(QWidget *view) = 0;

    virtual bool isFindBarVisible() const = 0;
    virtual void setFindBarVisible(bool visible) = 0;

    /// The height of the view has been changed.
    virtual void findBarViewDidChangeHeight() = 0;

    /// The window that the container is in.
    virtual QWidget *window() const = 0;

    /// Optional: whose bar it shows, so that it can answer find actions for its content; null for nobody's.
    virtual void setFinder(ZEVTextFinder *) { }
};
