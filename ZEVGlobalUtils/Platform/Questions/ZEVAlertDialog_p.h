// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QVBoxLayout;
class ZEVAlert;

/// The window of an alert. Its result is the index of the button that was pressed.
class ZEVAlertDialog : public QDialog {
    Q_OBJECT

public:
    ZEVAlertDialog(const ZEVAlert &alert, QWidget *parent);

    bool isSuppressed() const;

    /// Whatever closes the window without a button.
    void reject() override { done(m_lastButton); }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *addIcon(const ZEVAlert &alert);
    QLabel *addText(QVBoxLayout *column, const QString &text);
    void addTexts(QVBoxLayout *column, const ZEVAlert &alert);
    void addItems(QVBoxLayout *column, const ZEVAlert &alert);
    void addSuppression(QVBoxLayout *column, const ZEVAlert &alert);
    QLayout *makeButtons(const ZEVAlert &alert);

    int m_lastButton = 0;
    int m_escapeButton;
    QCheckBox *m_suppression = nullptr;
};
