// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/find/FindInterfaces.h>

#include <QDialog>

/// The query panel in a window that stays beside the table.
class FindPanelDialog : public QDialog {
    Q_OBJECT

public:
    explicit FindPanelDialog(QWidget *parent);
    ~FindPanelDialog() override;

    FindPanel &panel() { return m_panel; }

Q_SIGNALS:
    void reviewRequested();

private:
    FindPanel m_panel;
};
