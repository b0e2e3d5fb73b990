// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "Fields.h"

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelSharedScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextViewFindPboard.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarContainerView.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPanelQueryParamsController.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderFakeCellView.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderMenu.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderViewController.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVWrappingLayout_p.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVKeyValueObserver.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

namespace {

/// Notes what an interface asks for.
struct Listener : QObject, ZEVTextFinderUserInterfaceDelegate {
    void performAction(qint64 action) override { actions << action; }
    void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression) override
    {
        searches << (expression ? expression->pattern() : u"nil"_s);
    }
    void customizeFindMenuBeforeDisplay(ZEVTextFinderUserInterface *, QMenu *menu) override
    {
        menu->addAction(u"Custom"_s);
    }

    QList<qint64> actions;
    QStringList searches;
};

/// A text in pieces, a piece a line.
struct Lines : ZEVTextFinderClient {
    qsizetype stringLength() const override { return lines.join(u'\n').size(); }
    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override
    {
        const QString rest = lines.join(u'\n').mid(index);
        const QString line = rest.section(u'\n', 0, 0);
        effectiveRange = {index, qMin(line.size() + 1, rest.size())};
        return line;
    }

    QStringList lines;
};

/// A controller's view in an active window.
template <typename Controller>
struct Shown {
    Shown()
    {
        controller.setDelegate(&listener);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(controller.view());
        window.show();
        window.activateWindow();
        field().setFocus();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("No active window");
    }

    ZEVTokenField &field() { return *controller.findTokenField(); }
    template <typename Widget = QAbstractButton>
    Widget *child(const QString &name)
    {
        return controller.view()->template findChild<Widget *>(name);
    }

    Listener listener;
    QWidget window;
    Controller controller;
};

/// A finder over lines, its bar above an editor of several lines and one of one line.
struct Window {
    explicit Window(const QStringList &lines = {})
    {
        client.lines = lines;
        auto *layout = new QVBoxLayout(content);
        layout->addWidget(&editor);
        layout->addWidget(&line);
        finder.setClient(&client);
        finder.setFindBarContainer(&container);
        container.resize(900, 300);
        container.show();
        container.activateWindow();
        editor.setFocus();
        if (!QTest::qWaitForWindowActive(&container))
            qFatal("No active window");
    }

    ZEVTextFinderViewController &bar()
    {
        return *static_cast<ZEVTextFinderViewController *>(finder.textFinderViewController());
    }
    bool takes(qint64 action) { return finder.canTakeTextFinderActionOwnerShip(action); }

    Lines client;
    QWidget *content = new QWidget;
    QPlainTextEdit &editor = *new QPlainTextEdit;
    QLineEdit &line = *new QLineEdit;
    ZEVFindBarContainerView container{content};
    ZEVTextFinder finder;
};

QList<qint64> enabledActions(ZEVTextFinder &finder)
{
    QList<qint64> enabled;
    for (qint64 action = -1; action <= 70; ++action) {
        if (finder.validateAction(action))
            enabled << action;
    }
    return enabled;
}

QStringList titles(const QMenu *menu)
{
    QStringList titles;
    for (const QAction *item : menu->actions())
        titles << (item->isSeparator() ? u"-"_s : item->text().trimmed())
                + (item->isChecked() ? u"*"_s : u""_s);
    return titles;
}

} // namespace

/// Counts what observers are told.
class Heard : public QObject {
    Q_OBJECT

public:
    int count = 0;

public Q_SLOTS:
    void note() { ++count; }
};

/// An object of another program's.
struct Foreign {
    Foreign() = default;
    explicit Foreign(ZEVKeyedUnarchiver &) { }
    void encodeWithCoder(ZEVKeyedArchiver &archiver) const { archiver.encodeBool(true, u"field"); }
};
Q_DECLARE_METATYPE(Foreign)

/// A host's own interface, which brings a file of its name, and one that does not.
class HostInterface : public ZEVTextFinderUserInterfaceVC {
    Q_OBJECT
};
class HostBar : public ZEVTextFinderViewController {
    Q_OBJECT
};

