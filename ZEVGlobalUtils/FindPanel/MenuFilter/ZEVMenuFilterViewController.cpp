// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterDelegate.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>

#include <ZEVGlobalUtils/FindEngine/ZEVStringFilterRegexValue.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterView.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuTitleFilter_p.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMoreButtonCell.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionFrame>
#include <QWidgetAction>

#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldHeight = 23;
constexpr int SmallFontPixels = 11;
constexpr int MoreViewHeight = 27;
constexpr QSize SmallMoreButton(104, 25);
constexpr QSize MoreButton(80, 27);
constexpr int SmallMoreMargin = 8;
constexpr int MoreMargin = 20;

/// Of the small control size, and without a focus ring: it has the focus whenever its menu is open.
class FilterField : public QLineEdit {
public:
    FilterField()
    {
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setPixelSize(SmallFontPixels);
        setFont(font);
    }

protected:
    void initStyleOption(QStyleOptionFrame *option) const override
    {
        QLineEdit::initStyleOption(option);
        option->state.setFlag(QStyle::State_HasFocus, false);
    }
};

/// Without the marks that a letter is decomposed into.
QString withoutDiacritics(const QString &text)
{
    QString bare = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    bare.removeIf([](QChar character) { return character.category() == QChar::Mark_NonSpacing; });
    return bare;
}

bool beginsWithString(const QString &title, const QString &string)
{
    if (title.size() < string.size())
        throw std::out_of_range("a title shorter than the search string");
    return withoutDiacritics(title.first(string.size())).contains(withoutDiacritics(string));
}

} // namespace

ZEVMenuFilterDelegate::~ZEVMenuFilterDelegate() = default;

ZEVMenuFilterViewController::ZEVMenuFilterViewController(ZEVControlSize controlSize, QObject *parent)
    : QObject(parent)
    , m_searchField(new FilterField)
    , m_filterMenuItem(new QWidgetAction(this))
    , m_moreMenuItem(new QWidgetAction(this))
    , m_titles(std::make_unique<ZEVMenuTitleFilter>())
{
    makeFilterItem();
    makeMoreItem(controlSize);
}

/// A delegate may end the filter while its field still has a key, or its button a click, to end.
ZEVMenuFilterViewController::~ZEVMenuFilterViewController()
{
    for (QWidgetAction *item : {m_filterMenuItem, m_moreMenuItem}) {
        item->setParent(nullptr);
        item->deleteLater();
    }
}

void ZEVMenuFilterViewController::makeFilterItem()
{
    const QString name = ZEVGlobalHelper::localizedStringForKey(u"Filter"_s);
    m_searchField->setPlaceholderText(name);
    m_searchField->setAccessibleName(name);
    m_searchField->setClearButtonEnabled(true);
    m_searchField->setMinimumHeight(FieldHeight);
    m_searchField->installEventFilter(this);
    connect(m_searchField, &QLineEdit::textEdited, this, &ZEVMenuFilterViewController::controlTextDidChange);
    auto *view = new ZEVMenuFilterView;
    view->setFilter(this);
    m_filterMenuItem->setDefaultWidget(view);
}

void ZEVMenuFilterViewController::makeMoreItem(ZEVControlSize controlSize)
{
    const bool isSmall = controlSize == ZEVControlSize::Small;
    auto *button = new ZEVMoreButtonCell;
    button->setIcon(ZEVNamedImages::imageNamed(u"icoAddTemplate"));
    button->setMinimumSize(isSmall ? SmallMoreButton : MoreButton);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setAccessibleName(ZEVGlobalHelper::localizedStringForKey(u"Show more"_s));
    connect(button, &QToolButton::clicked, this, &ZEVMenuFilterViewController::showMoreAction);
    auto *container = new QWidget;
    container->setMinimumHeight(MoreViewHeight);
    auto *layout = new QHBoxLayout(container);
    const int margin = isSmall ? SmallMoreMargin : MoreMargin;
    layout->setContentsMargins(margin, isSmall ? MoreViewHeight - SmallMoreButton.height() : 0, margin, 0);
    layout->addWidget(button);
    m_moreMenuItem->setDefaultWidget(container);
    m_moreMenuItem->setEnabled(false);
    // An item that cannot be chosen, with a button that can: whatever changes of the item disables both.
    const auto enable = [container] { container->setEnabled(true); };
    connect(m_moreMenuItem, &QAction::changed, container, enable);
    enable();
}

QString ZEVMenuFilterViewController::needle() const { return m_searchField->text(); }

QMenu *ZEVMenuFilterViewController::menu() const
{
    for (QObject *object : m_filterMenuItem->associatedObjects()) {
        if (auto *menu = qobject_cast<QMenu *>(object))
            return menu;
    }
    return nullptr;
}

void ZEVMenuFilterViewController::updateRegexAndNotifyDelegate()
{
    m_hasNeedle = !needle().isEmpty();
    if (m_hasNeedle && std::exchange(m_regexNeedle, needle()) != needle())
        m_regex.reset();
    if (m_delegate)
        m_delegate->filterDidChange(this);
}

const std::optional<ZEVRegularExpression> &ZEVMenuFilterViewController::regex() const
{
    if (!m_regex && !m_regexNeedle.isEmpty())
        m_regex = ZEVStringFilterRegexValue::filterRegexValue(m_regexNeedle);
    return m_regex;
}

void ZEVMenuFilterViewController::clearFilter() { m_searchField->clear(); }

void ZEVMenuFilterViewController::clearFilterAndNotifyDelegate()
{
    clearFilter();
    updateRegexAndNotifyDelegate();
}

void ZEVMenuFilterViewController::showMoreAction()
{
    const QPointer guard(this);
    const bool showsMore = m_delegate && m_delegate->showMoreItems(this);
    if (guard && !showsMore)
        clearFilterAndNotifyDelegate();
    if (guard && m_autofocus)
        m_searchField->setFocus();
}

QList<QAction *> ZEVMenuFilterViewController::filteredItems(const QList<QAction *> &items) const
{
    return m_hasNeedle ? filteredItems(items, needle()) : items;
}

QList<QAction *> ZEVMenuFilterViewController::filteredItems(const QList<QAction *> &items,
                                                            const QString &forSearchString) const
{
    if (ZEVMenuTitleFilter::isOneLine(forSearchString))
        return m_titles->itemsWithWords(items, forSearchString);
    return filteredItems(items, forSearchString,
                         ZEVStringFilterRegexValue::filterRegexValue(forSearchString));
}

QList<QAction *>
ZEVMenuFilterViewController::filteredItems(const QList<QAction *> &items, const QString &forSearchString,
                                           const std::optional<ZEVRegularExpression> &regex) const
{
    if (forSearchString.isEmpty())
        return items;
    if (!regex)
        return ZEVMenuTitleFilter::itemsPassing(
            items, [&](const QString &title) { return beginsWithString(title, forSearchString); });
    ZEVRegularExpressionMatcher matcher(*regex);
    return ZEVMenuTitleFilter::itemsPassing(items, [&](const QString &title) {
        matcher.setText(title);
        return matcher.findNext().has_value();
    });
}

std::unique_ptr<ZEVMenuFilterClient> ZEVMenuFilterViewController::newClient()
{
    return std::make_unique<ZEVMenuFilterClient>(this);
}

std::unique_ptr<ZEVMenuFilterClient> ZEVMenuFilterViewController::newDelegatedClient()
{
    auto client = newClient();
    m_delegate = client.get();
    return client;
}
