// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QColor>
#include <QWidget>

/// Looks like a text field behind a token field that draws none of its own.
class ZEV_EXPORT ZEVTextFinderFakeCellView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool focused READ focused WRITE setFocused)

public:
    explicit ZEVTextFinderFakeCellView(QWidget *parent = nullptr);

    bool focused() const { return m_focused; }
    void setFocused(bool focused);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void udpateBorder(); // kept: spelled so, both of them
    void udpateBackgroundColor();

    QColor m_borderColor;
    QColor m_backgroundColor;
    bool m_focused = false;
};
