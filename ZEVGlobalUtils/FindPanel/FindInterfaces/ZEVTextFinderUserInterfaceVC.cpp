// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/InterfaceLoader_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorCatcher.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVMatchesCountDisplayTransformer.h>

#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace ZEVTextFinderAction;

namespace {

constexpr int TokenMenuFontPixels = 11;
constexpr int MenuDistance = -6;

/// A search may find a million matches; the growing count is painted this often, in milliseconds.
constexpr qint64 CountInterval = 50;

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

ZEVTextFinderUserInterfaceVC::ZEVTextFinderUserInterfaceVC(QObject *parent)
    : ZEVTextFinderUserInterfaceVC(QString(), parent)
{
}

ZEVTextFinderUserInterfaceVC::ZEVTextFinderUserInterfaceVC(const QString &nibName, QObject *parent)
    : ZEVPatternTokens(defaultPatternItems(), parent)
    , m_nibName(nibName)
    , m_replacePatternItems(defaultReplacePatternItems())
{
}

/// Where the view itself owns the controller, it is going already.
ZEVTextFinderUserInterfaceVC::~ZEVTextFinderUserInterfaceVC()
{
    const QObject *owner = parent();
    while (owner && owner != m_view)
        owner = owner->parent();
    if (!owner)
        delete m_view;
}

QWidget *ZEVTextFinderUserInterfaceVC::view()
{
    if (!m_view)
        loadView();
    return m_view;
}

void ZEVTextFinderUserInterfaceVC::loadView()
{
    m_view = m_nibName.isEmpty() ? InterfaceLoader::loadForClass(metaObject())
                                 : InterfaceLoader::loadNamed(m_nibName);
    if (!m_view)
        m_view = new QWidget; // a controller without a file has nothing to show
    m_findTokenField = m_view->findChild<ZEVTokenField *>(u"findTokenField"_s);
    m_replaceTokenField = m_view->findChild<ZEVTokenField *>(u"replaceTokenField"_s);
    m_matchingTypeSelector = m_view->findChild<QComboBox *>(u"matchingTypeSelector"_s);
    m_numberOfMatchesLabel = m_view->findChild<QLabel *>(u"numberOfMatchesLabel"_s);
    m_messageLabel = m_view->findChild<QLabel *>(u"messageLabel"_s);
    viewDidLoad();
}

void ZEVTextFinderUserInterfaceVC::viewDidLoad()
{
    setUpMatchingTypes();
    setUpFields();
    syncWithFindPboard(false);
    ZEVApplicationActivity *activity = ZEVApplicationActivity::shared();
    connect(activity, &ZEVApplicationActivity::didBecomeActive, this, [this] { syncWithFindPboard(false); });
    connect(activity, &ZEVApplicationActivity::willResignActive, this, [this] { syncWithFindPboard(true); });
    connect(this, &ZEVTextFinderUserInterfaceVC::queryChanged, this,
            &ZEVTextFinderUserInterfaceVC::showQuery);
    if (m_findTokenField)
        setSearchPattern(m_findTokenField->objectValue());
    showMessage({});
    showCount();
}

void ZEVTextFinderUserInterfaceVC::setUpFields()
{
    for (ZEVTokenField *field : {m_findTokenField.data(), m_replaceTokenField.data()}) {
        if (!field)
            continue;
        field->setDelegate(this);
        auto *menu = new QMenu(field);
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setPixelSize(TokenMenuFontPixels);
        menu->setFont(font);
        field->setMenu(menu);
        connect(menu, &QMenu::aboutToShow, this, [this, menu, field] {
            fillMenu(menu, field, field == m_findTokenField ? patternItems() : m_replacePatternItems);
        });
    }
    if (m_findTokenField) {
        connect(m_findTokenField, &OEXTokenField::actionTriggered, this, [this] { findTokenFieldAction(); });
        connect(m_findTokenField, &OEXTokenField::objectValueChanged, this,
                [this] { setSearchPattern(m_findTokenField->objectValue()); });
    }
    if (m_replaceTokenField)
        connect(m_replaceTokenField, &OEXTokenField::actionTriggered, this,
                [this] { replaceTokenFieldAction(); });
}

/// The items may come from the file, each with its type as data or as its place.
void ZEVTextFinderUserInterfaceVC::setUpMatchingTypes()
{
    QComboBox *selector = m_matchingTypeSelector;
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
    connect(selector, &QComboBox::currentIndexChanged, this,
            [this, selector] { setMatchingType(selector->currentData().toLongLong()); });
}

void ZEVTextFinderUserInterfaceVC::setDelegate(ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> delegate)
{
    m_delegate = std::move(delegate);
}

void ZEVTextFinderUserInterfaceVC::setSearchPattern(const std::optional<QVariantList> &pattern)
{
    if (pattern == m_query.searchPattern())
        return;
    m_query.setSearchPattern(pattern);
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::setMatchingType(qint64 matchingType)
{
    if (matchingType == m_query.matchingType())
        return;
    m_query.setMatchingType(matchingType);
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
    m_query.setScope(scope);
    Q_EMIT queryChanged();
}

void ZEVTextFinderUserInterfaceVC::applyQuery(const ZEVFindPanelQuery &query)
{
    setScope(query.copy().scope());
    setCaseInsensitiveSearch(query.caseInsensitiveSearch());
    setMatchingType(query.matchingType());
    setSearchPattern(query.searchPattern());
}

/// The controls follow the query, whoever changed it.
void ZEVTextFinderUserInterfaceVC::showQuery()
{
    if (m_findTokenField)
        m_findTokenField->setObjectValue(m_query.searchPattern().value_or(QVariantList()));
    if (m_matchingTypeSelector)
        m_matchingTypeSelector->setCurrentIndex(m_matchingTypeSelector->findData(m_query.matchingType()));
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

/// An expression that is none is told beneath the field: an alert at every key press would be in the way.
void ZEVTextFinderUserInterfaceVC::performSearch()
{
    // Who observes the field may hear of a key press before the query does.
    if (m_findTokenField)
        setSearchPattern(m_findTokenField->objectValue());
    // Kept: with a scope, the copy is not equal to the query, unless the host's scopes copy as themselves.
    m_lastQuery = m_query.copy();
    QString error;
    std::optional<ZEVRegularExpression> expression;
    {
        const ZEVErrorCatcher catcher(error);
        expression = m_query.searchExpression();
    }
    m_searchLimitReached = false;
    showMessage(error);
    Q_EMIT queryChanged();
    if (m_delegate)
        m_delegate->performSearchAgainstExpression(expression);
}

QVariantList ZEVTextFinderUserInterfaceVC::searchPattern() const
{
    return m_findTokenField ? m_findTokenField->objectValue() : QVariantList();
}

QVariantList ZEVTextFinderUserInterfaceVC::replacePattern() const
{
    return m_replaceTokenField ? m_replaceTokenField->objectValue() : QVariantList();
}

void ZEVTextFinderUserInterfaceVC::setNumberOfMatches(std::optional<qsizetype> number)
{
    m_numberOfMatches = number;
    // While the count grows the search has the thread, so it is painted at once, but not for every match.
    const bool isGrowing = number.value_or(0) > 1 && m_sinceCountShown.isValid();
    if (isGrowing && !m_sinceCountShown.hasExpired(CountInterval)) {
        if (!m_countTimer.isActive())
            m_countTimer.start(0, this);
    } else {
        showCount();
        if (isGrowing && m_numberOfMatchesLabel)
            m_numberOfMatchesLabel->repaint();
    }
    Q_EMIT numberOfMatchesChanged();
}

void ZEVTextFinderUserInterfaceVC::setSearchLimitReached(bool reached)
{
    m_searchLimitReached = reached;
    if (reached)
        showMessage(
            ZEVGlobalHelper::localizedStringForKey(u"The search was too complex: matches are missing."));
    showCount();
}

void ZEVTextFinderUserInterfaceVC::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_countTimer.timerId())
        return;
    m_countTimer.stop();
    showCount();
}

QString ZEVTextFinderUserInterfaceVC::countText() const
{
    return m_numberOfMatches
        ? ZEVMatchesCountDisplayTransformer().transformedValue(*m_numberOfMatches).toString()
        : QString();
}

void ZEVTextFinderUserInterfaceVC::showCount()
{
    m_sinceCountShown.start();
    if (m_numberOfMatchesLabel)
        m_numberOfMatchesLabel->setText(countText());
    if (m_findTokenField)
        m_findTokenField->setAccessibleDescription(countText());
}

void ZEVTextFinderUserInterfaceVC::showMessage(const QString &message)
{
    if (!m_messageLabel)
        return;
    m_messageLabel->setText(message);
    m_messageLabel->setVisible(!message.isEmpty());
}

bool ZEVTextFinderUserInterfaceVC::hasFocus() const
{
    return (m_findTokenField && m_findTokenField->isBeingEdited())
        || (m_replaceTokenField && m_replaceTokenField->isBeingEdited());
}

void ZEVTextFinderUserInterfaceVC::focusFieldForAction(qint64 action)
{
    ZEVTokenField *field = nullptr;
    if (action == ShowFindInterface || action == HideReplaceInterface)
        field = m_findTokenField;
    else if (action == ShowReplaceInterface)
        field = m_replaceTokenField;
    if (field)
        field->setFocus(Qt::ShortcutFocusReason);
}

void ZEVTextFinderUserInterfaceVC::syncWithFindPboard(bool write)
{
    auto pasteboard = ZEVFindPasteboard::findPasteboard();
    if (!pasteboard || !m_findTokenField)
        return;
    if (write) {
        pasteboard->setString(m_findTokenField->patternStringValue());
        return;
    }
    const qint64 changeCount = pasteboard->changeCount();
    if (changeCount == m_lastUsedFindPboardChangeCount)
        return;
    m_lastUsedFindPboardChangeCount = changeCount;
    const QString string = pasteboard->string().value_or(QString());
    m_findTokenField->setPatternStringValue(string);
    if (const auto *cell = dynamic_cast<ZEVFocusTokenFieldCell *>(m_findTokenField->cell());
        cell && cell->fakeCellView())
        cell->fakeCellView()->setFocused(!string.isEmpty());
}

ZEVTokenField *ZEVTextFinderUserInterfaceVC::findTokenField() const { return m_findTokenField; }
ZEVTokenField *ZEVTextFinderUserInterfaceVC::replaceTokenField() const { return m_replaceTokenField; }
QComboBox *ZEVTextFinderUserInterfaceVC::matchingTypeSelector() const { return m_matchingTypeSelector; }

void ZEVTextFinderUserInterfaceVC::findTokenFieldAction() { performSearch(); }

/// Kept: Return in the replace field searches, too.
void ZEVTextFinderUserInterfaceVC::replaceTokenFieldAction() { performSearch(); }

void ZEVTextFinderUserInterfaceVC::performAction(qint64 action)
{
    if (m_delegate)
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
