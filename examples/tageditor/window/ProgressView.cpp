// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/ProgressView.h>

#include <QHBoxLayout>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int WidthInCharacters = 30;

} // namespace

ProgressView::ProgressView(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_bar(new QProgressBar)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    m_bar->setAccessibleName(name);
    m_bar->setMaximumWidth(fontMetrics().averageCharWidth() * WidthInCharacters);
    auto *cancel = new QToolButton;
    cancel->setText(tr("Cancel"));
    connect(cancel, &QToolButton::clicked, this, &ProgressView::cancelled);
    row->addWidget(m_bar);
    row->addWidget(cancel);
    hide();
}
