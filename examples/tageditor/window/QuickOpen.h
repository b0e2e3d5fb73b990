// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/window/QuickOpenModel.h>

#include <QFrame>
#include <QPointer>

class QLabel;
class QLineEdit;
class QListView;

/// A field over the window's contents that leads to a track by a few letters of its title or artist. It is a
/// part of the window rather than a window of its own, so that it stands and has the focus wherever windows
/// cannot place themselves. It closes when the focus goes elsewhere.
class QuickOpen : public QFrame {
    Q_OBJECT

public:
    QuickOpen(const TrackTableModel *tracks, QWidget *window);

    void open();

    /// Gives the focus back to where it was.
    void dismiss();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void trackChosen(int trackId);

private:
    void setUpList();
    void layOut();
    void place();
    bool handleKey(QKeyEvent *event);
    void choose(const QModelIndex &index);
    void showTracks(const QString &text);
    void describeCurrent();
    void closeWithoutFocus(const QWidget *old, const QWidget *now);

    const TrackTableModel *m_tracks;
    QuickOpenModel m_model;
    QLineEdit *m_field;
    QListView *m_list;
    QLabel *m_count;
    QPointer<QWidget> m_previousFocus;
};
