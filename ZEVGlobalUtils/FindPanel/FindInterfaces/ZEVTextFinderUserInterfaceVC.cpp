// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindRequest.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/FindControls_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/InterfaceLoader_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QEvent>
#include <QFontDatabase>
#include <QLocale>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace ZEVFindActionNumber;

namespace {

constexpr int TokenMenuFontPixels = 11;
constexpr int MenuDistance = -6;

/// A search may find a million matches; the growing count is painted this often, in milliseconds.
constexpr qint64 CountInterval = 50;

/// A search is said to be under way, and can be stopped, when it has taken this long, in milliseconds.
constexpr int LongSearch = 1000;

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

/// Of all find fields of the program, the one that the user has edited last: its pattern is what other programs
/// get to see. Null once it has read their pattern.
const ZEVTextFinderUserInterfaceVC *&lastEdited()
{
    static const ZEVTextFinderUserInterfaceVC *controller = nullptr;
    return controller;
}

const ZEVPatternTokens::Groups &defaultPatternItems()
{
    static const ZEVPatternTokens::Groups items = {
        {ZEVPatternItem::tab()},
        ZEVPatternItem::escapeItems(),
        {ZEVPatternItem::email(), ZEVPatternItem::webAddress()},
    };
    return items;
}

const ZEVPatternTokens::Groups &defaultReplacePatternItems()
{
    static const ZEVPatternTokens::Groups items = {{ZEVPatternItem::tab(), ZEVPatternItem::lineBreak()}};
    return items;
}

} // namespace

/// While the delegate is called, which may end the controller, and with it the view in which the user has just
/// pressed a key.
class ZEVTextFinderUserInterfaceVC::Busy {
public:
    explicit Busy(ZEVTextFinderUserInterfaceVC *controller)
        : m_controller(controller)
    {
        ++controller->m_calls;
    }
    ~Busy()
    {
        if (m_controller)
            --m_controller->m_calls;
    }
    Q_DISABLE_COPY_MOVE(Busy)

private:
    QPointer<ZEVTextFinderUserInterfaceVC> m_controller;
};

ZEVTextFinderUserInterfaceVC::ZEVTextFinderUserInterfaceVC(QObject *parent)
    : ZEVTextFinderUserInterfaceVC(QString(), parent)
{
}

ZEVTextFinderUserInterfaceVC::ZEVTextFinderUserInterfaceVC(const QString &nibName, QObject *parent)
    : ZEVPatternTokens(defaultPatternItems(), parent)
    , m_nibName(nibName)
    , m_controls(std::make_unique<FindControls>())
    , m_replacePatternItems(defaultReplacePatternItems())
{
    connect(this, &ZEVTextFinderUserInterfaceVC::queryChanged, this,
            &ZEVTextFinderUserInterfaceVC::searchTermUnchangedChanged);
    connect(this, &ZEVTextFinderUserInterfaceVC::lastQueryChanged, this,
            &ZEVTextFinderUserInterfaceVC::searchTermUnchangedChanged);
}

/// Where the view itself owns the controller, it is going already.
ZEVTextFinderUserInterfaceVC::~ZEVTextFinderUserInterfaceVC()
{
    if (lastEdited() == this)
        lastEdited() = nullptr;
    const QObject *owner = parent();
    while (owner && owner != m_view)
        owner = owner->parent();
    if (owner || !m_view)
        return;
    if (m_calls == 0) {
        delete m_view;
        return;
    }
    m_view->hide();
    m_view->setParent(nullptr);
    m_view->deleteLater();
}

QWidget *ZEVTextFinderUserInterfaceVC::view()
{
    if (!m_view)
        loadView();
    return m_view;
}

bool ZEVTextFinderUserInterfaceVC::isShown() const { return m_view && m_view->isVisible(); }

void ZEVTextFinderUserInterfaceVC::loadView()
{
    m_view = m_nibName.isEmpty() ? InterfaceLoader::loadForClass(metaObject())
                                 : InterfaceLoader::loadNamed(m_nibName);
    if (!m_view)
        m_view = new QWidget; // a controller without a file has nothing to show
    *m_controls = FindControls(m_view);
    viewDidLoad();
}

