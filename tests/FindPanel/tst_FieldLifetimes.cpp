// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Fields.h"

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVPopover.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

namespace {

/// A field in a window, which a receiver of its signals may end.
struct Fragile {
    Fragile()
    {
        field->setDelegate(&tokens);
        field->setPatterns({u"%Title%"_s, u"b"_s});
        window.resize(300, 60);
        window.show();
        window.activateWindow();
        field->setFocus();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("No active window");
    }

    /// A key, and with it what else waits.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(field, &event);
    }
    void type(const QString &text) { press({}, {}, text); }

    ZEVPatternTokens tokens{{{item(u"Title"_s)}}};
    QWidget window;
    QPointer<ZEVTokenField> field = new ZEVTokenField(&window);
};

using Act = std::function<void(Fragile &)>;

struct Ender : QObject, OEXTokenFieldDelegate, ZEVTokenFieldMenuDelegate {
    bool doCommandBySelector(OEXTokenField *field, ZEVTextCommand) override
    {
        delete field;
        return answer;
    }
    bool tokenFieldShowCustomAddTokensMenu(ZEVTokenField *field) override
    {
        delete field;
        return answer;
    }
    bool answer = false;
};

/// Ends its filter when it is told of this or that.
struct FilterEnder : ZEVMenuFilterDelegate {
    void filterDidChange(ZEVMenuFilterViewController *filter) override { end(filter, u"change"); }
    bool showMoreItems(ZEVMenuFilterViewController *filter) override { return end(filter, u"more"); }
    std::optional<bool> hasFilteredItems(ZEVMenuFilterViewController *filter) override
    {
        return end(filter, u"items");
    }
    bool handleReturnKeyEvent(ZEVMenuFilterViewController *filter) override { return end(filter, u"return"); }

    bool end(ZEVMenuFilterViewController *filter, QStringView told)
    {
        if (told == at)
            delete filter;
        return answer;
    }

    QString at;
    bool answer = true;
};

} // namespace

/// Whoever is told of a change may end what has changed, or what told of it; the address sanitizer looks on.
class tst_FieldLifetimes : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QUrl made(const QString &name)
    {
        QFile file(m_folder.filePath(name));
        return file.open(QFile::WriteOnly) ? QUrl::fromLocalFile(file.fileName()) : QUrl();
    }

