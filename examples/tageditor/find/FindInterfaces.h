// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPanelQueryParamsController.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderViewController.h>

/// The library's find bar with the tokens of this application.
class FindBar : public ZEVTextFinderViewController {
    Q_OBJECT

public:
    explicit FindBar(QObject *parent = nullptr);

protected:
    void viewDidLoad() override;
};

/// The library's query panel, likewise, with a button for what to search.
class FindPanel : public ZEVFindPanelQueryParamsController {
    Q_OBJECT

public:
    explicit FindPanel(QObject *parent = nullptr);

protected:
    void viewDidLoad() override;
};
