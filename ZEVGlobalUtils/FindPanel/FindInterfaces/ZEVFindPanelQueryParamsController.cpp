// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPanelQueryParamsController.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindControls_p.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemHeadings.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QEvent>
#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

} // namespace

ZEVFindPanelQueryParamsController::ZEVFindPanelQueryParamsController(QObject *parent)
    : ZEVFindPanelQueryParamsController(QString(), parent)
{
}

ZEVFindPanelQueryParamsController::ZEVFindPanelQueryParamsController(const QString &nibName, QObject *parent)
    : ZEVTextFinderUserInterfaceVC(nibName, parent)
{
    connect(this, &ZEVTextFinderUserInterfaceVC::searchTermUnchangedChanged, this,
            &ZEVFindPanelQueryParamsController::noteEnabled);
    connect(this, &ZEVTextFinderUserInterfaceVC::numberOfMatchesChanged, this,
            &ZEVFindPanelQueryParamsController::noteEnabled);
    connect(ZEVUserDefaults::standardUserDefaults(), &ZEVUserDefaults::didChange, this,
            [this](const QString &key) {
                if (key == kZEVFindPanelSavedQueriesAutosaveName)
                    m_hasLoadedQueries = false; // another panel has saved
            });
}

ZEVFindPanelQueryParamsController::~ZEVFindPanelQueryParamsController() = default;

void ZEVFindPanelQueryParamsController::viewDidLoad()
{
    ZEVTextFinderUserInterfaceVC::viewDidLoad();
    setUpMenus();
    setUpButtons();
    connect(this, &ZEVTextFinderUserInterfaceVC::queryChanged, this,
            &ZEVFindPanelQueryParamsController::updateScope);
    restoreLastQuery();
    updateScope();
    noteEnabled();
    updateControls();
}

/// What cannot be read, the scope of another host for one, is kept as it is.
void ZEVFindPanelQueryParamsController::loadSavedQueries() const
{
    m_hasLoadedQueries = true;
    m_savedQueriesSet.clear();
    m_unreadableQueries.clear();
    const QVariantList saved = ZEVUserDefaults::standardUserDefaults()->elementsForKey(
        kZEVFindPanelSavedQueriesAutosaveName.toString());
    for (const QVariant &element : saved) {
        if (!element.canConvert<ZEVFindPanelQuery>())
            m_unreadableQueries.append(element);
        else if (const auto query = element.value<ZEVFindPanelQuery>(); !m_savedQueriesSet.contains(query))
            m_savedQueriesSet.append(query);
    }
}

const QList<ZEVFindPanelQuery> &ZEVFindPanelQueryParamsController::savedQueries() const
{
    if (!m_hasLoadedQueries)
        loadSavedQueries();
    return m_savedQueriesSet;
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
    ZEVUserDefaults::standardUserDefaults()->setObject(queries + m_unreadableQueries,
                                                       kZEVFindPanelSavedQueriesAutosaveName.toString());
}

/// The saved queries stand where the find field would show its saved patterns.
void ZEVFindPanelQueryParamsController::setUpMenus()
{
    if (!findTokenField())
        return;
    m_recentsMenu = findTokenField()->patternsMenu();
    ZEVMenuBuilder::setMenuBuilder(m_recentsMenu, [guard = QPointer(this)](QMenu *menu) {
        if (guard)
            guard->menuNeedsUpdate(menu);
    });
}

void ZEVFindPanelQueryParamsController::menuNeedsUpdate(QMenu *menu)
{
    ZEVTextFinderUserInterfaceVC::menuNeedsUpdate(menu);
    if (menu && menu == m_recentsMenu)
        updateRecentsMenu();
}

void ZEVFindPanelQueryParamsController::setUpButtons()
{
    if (QAbstractButton *button = controls().findButton)
        connect(button, &QAbstractButton::clicked, this, [this] { performSearch(); });
    if (QAbstractButton *button = controls().caseSensitiveButton)
        connect(button, &QAbstractButton::clicked, this,
                [this](bool checked) { setCaseInsensitiveSearch(!checked); });
    setUpScopeMenu();
}

