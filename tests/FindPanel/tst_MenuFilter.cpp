// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/FindEngine/ZEVStringFilterRegexValue.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMoreButtonCell.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QWheelEvent>
#include <QWidgetAction>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// A menu with a filter over items of its own.
struct FilteredMenu {
    explicit FilteredMenu(const QStringList &titles)
    {
        controller.setAutofocus(true);
        menu.addAction(controller.filterMenuItem());
        for (const QString &title : titles)
            append(title);
        client->filterDidChange(&controller);
    }

    void append(const QString &title)
    {
        auto *item = new QAction(&menu);
        item->setSeparator(title == u"-");
        ZEVMenuItem::setTitle(item, title == u"-" ? QString() : title);
        client->menuItems.append(item);
    }

    bool open()
    {
        menu.popup({30, 30});
        return QTest::qWaitForWindowExposed(&menu) && field->hasFocus();
    }

    QString shown() const
    {
        QStringList titles;
        for (const QAction *item : menu.actions().sliced(1))
            titles.append(item->isSeparator() ? u"-"_s : ZEVMenuItem::title(item));
        return titles.join(u'|');
    }

    QString active() const
    {
        return menu.activeAction() ? ZEVMenuItem::title(menu.activeAction()) : QString();
    }

    /// As a window system sends it: to the widget of the menu that has the focus.
    void press(Qt::Key key) { QTest::keyClick(menu.focusWidget(), key); }
    void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(menu.focusWidget(), character.toLatin1());
    }

    QMenu menu;
    ZEVMenuFilterViewController controller{ZEVControlSize::Small};
    std::unique_ptr<ZEVMenuFilterClient> client = controller.newDelegatedClient();
    QLineEdit *field = controller.searchField();
};

QStringList numbered(int count)
{
    QStringList titles;
    for (int i = 0; i < count; ++i)
        titles.append(u"Track %1"_s.arg(i));
    return titles;
}

class CountingDelegate : public ZEVMenuFilterDelegate {
public:
    void filterDidChange(ZEVMenuFilterViewController *) override { ++changes; }
    bool showMoreItems(ZEVMenuFilterViewController *) override { return ++requests, showsMore; }
    std::optional<bool> hasFilteredItems(ZEVMenuFilterViewController *) override { return hasItems; }

    std::optional<bool> hasItems = false;
    int changes = 0;
    int requests = 0;
    bool showsMore = false;
};

} // namespace

class tst_MenuFilter : public QObject {
    Q_OBJECT

private:
    int m_resizes = 0;

public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (const auto *resize = dynamic_cast<QResizeEvent *>(event))
            m_resizes += resize->oldSize() == resize->size() ? 0 : 1;
        return false;
    }