void ZEVTextFinderUserInterfaceVC::viewDidLoad()
{
    setUpMatchingTypes();
    setUpFields();
    setUpButtons();
    syncWithFindPboard(false);
    if (m_controls->findTokenField && m_query.hasPattern()) // set by the host before
        m_controls->findTokenField->setObjectValue(*m_query.searchPattern());
    ZEVApplicationActivity *activity = ZEVApplicationActivity::shared();
    connect(activity, &ZEVApplicationActivity::didBecomeActive, this, [this] { syncWithFindPboard(false); });
    connect(activity, &ZEVApplicationActivity::willResignActive, this, [this] { syncWithFindPboard(true); });
    m_view->installEventFilter(this);
    updateColors();
    showMessage({});
    showCount();
}

void ZEVTextFinderUserInterfaceVC::setUpField(ZEVTokenField *field)
{
    field->setDelegate(this);
    auto *menu = new QMenu(field);
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(TokenMenuFontPixels);
    menu->setFont(font);
    field->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { menuNeedsUpdate(menu); });
}

void ZEVTextFinderUserInterfaceVC::setUpFields()
{
    if (ZEVTokenField *field = m_controls->findTokenField) {
        setUpField(field);
        connect(field, &OEXTokenField::actionTriggered, this, [this] { findTokenFieldAction(); });
        connect(field, &OEXTokenField::objectValueChanged, this,
                &ZEVTextFinderUserInterfaceVC::noteEditedPattern);
    }
    if (ZEVTokenField *field = m_controls->replaceTokenField) {
        setUpField(field);
        connect(field, &OEXTokenField::actionTriggered, this, [this] { replaceTokenFieldAction(); });
        connect(field, &OEXTokenField::objectValueChanged, this,
                &ZEVTextFinderUserInterfaceVC::replacePatternChanged);
    }
}

void ZEVTextFinderUserInterfaceVC::setUpButtons()
{
    const auto connectMenuButton = [this](QAbstractButton *button, QStringView image, auto popUp) {
        if (!button)
            return;
        button->setIcon(ZEVNamedImages::imageNamed(image.toString()));
        connect(button, &QAbstractButton::pressed, this, [this, button, popUp] {
            button->setDown(false);
            (this->*popUp)();
        });
    };
    connectMenuButton(m_controls->findMenuButton, u"icoFilter", &ZEVTextFinderUserInterfaceVC::popupFindMenu);
    connectMenuButton(m_controls->replaceMenuButton, u"icoMenuTemplate",
                      &ZEVTextFinderUserInterfaceVC::popupReplaceMenu);
    for (QAbstractButton *button : std::as_const(m_controls->actionButtons))
        connect(button, &QAbstractButton::clicked, this, [this, button] { actionButtonPressed(button); });
}

/// The items may come from the file, each with its type as data or as its place.
void ZEVTextFinderUserInterfaceVC::setUpMatchingTypes()
{
    QComboBox *selector = m_controls->matchingTypeSelector;
    if (!selector)
        return;
    for (qint64 type = selector->count(); ZEVFindPanelQuery::titleForMatchingType(type); ++type)
        selector->addItem({}, type);
    for (int row = 0; row < selector->count(); ++row) {
        const QVariant tag =
            selector->itemData(row).isValid() ? selector->itemData(row) : QVariant(qint64(row));
        selector->setItemData(row, tag);
        selector->setItemText(row,
                              ZEVFindPanelQuery::titleForMatchingType(tag.toLongLong()).value_or(QString()));
    }
    showMatchingType();
    connect(selector, &QComboBox::currentIndexChanged, this, [this, selector](int row) {
        if (row >= 0) // none stands for a type that is none
            setMatchingType(selector->itemData(row).toLongLong());
    });
}

