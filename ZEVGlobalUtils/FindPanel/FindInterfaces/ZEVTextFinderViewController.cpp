// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderViewController.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace ZEVTextFinderAction;

namespace {

/// Finders make this bar where the host gives them no other.
[[maybe_unused]] const bool isMaker = [] {
    ZEVTextFinderUserInterface::maker() = [] { return std::make_unique<ZEVTextFinderViewController>(); };
    return true;
}();

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

qint64 tagOf(const QObject *sender) { return sender->property("tag").toLongLong(); }

bool isReplaceAction(qint64 action)
{
    return action == ReplaceAll || action == Replace || action == ReplaceAndFind
        || action == ReplaceAllInSelection;
}

} // namespace

ZEVTextFinderViewController::ZEVTextFinderViewController(QObject *parent)
    : ZEVTextFinderUserInterfaceVC(parent)
    , m_modeSelectorItem(new QAction(this))
{
}

ZEVTextFinderViewController::~ZEVTextFinderViewController() = default;

void ZEVTextFinderViewController::viewDidLoad()
{
    ZEVTextFinderUserInterfaceVC::viewDidLoad();
    m_replaceContainerView = view()->findChild<QWidget *>(u"replaceContainerView"_s);
    setUpMenuButtons();
    setUpModes();
    setUpSegments();
    setShowReplace(false);
    view()->installEventFilter(this);
    if (QComboBox *selector = matchingTypeSelector())
        connect(selector, &QComboBox::activated, this, &ZEVTextFinderViewController::matchTypeSelected);
    if (findTokenField())
        connect(findTokenField(), &ZEVTokenField::patternStringValueChanged, this,
                &ZEVTextFinderViewController::performSearch);
}

void ZEVTextFinderViewController::setUpMenuButtons()
{
    m_findMenuButton = view()->findChild<QAbstractButton *>(u"findMenuButton"_s);
    m_replaceMenuButton = view()->findChild<QAbstractButton *>(u"replaceMenuButton"_s);
    if (m_findMenuButton) {
        m_findMenuButton->setIcon(ZEVNamedImages::imageNamed(u"icoFilter"));
        connect(m_findMenuButton, &QAbstractButton::pressed, this,
                &ZEVTextFinderViewController::popupFindMenu);
    }
    if (m_replaceMenuButton) {
        m_replaceMenuButton->setIcon(ZEVNamedImages::imageNamed(u"icoMenuTemplate"));
        connect(m_replaceMenuButton, &QAbstractButton::pressed, this,
                &ZEVTextFinderViewController::popupReplaceMenu);
    }
}

/// The find item and the replace item have their actions as tags; the last item is the one for wrapping.
void ZEVTextFinderViewController::setUpModes()
{
    m_interfaceModePopupButton =
        view()->findChild<ZEVTextFinderBorderlessPopUpButton *>(u"interfaceModePopupButton"_s);
    if (!m_interfaceModePopupButton)
        return;
    auto *menu = new QMenu(m_interfaceModePopupButton);
    const std::pair<QString, qint64> modes[] = {{localized(u"Find"), ShowFindInterface},
                                                {localized(u"Find & Replace"), ShowReplaceInterface}};
    for (const auto &[title, tag] : modes) {
        QAction *item = menu->addAction(QString());
        ZEVMenuItem::setTitle(item, title);
        ZEVMenuItem::setTag(item, tag);
        connect(item, &QAction::triggered, this, [this, item] { chooseMode(item); });
    }
    menu->addSeparator();
    menu->addAction(localized(u"Wrap Around"), this, &ZEVTextFinderViewController::toggleWrapAround);
    connect(menu, &QMenu::aboutToShow, this, &ZEVTextFinderViewController::updateInterfaceModeMenu);
    m_interfaceModePopupButton->setMenu(menu);
    m_interfaceModePopupButton->setUp();
    alignReplaceRow();
}

