// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

class QGridLayout;
struct ZEVFindControls;

/// Lays out the find bar for its width. In a wide bar the fields line up, with the mode before and the buttons
/// behind them; in a narrow one the fields have rows of their own, and the buttons wrap below them. Only for
/// the library's own file: the rows of another are left as they are.
class ZEVFindBarLayout {
public:
    ZEVFindBarLayout(QWidget *view, const ZEVFindControls &controls);

    /// After every change of the width or of what is shown.
    void arrange();

private:
    bool isLibrarysOwn() const;
    bool isWideEnough() const;
    int controlsWidth() const;
    void arrangeWide();
    void arrangeNarrow();
    void alignFields();

    QPointer<QWidget> m_view;
    QGridLayout *m_rows = nullptr;
    QGridLayout *m_replaceRows = nullptr;
    QPointer<QWidget> m_mode;
    QPointer<QWidget> m_findBackdrop;
    QPointer<QWidget> m_findControls;
    QPointer<QWidget> m_replaceContainer;
    QPointer<QWidget> m_replaceBackdrop;
    QPointer<QWidget> m_replaceControls;
    QPointer<QWidget> m_message;
    bool m_isWide = true;
};
