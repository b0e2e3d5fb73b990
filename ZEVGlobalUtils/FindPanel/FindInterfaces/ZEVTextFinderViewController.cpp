// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderViewController.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarLayout_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindControls_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QKeyEvent>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace ZEVFindActionNumber;

namespace {

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

bool isReplaceAction(qint64 action)
{
    return action == ReplaceAll || action == Replace || action == ReplaceAndFind
        || action == ReplaceAllInSelection;
}

} // namespace

std::unique_ptr<ZEVTextFinderUserInterface> ZEVTextFinderUserInterface::makeFindBar()
{
    return std::make_unique<ZEVTextFinderViewController>();
}

ZEVTextFinderViewController::ZEVTextFinderViewController(QObject *parent)
    : ZEVTextFinderViewController(QString(), parent)
{
}

ZEVTextFinderViewController::ZEVTextFinderViewController(const QString &nibName, QObject *parent)
    : ZEVTextFinderUserInterfaceVC(nibName, parent)
    , m_modeSelectorItem(new QAction(this))
{
}

ZEVTextFinderViewController::~ZEVTextFinderViewController() = default;

void ZEVTextFinderViewController::viewDidLoad()
{
    ZEVTextFinderUserInterfaceVC::viewDidLoad();
    setUpFindMenu();
    setUpModes();
    m_layout = std::make_unique<ZEVFindBarLayout>(view(), controls());
    setShowReplace(false);
    if (QAbstractButton *done = controls().doneButton)
        connect(done, &QAbstractButton::clicked, this, [this] { donePressed(); });
    if (QComboBox *selector = matchingTypeSelector())
        connect(selector, &QComboBox::activated, this, [this] { matchTypeSelected(); });
    if (ZEVTokenField *field = findTokenField())
        connect(field, &ZEVTokenField::patternStringValueChanged, this,
                &ZEVTextFinderViewController::searchAsTyped);
}

/// What is not seen does not search: its count would take the place of another's.
void ZEVTextFinderViewController::searchAsTyped()
{
    if (isShown())
        performSearch();
}

/// The controller builds the menu in the field's place; whoever else listens goes on to.
void ZEVTextFinderViewController::setUpFindMenu()
{
    if (!findTokenField())
        return;
    QMenu *menu = findTokenField()->dropDownMenu();
    ZEVMenuBuilder::setMenuBuilder(menu, [guard = QPointer(this)](QMenu *opened) {
        if (guard)
            guard->menuNeedsUpdate(opened);
    });
}

/// The find item and the replace item have their actions as tags; the last item is the one for wrapping.
void ZEVTextFinderViewController::setUpModes()
{
    ZEVTextFinderBorderlessPopUpButton *button = controls().interfaceModePopupButton;
    if (!button)
        return;
    auto *menu = new QMenu(button);
    const std::pair<QString, qint64> modes[] = {{localized(u"Find"), ShowFindInterface},
                                                {localized(u"Find & Replace"), ShowReplaceInterface}};
    for (const auto &[title, tag] : modes) {
        QAction *item = menu->addAction(QString());
        ZEVMenuItem::setTitle(item, title);
        ZEVMenuItem::setTag(item, tag);
        connect(item, &QAction::triggered, this, [this, item] { chooseMode(item); });
    }
    menu->addSeparator();
    menu->addAction(localized(u"Wrap Around"), this, [this] { toggleWrapAround(); });
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { menuNeedsUpdate(menu); });
    button->setMenu(menu);
    button->setUp();
}

void ZEVTextFinderViewController::setShowReplace(bool show)
{
    m_showReplace = show;
    if (QWidget *row = controls().replaceContainerView)
        row->setVisible(show);
    if (m_layout)
        m_layout->arrange();
    updateInterfaceModeSelectorState();
}

void ZEVTextFinderViewController::setWrapAround(bool wraps)
{
    if (wraps == m_wrapAround)
        return;
    m_wrapAround = wraps;
    updateInterfaceModeSelectorState();
    Q_EMIT wrapAroundChanged();
}

void ZEVTextFinderViewController::toggleWrapAround() { setWrapAround(!m_wrapAround); }

QMenu *ZEVTextFinderViewController::modeMenu() const
{
    const ZEVTextFinderBorderlessPopUpButton *button = controls().interfaceModePopupButton;
    return button ? button->menu() : nullptr;
}

