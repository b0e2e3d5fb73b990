// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarContainerView.h>

class FindBar;

/// A view in which to find: the bar above it, its finder, and who acts on the matches.
class FindPlace : public ZEVFindBarContainerView {
    Q_OBJECT

public:
    explicit FindPlace(QWidget *content, QWidget *parent = nullptr);
    ~FindPlace() override;

    ZEVTextFinder &finder() { return m_finder; }
    ZEVTextFinderActor &actor() { return m_actor; }

    /// Made at the first call.
    FindBar &bar();

    /// The view or its bar.
    bool hasFocusWithin() const;

    /// Shows the bar, which searches for \a query.
    void find(const ZEVFindPanelQuery &query);

private:
    ZEVTextFinder m_finder;
    ZEVTextFinderActor m_actor;
};