void ZEVTextFinderUserInterfaceVC::showMatchingType()
{
    if (QComboBox *selector = m_controls->matchingTypeSelector)
        selector->setCurrentIndex(selector->findData(m_query.matchingType()));
}

void ZEVTextFinderUserInterfaceVC::setDelegate(ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> delegate)
{
    m_delegate = std::move(delegate);
}

ZEVFindPanelQuery ZEVTextFinderUserInterfaceVC::query() const
{
    ZEVFindPanelQuery query = m_query;
    if (m_controls->findTokenField)
        query.setSearchPattern(m_controls->findTokenField->objectValue());
    return query;
}

void ZEVTextFinderUserInterfaceVC::setSearchPattern(const std::optional<QVariantList> &pattern)
{
    if (ZEVTokenField *field = m_controls->findTokenField)
        return field->setObjectValue(pattern.value_or(QVariantList())); // which tells of it
    if (pattern == m_query.searchPattern())
        return;
    m_query.setSearchPattern(pattern);
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::noteEditedPattern()
{
    if (!m_isReadingPboard && isShown())
        lastEdited() = this;
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::setMatchingType(qint64 matchingType)
{
    if (matchingType == m_query.matchingType())
        return;
    m_query.setMatchingType(matchingType);
    showMatchingType();
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::setCaseInsensitiveSearch(bool insensitive)
{
    if (insensitive == m_query.caseInsensitiveSearch())
        return;
    m_query.setCaseInsensitiveSearch(insensitive);
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::setScope(const std::shared_ptr<ZEVFindPanelScope> &scope)
{
    if (scope == m_query.scope())
        return;
    disconnect(m_scopeTitle);
    m_query.setScope(scope);
    if (scope)
        m_scopeTitle = connect(scope.get(), &ZEVFindPanelScope::titleChanged, this,
                               &ZEVTextFinderUserInterfaceVC::queryChanged);
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::applyQuery(const ZEVFindPanelQuery &query)
{
    const ZEVFindPanelQuery applied = query.copy(); // it may be the last one, which may change meanwhile
    const QPointer guard(this);
    setScope(applied.scope());
    if (guard)
        setCaseInsensitiveSearch(applied.caseInsensitiveSearch());
    if (guard)
        setMatchingType(applied.matchingType());
    if (guard)
        setSearchPattern(applied.searchPattern());
}

void ZEVTextFinderUserInterfaceVC::performSearchForQuery(const ZEVFindPanelQuery &query)
{
    applyQuery(query);
    QMetaObject::invokeMethod(
        this,
        [this] {
            focusFieldForAction(ShowFindInterface);
            performSearch();
        },
        Qt::QueuedConnection);
}

void ZEVTextFinderUserInterfaceVC::performSearch()
{
    const ZEVFindPanelQuery query = this->query();
    ZEVError error;
    const auto expression = query.searchExpression(&error);
    const bool isNone = !expression && query.hasPattern();
    const QPointer guard(this);
    const auto before = std::exchange(m_lastQuery, query.copy());
    showMessage(isNone ? error.localizedDescription() : QString());
    if (isNone && !m_controls->messageLabel)
        ZEVErrorPresentation::presentError(error);
    if (guard && m_lastQuery != before)
        Q_EMIT lastQueryChanged();
    if (!guard || !m_delegate)
        return;
    const Busy busy(this);
    m_delegate->search({query, expression, this});
}

void ZEVTextFinderUserInterfaceVC::searchIfChanged()
{
    if (query().hasPattern() && !searchTermUnchanged())
        performSearch();
}

bool ZEVTextFinderUserInterfaceVC::stopLongSearch()
{
    if (!m_isLongSearch || !m_delegate || !m_delegate->stopSearch())
        return false;
    showMessage(localized(u"The search was stopped: matches may be missing."));
    return true;
}

QVariantList ZEVTextFinderUserInterfaceVC::searchPattern() const
{
    return query().searchPattern().value_or(QVariantList());
}

QVariantList ZEVTextFinderUserInterfaceVC::replacePattern() const
{
    return m_controls->replaceTokenField ? m_controls->replaceTokenField->objectValue() : QVariantList();
}

void ZEVTextFinderUserInterfaceVC::setNumberOfMatches(std::optional<qsizetype> number)
{
    if (number == m_numberOfMatches)
        return;
    m_numberOfMatches = number;
    // While the count grows the search has the thread, so it is painted at once, but not for every match.
    const bool isGrowing = number.value_or(0) > 1 && m_sinceCountShown.isValid();
    if (isGrowing && !m_sinceCountShown.hasExpired(CountInterval)) {
        if (!m_countTimer.isActive())
            m_countTimer.start(0, this);
    } else {
        showCount();
        if (isGrowing && m_controls->numberOfMatchesLabel)
            m_controls->numberOfMatchesLabel->repaint();
    }
    Q_EMIT numberOfMatchesChanged();
}

void ZEVTextFinderUserInterfaceVC::setSearchLimitReached(bool reached)
{
    if (reached)
        showMessage(localized(u"The search was too complex: matches are missing."));
    showCount();
}

void ZEVTextFinderUserInterfaceVC::setSearching(bool searching)
{
    if (searching) {
        m_longSearchTimer.start(LongSearch, this);
        return;
    }
    m_longSearchTimer.stop();
    if (std::exchange(m_isLongSearch, false))
        showMessage({});
}

void ZEVTextFinderUserInterfaceVC::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_countTimer.timerId()) {
        m_countTimer.stop();
        showCount();
    } else if (event->timerId() == m_longSearchTimer.timerId()) {
        m_longSearchTimer.stop();
        m_isLongSearch = true;
        showMessage(localized(u"Searching… Press Escape to stop."));
    }
}

/// Kept: the same words for every count.
QString ZEVTextFinderUserInterfaceVC::countText() const
{
    return m_numberOfMatches
        ? localized(u"%lu matches").replace(u"%lu"_s, QLocale().toString(*m_numberOfMatches))
        : QString();
}

void ZEVTextFinderUserInterfaceVC::showCount()
{
    m_sinceCountShown.start();
    if (m_controls->numberOfMatchesLabel)
        m_controls->numberOfMatchesLabel->setText(countText());
    if (m_controls->findTokenField)
        m_controls->findTokenField->setAccessibleDescription(countText());
}

void ZEVTextFinderUserInterfaceVC::showMessage(const QString &message)
{
    if (!m_controls->messageLabel)
        return;
    m_controls->messageLabel->setText(message);
    m_controls->messageLabel->setVisible(!message.isEmpty());
}

/// The count weighs less than what is typed beside it.
void ZEVTextFinderUserInterfaceVC::updateColors()
{
    if (!m_controls->numberOfMatchesLabel)
        return;
    QPalette palette = m_view->palette();
    palette.setColor(QPalette::WindowText, ZEVMatchColors::dimmedText(palette));
    m_controls->numberOfMatchesLabel->setPalette(palette);
}

bool ZEVTextFinderUserInterfaceVC::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::PaletteChange)
        updateColors();
    return ZEVPatternTokens::eventFilter(watched, event);
}

bool ZEVTextFinderUserInterfaceVC::hasFocus() const
{
    return (m_controls->findTokenField && m_controls->findTokenField->isBeingEdited())
        || (m_controls->replaceTokenField && m_controls->replaceTokenField->isBeingEdited());
}

void ZEVTextFinderUserInterfaceVC::focusFieldForAction(qint64 action)
{
    ZEVTokenField *field = nullptr;
    if (action == ShowFindInterface || action == HideReplaceInterface)
        field = m_controls->findTokenField;
    else if (action == ShowReplaceInterface)
        field = m_controls->replaceTokenField;
    if (!field)
        return;
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
}

void ZEVTextFinderUserInterfaceVC::syncWithFindPboard(bool write)
{
    auto pasteboard = ZEVFindPasteboard::findPasteboard();
    if (!pasteboard || !m_controls->findTokenField)
        return;
    if (write) {
        if (lastEdited() == this)
            pasteboard->setString(m_controls->findTokenField->patternStringValue());
        return;
    }
    const qint64 changeCount = pasteboard->changeCount();
    if (changeCount == m_lastUsedFindPboardChangeCount)
        return;
    m_lastUsedFindPboardChangeCount = changeCount;
    readPboard(pasteboard->string().value_or(QString()));
}

void ZEVTextFinderUserInterfaceVC::readPboard(const QString &string)
{
    if (lastEdited() == this)
        lastEdited() = nullptr;
    const QPointer guard(this);
    m_isReadingPboard = true;
    m_controls->findTokenField->setPatternStringValue(string);
    if (!guard)
        return;
    m_isReadingPboard = false;
    const ZEVTokenField *field = m_controls->findTokenField;
    if (const auto *cell = field ? dynamic_cast<ZEVFocusTokenFieldCell *>(field->cell()) : nullptr;
        cell && cell->fakeCellView())
        cell->fakeCellView()->setFocused(!string.isEmpty());
}

ZEVTokenField *ZEVTextFinderUserInterfaceVC::findTokenField() const { return m_controls->findTokenField; }
ZEVTokenField *ZEVTextFinderUserInterfaceVC::replaceTokenField() const
{
    return m_controls->replaceTokenField;
}
QComboBox *ZEVTextFinderUserInterfaceVC::matchingTypeSelector() const
{
    return m_controls->matchingTypeSelector;
}

void ZEVTextFinderUserInterfaceVC::menuNeedsUpdate(QMenu *menu)
{
    if (findTokenField() && menu == findTokenField()->menu())
        updateFindTokenFieldMenu();
    else if (replaceTokenField() && menu == replaceTokenField()->menu())
        updateReplaceTokenFieldMenu();
}

void ZEVTextFinderUserInterfaceVC::updateFindTokenFieldMenu()
{
    if (ZEVTokenField *field = findTokenField(); field && field->menu())
        fillMenu(field->menu(), field, patternItems());
}

void ZEVTextFinderUserInterfaceVC::updateReplaceTokenFieldMenu()
{
    if (ZEVTokenField *field = replaceTokenField(); field && field->menu())
        fillMenu(field->menu(), field, m_replacePatternItems);
}

void ZEVTextFinderUserInterfaceVC::popupFindMenu()
{
    if (findTokenField())
        popUpMenuOfField(findTokenField()->dropDownMenu(), findTokenField());
}

void ZEVTextFinderUserInterfaceVC::popupReplaceMenu()
{
    if (replaceTokenField())
        popUpMenuOfField(replaceTokenField()->dropDownMenu(), replaceTokenField());
}

void ZEVTextFinderUserInterfaceVC::actionButtonPressed(QObject *sender) { performAction(tagOf(sender)); }

void ZEVTextFinderUserInterfaceVC::findTokenFieldAction() { performSearch(); }

/// Kept: Return in the replace field searches, too.
void ZEVTextFinderUserInterfaceVC::replaceTokenFieldAction() { performSearch(); }

void ZEVTextFinderUserInterfaceVC::performAction(qint64 action)
{
    if (!m_delegate)
        return;
    const Busy busy(this);
    m_delegate->performAction(action);
}

bool ZEVTextFinderUserInterfaceVC::doCommandBySelector(OEXTokenField *control, ZEVTextCommand command)
{
    auto *field = qobject_cast<ZEVTokenField *>(control);
    if (!field || command != ZEVTextCommand::InsertNewline)
        return false;
    field->insertNewline();
    return true;
}

void ZEVTextFinderUserInterfaceVC::popUpMenuOfField(QMenu *menu, ZEVTokenField *field)
{
    menu->setFont(QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont));
    const QWidget *superview = field->parentWidget() ? field->parentWidget() : field;
    ZEVMenuBuilder::popUpMenu(menu, superview, {0, superview->height() - MenuDistance});
}
