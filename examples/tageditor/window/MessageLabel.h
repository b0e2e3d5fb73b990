// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// A line of plain text that asks for no width: what does not fit ends in an ellipsis and is told in full by
/// the tool tip. Names and expressions may stand in it, none of which are taken for rich text.
class MessageLabel : public QLabel {
    Q_OBJECT

public:
    explicit MessageLabel(QWidget *parent = nullptr);

    /// An error is drawn in a colour of its own.
    void showMessage(const QString &message, bool isError);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isError = false;
};
