// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Menus/Layout/ZEVConstraintLayout.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVPopoverShowInSender.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVTableViewHelpers.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QWindow>

using namespace ZEVViewEasyConstraints;
using Constraint = ZEVLayoutConstraint;

namespace {

/// Wants 40 by 20, no more, takes 10 by 5.
class Box : public QWidget {
public:
    Box() { setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum); }
    QSize sizeHint() const override { return {40, 20}; }
    QSize minimumSizeHint() const override { return {10, 5}; }
};

} // namespace

class tst_ViewHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void viewsKeepToTheirConstraints()
    {
        const std::tuple<const char *, void (*)(QWidget *, QWidget *), QSize, QRect, QSize, QSize> rows[] = {
            {"fitting",
             [](QWidget *view, QWidget *box) { addFittingSubview(view, box, 7); },
             {100, 60},
             {7, 7, 86, 46},
             {54, 34},
             {24, 19}},
            {"centred",
             [](QWidget *view, QWidget *box) { addCenteredSubview(view, box, 7); },
             {100, 60},
             {30, 20, 40, 20},
             {54, 34},
             {24, 19}},
            {"centred and squeezed",
             [](QWidget *view, QWidget *box) { addCenteredSubview(view, box, 7); },
             {30, 60},
             {7, 20, 16, 20},
             {54, 34},
             {24, 19}},
            {"one edge only",
             [](QWidget *view, QWidget *box) {
                 auto *layout = new ZEVConstraintLayout(view);
                 layout->addWidget(box);
                 layout->addConstraints(
                     {{box, Constraint::Leading, Constraint::Equal, view, Constraint::Leading, 1, 5},
                      {view, Constraint::Bottom, Constraint::Equal, box, Constraint::Bottom, 2, 4}});
             },
             {100, 60},
             {5, 8, 40, 20},
             {45, 22},
             {15, 7}},
        };
        for (const auto &[name, add, size, frame, hint, minimum] : rows) {
            QWidget view;
            auto *box = new Box;
            add(&view, box);
            view.resize(1, 1);
            view.show();
            view.resize(size);
            COMPARE_ROW(QByteArray(name), box->geometry(), frame);
            COMPARE_ROW(QByteArray(name), view.sizeHint(), hint);
            COMPARE_ROW(QByteArray(name), view.layout()->minimumSize(), minimum);
            view.setLayoutDirection(Qt::RightToLeft);
            view.layout()->activate();
            COMPARE_ROW(QByteArray(name), size.width() - box->geometry().right() - 1, frame.left());
            delete box;
            QVERIFY(static_cast<ZEVConstraintLayout *>(view.layout())->constraints().isEmpty());
            COMPARE_ROW(QByteArray(name), view.sizeHint(), QSize(0, 0));
        }
    }

    void aPopoverTogglesFromItsButton()
    {
        QWidget window;
        QPushButton button(&window);
        button.setGeometry(300, 300, 100, 40);
        ZEVPopover popover;
        auto *field = new QLineEdit;
        popover.setContent(new QLabel);
        popover.setContent(field); // which takes the other's place
        popover.setContent(field);
        connect(&button, &QPushButton::clicked, &popover,
                [&] { ZEVPopoverShowInSender::showPopoverInSenderAtTop(&popover, &button); });
        window.setGeometry(0, 0, 500, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto click = [&window](QPoint place) {
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
        };
        click({350, 320});
        QVERIFY(popover.isShown());
        QCOMPARE(popover.geometry().bottom() + 1, button.mapToGlobal(QPoint()).y());
        // Not every platform sends the press that closed a popup on to what lies beneath.
        click({350, 320});
        QVERIFY(!popover.isShown());
        QVERIFY(popover.testAttribute(Qt::WA_NoMouseReplay));
        click({350, 320});
        click({350, 420});
        QVERIFY(!popover.isShown());
        QVERIFY(!popover.testAttribute(Qt::WA_NoMouseReplay));
        button.click();
        QVERIFY(popover.isShown());
        QTest::keyClick(&popover, Qt::Key_Escape);
        QVERIFY(!popover.isShown());
        button.move(0, 0); // no room above
        button.click();
        QCOMPARE(popover.geometry().top(), button.mapToGlobal(QPoint(0, 40)).y());
    }

    void theWholeSelectionIsShown()
    {
        const std::tuple<int, QList<int>, int> rows[] = {
            {0, {50, 53}, 44}, // down, until the last one is shown
            {90, {50, 53}, 50}, // up, until the first one is
            {48, {50, 53}, 48}, // it is shown already
            {0, {20, 99}, 20}, // more than fits
            {30, {}, 30},
        };
        for (const auto &[top, selected, shown] : rows) {
            QStandardItemModel model(100, 30);
            QTableView table;
            table.setModel(&model);
            table.setSelectionMode(QTableView::MultiSelection);
            table.resize(300, 300);
            table.show();
            for (int row = 0; row < 100; ++row)
                table.setRowHeight(row, table.viewport()->height() / 10);
            for (const int row : selected)
                table.selectRow(row);
            table.verticalScrollBar()->setValue(top);
            table.horizontalScrollBar()->setValue(3);
            ZEVTableViewHelpers::scrollSelectionToVisible(&table);
            COMPARE_ROW(top, table.verticalScrollBar()->value(), shown);
            COMPARE_ROW(top, table.horizontalScrollBar()->value(), 3);
        }
    }

    void aTableGainsTheFocus()
    {
        for (const int rowCount : {0, 3}) {
            QStandardItemModel model(rowCount, 2);
            QTableView table;
            table.setModel(&model);
            ZEVTableViewHelpers::gainFocus(&table);
            QVERIFY(!table.window()->focusWidget());
            QTRY_COMPARE(table.window()->focusWidget(), &table);
            QCOMPARE(table.selectionModel()->selectedRows().size(), qMin(rowCount, 1));
            if (rowCount == 0)
                continue;
            table.selectRow(2);
            ZEVTableViewHelpers::gainFocus(&table);
            QCOMPARE(table.selectionModel()->selectedRows().first().row(), 2);
        }
    }
};

QTEST_MAIN(tst_ViewHelpers)
#include "tst_ViewHelpers.moc"
