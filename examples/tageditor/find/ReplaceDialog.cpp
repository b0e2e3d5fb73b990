// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/ReplaceDialog.h>

#include <tageditor/text/PreviewTable.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

ReplaceDialog::ReplaceDialog(const ZEVReplacementPreview &preview, const ZEVItemModelFinderClient &client,
                             QWidget *parent)
    : QDialog(parent)
    , m_model(preview, client)
    , m_count(new QLabel)
    , m_replace(new QPushButton(tr("&Replace")))
{
    setWindowTitle(tr("Preview Replacements"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(m_replace, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QTableView *table = makePreviewTable(&m_model);
    table->horizontalHeader()->setSectionResizeMode(ReplacePreviewModel::Field,
                                                    QHeaderView::ResizeToContents);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(table, 1);
    rows->addWidget(m_count);
    rows->addWidget(buttons);
    m_replace->setDefault(true);
    connect(&m_model, &ReplacePreviewModel::chosenChanged, this, &ReplaceDialog::showCount);
    showCount();
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 28);
}

void ReplaceDialog::showCount()
{
    const int chosen = m_model.numberOfChosen();
    m_count->setText(tr("%L1 of %Ln texts will change", nullptr, m_model.rowCount()).arg(chosen));
    m_replace->setEnabled(chosen > 0);
}
