// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/files/RenamePreviewModel.h>

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for a pattern of file names, and shows what it makes of them meanwhile. It renames nothing itself.
class RenameDialog : public QDialog {
    Q_OBJECT

public:
    /// Folders of a pattern are made in \a folder.
    RenameDialog(const QList<Track> &tracks, const QString &folder, QWidget *parent = nullptr);

    QList<FileChange> changes() const { return m_model.changes(); }

    void accept() override;

private:
    void layOut();
    QWidget *makePlaceholderButton();
    void updatePreview();

    RenamePreviewModel m_model;
    QLineEdit *m_pattern;
    QLabel *m_count;
    QPushButton *m_rename;
};
