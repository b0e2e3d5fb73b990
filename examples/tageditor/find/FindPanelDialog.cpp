// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/FindPanelDialog.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

FindPanelDialog::FindPanelDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Find and Replace in Tracks"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *review = buttons->addButton(tr("Preview Replace&ments…"), QDialogButtonBox::ActionRole);
    const auto followMatches = [this, review] { review->setEnabled(m_panel.replaceEnabled()); };
    connect(&m_panel, &FindPanel::enabledChanged, review, followMatches);
    connect(review, &QPushButton::clicked, this, &FindPanelDialog::reviewRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_panel.view());
    rows->addWidget(buttons);
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setAutoDefault(false); // Return belongs to the fields
    followMatches();
    resize(fontMetrics().averageCharWidth() * 90, sizeHint().height());
}

FindPanelDialog::~FindPanelDialog() = default;
