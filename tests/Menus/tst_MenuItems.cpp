// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemHeadings.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemRemoveAllFollowing.h>

#include <QAccessible>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QStyle>
#include <QTextBlockFormat>

using namespace Qt::StringLiterals;
using namespace ZEVMenuItem;
using namespace ZEVMenuItemBlockAdditions;
using namespace ZEVMenuItemHeadings;
using namespace ZEVMenuItemRemoveAllFollowing;

namespace {

/// A text in no colour at all on a red ground.
ZEVAttributedString redPill(const QString &text)
{
    QTextCharFormat format;
    format.setBackground(Qt::red);
    format.setForeground(Qt::transparent);
    ZEVAttributedString title;
    title.append(text, format);
    return title;
}

QRect redArea(const QImage &image)
{
    QRegion area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == Qt::red)
                area += QRect(x, y, 1, 1);
        }
    }
    return area.boundingRect();
}

QImage picture(QMenu &menu) { return menu.grab().toImage().convertToFormat(QImage::Format_RGB32); }

QStringList titles(const QMenu &menu)
{
    QStringList titles;
    for (const QAction *item : menu.actions())
        titles.append(title(item));
    return titles;
}

void fill(QMenu &menu, const QStringList &names)
{
    for (const QString &name : names)
        menu.addAction(itemWithTitle(name, &menu));
}

} // namespace

class tst_MenuItems : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void note(QAction *sender) { m_chosen += title(sender); }

private:
    QString m_chosen;