class tst_FindInterface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatDoesNotFitGoesOntoTheNextLine()
    {
        QWidget window;
        auto *layout = new ZEVWrappingLayout(&window);
        layout->setContentsMargins({});
        layout->setSpacing(10);
        for (int n = 0; n < 3; ++n) {
            auto *box = new QWidget(&window);
            box->setFixedSize(40, 20);
            box->show();
            layout->addWidget(box);
        }
        const std::pair<int, int> rows[] = {{140, 1}, {139, 2}, {90, 2}, {89, 3}, {1, 3}};
        for (const auto &[width, lines] : rows)
            COMPARE_ROW(width, layout->heightForWidth(width), lines * 20 + (lines - 1) * 10);
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder->path()));
        ZEVUserDefaults::setStandardStore(
            std::make_unique<QSettings>(m_folder->filePath(u"defaults.ini"_s), QSettings::IniFormat));
    }

    void theBarSearchesAsOneTypes()
    {
        Shown<ZEVTextFinderViewController> shown;
        QTest::keyClicks(&shown.field(), u"a."_s);
        QCOMPARE(shown.listener.searches, QStringList({u"a"_s, u"a\\."_s}));
        QVERIFY(shown.controller.searchTermUnchanged());
        QTest::keyClick(&shown.field(), Qt::Key_Return); // found already: moves on
        QTest::keyClick(&shown.field(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClick(&shown.field(), Qt::Key_Escape);
        QTest::keyClick(shown.child<QComboBox>(u"matchingTypeSelector"_s), Qt::Key_Escape);
        shown.child(u"doneButton"_s)->click();
        QCOMPARE(shown.listener.actions, QList<qint64>({2, 3, 11, 11, 11}));
        shown.listener.actions.clear();
        shown.controller.setShowReplace(true);
        for (const auto &name : {u"nextButton"_s, u"previousButton"_s, u"replaceButton"_s,
                                 u"replaceAndFindButton"_s, u"replaceAllButton"_s})
            shown.child(name)->click();
        QCOMPARE(shown.listener.actions, QList<qint64>({2, 3, 5, 6, 4}));

        auto *types = shown.child<QComboBox>(u"matchingTypeSelector"_s);
        QCOMPARE(types->count(), 6);
        QTest::keyClick(types, Qt::Key_Down);
        QCOMPARE(shown.controller.query().matchingType(), 1);
        QCOMPARE(shown.listener.searches.last(), u"^a\\."_s);
    }

    void theBarTellsOfErrorsAndCounts()
    {
        Shown<ZEVTextFinderViewController> shown;
        shown.controller.setMatchingType(ZEVFindPanelQuery::RegularExpression);
        QTest::keyClicks(&shown.field(), u"(a"_s);
        QCOMPARE(shown.listener.searches.last(), u"nil"_s);
        auto *message = shown.child<QLabel>(u"messageLabel"_s);
        QVERIFY(message->isVisible());
        QVERIFY(message->text().contains(u"parenthesis"));
        QTest::keyClicks(&shown.field(), u")"_s);
        QVERIFY(!message->isVisible());
        shown.controller.setNumberOfMatches(12);
        QTRY_COMPARE(shown.child<QLabel>(u"numberOfMatchesLabel"_s)->text(), u"12 matches"_s);
        shown.controller.setSearchLimitReached(true);
        QVERIFY(message->isVisible());
        shown.controller.setNumberOfMatches(std::nullopt);
        QCOMPARE(shown.child<QLabel>(u"numberOfMatchesLabel"_s)->text(), QString());
    }

    void theBarHasModes()
    {
        Shown<ZEVTextFinderViewController> shown;
        auto *modes = shown.child<ZEVTextFinderBorderlessPopUpButton>(u"interfaceModePopupButton"_s);
        const auto choose = [&](int row) {
            modes->menu()->actions().at(row)->trigger();
            QCoreApplication::processEvents();
        };
        const auto shownModes = [&] {
            Q_EMIT modes->menu()->aboutToShow();
            return titles(modes->menu()).join(u' ') + u" ["_s + modes->text().remove(u'&') + u"]"_s;
        };
        auto *row = shown.child<QWidget>(u"replaceContainerView"_s);
        QVERIFY(!row->isVisible());
        QCOMPARE(shownModes(), u"Find* Find && Replace - Wrap Around* [Find]"_s);
        choose(0);
        choose(1);
        QCOMPARE(shown.listener.actions, QList<qint64>({1, 12}));
        shown.controller.setShowReplace(true);
        QVERIFY(row->isVisible());
        choose(0);
        QCOMPARE(shown.listener.actions.last(), 13);
        choose(3);
        QVERIFY(!shown.controller.wrapAround());
        QCOMPARE(shownModes(), u"Find Find && Replace* - Wrap Around [Find  Replace]"_s);
        const QFontMetricsF metrics(modes->font());
        QCOMPARE(modes->maxWidth(), std::floor(metrics.horizontalAdvance(u"Find & Replace"_s) + 15));
        modes->selectItem(std::make_unique<QAction>().get());
        modes->setUp(); // of an item that has gone
        QCOMPARE(ZEVTextFinderBorderlessPopUpButton().maxWidth(), 0.0);
    }

    void theBarsMenuHasTheCaseOption()
    {
        Shown<ZEVTextFinderViewController> shown;
        QTest::keyClicks(&shown.field(), u"a"_s);
        QTest::mousePress(shown.child(u"findMenuButton"_s), Qt::LeftButton);
        QMenu *menu = shown.field().dropDownMenu();
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(titles(menu),
                 QStringList({u"Insert Pattern"_s, u"-"_s, u"Save Current"_s, u"-"_s, u"Case Sensitive*"_s}));
        menu->actions().last()->trigger();
        menu->close();
        QTRY_COMPARE(shown.listener.searches.size(), 2); // with the new option
        QVERIFY(shown.controller.query().caseInsensitiveSearch());
        QVERIFY(shown.controller.searchTermUnchanged());
    }

    void fieldsOfferTheirTokens()
    {
        Shown<ZEVTextFinderViewController> shown;
        shown.controller.setShowReplace(true);
        ZEVTokenField *replace = shown.controller.replaceTokenField();
        Q_EMIT shown.field().menu()->aboutToShow();
        Q_EMIT replace->menu()->aboutToShow();
        QCOMPARE(titles(shown.field().menu()).join(u' '),
                 u"Tab - Wildcard Any Characters Any Word Any Character White Space Digits - Email Address "
                 u"Web Address"_s);
        QCOMPARE(titles(replace->menu()), QStringList({u"Tab"_s, u"Line Break"_s}));
        replace->menu()->actions().last()->trigger();
        QTRY_COMPARE(replace->patternStringValue(), u"%(\\n)%"_s);
        // Kept: only the find field's tokens are known by their texts.
        QCOMPARE(replace->conversionPatternForPatternString(u"%(\\n)%"_s), QVariantList{u"%(\\n)%"_s});
        QCOMPARE(shown.controller.replacePattern().size(), 1);
    }

    void queriesAreCompared()
    {
        Shown<ZEVTextFinderViewController> shown;
        QVERIFY(!shown.controller.searchTermUnchanged());
        ZEVFindPanelQuery query;
        query.setSearchPattern(QVariantList{u"x"_s});
        query.setMatchingType(ZEVFindPanelQuery::EndsWith);
        shown.window.setFocus();
        shown.controller.performSearchForQuery(query);
        QCOMPARE(shown.field().stringValue(), u"x"_s);
        QCOMPARE(shown.child<QComboBox>(u"matchingTypeSelector"_s)->currentData(), QVariant(3));
        QTRY_COMPARE(shown.listener.searches.last(), u"x$"_s);
        QTRY_VERIFY(shown.controller.hasFocus());
        QVERIFY(shown.controller.searchTermUnchanged());
        shown.controller.setCaseInsensitiveSearch(true);
        QVERIFY(!shown.controller.searchTermUnchanged());
    }

    void anApplicationComesAndGoes()
    {
        const QSignalSpy active(ZEVApplicationActivity::shared(), &ZEVApplicationActivity::didBecomeActive);
        const QSignalSpy resigned(ZEVApplicationActivity::shared(),
                                  &ZEVApplicationActivity::willResignActive);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        QCOMPARE(active.size() * 10 + resigned.size(), 1);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QCOMPARE(active.size() * 10 + resigned.size(), 11);
    }

    void followsTheFindPasteboard()
    {
        Shown<ZEVTextFinderViewController> shown;
        auto pasteboard = ZEVFindPasteboard::findPasteboard().value();
        ZEVApplicationActivity *activity = ZEVApplicationActivity::shared();
        const auto *cell = dynamic_cast<ZEVFocusTokenFieldCell *>(shown.field().cell());
        QVERIFY(cell->fakeCellView());
        QTest::keyClicks(&shown.field(), u"100 %(\\d+)%"_s);
        Q_EMIT activity->willResignActive();
        QCOMPARE(pasteboard.string(), u"100 %(\\d+)%"_s);
        pasteboard.setString(u"other"_s);
        Q_EMIT activity->didBecomeActive();
        QCOMPARE(shown.field().stringValue(), u"other"_s);
        QTest::keyClicks(&shown.field(), u"s"_s);
        Q_EMIT activity->didBecomeActive(); // nothing new there
        QCOMPARE(shown.field().stringValue(), u"others"_s);
        pasteboard.setString(std::nullopt);
        Q_EMIT activity->didBecomeActive();
        QCOMPARE(shown.field().stringValue(), QString());
        QVERIFY(!cell->fakeCellView()->focused());
    }

    void sharesTheFindPasteboardWithOthers()
    {
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {u"--write"_s, u"Übung"_s});
        QVERIFY(other.waitForFinished());
        QVERIFY(other.exitCode() == 0);
        auto pasteboard = ZEVFindPasteboard::findPasteboard().value();
        QCOMPARE(pasteboard.string(), u"Übung"_s);
        const qint64 count = pasteboard.changeCount();
        QFile file(m_folder->filePath(u"zevglobalutils/find-pasteboard"_s));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("\x9f\xff damaged");
        file.close();
        QCOMPARE(pasteboard.string(), std::nullopt);
        QCOMPARE(pasteboard.changeCount(), 0);
        QVERIFY(pasteboard.setString(u"new"_s));
        QVERIFY(pasteboard.changeCount() > count);
    }

    void thePanelRemembersQueries()
    {
        ZEVFindPanelQuery saved;
        {
            Shown<ZEVFindPanelQueryParamsController> shown;
            const auto items = [&] {
                Q_EMIT shown.field().patternsMenu()->aboutToShow();
                return titles(shown.field().patternsMenu());
            };
            QCOMPARE(items(), QStringList()); // no pattern, nothing to save
            shown.controller.addSavedQuery(shown.controller.query());
            QTest::keyClicks(&shown.field(), u"a"_s);
            QCOMPARE(items(), QStringList({u"-"_s, u"Save Query"_s}));
            shown.controller.addSavedQuery(shown.controller.query());
            saved = shown.controller.query();
            QTest::keyClicks(&shown.field(), u"b"_s);
            shown.controller.addSavedQuery(shown.controller.query());
            QCOMPARE(items().size(), 5);
            QCOMPARE(shown.controller.savedQueries().last(), saved);
            shown.controller.addSavedQuery(saved);
            shown.window.hide();
        }
        Shown<ZEVFindPanelQueryParamsController> shown;
        QCOMPARE(shown.field().stringValue(), u"ab"_s);
        QCOMPARE(shown.controller.savedQueries().size(), 2);
        QCOMPARE(shown.controller.savedQueries().first(), saved);
        QTest::keyClick(&shown.field(), Qt::Key_Down);
        QMenu *menu = shown.field().dropDownMenu();
        QVERIFY(menu->isVisible());
        QCOMPARE(titles(menu).last(), u"Remove From Saved"_s);
        menu->actions().at(3)->trigger(); // below the heading
        menu->close();
        QTRY_COMPARE(shown.listener.searches, QStringList(u"a"_s));
    }

    void thePanelSurvivesForeignDefaults()
    {
        ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
        defaults->setObject(u"text"_s, kZEVFindPanelLastQueryAutosaveName.toString());
        defaults->setObject(QVariantList{1, u"x"_s}, kZEVFindPanelSavedQueriesAutosaveName.toString());
        Shown<ZEVFindPanelQueryParamsController> shown;
        QVERIFY(shown.field().objectValue().isEmpty());
        QVERIFY(shown.controller.savedQueries().isEmpty());
    }

    void thePanelEnablesItsButtons()
    {
        Shown<ZEVFindPanelQueryParamsController> shown;
        const auto enabled = [&] {
            return std::pair(shown.child(u"findButton"_s)->isEnabled(),
                             shown.child(u"replaceAllButton"_s)->isEnabled());
        };
        QCOMPARE(enabled(), std::pair(false, false));
        QTest::keyClicks(&shown.field(), u"a"_s);
        QVERIFY(shown.listener.searches.isEmpty()); // not as one types
        QCOMPARE(enabled(), std::pair(true, false));
        QTest::keyClick(&shown.field(), Qt::Key_Return);
        QCOMPARE(enabled(), std::pair(true, false));
        shown.controller.setNumberOfMatches(2);
        QCOMPARE(enabled(), std::pair(false, true));
        shown.child(u"replaceAllButton"_s)->click();
        QCOMPARE(shown.listener.actions, QList<qint64>({4}));
        QTest::keyClicks(&shown.field(), u"b"_s);
        QCOMPARE(enabled(), std::pair(true, false));
        QTest::keyClick(&shown.field(), Qt::Key_Escape);
        QCOMPARE(shown.field().stringValue(), QString());
        QCOMPARE(shown.listener.searches.size(), 2);
        auto *scope = shown.child(u"scopeButton"_s);
        QVERIFY(!scope->isVisible());
        shown.controller.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        QVERIFY(scope->isVisible());
        QVERIFY(scope->text() == u"Library");
        shown.child(u"findMenuButton"_s)->pressed();
        QVERIFY(titles(shown.field().dropDownMenu()).contains(u"Custom"_s));
        shown.field().dropDownMenu()->close();
    }

    void theFinderEnablesActions()
    {
        Window window({u"ab a"_s});
        QCOMPARE(enabledActions(window.finder), QList<qint64>({1, 7, 9, 10, 11, 12, 13}));
        window.finder.performSearchAgainstExpression(ZEVRegularExpression::compile(u"a"_s));
        QCOMPARE(enabledActions(window.finder), QList<qint64>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
        window.finder.performAction(1);
        QVERIFY(!window.finder.validateAction(7)); // the bar itself has the focus
        QCOMPARE(ZEVTextFinder::localizedNameForAction(4), u"Replace All"_s);
        QVERIFY_EXCEPTION_THROWN(ZEVTextFinder::localizedNameForAction(2), std::logic_error);
    }

    void theFinderTakesActionsOrLeavesThem()
    {
        Window window;
        COMPARE_ROW("editor has the focus", window.takes(2), false);
        COMPARE_ROW("editor, use selection", window.takes(7), true);
        window.line.setFocus();
        COMPARE_ROW("a line edit", window.takes(2), true);
        window.finder.performAction(1);
        COMPARE_ROW("the bar", window.takes(2), true);
        window.editor.setFocus();
        window.editor.setPlainText(u"one two one"_s);
        window.editor.moveCursor(QTextCursor::End);
        QObject sender;
        const auto send = [&](int action) {
            sender.setProperty("tag", action);
            window.finder.tryToPerformTextFinderAction(&sender);
        };
        auto pasteboard = ZEVFindPasteboard::findPasteboard().value();
        window.editor.find(u"one"_s, QTextDocument::FindBackward);
        send(7);
        QCOMPARE(pasteboard.string(), u"one"_s);
        QCOMPARE(window.bar().findTokenField()->stringValue(), u"one"_s); // read again at once
        const QSignalSpy left(&window.finder, &ZEVTextFinder::actionLeftToHost);
        send(3); // the container answers for its editor
        window.line.setFocus();
        send(2);
        send(99);
        QCOMPARE(left.size(), 3);
        window.finder.tryToPerformTextFinderAction(nullptr);

        QTest::failOnWarning(QRegularExpression(u"."_s));
        QPlainTextEdit alone(u"one two one"_s); // nobody answers for it
        for (const auto &[action, location] : {std::pair(1, 0), std::pair(3, 8), std::pair(2, 0)}) {
            sender.setProperty("tag", action);
            ZEVTextViewFindPboard::performTextFinderAction(&alone, &sender);
            QCOMPARE(alone.textCursor().selectionStart(), location);
        }
    }

    void selectionsAreUsedAsTheyStand()
    {
        Window window;
        auto pasteboard = ZEVFindPasteboard::findPasteboard().value();
        const auto used = [&](QWidget *view) {
            view->setFocus();
            if (!window.finder.validateAction(7))
                return u"off"_s;
            window.finder.performAction(7);
            return pasteboard.string().value_or(u"nil"_s);
        };
        auto *spins = new QSpinBox(window.content);
        auto *combo = new QComboBox(window.content);
        combo->setEditable(true);
        for (QWidget *widget : {static_cast<QWidget *>(spins), static_cast<QWidget *>(combo)})
            widget->show();
        window.editor.setPlainText(u"a\u00A0b\nc"_s);
        window.editor.selectAll();
        QCOMPARE(used(&window.editor), u"a\u00A0b\nc"_s);
        combo->setEditText(u"combo"_s);
        combo->lineEdit()->selectAll();
        QCOMPARE(used(combo), u"combo"_s);
        spins->setValue(42);
        spins->selectAll();
        QCOMPARE(used(spins), u"42"_s);
        window.line.setText(u"secret"_s);
        window.line.setEchoMode(QLineEdit::Password);
        window.line.selectAll();
        QCOMPARE(used(&window.line), u"off"_s);
        window.finder.performAction(7);
        QCOMPARE(pasteboard.string(), u"42"_s);
    }

    void theFinderShowsItsBar()
    {
        Window window({u"ab"_s, u"ba"_s});
        window.container.setFocus();
        window.finder.performAction(12);
        QVERIFY(window.container.isFindBarVisible());
        QVERIFY(window.bar().showReplace());
        QVERIFY(window.bar().findTokenField()->hasFocus()); // it begins with what to find
        window.finder.performAction(12);
        QVERIFY(window.bar().replaceTokenField()->hasFocus());
        window.finder.performAction(1);
        QVERIFY(window.bar().showReplace());
        QVERIFY(window.bar().findTokenField()->hasFocus());
        const int tall = window.bar().view()->sizeHint().height();
        QTRY_COMPARE(window.editor.mapTo(&window.container, QPoint()).y() > tall, true);
        QCOMPARE(window.bar().view()->height(), tall);
        window.finder.performAction(13);
        QVERIFY(!window.bar().showReplace());
        QTRY_VERIFY(window.bar().view()->height() < tall);
        QTest::keyClicks(window.bar().findTokenField(), u"b"_s);
        QCOMPARE(window.finder.foundMatches(), QList<ZEVRange>({{1, 1}, {3, 1}}));
        QTRY_COMPARE(window.bar().view()->findChild<QLabel *>(u"numberOfMatchesLabel"_s)->text(),
                     u"2 matches"_s);
        QTest::keyClick(window.bar().findTokenField(), Qt::Key_Escape);
        QVERIFY(!window.container.isFindBarVisible());
        QVERIFY(window.editor.hasFocus() || window.content->hasFocus() || window.container.hasFocus());
        QTRY_VERIFY(!window.bar().view()->isVisible());
    }

    void menusSendTheActions()
    {
        Window window({u"a"_s});
        QMenu menu;
        ZEVTextFinderMenu::addItems(&menu, &window.finder);
        const auto item = [&](qint64 tag) {
            const QList<QAction *> items = menu.actions();
            return *std::ranges::find(items, tag, [](const QAction *a) { return ZEVMenuItem::tag(a); });
        };
        QVERIFY(!item(2)->isEnabled());
        window.line.setFocus();
        item(1)->trigger();
        QTest::keyClicks(window.bar().findTokenField(), u"a"_s);
        QVERIFY(item(2)->isEnabled());
        const QSignalSpy left(&window.finder, &ZEVTextFinder::actionLeftToHost);
        item(2)->trigger();
        QCOMPARE(left.size(), 1);
    }

    void hostsBringTheirOwnFile()
    {
        HostInterface host;
        QVERIFY(!host.findTokenField()); // nothing yet
        QVERIFY(host.view()->children().isEmpty()); // its class has no file
        HostBar bar;
        QVERIFY(bar.view()->findChild<QWidget *>(u"replaceContainerView"_s)); // that of its base
        QVERIFY(bar.findTokenField());
        const QString other = u"ZEVFindPanelQueryParamsController"_s; // one that lacks what a bar has
        QCOMPARE(ZEVTextFinderViewController(other).view()->objectName(), u"queryPanel"_s);
        ZEVFindPanelQueryParamsController panel(u"ZEVTextFinderViewController"_s);
        QCOMPARE(panel.view()->objectName(), u"findBar"_s);
    }

    /// What a host does with a query while it is typed takes nothing away from what is typed.
    void hostsMayAnswerWhatIsTyped()
    {
        Shown<ZEVTextFinderViewController> shown;
        connect(&shown.controller, &ZEVTextFinderUserInterfaceVC::queryChanged, this, [&] {
            const QString text = shown.field().stringValue();
            shown.controller.setCaseInsensitiveSearch(text == text.toLower());
        });
        connect(&shown.controller, &ZEVTextFinderUserInterfaceVC::queryChanged, &shown.controller,
                &ZEVTextFinderUserInterfaceVC::performSearch);
        for (const QChar character : u"abC жук 100%"_s) // smart case
            QTest::sendKeyEvent(QTest::Click, &shown.field(), Qt::Key_unknown, QString(character), {});
        QCOMPARE(shown.field().stringValue(), u"abC жук 100%"_s);
        QVERIFY(!shown.controller.query().caseInsensitiveSearch());
        QCOMPARE(shown.listener.searches.last(), u"abC жук 100%"_s);
        shown.controller.setMatchingType(7);
        QCOMPARE(shown.controller.query().matchingType(), 7);
        shown.field().insertToken(QVariant::fromValue(ZEVPatternItem::digits()));
        QCOMPARE(shown.field().patternStringValue(), u"abC жук 100%%%(\\d+)%"_s);

        ZEVTextFinderViewController early;
        early.setSearchPattern(QVariantList{u"early"_s}); // before there is a field to hold it
        QVERIFY(!early.showReplace());
        early.view();
        QCOMPARE(early.searchPattern(), QVariantList{u"early"_s});
    }

    void propertiesCanBeObserved()
    {
        Shown<ZEVTextFinderViewController> shown;
        Heard heard;
        std::vector<std::unique_ptr<ZEVKeyValueObserver>> observers;
        for (const auto &key : {u"query"_s, u"searchPattern"_s, u"replacePattern"_s, u"lastQuery"_s,
                                u"numberOfMatches"_s, u"searchTermUnchanged"_s})
            observers.push_back(ZEVKeyValueObserver::observeObject(&shown.controller, key, &heard, "note",
                                                                   ZEVKeyValueObserver::New));
        const auto scope = std::make_shared<ZEVFindPanelScope>(u"Library"_s);
        const std::tuple<const char *, std::function<void()>, int> rows[] = {
            {"typed: query, pattern, unchanged twice, last", [&] { QTest::keyClick(&shown.field(), u'a'); },
             5},
            {"replacement", [&] { shown.controller.replaceTokenField()->setObjectValue({u"b"_s}); }, 1},
            {"count", [&] { shown.controller.setNumberOfMatches(1); }, 1},
            {"the same count", [&] { shown.controller.setNumberOfMatches(1); }, 0},
            {"scope", [&] { shown.controller.setScope(scope); }, 3},
            {"its title", [&] { scope->setTitle(u"Selection"_s); }, 3},
        };
        for (const auto &[name, change, expected] : rows) {
            heard.count = 0;
            change();
            COMPARE_ROW(name, heard.count, expected);
        }
    }

    void ofTwoBarsTheOneThatIsUsedSpeaks()
    {
        Shown<ZEVTextFinderViewController> left, right;
        auto pasteboard = ZEVFindPasteboard::findPasteboard().value();
        ZEVApplicationActivity *activity = ZEVApplicationActivity::shared();
        QTest::keyClicks(&right.field(), u"r"_s);
        QTest::keyClicks(&left.field(), u"l"_s);
        Q_EMIT activity->willResignActive();
        QCOMPARE(pasteboard.string(), u"l"_s);
        pasteboard.setString(u"other"_s);
        const qsizetype searches = right.listener.searches.size();
        right.window.hide();
        Q_EMIT activity->didBecomeActive();
        QCOMPARE(right.field().stringValue(), u"other"_s);
        QCOMPARE(right.listener.searches.size(), searches); // unseen
        const qint64 count = pasteboard.changeCount();
        Q_EMIT activity->willResignActive();
        QCOMPARE(pasteboard.changeCount(), count); // nothing was typed since
        right.window.show();
        QTRY_COMPARE(right.listener.searches.last(), u"other"_s);
    }

    void expressionsThatAreNoneArePresentedWhereNothingElseTells()
    {
        QStringList presented;
        const auto before = ZEVErrorPresentation::setPresenter(
            [&](const ZEVError &error) { presented += error.localizedDescription(); });
        {
            Shown<ZEVTextFinderViewController> shown;
            shown.controller.setMatchingType(ZEVFindPanelQuery::RegularExpression);
            QTest::keyClicks(&shown.field(), u"("_s);
            QVERIFY(presented.isEmpty());
            delete shown.child<QLabel>(u"messageLabel"_s);
            QTest::keyClicks(&shown.field(), u"("_s);
        }
        ZEVErrorPresentation::setPresenter(before);
        QCOMPARE(presented.size(), 1);
    }

    void savedQueriesAreNeverLost()
    {
        const auto queryOf = [](const QString &text) {
            ZEVFindPanelQuery query;
            query.setSearchPattern(QVariantList{text});
            return query;
        };
        const auto textsOf = [](const ZEVFindPanelQueryParamsController &panel) {
            QString texts;
            for (const ZEVFindPanelQuery &query : panel.savedQueries())
                texts += query.searchPattern()->value(0).toString();
            return texts;
        };
        const QString key = kZEVFindPanelSavedQueriesAutosaveName.toString();
        ZEVFindPanelQueryParamsController first, second;
        for (const auto &text : {u"c"_s, u"b"_s, u"a"_s})
            first.addSavedQuery(queryOf(text)); // before there is a view
        QCOMPARE(textsOf(first), u"abc"_s);
        first.addSavedQuery(first.savedQueries().at(1));
        QCOMPARE(textsOf(first), u"bac"_s);
        first.addSavedQuery(first.savedQueries().last());
        QCOMPARE(textsOf(second), u"cba"_s);
        second.addSavedQuery(queryOf(u"d"_s));
        first.removeSavedQuery(first.savedQueries().last());
        QCOMPARE(textsOf(second), u"dcb"_s);

        ZEVKeyedArchiver::registerClass<Foreign>(u"Foreign"_s); // and nobody reads it here
        ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
        defaults->setObject(
            QVariantList{QVariant::fromValue(Foreign()), QVariant::fromValue(queryOf(u"x"_s))}, key);
        QCOMPARE(textsOf(first), u"x"_s);
        first.addSavedQuery(queryOf(u"y"_s));
        ZEVKeyedUnarchiver::registerClass<Foreign>(u"Foreign"_s);
        const QVariantList stored = defaults->objectForKey(key).toList();
        QCOMPARE(stored.size(), 3);
        QVERIFY(stored.last().canConvert<Foreign>());
    }

    void scopesAreChosenFromAMenu()
    {
        Shown<ZEVFindPanelQueryParamsController> shown;
        const auto library = std::make_shared<ZEVFindPanelSharedScope>(u"R & B"_s);
        const auto selection = std::make_shared<ZEVFindPanelSharedScope>(u"Selection"_s);
        shown.controller.setScopes({library, selection});
        auto *button = shown.child<QPushButton>(u"scopeButton"_s);
        QCOMPARE(button->text(), u"R && B"_s);
        QTest::keyClicks(&shown.field(), u"a"_s);
        QTest::keyClick(&shown.field(), Qt::Key_Return);
        shown.controller.setNumberOfMatches(1);
        QVERIFY(shown.controller.replaceEnabled()); // its copy is itself
        Q_EMIT button->menu()->aboutToShow();
        QCOMPARE(titles(button->menu()), QStringList({u"R && B*"_s, u"Selection"_s}));
        button->menu()->actions().last()->trigger();
        QCOMPARE(shown.controller.query().scope(), selection);
        QVERIFY(!shown.controller.replaceEnabled());
        selection->setTitle(u"Two Tracks"_s);
        QCOMPARE(button->text(), u"Two Tracks"_s);
    }

    void menusAreBuiltOnceAndHeardByAll()
    {
        Shown<ZEVTextFinderViewController> bar;
        Shown<ZEVFindPanelQueryParamsController> panel;
        int heard = 0;
        for (const QMenu *menu : {bar.field().dropDownMenu(), panel.field().patternsMenu()}) {
            connect(menu, &QMenu::aboutToShow, this, [&heard] { ++heard; });
            Q_EMIT const_cast<QMenu *>(menu)->aboutToShow();
        }
        bar.controller.popupFindMenu();
        bar.field().dropDownMenu()->close();
        QCOMPARE(heard, 3);
        const auto styles = [&] { return bar.window.findChildren<QStyle *>().size(); };
        bar.controller.updateFindTokenFieldMenu();
        const qsizetype before = styles();
        bar.controller.menuNeedsUpdate(bar.field().menu());
        QCOMPARE(styles(), before);
        int updates = 0;
        connect(&panel.controller, &ZEVFindPanelQueryParamsController::enabledChanged, this,
                [&updates] { ++updates; });
        QTest::keyClicks(&panel.field(), u"a"_s);
        QTest::keyClick(&panel.field(), Qt::Key_Return);
        for (qsizetype number = 1; number <= 5000; ++number)
            panel.controller.setNumberOfMatches(number);
        QCOMPARE(updates, 2); // there is something to find, and it has been found
    }

    void longSearchesSaySoAndCanBeStopped()
    {
        Window window(QStringList(20, QString(60, u'a') + u'!'));
        ZEVRegularExpression::setTimeLimit(std::chrono::seconds(60));
        window.finder.setSliceDuration(std::chrono::milliseconds(10));
        window.finder.performAction(1);
        window.bar().setMatchingType(ZEVFindPanelQuery::RegularExpression);
        const auto *message = window.bar().view()->findChild<QLabel *>(u"messageLabel"_s);
        window.bar().setSearchPattern(QVariantList{u"(a+)+$"_s});
        QVERIFY(window.finder.isSearching());
        QVERIFY(!message->isVisible());
        QTRY_VERIFY2(message->text().contains(u"Escape"), qPrintable(message->text()));
        QTest::keyClick(window.bar().findTokenField(), Qt::Key_Escape);
        QVERIFY(!window.finder.isSearching());
        QVERIFY(window.container.isFindBarVisible());
        QVERIFY(message->text().contains(u"stopped"));
        QTest::keyClick(window.bar().findTokenField(), Qt::Key_Escape);
        QVERIFY(!window.container.isFindBarVisible());
        ZEVRegularExpression::setTimeLimit(std::chrono::milliseconds(250));
    }

    /// At every width nothing is cut off, and fields that stand below each other line up.
    void theBarFitsEveryWidth()
    {
        Window window;
        window.finder.performAction(12);
        QWidget *bar = window.bar().view();
        auto *modes = bar->findChild<ZEVTextFinderBorderlessPopUpButton *>();
        const auto *find = bar->findChild<ZEVTextFinderFakeCellView *>(u"findBackdrop"_s);
        const auto *replace = bar->findChild<ZEVTextFinderFakeCellView *>(u"replaceBackdrop"_s);
        for (const QString &language : {u"Find & Replace"_s, u"Rechercher et remplacer"_s}) {
            ZEVMenuItem::setTitle(modes->menu()->actions().at(1), language);
            modes->setUp();
            for (const int width : {1280, 900, 640, 480, 320, 900}) {
                const auto fault = [&] {
                    if (find->mapTo(bar, QPoint()).x() != replace->mapTo(bar, QPoint()).x()
                        || find->width() != replace->width() || find->width() < 190)
                        return u"fields at %1 in %2"_s.arg(width).arg(language);
                    for (const QAbstractButton *button : bar->findChildren<QAbstractButton *>()) {
                        const QRect place(button->mapTo(bar, QPoint()), button->size());
                        if (!bar->rect().contains(place) || button->width() < button->sizeHint().width())
                            return u"%1 at %2 in %3"_s.arg(button->objectName()).arg(width).arg(language);
                    }
                    return QString();
                };
                window.container.resize(width, 400);
                QTRY_COMPARE(fault(), QString());
            }
        }
    }

    void survivesThatPartsGo()
    {
        {
            QPointer finder(new ZEVTextFinder);
            Lines client;
            client.lines = QStringList{u"aa"_s};
            finder->setClient(&client);
            Shown<ZEVTextFinderViewController> other;
            auto *bar = static_cast<ZEVTextFinderViewController *>(finder->textFinderViewController());
            other.window.layout()->addWidget(bar->view());
            QPointer<ZEVTokenField> field = bar->findTokenField();
            QCoreApplication::processEvents(); // now it is shown
            field->setFocus();
            connect(bar, &ZEVTextFinderViewController::numberOfMatchesChanged, finder,
                    [&] { delete finder; });
            QTest::keyClicks(field, u"a"_s);
            QVERIFY(!finder);
            QTRY_VERIFY(!field);

            finder = new ZEVTextFinder(&other.window);
            QVERIFY(finder->textFinderViewController());
            finder->setTextFinderViewController(nullptr);
            finder->performAction(2);
            finder->performAction(11);
            delete other.controller.findTokenField();
            delete other.controller.replaceTokenField();
            other.controller.popupFindMenu();
            other.controller.popupReplaceMenu();
            other.controller.navigationSegmentPressed(nullptr);
        }
        auto window = std::make_unique<Window>(QStringList{u"a"_s});
        auto listener = std::make_unique<Listener>();
        window->finder.performAction(12);
        window->bar().setDelegate(listener.get());
        listener.reset();
        QTest::keyClicks(window->bar().findTokenField(), u"a"_s);
        delete window->bar().view();
        window->bar().focusFieldForAction(1);
        window->bar().performSearch();
        QVERIFY(!window->bar().hasFocus());
        auto *owned = new ZEVTextFinderViewController;
        std::unique_ptr<QWidget> view(owned->view());
        owned->setParent(view.get());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (const QStringList arguments = application.arguments(); arguments.value(1) == u"--write") {
        auto pasteboard = ZEVFindPasteboard::findPasteboard();
        return pasteboard && pasteboard->setString(arguments.value(2)) ? 0 : 1;
    }
    tst_FindInterface test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_FindInterface.moc"
