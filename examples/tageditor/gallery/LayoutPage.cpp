// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/LayoutPage.h>

#include <ZEVGlobalUtils/Menus/Layout/ZEVPopoverShowInSender.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QFrame *box(QSize size)
{
    auto *box = new QFrame;
    box->setFrameShape(QFrame::Box);
    box->setFixedSize(size);
    return box;
}

QFrame *fitting(qreal padding)
{
    QFrame *around = box({260, 100});
    ZEVViewEasyConstraints::addFittingSubview(around, new QPushButton(u"Fits, padding %1"_s.arg(padding)),
                                              padding);
    return around;
}

QFrame *centered(QSize size)
{
    QFrame *around = box(size);
    auto *button = new QPushButton(u"In the middle, padding 12"_s);
    button->setMinimumWidth(1); // may become as narrow as its surroundings
    ZEVViewEasyConstraints::addCenteredSubview(around, button, 12);
    return around;
}

QPushButton *popoverButton(const QString &title, void (*show)(ZEVPopover *, QWidget *))
{
    auto *button = new QPushButton(title);
    auto *popover = new ZEVPopover(button);
    popover->setContent(new QLabel(u"Press the button again to close."_s));
    QObject::connect(button, &QPushButton::clicked, popover, [=] { show(popover, button); });
    return button;
}

} // namespace

QWidget *layoutPage(QWidget *parent)
{
    using namespace ZEVPopoverShowInSender;
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    grid->addWidget(fitting(0), 0, 0);
    grid->addWidget(fitting(20), 0, 1);
    grid->addWidget(centered({260, 100}), 1, 0);
    grid->addWidget(centered({120, 100}), 1, 1);
    grid->addWidget(popoverButton(u"Popover at the top"_s, &showPopoverInSenderAtTop), 2, 0);
    grid->addWidget(popoverButton(u"Popover at the right"_s, &showPopoverInSenderAtRight), 2, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(2, 1);
    return page;
}
