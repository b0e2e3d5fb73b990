// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPanelQueryParamsController.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemHeadings.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QAbstractButton>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

qint64 tagOf(const QObject *sender) { return sender->property("tag").toLongLong(); }

bool hasPattern(const ZEVFindPanelQuery &query)
{
    return query.searchPattern() && !query.searchPattern()->isEmpty();
}

} // namespace

ZEVFindPanelQueryParamsController::ZEVFindPanelQueryParamsController(QObject *parent)
    : ZEVTextFinderUserInterfaceVC(parent)
{
}

ZEVFindPanelQueryParamsController::~ZEVFindPanelQueryParamsController() = default;

void ZEVFindPanelQueryParamsController::viewDidLoad()
{
    loadSavedQueries();
    ZEVTextFinderUserInterfaceVC::viewDidLoad();
    setUpMenus();
    setUpButtons();
    connect(this, &ZEVTextFinderUserInterfaceVC::queryChanged, this,
            &ZEVFindPanelQueryParamsController::enabledChanged);
    connect(this, &ZEVTextFinderUserInterfaceVC::numberOfMatchesChanged, this,
            &ZEVFindPanelQueryParamsController::enabledChanged);
    connect(this, &ZEVFindPanelQueryParamsController::enabledChanged, this,
            &ZEVFindPanelQueryParamsController::updateControls);
    view()->installEventFilter(this);
    restoreLastQuery();
    updateControls();
}

void ZEVFindPanelQueryParamsController::loadSavedQueries()
{
    const QVariant saved = ZEVUserDefaults::standardUserDefaults()->objectForKey(
        kZEVFindPanelSavedQueriesAutosaveName.toString());
    m_savedQueriesSet.clear();
    for (const QVariant &query : saved.toList()) {
        if (query.canConvert<ZEVFindPanelQuery>()
            && !m_savedQueriesSet.contains(query.value<ZEVFindPanelQuery>()))
            m_savedQueriesSet.append(query.value<ZEVFindPanelQuery>());
    }
}

void ZEVFindPanelQueryParamsController::restoreLastQuery()
{
    const QVariant query =
        ZEVUserDefaults::standardUserDefaults()->objectForKey(kZEVFindPanelLastQueryAutosaveName.toString());
    if (query.canConvert<ZEVFindPanelQuery>())
        applyQuery(query.value<ZEVFindPanelQuery>());
}

void ZEVFindPanelQueryParamsController::persistLastQuery()
{
    ZEVUserDefaults::standardUserDefaults()->setObject(QVariant::fromValue(query()),
                                                       kZEVFindPanelLastQueryAutosaveName.toString());
}

void ZEVFindPanelQueryParamsController::persistSavedToDefaults()
{
    QVariantList queries;
    for (const ZEVFindPanelQuery &query : std::as_const(m_savedQueriesSet))
        queries.append(QVariant::fromValue(query));
    ZEVUserDefaults::standardUserDefaults()->setObject(queries,
                                                       kZEVFindPanelSavedQueriesAutosaveName.toString());
}

/// The saved queries stand where the find field would show its saved patterns.
void ZEVFindPanelQueryParamsController::setUpMenus()
{
    if (!findTokenField())
        return;
    m_recentsMenu = findTokenField()->patternsMenu();
    ZEVMenuBuilder::setMenuBuilder(m_recentsMenu, [guard = QPointer(this)](QMenu *) {
        if (guard)
            guard->updateRecentsMenu();
    });
}

void ZEVFindPanelQueryParamsController::setUpButtons()
{
    m_scopeButton = view()->findChild<QAbstractButton *>(u"scopeButton"_s);
    m_findButton = view()->findChild<QAbstractButton *>(u"findButton"_s);
    m_caseSensitiveButton = view()->findChild<QAbstractButton *>(u"caseSensitiveButton"_s);
    if (m_findButton)
        connect(m_findButton, &QAbstractButton::clicked, this, [this] { performSearch(); });
    if (m_caseSensitiveButton)
        connect(m_caseSensitiveButton, &QAbstractButton::clicked, this,
                [this](bool checked) { setCaseInsensitiveSearch(!checked); });
    const auto connectMenuButton = [this](const QString &name, const QString &image, auto popUp) {
        if (auto *button = view()->findChild<QAbstractButton *>(name)) {
            button->setIcon(ZEVNamedImages::imageNamed(image));
            connect(button, &QAbstractButton::pressed, this, [this, button, popUp] {
                button->setDown(false);
                (this->*popUp)();
            });
        }
    };
    connectMenuButton(u"findMenuButton"_s, u"icoFilter"_s, &ZEVFindPanelQueryParamsController::popupFindMenu);
    connectMenuButton(u"replaceMenuButton"_s, u"icoMenuTemplate"_s,
                      &ZEVFindPanelQueryParamsController::popupReplaceMenu);
    for (QAbstractButton *button : view()->findChildren<QAbstractButton *>()) {
        if (tagOf(button) == 0)
            continue;
        m_actionButtons.append(button);
        const bool replacesAll = tagOf(button) == ZEVTextFinderAction::ReplaceAll;
        connect(button, &QAbstractButton::clicked, this, [this, button, replacesAll] {
            replacesAll ? replaceAllButtonPressed(button) : replaceButtonPressed(button);
        });
    }
}