private Q_SLOTS:
    void titlesAreLiteral()
    {
        QAction item;
        setTitle(&item, u"A && B\tC\n"_s);
        setIndentationLevel(&item, 99);
        QCOMPARE(title(&item), u"A && B\tC\n"_s);
        QCOMPARE(item.text(), QString(15, QChar(0x2003)) + u"A &&&& B C "_s);
        setAttributedTitle(&item, redPill(u"R&D"_s));
        QCOMPARE(title(&item), u"A && B\tC\n"_s);
        QCOMPARE(item.text().trimmed(), u"R&&D"_s);
        item.setText(u"&Open && &Close&"_s); // the host's word is the last
        QCOMPARE(title(&item), u"Open & Close"_s);
        QVERIFY(!attributedTitle(&item));
        QVERIFY(indentationLevel(&item) == 15);
        setState(&item, Off);
        QVERIFY(!item.isCheckable());
    }

    /// The red ground is all that may be seen of the text: exactly where the style would have put it.
    void attributedTitlesAreDrawn_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("isActive");
        QTest::newRow("plain") << Qt::LeftToRight << false;
        QTest::newRow("under the pointer") << Qt::LeftToRight << true;
        QTest::newRow("from right to left") << Qt::RightToLeft << false;
    }

    void attributedTitlesAreDrawn()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, isActive);
        QGuiApplication::setLayoutDirection(direction);
        const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        QMenu menu;
        QFont font = menu.font();
        font.setPixelSize(30);
        menu.setFont(font);
        fill(menu, {u"Track"_s, u"A much longer title"_s});
        QAction *item = menu.actions().first();
        item->setShortcut(QKeySequence::Copy);
        setState(item, On);
        menu.setActiveAction(isActive ? item : nullptr);
        menu.resize(menu.sizeHint());
        const QImage plain = picture(menu);
        setAttributedTitle(item, redPill(u"Track"_s));
        const QImage drawn = picture(menu);

        const QRect red = redArea(drawn);
        QVERIFY(menu.actionGeometry(item).contains(red));
        const int width = menu.fontMetrics().horizontalAdvance(u"Track"_s);
        QVERIFY2(qAbs(red.width() - width) <= 1, qPrintable(QString::number(red.width())));
        for (int y = 0; y < plain.height(); ++y) {
            for (int x = 0; x < plain.width(); ++x) {
                if (!red.adjusted(-1, 0, 1, 0).contains(x, y))
                    QCOMPARE(drawn.pixelColor(x, y), plain.pixelColor(x, y));
            }
        }
    }

    void scrollersCoverAttributedTitles()
    {
        QMenu menu;
        menu.setStyleSheet(u"QMenu { menu-scrollable: 1 }"_s);
        fill(menu, QStringList(200, u"Track"_s));
        menu.actions().first()->setVisible(false);
        menu.popup({20, 20});
        menu.setActiveAction(menu.actions().at(120)); // scrolls to it
        const QImage plain = picture(menu);
        for (QAction *item : menu.actions())
            setAttributedTitle(item, redPill(u"Track"_s));
        const QImage drawn = picture(menu);
        const int scroller = menu.style()->pixelMetric(QStyle::PM_MenuScrollerHeight, nullptr, &menu);
        for (const int y : {0, plain.height() - scroller})
            QCOMPARE(drawn.copy(0, y, plain.width(), scroller), plain.copy(0, y, plain.width(), scroller));
        QVERIFY(redArea(drawn).height() > plain.height() / 2);
    }

    void screenReadersHearTheBareText()
    {
        QMenu menu;
        menu.addAction(headingItemWithTitle(u"Saved & old"_s, true, &menu));
        fill(menu, {u"Digits"_s});
        setAttributedTitle(menu.actions().last(), redPill(u"R&D"_s));
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&menu);
        QCOMPARE(interface->child(0)->text(QAccessible::Name), u"Saved & old"_s);
        QVERIFY(interface->child(0)->state().disabled);
        QCOMPARE(interface->child(1)->text(QAccessible::Name), u"R&D"_s);
    }

    void headingsAndSpacersTakeTheirRoom()
    {
        QMenu menu;
        QTextBlockFormat high;
        high.setLineHeight(50, QTextBlockFormat::MinimumHeight);
        for (QAction *item : {headingItemWithTitle(u"Long enough for red"_s, &menu),
                              headingItemWithTitle(u"B"_s, true, &menu),
                              headingItemWithTitle(u"C"_s, high, &menu), spacerItemWithHeight(7, &menu)}) {
            QVERIFY(!item->isEnabled());
            menu.addAction(item);
        }
        const QList<QAction *> items = menu.actions();
        const int height = menu.actionGeometry(items[0]).height();
        QVERIFY(height >= 16);
        QCOMPARE(menu.actionGeometry(items[1]).height(), height + 4);
        QCOMPARE(menu.actionGeometry(items[2]).height(), height + 34);
        QCOMPARE(menu.actionGeometry(items[3]).height(), 7);
        const QTextCharFormat format = attributedTitle(items[0])->formats().first().format;
        QCOMPARE(format.foreground().color(), QColor(153, 153, 153));
        QCOMPARE(QFontInfo(format.font()).pixelSize(), 11);
        setAttributedTitle(items[0], redPill(u"Long enough for red"_s));
        QVERIFY(menu.actionGeometry(items[0]).contains(redArea(picture(menu))));
        QVERIFY(redArea(picture(menu)).width() > 50);
    }

    void neighboursAreRemoved()
    {
        const std::tuple<int, void (*)(QAction *), QStringList> rows[] = {
            {0, &removeAllFollowingItems, {u"a"_s}},
            {1, &removeAllFollowingItems, {u"a"_s, u"b"_s}},
            {2, &removeAllFollowingItems, {u"a"_s, u"b"_s, u"c"_s}},
            {1, &removeAllOtherItems, {u"b"_s}},
        };
        for (const auto &[n, remove, left] : rows) {
            QMenu menu;
            fill(menu, {u"a"_s, u"b"_s, u"c"_s});
            remove(menu.actions()[n]);
            COMPARE_ROW(n, titles(menu), left);
        }
        QAction withoutMenu;
        removeAllFollowingItems(&withoutMenu);
    }

    void blocks()
    {
        QString said;
        QAction *item = itemWithTitle(
            u"A"_s, [&said](QAction *sender) { said += title(sender); }, this);
        item->trigger();
        QCOMPARE(said, u"A"_s);
        setBlock(item, [&said, item](QAction *) { said += u'B', setBlock(item, {}); });
        item->trigger();
        item->trigger();
        QCOMPARE(said, u"AB"_s);
        QPointer target(new QWidget);
        QAction *action = itemWithTitle(u"C"_s, this, "note", this);
        QAction *up = itemWithTitle(u"D"_s, target, "close", this);
        action->trigger();
        delete target;
        up->trigger();
        QCOMPARE(m_chosen, u"C"_s);
    }

    /// Which is safe once the menu has done with the key or the click.
    void aBlockMayDeleteItsMenu()
    {
        for (const bool byKey : {true, false}) {
            QPointer menu(new QMenu);
            bool hasMenuDone = false, isSafe = false;
            menu->addAction(itemWithTitle(
                u"a"_s, [&](QAction *) { isSafe = hasMenuDone, delete menu; }, menu));
            menu->popup({20, 20});
            const QPoint item = menu->actionGeometry(menu->actions().first()).center();
            if (byKey)
                QTest::keyClick(menu, Qt::Key_Down), QTest::keyClick(menu, Qt::Key_Return);
            else
                QTest::mouseClick(menu, Qt::LeftButton, {}, item);
            hasMenuDone = true;
            QTRY_VERIFY(!menu);
            QVERIFY(isSafe);
        }
    }

    void anOpenMenuIsRebuilt()
    {
        QMenu menu;
        menu.addAction(headingItemWithTitle(u"H"_s, &menu));
        fill(menu, {u"a"_s, u"b"_s});
        menu.popup({20, 20});
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.setActiveAction(menu.actions().last());
        connect(&menu, &QMenu::hovered, &menu, [&menu] {
            removeAllItems(&menu);
            menu.addAction(spacerItemWithHeight(5, &menu));
            menu.addAction(itemWithTitle(u"new"_s, &menu));
            setAttributedTitle(menu.actions().last(), redPill(u"new"_s));
        });
        QTest::keyClick(&menu, Qt::Key_Up);
        QCOMPARE(titles(menu), (QStringList{{}, u"new"_s}));
        QVERIFY(!redArea(picture(menu)).isEmpty());
        menu.disconnect(&menu);
        QSignalSpy triggered(&menu, &QMenu::triggered);
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(triggered.size(), 1);
    }
};

QTEST_MAIN(tst_MenuItems)
#include "tst_MenuItems.moc"