void ZEVFindPanelQueryParamsController::setUpScopeMenu()
{
    auto *button = qobject_cast<QPushButton *>(controls().scopeButton);
    if (!button || button->menu() || m_scopes.isEmpty())
        return;
    auto *menu = new QMenu(button);
    button->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { updateScopeMenu(menu); });
}

void ZEVFindPanelQueryParamsController::actionButtonPressed(QObject *sender)
{
    if (tagOf(sender) == ZEVFindActionNumber::ReplaceAll)
        replaceAllButtonPressed(sender);
    else
        replaceButtonPressed(sender);
}

void ZEVFindPanelQueryParamsController::setScopes(const Scopes &scopes)
{
    m_scopes = scopes;
    setUpScopeMenu();
    updateScope();
}

/// A query that was kept says nothing of where to search.
void ZEVFindPanelQueryParamsController::updateScope()
{
    if (!query().scope() && !m_scopes.isEmpty())
        return setScope(m_scopes.first()); // which comes back here
    updateControls();
}

void ZEVFindPanelQueryParamsController::updateScopeMenu(QMenu *menu)
{
    menu->clear();
    for (const std::shared_ptr<ZEVFindPanelScope> &scope : std::as_const(m_scopes)) {
        QAction *item = menu->addAction(QString(), this, [this, scope] { setScope(scope); });
        ZEVMenuItem::setTitle(item, scope->title().value_or(QString()));
        item->setCheckable(true);
        item->setChecked(query().scope() == scope);
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

/// A search may find many thousands, of which only the first makes a difference here.
void ZEVFindPanelQueryParamsController::noteEnabled()
{
    const std::pair enabled(findEnabled(), replaceEnabled());
    if (std::exchange(m_toldEnabled, enabled) == enabled)
        return;
    updateControls();
    Q_EMIT enabledChanged();
}

void ZEVFindPanelQueryParamsController::updateControls()
{
    const ZEVFindPanelQuery query = this->query();
    if (QAbstractButton *button = controls().findButton)
        button->setEnabled(findEnabled());
    if (QAbstractButton *button = controls().caseSensitiveButton)
        button->setChecked(!query.caseInsensitiveSearch());
    if (QAbstractButton *button = controls().scopeButton) {
        button->setVisible(query.scope() != nullptr);
        button->setText(
            (query.scope() ? query.scope()->title().value_or(QString()) : QString()).replace(u'&', u"&&"_s));
    }
    for (QAbstractButton *button : std::as_const(controls().actionButtons))
        if (button)
            button->setEnabled(replaceEnabled());
}

void ZEVFindPanelQueryParamsController::addSavedQuery(const ZEVFindPanelQuery &query)
{
    if (!query.hasPattern())
        return;
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the query may be one of the list
    const ZEVFindPanelQuery added = query;
    loadSavedQueries();
    m_savedQueriesSet.removeAll(added);
    m_savedQueriesSet.prepend(added);
    persistSavedToDefaults();
}

void ZEVFindPanelQueryParamsController::removeSavedQuery(const ZEVFindPanelQuery &query)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the query may be one of the list
    const ZEVFindPanelQuery removed = query;
    loadSavedQueries();
    m_savedQueriesSet.removeAll(removed);
    persistSavedToDefaults();
}

void ZEVFindPanelQueryParamsController::updateRecentsMenu()
{
    m_recentsMenu->clear();
    if (!savedQueries().isEmpty())
        m_recentsMenu->addAction(
            ZEVMenuItemHeadings::headingItemWithTitle(localized(u"Saved Queries"), m_recentsMenu));
    for (const ZEVFindPanelQuery &query : savedQueries())
        addSavedQueryItem(query);
    const bool isSaved = savedQueries().contains(query());
    if (!isSaved && !query().hasPattern())
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
    if (findTokenField())
        findTokenField()->setMenuDelegate(this);
    ZEVTextFinderUserInterfaceVC::popupFindMenu();
}

void ZEVFindPanelQueryParamsController::replaceButtonPressed(QObject *sender)
{
    performAction(tagOf(sender));
}

void ZEVFindPanelQueryParamsController::replaceAllButtonPressed(QObject *sender)
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
        if (!stopLongSearch())
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
