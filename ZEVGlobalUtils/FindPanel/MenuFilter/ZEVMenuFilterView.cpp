// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterView.h>

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>

#include <QHBoxLayout>
#include <QLineEdit>

#include <algorithm>

namespace {

constexpr QSize Size(120, 30);
constexpr int CharactersInField = 20;
constexpr QMargins FieldMargins(8, 3, 8, 4);

} // namespace

ZEVMenuFilterView::ZEVMenuFilterView(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(FieldMargins);
    setFocusPolicy(Qt::StrongFocus);
}

ZEVMenuFilterViewController *ZEVMenuFilterView::filter() const { return m_filter; }

void ZEVMenuFilterView::setFilter(ZEVMenuFilterViewController *filter)
{
    m_filter = filter;
    layout()->addWidget(filter->searchField());
    setFocusProxy(filter->searchField());
}

/// The field asks for more room once there is something to clear; the menu would jump under the first key.
QSize ZEVMenuFilterView::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * CharactersInField;
    return {std::max(Size.width(), width), std::max(Size.height(), QWidget::sizeHint().height())};
}

void ZEVMenuFilterView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_filter)
        m_filter->viewDidShow();
}