/// Both fields begin behind the mode pop-up.
void ZEVTextFinderViewController::alignReplaceRow()
{
    QLayout *row = m_replaceContainerView ? m_replaceContainerView->layout() : nullptr;
    const auto *rows = qobject_cast<const QGridLayout *>(view()->layout());
    if (!row || !rows)
        return;
    QMargins margins = row->contentsMargins();
    margins.setLeft(m_interfaceModePopupButton->sizeHint().width() + rows->horizontalSpacing());
    row->setContentsMargins(margins);
}

void ZEVTextFinderViewController::setUpSegments()
{
    for (QAbstractButton *button : view()->findChildren<QAbstractButton *>()) {
        if (button->objectName() == u"doneButton")
            connect(button, &QAbstractButton::clicked, this, &ZEVTextFinderViewController::donePressed);
        else if (isReplaceAction(tagOf(button)))
            connect(button, &QAbstractButton::clicked, this,
                    [this, button] { replaceSegmentPressed(button); });
        else if (tagOf(button) != 0)
            connect(button, &QAbstractButton::clicked, this,
                    [this, button] { navigationSegmentPressed(button); });
    }
}

void ZEVTextFinderViewController::setShowReplace(bool show)
{
    m_showReplace = show;
    if (m_replaceContainerView)
        m_replaceContainerView->setVisible(show);
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

QAction *ZEVTextFinderViewController::modeItem(qint64 tag) const
{
    const QList<QAction *> items =
        m_interfaceModePopupButton ? m_interfaceModePopupButton->menu()->actions() : QList<QAction *>();
    for (QAction *item : items) {
        if (ZEVMenuItem::tag(item) == tag)
            return item;
    }
    return nullptr;
}

void ZEVTextFinderViewController::updateInterfaceModeMenu()
{
    const auto setState = [](QAction *item, bool on) {
        if (item)
            ZEVMenuItem::setState(item, on ? ZEVMenuItem::On : ZEVMenuItem::Off);
    };
    setState(modeItem(ShowFindInterface), !m_showReplace);
    setState(modeItem(ShowReplaceInterface), m_showReplace);
    setState(m_interfaceModePopupButton->menu()->actions().last(), m_wrapAround);
}

void ZEVTextFinderViewController::updateInterfaceModeSelectorState()
{
    if (!m_interfaceModePopupButton)
        return;
    QAction *item = modeItem(m_showReplace ? ShowReplaceInterface : ShowFindInterface);
    m_modeSelectorItem->setText(item ? item->text() : QString());
    m_interfaceModePopupButton->setText(m_modeSelectorItem->text());
    m_interfaceModePopupButton->setAccessibleName(item ? ZEVMenuItem::title(item) : QString());
    m_interfaceModePopupButton->selectItem(item);
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

void ZEVTextFinderViewController::popupFindMenu()
{
    QMenu *menu = findTokenField()->dropDownMenu();
    // From now on the controller is the one that builds it.
    ZEVMenuBuilder::setMenuBuilder(menu, [guard = QPointer(this)](QMenu *) {
        if (guard)
            guard->updateFindMenu();
    });
    m_findMenuButton->setDown(false);
    popUpMenuOfField(menu, findTokenField());
}

void ZEVTextFinderViewController::popupReplaceMenu()
{
    m_replaceMenuButton->setDown(false);
    popUpMenuOfField(replaceTokenField()->dropDownMenu(), replaceTokenField());
}

void ZEVTextFinderViewController::matchTypeSelected() { performSearch(); }
void ZEVTextFinderViewController::cancelOperation() { performAction(HideFindInterface); }
void ZEVTextFinderViewController::donePressed() { performAction(HideFindInterface); }

void ZEVTextFinderViewController::navigationSegmentPressed(const QObject *sender)
{
    performAction(tagOf(sender));
}

void ZEVTextFinderViewController::replaceSegmentPressed(const QObject *sender)
{
    performAction(tagOf(sender));
}

/// Escape, wherever in the bar it is pressed.
bool ZEVTextFinderViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        cancelOperation();
        return true;
    }
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
