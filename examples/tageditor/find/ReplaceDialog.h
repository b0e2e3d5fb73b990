// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/find/ReplacePreviewModel.h>

#include <QDialog>

class QLabel;
class QPushButton;

/// Shows what replacing would make of each text, and lets the user take texts out.
class ReplaceDialog : public QDialog {
    Q_OBJECT

public:
    ReplaceDialog(const ZEVReplacementPreview &preview, const ZEVItemModelFinderClient &client,
                  QWidget *parent);

    /// Of an accepted dialog.
    ZEVReplacementPreview chosen() const { return m_model.chosen(); }

private:
    void showCount();

    ReplacePreviewModel m_model;
    QLabel *m_count;
    QPushButton *m_replace;
};
