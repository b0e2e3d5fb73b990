// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

/// Brings what an input method composes to a field in a menu. Where the window system gives the keyboard to
/// the window that the menu belongs to, Qt hands the keys on to the menu, but not the input method: it goes
/// on composing in that window, dead keys included.
class MenuInputMethod : public QObject {
public:
    explicit MenuInputMethod(QWidget *field);

    /// Between the opening and the closing of the field's menu.
    void begin();
    void end();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QObject *asked, QEvent *event) const;

    QWidget *m_field;
    QPointer<QObject> m_focusObject; ///< what the input method takes for the receiver
};