bool ZEVFindPanelQueryParamsController::findEnabled() const
{
    return findTokenField() && !findTokenField()->stringValue().isEmpty() && !replaceEnabled();
}

bool ZEVFindPanelQueryParamsController::replaceEnabled() const
{
    return numberOfMatches().value_or(0) != 0 && searchTermUnchanged();
}

void ZEVFindPanelQueryParamsController::updateControls()
{
    if (m_findButton)
        m_findButton->setEnabled(findEnabled());
    if (m_caseSensitiveButton)
        m_caseSensitiveButton->setChecked(!query().caseInsensitiveSearch());
    if (m_scopeButton) {
        m_scopeButton->setVisible(query().scope() != nullptr);
        m_scopeButton->setText(query().scope() ? query().scope()->title().value_or(QString()) : QString());
    }
    for (QAbstractButton *button : std::as_const(m_actionButtons)) {
        if (button)
            button->setEnabled(replaceEnabled());
    }
}

void ZEVFindPanelQueryParamsController::addSavedQuery(const ZEVFindPanelQuery &query)
{
    if (!hasPattern(query))
        return;
    m_savedQueriesSet.removeAll(query);
    m_savedQueriesSet.prepend(query);
    persistSavedToDefaults();
}

void ZEVFindPanelQueryParamsController::removeSavedQuery(const ZEVFindPanelQuery &query)
{
    m_savedQueriesSet.removeAll(query);
    persistSavedToDefaults();
}

void ZEVFindPanelQueryParamsController::updateRecentsMenu()
{
    m_recentsMenu->clear();
    if (!m_savedQueriesSet.isEmpty())
        m_recentsMenu->addAction(
            ZEVMenuItemHeadings::headingItemWithTitle(localized(u"Saved Queries"), m_recentsMenu));
    for (const ZEVFindPanelQuery &query : std::as_const(m_savedQueriesSet))
        addSavedQueryItem(query);
    const bool isSaved = m_savedQueriesSet.contains(query());
    if (!isSaved && !hasPattern(query()))
        return;
    m_recentsMenu->addSeparator();
    m_recentsMenu->addAction(localized(isSaved ? u"Remove From Saved" : u"Save Query"), this,
                             [this, isSaved] {
                                 if (isSaved)
                                     removeSavedQuery(query());
                                 else
                                     addSavedQuery(query().copy());
                             });
}

void ZEVFindPanelQueryParamsController::addSavedQueryItem(const ZEVFindPanelQuery &query)
{
    QAction *item =
        m_recentsMenu->addAction(QString(), this, [this, query] { performSearchForQuery(query); });
    ZEVMenuItem::setAttributedTitle(item, query.attributedTitle());
    ZEVMenuItem::setIndentationLevel(item, 1);
    ZEVMenuItem::setState(item, query == this->query() ? ZEVMenuItem::On : ZEVMenuItem::Off);
}

void ZEVFindPanelQueryParamsController::popupFindMenu()
{
    findTokenField()->setMenuDelegate(this);
    popUpMenuOfField(findTokenField()->dropDownMenu(), findTokenField());
}

void ZEVFindPanelQueryParamsController::popupReplaceMenu()
{
    popUpMenuOfField(replaceTokenField()->dropDownMenu(), replaceTokenField());
}

void ZEVFindPanelQueryParamsController::replaceButtonPressed(const QObject *sender)
{
    performAction(tagOf(sender));
}

void ZEVFindPanelQueryParamsController::replaceAllButtonPressed(const QObject *sender)
{
    performAction(tagOf(sender));
}

void ZEVFindPanelQueryParamsController::customizeMenuBeforeDisplay(ZEVTokenField *, QMenu *menu)
{
    if (delegate())
        delegate()->customizeFindMenuBeforeDisplay(this, menu);
}

bool ZEVFindPanelQueryParamsController::doCommandBySelector(OEXTokenField *control, ZEVTextCommand command)
{
    auto *field = qobject_cast<ZEVTokenField *>(control);
    if (!field)
        return false;
    switch (command) {
    case ZEVTextCommand::CancelOperation:
        field->clear();
        return true;
    case ZEVTextCommand::InsertNewline:
        field->insertNewline();
        return true;
    case ZEVTextCommand::MoveDown:
        popUpMenuOfField(field->dropDownMenu(), field);
        return true;
    default:
        return false;
    }
}

/// What was asked last is remembered whenever the panel goes out of sight.
bool ZEVFindPanelQueryParamsController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && watched == view())
        persistLastQuery();
    return ZEVTextFinderUserInterfaceVC::eventFilter(watched, event);
}