private Q_SLOTS:
    void init()
    {
        ZEVUserDefaults::setStandardStore(
            std::make_unique<QSettings>(m_folder.filePath(u"defaults.ini"_s), QSettings::IniFormat));
    }

    void fieldsEndWhenTheyTell_data()
    {
        QTest::addColumn<Act>("act");
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        const auto dropDownItem = [](Fragile &f, int index) {
            f.field->popUpRecentsMenu();
            QMenu *menu = f.field->dropDownMenu();
            menu->setActiveAction(menu->actions().at(index));
            QTest::keyClick(menu, Qt::Key_Return);
        };
        row("set", [](Fragile &f) { f.field->setObjectValue(pattern(u"<Title>"_s)); });
        row("set as text", [](Fragile &f) { f.field->setPatternStringValue(u"x"_s); });
        row("typed", [](Fragile &f) { f.type(u"x"_s); });
        row("typed token", [](Fragile &f) {
            f.field->blockSignals(true);
            f.type(u"T"_s);
            f.field->setObjectValue(pattern(u"%Title"_s));
            f.field->setSelectedRange({6, 0});
            f.field->blockSignals(false);
            f.type(u"%"_s);
        });
        row("composed", [](Fragile &f) {
            QInputMethodEvent event;
            event.setCommitString(u"x\ny"_s);
            QCoreApplication::sendEvent(f.field, &event);
        });
        row("pasted", [](Fragile &f) {
            QGuiApplication::clipboard()->setText(u"a%Title%"_s);
            f.press(Qt::Key_V, Qt::ControlModifier);
        });
        row("pasted by the program", [](Fragile &f) {
            QGuiApplication::clipboard()->setText(u"x"_s);
            f.field->paste();
            QCoreApplication::processEvents();
        });
        row("undone", [](Fragile &f) {
            f.field->blockSignals(true);
            f.field->setObjectValue(pattern(u"x"_s), ZEVValueStep::User);
            f.field->blockSignals(false);
            f.press(Qt::Key_Z, Qt::ControlModifier);
        });
        row("token inserted",
            [](Fragile &f) { f.field->insertToken(QVariant::fromValue(item(u"Title"_s))); });
        row("pattern used", [=](Fragile &f) { dropDownItem(f, 3); });
        row("pattern removed", [=](Fragile &f) {
            f.field->blockSignals(true);
            f.field->setPatternStringValue(u"%Title%"_s);
            f.field->blockSignals(false);
            f.field->menuNeedsUpdate(f.field->dropDownMenu());
            dropDownItem(f, 6);
        });
        row("cleared", [](Fragile &f) {
            f.field->blockSignals(true);
            f.field->setPatternStringValue(u"x"_s);
            f.field->blockSignals(false);
            f.field->clear();
        });
        row("nothing cleared", [](Fragile &f) { f.field->clear(); }); // only the action
        row("loaded", [](Fragile &f) {
            ZEVUserDefaults::standardUserDefaults()->setObject(u"stored"_s, u"Find"_s);
            f.field->setAutosaveName(u"Find"_s);
        });
        row("Return", [](Fragile &f) { f.press(Qt::Key_Return); });
        row("spoken", [](Fragile &f) {
            QAccessible::queryAccessibleInterface(f.field)->setText(QAccessible::Value, u"x"_s);
            QCoreApplication::processEvents();
        });
        for (const bool answer : {false, true}) {
            row(answer ? "delegate, done" : "delegate", [answer](Fragile &f) {
                Ender ender;
                ender.answer = answer;
                f.field->setDelegate(&ender);
                f.press(Qt::Key_Return, Qt::ShiftModifier);
            });
            row(answer ? "menu delegate, done" : "menu delegate", [answer](Fragile &f) {
                Ender ender;
                ender.answer = answer;
                f.field->setMenuDelegate(&ender);
                f.press(Qt::Key_Plus, Qt::ControlModifier);
            });
        }
    }
    void fieldsEndWhenTheyTell()
    {
        QFETCH(Act, act);
        Fragile fragile;
        const auto end = [&] { delete fragile.field; };
        connect(fragile.field, &OEXTokenField::objectValueChanged, this, end);
        connect(fragile.field, &OEXTokenField::actionTriggered, this, end);
        act(fragile);
        QVERIFY(!fragile.field);
    }

    void whatAFieldUsesMayGoFirst()
    {
        auto backdrop = std::make_unique<ZEVTextFinderFakeCellView>();
        auto tokens = std::make_unique<ZEVPatternTokens>(ZEVPatternTokens::Groups{{item(u"Title"_s)}});
        auto ender = std::make_unique<Ender>();
        Fragile fragile;
        auto cell = std::make_unique<ZEVFocusTokenFieldCell>();
        cell->setFakeCellView(backdrop.get());
        auto *button = ZEVTokenFieldCell::cellButtonWithImageNamed(
            u"icoMenuTemplate", [cell = cell.get()] { cell->setActionButton(nullptr); });
        fragile.field->setCell(std::move(cell));
        static_cast<ZEVTokenFieldCell *>(fragile.field->cell())->setActionButton(button);
        fragile.field->setDelegate(tokens.get());
        fragile.field->setMenuDelegate(ender.get());
        auto menu = std::make_unique<QMenu>();
        fragile.field->setMenu(menu.get());
        fragile.field->setObjectValue(pattern(u"a<Title>"_s));
        QTest::mouseClick(button, Qt::LeftButton); // which takes itself away
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        backdrop.reset();
        tokens.reset();
        ender.reset();
        menu.reset();
        fragile.press(Qt::Key_Plus, Qt::ControlModifier);
        fragile.type(u"x"_s);
        fragile.window.grab();
        QCOMPARE(shown(fragile.field->objectValue()), u"a<Title>x"_s);
    }

    void filtersEndWhenTheyTell_data()
    {
        QTest::addColumn<QString>("at");
        QTest::addColumn<int>("key");
        QTest::newRow("typed") << u"change"_s << int(Qt::Key_X);
        QTest::newRow("cleared") << u"change"_s << int(Qt::Key_Escape);
        QTest::newRow("Down") << u"items"_s << int(Qt::Key_Down);
        QTest::newRow("Return") << u"return"_s << int(Qt::Key_Return);
        QTest::newRow("more") << u"more"_s << 0;
    }
    void filtersEndWhenTheyTell()
    {
        QFETCH(QString, at);
        QFETCH(int, key);
        for (const bool answer : {false, true}) {
            QMenu menu;
            FilterEnder ender;
            ender.answer = answer;
            const QPointer filter(new ZEVMenuFilterViewController(ZEVControlSize::Small));
            filter->setAutofocus(true);
            menu.addAction(filter->filterMenuItem());
            menu.addAction(filter->moreMenuItem());
            menu.addAction(u"x"_s);
            menu.popup({20, 20});
            QVERIFY(QTest::qWaitForWindowExposed(&menu));
            QTest::keyClick(filter->searchField(), Qt::Key_Y);
            filter->setDelegate(&ender);
            ender.at = at;
            auto *more = filter->moreMenuItem()->defaultWidget()->findChild<QToolButton *>();
            if (key)
                QTest::keyClick(filter->searchField(), Qt::Key(key));
            else
                QTest::mouseClick(more, Qt::LeftButton);
            QVERIFY(!filter);
            QTest::keyClick(&menu, Qt::Key_Down);
            menu.close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            menu.popup({20, 20});
        }
    }

    void menusEndInTheirItems()
    {
        const QPointer menu(new QMenu);
        auto *scroller = ZEVMenuItemScroller::scrollerOfMenu(menu);
        QAction *first = menu->addAction(u"first"_s);
        QList<QAction *> items;
        for (int i = 0; i < 100; ++i)
            items << ZEVMenuItemBlockAdditions::itemWithTitle(
                QString::number(i), [menu](QAction *) { delete menu; }, menu);
        ZEVMenuItem::setAttributedTitle(items[0], ZEVAttributedString(u"shown"_s));
        ZEVMenuBuilder::setMenuBuilder(menu, [&](QMenu *built) {
            ZEVMenuBuilder::setMenuBuilder(built, {}); // who is built once
            scroller->setItemsAfter(first, items);
        });
        menu->popup({20, 20});
        QVERIFY(QTest::qWaitForWindowExposed(menu));
        menu->grab();
        QTest::keyClick(menu, Qt::Key_End);
        QCOMPARE(menu->activeAction(), items.last());
        menu->clear(); // which deletes what is in view
        QTest::keyClick(menu, Qt::Key_Down);
        menu->addAction(items.first());
        items.first()->trigger();
        QTRY_VERIFY(!menu);
    }

    void popUpButtonsEndWhenTheyTell_data()
    {
        using Button = ZEVURLPopUpButton;
        QTest::addColumn<std::function<void(Button *, const QUrl &)>>("act");
        const auto row = [](const char *name, const std::function<void(Button *, const QUrl &)> &act) {
            QTest::newRow(name) << act;
        };
        row("set", [](Button *button, const QUrl &url) { button->setURL(url); });
        row("own URL", [](Button *button, const QUrl &) {
            button->setURL(button->recentURLSet().last()); // which the setter reorders
        });
        row("chosen", [](Button *button, const QUrl &) { button->menu()->actions().at(1)->trigger(); });
        row("none", [](Button *button, const QUrl &) { button->noneItem()->trigger(); });
        row("dropped", [](Button *button, const QUrl &url) {
            QMimeData data;
            data.setUrls({url});
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(button, &enter);
            QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(button, &drop);
        });
        row("browsed", [](Button *button, const QUrl &url) {
            ZEVOpenPanel::setRunner([url](ZEVOpenPanel &panel) {
                panel.URL = url;
                return ZEVOpenPanel::OKResponse;
            });
            button->browse();
            ZEVOpenPanel::setRunner({});
        });
        row("gone while browsing", [](Button *button, const QUrl &) {
            ZEVOpenPanel::setRunner([button](ZEVOpenPanel &) {
                delete button;
                return ZEVOpenPanel::OKResponse;
            });
            button->browse();
            ZEVOpenPanel::setRunner({});
        });
        row("loaded", [](Button *button, const QUrl &url) {
            ZEVUserDefaults::standardUserDefaults()->setObject(url.toString(), u"Folder"_s);
            button->setAutosaveName(u"Folder"_s);
        });
    }
    void popUpButtonsEndWhenTheyTell()
    {
        using Act = std::function<void(ZEVURLPopUpButton *, const QUrl &)>;
        QFETCH(Act, act);
        const QPointer button(new ZEVURLPopUpButton);
        button->setURL(made(u"first"_s));
        button->setURL(made(u"second"_s));
        connect(button, &ZEVURLPopUpButton::URLDidChange, this, [button] { delete button; });
        act(button, made(u"third"_s));
        QTRY_VERIFY(!button);
    }

    void popoversEndWithWhatTheyShow()
    {
        QWidget window;
        window.show();
        const QPointer popover(new ZEVPopover);
        auto *content = new QPushButton(u"x"_s);
        popover->setContent(content);
        popover->setContent(content);
        connect(content, &QPushButton::clicked, popover, [popover] { popover->setContent(nullptr); });
        popover->showRelativeToRect({0, 0, 10, 10}, &window, ZEVPopover::MaxY);
        auto *other = new QPushButton(u"y"_s);
        popover->setContent(other);
        delete other;
        popover->setContent(new QLabel(u"z"_s));
        QTest::keyClick(popover, Qt::Key_Escape);
        delete popover;
        QVERIFY(!popover);
    }
};

QTEST_MAIN(tst_FieldLifetimes)
#include "tst_FieldLifetimes.moc"