private Q_SLOTS:
    void titlesPass()
    {
        const std::tuple<QString, QString, bool> rows[] = {
            {u"York, New York"_s, u"NEW york"_s, true},
            {u"York, New"_s, u"new york"_s, false},
            {u"aa"_s, u"a a"_s, true},
            {u"a"_s, u"a a"_s, false},
            {u"xxA.Byy"_s, u"a.b"_s, true},
            {u"aXb"_s, u"a.b"_s, false},
            {u"R&D"_s, u"&d"_s, true},
            {u"Straße"_s, u"STRASSE"_s, true},
            {u"new\nyork"_s, u"new york"_s, false},
            {u"old\u2028new york"_s, u"new york"_s, true},
            {u"new\nyork"_s, u"w\ny"_s, true},
            {u"Anything"_s, u"   "_s, true},
            {u"ﬁsh"_s, u"i"_s, true},
            {u"İstanbul"_s, u"i"_s, true},
        };
        for (const auto &[title, needle, passes] : rows) {
            const FilteredMenu filtered({title});
            const auto items = filtered.controller.filteredItems(filtered.client->menuItems, needle);
            COMPARE_ROW(QString(title + u'/' + needle), !items.isEmpty(), passes);
        }
    }

    void changedTitlesAreSeen()
    {
        FilteredMenu filtered({u"Red"_s, u"Green"_s});
        const QList<QAction *> &items = filtered.client->menuItems;
        const auto count = [&](const QString &needle) {
            return filtered.controller.filteredItems(items, needle).size();
        };
        QCOMPARE(count(u"blue"_s), 0);
        items[0]->setText(u"Blue"_s);
        QCOMPARE(count(u"blue"_s), 1);
        ZEVMenuItem::setAttributedTitle(items[0], ZEVAttributedString(u"Shown"_s));
        QCOMPARE(count(u"shown"_s), 0);
        ZEVMenuItem::setTitle(items[0], u"Violet"_s); // the shown text stays as it is
        QCOMPARE(count(u"violet"_s), 1);
    }

    void separatorsAndSubmenusSurvive()
    {
        FilteredMenu filtered({u"-"_s, u"a1"_s, u"-"_s, u"b"_s, u"-"_s, u"-"_s, u"a2"_s, u"-"_s, u"b"_s});
        QMenu inner(u"Sub"_s), innermost(u"More"_s);
        innermost.addAction(u"Deep a3"_s);
        innermost.addMenu(&inner); // a circle
        inner.addMenu(&innermost);
        filtered.client->menuItems.append(inner.menuAction());
        const std::pair<QString, QString> rows[] = {
            {u"a"_s, u"a1|-|a2|-|Sub"_s}, {u"2"_s, u"a2"_s}, {u"deep"_s, u"Sub"_s}, {u"z"_s, {}}};
        for (const auto &[needle, shown] : rows) {
            filtered.field->setText(needle);
            filtered.controller.controlTextDidChange();
            COMPARE_ROW(needle, filtered.shown(), shown);
        }
        QCOMPARE(filtered.client->menuItems.size(), 10); // those that left the menu live on
        QCOMPARE(ZEVMenuItem::title(filtered.client->menuItems[1]), u"a1"_s);
    }

    void expressionsOfTheirOwn()
    {
        FilteredMenu filtered({u"Élan"_s, u"élargi"_s, u"Le élan"_s});
        const auto items = filtered.client->menuItems;
        const ZEVMenuFilterViewController &controller = filtered.controller;
        QCOMPARE(controller.filteredItems(items, u"x"_s, ZEVRegularExpression::compile(u"an$"_s)),
                 (QList{items[0], items[2]}));
        QCOMPARE(controller.filteredItems(items, {}, ZEVRegularExpression::compile(u"z"_s)), items);
        QCOMPARE(controller.filteredItems(items, u"ela"_s, std::nullopt), (QList{items[0], items[1]}));
        QVERIFY_EXCEPTION_THROWN(controller.filteredItems(items, u"elarg"_s, std::nullopt),
                                 std::out_of_range);
    }

    void delegateIsToldOnce()
    {
        FilteredMenu filtered({u"a"_s, u"b"_s});
        CountingDelegate delegate;
        filtered.controller.setDelegate(&delegate);
        QVERIFY(filtered.open());
        filtered.type(u"a b"_s);
        QCOMPARE(delegate.changes, 3);
        QCOMPARE(filtered.controller.regex(), ZEVStringFilterRegexValue::filterRegexValue(u"a b"_s));
        filtered.press(Qt::Key_Down); // into nothing
        QVERIFY(filtered.field->hasFocus());
        QVERIFY(filtered.menu.isVisible());
        delegate.hasItems = std::nullopt;
        filtered.press(Qt::Key_Down); // the menu's own
        QCOMPARE(filtered.active(), u"a"_s);
        filtered.field->setFocus();
        filtered.controller.clearFilter();
        QVERIFY(delegate.changes == 3);
        QVERIFY(filtered.controller.hasNeedle());
        auto *more = filtered.controller.moreMenuItem()->defaultWidget()->findChild<QToolButton *>();
        filtered.controller.moreMenuItem()->setVisible(false);
        filtered.controller.moreMenuItem()->setVisible(true);
        more->click();
        QVERIFY(delegate.changes == 4);
        QVERIFY(filtered.controller.filterCleared());
        delegate.showsMore = true;
        more->click();
        QVERIFY(delegate.changes == 4);
        QVERIFY(delegate.requests == 2);
        QVERIFY(filtered.controller.regex()); // unused, and kept
    }

    void worksByKeyboard()
    {
        FilteredMenu filtered({u"Anna"_s, u"Berta"_s, u"Bertram"_s});
        QVERIFY(filtered.open());
        filtered.type(u"ber"_s);
        QCOMPARE(filtered.shown(), u"Berta|Bertram"_s);
        filtered.press(Qt::Key_Return);
        QVERIFY(filtered.menu.isVisible());
        filtered.press(Qt::Key_Down);
        QVERIFY(filtered.active() == u"Berta"_s);
        QVERIFY(!filtered.field->hasFocus());
        filtered.press(Qt::Key_Up);
        QVERIFY(filtered.field->hasFocus());
        filtered.press(Qt::Key_Tab);
        QCOMPARE(filtered.active(), u"Berta"_s);
        filtered.type(u"tr"_s); // goes to the field
        QCOMPARE(filtered.field->text(), u"bertr"_s);
        QCOMPARE(filtered.shown(), u"Bertram"_s);
        QSignalSpy chosen(filtered.client->menuItems[2], &QAction::triggered);
        filtered.press(Qt::Key_Return);
        QVERIFY(chosen.size() == 1);
        QVERIFY(!filtered.menu.isVisible());
        QVERIFY(filtered.open());
        QCOMPARE(filtered.field->selectedText(), u"bertr"_s);
        filtered.press(Qt::Key_Escape);
        QVERIFY(filtered.menu.isVisible());
        QVERIFY(filtered.controller.filterCleared());
        QCOMPARE(filtered.shown(), u"Anna|Berta|Bertram"_s);
        filtered.press(Qt::Key_Escape);
        QVERIFY(!filtered.menu.isVisible());
    }

    void longMenusAreReachedToTheirEnd()
    {
        FilteredMenu filtered(numbered(10'000));
        filtered.client->menuItems[9'998]->setEnabled(false);
        QVERIFY(filtered.open());
        const qsizetype inView = filtered.menu.actions().size() - 1;
        QVERIFY(inView >= 4);
        QVERIFY(inView <= 30);
        filtered.press(Qt::Key_Up);
        QCOMPARE(filtered.active(), u"Track 9999"_s);
        filtered.press(Qt::Key_Up);
        QCOMPARE(filtered.active(), u"Track 9997"_s);
        for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_End, Qt::Key_PageDown})
            filtered.press(key);
        QCOMPARE(filtered.active(), u"Track 9999"_s);
        filtered.press(Qt::Key_Home);
        for (int i = 0; i < inView + 5; ++i)
            filtered.press(Qt::Key_Down);
        QCOMPARE(filtered.active(), u"Track %1"_s.arg(inView + 5));
        filtered.press(Qt::Key_PageDown);
        QCOMPARE(filtered.active(), u"Track %1"_s.arg(2 * inView + 4));
        QCOMPARE(filtered.menu.actions().last(), filtered.menu.activeAction());
        QWheelEvent wheel({50, 100}, filtered.menu.mapToGlobal(QPointF(50, 100)), {}, {0, -120}, {}, {}, {},
                          false);
        const QString first = filtered.shown().section(u'|', 0, 0);
        QApplication::sendEvent(&filtered.menu, &wheel);
        QVERIFY(filtered.shown().section(u'|', 0, 0) != first);
        QCOMPARE(filtered.menu.actions().size(), inView + 1);
    }

    void whoRefillsAMenuHasIt()
    {
        FilteredMenu filtered(numbered(300));
        QVERIFY(filtered.open());
        filtered.controller.filterMenuItem()->setVisible(false);
        for (QAction *item : filtered.menu.actions().sliced(1))
            filtered.menu.removeAction(item);
        filtered.menu.addAction(u"Other"_s);
        for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_Down})
            QTest::keyClick(&filtered.menu, key);
        QCOMPARE(filtered.shown(), u"Other"_s);
        QVERIFY(filtered.menu.findChild<QScrollBar *>()->isHidden());
    }

    void theFieldAndItsButtonLook()
    {
        FilteredMenu filtered({u"a"_s});
        filtered.menu.addAction(filtered.controller.moreMenuItem());
        QVERIFY(filtered.open());
        filtered.field->setCursorPosition(0);
        const auto frame = [&] { return filtered.field->grab({0, 0, 3, 23}).toImage(); };
        const QImage focused = frame();
        filtered.menu.setFocus();
        QVERIFY(focused == frame());
        QVERIFY(!filtered.field->hasFocus());
        QVERIFY(filtered.field->fontInfo().pixelSize() < QFontInfo(QGuiApplication::font()).pixelSize());
        // The plus is as wide as it is high.
        auto *more = filtered.controller.moreMenuItem()->defaultWidget()->findChild<QToolButton *>();
        QImage image(104, 25, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        static_cast<ZEVMoreButtonCell *>(more)->drawWithFrame(&painter, image.rect(), false);
        QRect plus;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 128)
                    plus |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY2(plus.width() > 8 && plus.width() - plus.height() <= 2,
                 qPrintable(QString::number(plus.width())));
    }

    void openMenusResizeInOneStep()
    {
        FilteredMenu filtered(numbered(300));
        QVERIFY(filtered.open());
        const int width = filtered.menu.width();
        filtered.menu.installEventFilter(this);
        const std::pair<QString, int> rows[] = {{u"1"_s, 0}, {u"19"_s, 1}, {u"199"_s, 1}, {u"199x"_s, 1}};
        for (const auto &[needle, most] : rows) {
            m_resizes = 0;
            filtered.type(needle.last(1));
            const auto fits = [&] { return filtered.menu.height() == filtered.menu.sizeHint().height(); };
            QVERIFY2(fits() && m_resizes <= most, qPrintable(needle + QString::number(m_resizes)));
        }
        filtered.press(Qt::Key_Escape);
        QCOMPARE(filtered.menu.width(), width);
        QVERIFY(filtered.menu.height() < filtered.menu.screen()->availableSize().height());
        auto *bar = filtered.menu.findChild<QScrollBar *>();
        QVERIFY(bar->isVisible());
        QVERIFY(filtered.menu.rect().contains(bar->geometry()));
        QVERIFY(!filtered.menu.actionGeometry(filtered.menu.actions()[3]).intersects(bar->geometry()));
    }

    /// What is composed, dead keys included, belongs to the menu while it is open.
    void inputMethodsAndScreenReaders()
    {
        QLineEdit beneath;
        beneath.show();
        beneath.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&beneath));
        FilteredMenu filtered({u"日本"_s, u"Japan"_s});
        QVERIFY(filtered.open());
        QCoreApplication::processEvents();
        QInputMethodEvent event;
        event.setCommitString(u"日"_s);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
        QVERIFY(filtered.shown() == u"日本"_s);
        QVERIFY(beneath.text().isEmpty());
        QInputMethodQueryEvent query(Qt::ImSurroundingText);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &query);
        QCOMPARE(query.value(Qt::ImSurroundingText).toString(), u"日"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(filtered.field)->text(QAccessible::Name), u"Filter"_s);
        filtered.menu.close();
        beneath.activateWindow(); // which a window manager would have done
        QTRY_COMPARE(QGuiApplication::focusObject(), &beneath);
        QCoreApplication::sendEvent(&beneath, &event);
        QCOMPARE(beneath.text(), u"日"_s);
    }
};

QTEST_MAIN(tst_MenuFilter)
#include "tst_MenuFilter.moc"