QAction *ZEVTextFinderViewController::modeItem(qint64 tag) const
{
    const QList<QAction *> items = modeMenu() ? modeMenu()->actions() : QList<QAction *>();
    const auto item = std::ranges::find_if(items, [tag](auto *one) { return ZEVMenuItem::tag(one) == tag; });
    return item != items.end() ? *item : nullptr;
}

void ZEVTextFinderViewController::menuNeedsUpdate(QMenu *menu)
{
    if (menu && menu == modeMenu())
        updateInterfaceModeMenu();
    else if (findTokenField() && menu == findTokenField()->dropDownMenu())
        updateFindMenu();
    else
        ZEVTextFinderUserInterfaceVC::menuNeedsUpdate(menu);
}

void ZEVTextFinderViewController::updateInterfaceModeMenu()
{
    const auto setState = [](QAction *item, bool on) {
        if (item)
            ZEVMenuItem::setState(item, on ? ZEVMenuItem::On : ZEVMenuItem::Off);
    };
    setState(modeItem(ShowFindInterface), !m_showReplace);
    setState(modeItem(ShowReplaceInterface), m_showReplace);
    if (modeMenu() && !modeMenu()->isEmpty())
        setState(modeMenu()->actions().last(), m_wrapAround);
}

void ZEVTextFinderViewController::updateInterfaceModeSelectorState()
{
    ZEVTextFinderBorderlessPopUpButton *button = controls().interfaceModePopupButton;
    if (!button)
        return;
    QAction *item = modeItem(m_showReplace ? ShowReplaceInterface : ShowFindInterface);
    m_modeSelectorItem->setText(item ? item->text() : QString());
    button->setText(m_modeSelectorItem->text());
    button->setAccessibleName(item ? ZEVMenuItem::title(item) : QString());
    button->selectItem(item);
}

/// Choosing to find only, while there is a replace row, asks for hiding that row.
void ZEVTextFinderViewController::chooseMode(const QAction *item)
{
    const qint64 tag = ZEVMenuItem::tag(item);
    const bool hides = tag == ShowFindInterface && m_showReplace && view()->window()->isVisible();
    performAction(hides ? qint64(HideReplaceInterface) : tag);
}

/// The field builds its menu first.
void ZEVTextFinderViewController::updateFindMenu()
{
    QMenu *menu = findTokenField()->dropDownMenu();
    findTokenField()->menuNeedsUpdate(menu);
    menu->addSeparator();
    QAction *item = menu->addAction(localized(u"Case Sensitive"), this, [this] {
        setCaseInsensitiveSearch(!query().caseInsensitiveSearch());
        performSearch();
    });
    item->setCheckable(true);
    item->setChecked(!query().caseInsensitiveSearch());
}

void ZEVTextFinderViewController::matchTypeSelected() { performSearch(); }
void ZEVTextFinderViewController::donePressed() { performAction(HideFindInterface); }

void ZEVTextFinderViewController::cancelOperation()
{
    if (!stopLongSearch())
        performAction(HideFindInterface);
}

void ZEVTextFinderViewController::actionButtonPressed(QObject *sender)
{
    if (isReplaceAction(tagOf(sender)))
        replaceSegmentPressed(sender);
    else
        navigationSegmentPressed(sender);
}

void ZEVTextFinderViewController::navigationSegmentPressed(QObject *sender) { performAction(tagOf(sender)); }
void ZEVTextFinderViewController::replaceSegmentPressed(QObject *sender) { performAction(tagOf(sender)); }

/// Escape, wherever in the bar it is pressed. A bar that comes up searches for what is in it already.
bool ZEVTextFinderViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        cancelOperation();
        return true;
    }
    if (watched == view() && event->type() == QEvent::Resize)
        m_layout->arrange();
    else if (watched == view() && event->type() == QEvent::Show)
        QMetaObject::invokeMethod(this, &ZEVTextFinderViewController::searchIfChanged, Qt::QueuedConnection);
    return ZEVTextFinderUserInterfaceVC::eventFilter(watched, event);
}

/// Return moves on where the search has been made already, and the other way with Shift.
bool ZEVTextFinderViewController::doCommandBySelector(OEXTokenField *control, ZEVTextCommand command)
{
    const bool moves = control == findTokenField() && searchTermUnchanged();
    if (moves && command == ZEVTextCommand::InsertNewline)
        performAction(NextMatch);
    else if (moves && command == ZEVTextCommand::InsertNewlineBackward)
        performAction(PreviousMatch);
    else if (command == ZEVTextCommand::CancelOperation)
        cancelOperation();
    else
        return ZEVTextFinderUserInterfaceVC::doCommandBySelector(control, command);
    return true;
}
