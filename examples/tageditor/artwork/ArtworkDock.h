// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/artwork/ArtworkVetting.h>
#include <tageditor/artwork/SelectedArtwork.h>

#include <QDockWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QUndoStack;
class ZEVDragImageView;

/// The artwork of the selected tracks, and how to change it for all of them in one step.
class ArtworkDock : public QDockWidget {
    Q_OBJECT

public:
    ArtworkDock(TrackTableModel *model, QTableView *table, QUndoStack *stack);

    ZEVDragImageView *well() const { return m_well; }
    const SelectedArtwork &selected() const { return *m_selected; }

private:
    QWidget *makeButtons();
    QWidget *makeLimitButton();
    QWidget *makeLimit();
    void updateLimit();
    void showArtwork();
    QString description() const;
    void changeArtwork(const QByteArray &bytes);

    TrackTableModel *m_model;
    QUndoStack *m_stack;
    SelectedArtwork *m_selected;
    ArtworkVetting m_vetting;
    ZEVDragImageView *m_well;
    QLabel *m_description;
    QPushButton *m_browse = nullptr;
    QPushButton *m_remove = nullptr;
    QCheckBox *m_isLimited = nullptr;
    QSpinBox *m_pixels = nullptr;
    QSpinBox *m_kilobytes = nullptr;
};
