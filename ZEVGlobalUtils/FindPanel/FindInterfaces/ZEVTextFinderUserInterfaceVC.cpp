// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindRequest.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindControls_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVInterfaceLoader_p.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

using namespace Qt::StringLiterals;
using namespace ZEVFindActionNumber;

namespace {

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
    , m_controls(std::make_unique<ZEVFindControls>())
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
    m_view = m_nibName.isEmpty() ? ZEVInterfaceLoader::loadForClass(metaObject())
                                 : ZEVInterfaceLoader::loadNamed(m_nibName);
    if (!m_view)
        m_view = new QWidget; // a controller without a file has nothing to show
    *m_controls = ZEVFindControls(m_view);
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
