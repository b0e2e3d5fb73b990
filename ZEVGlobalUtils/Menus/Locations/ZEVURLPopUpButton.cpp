// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemRemoveAllFollowing.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVMenuRecents.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVRecentURLs_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVLocalizedStandardCompare_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QIcon>
#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int LargestMaximum = 254;
constexpr int WidestTitle = 24; ///< in average characters; longer names lose their middle

ZEVUserDefaults &defaults() { return *ZEVUserDefaults::standardUserDefaults(); }

QString lastComponent(const QUrl &url) { return ZEVFileURL::displayName(ZEVFileReference::filePathURL(url)); }

QList<QUrl> orderedByName(QList<QUrl> urls)
{
    std::ranges::stable_sort(urls, [](const QUrl &one, const QUrl &other) {
        return ZEVLocalizedStandardCompare(lastComponent(one), lastComponent(other)) < 0;
    });
    return urls;
}

} // namespace

ZEVURLPopUpButtonDelegate::~ZEVURLPopUpButtonDelegate() = default;

ZEVURLPopUpButton::ZEVURLPopUpButton(QWidget *parent)
    : QPushButton(parent)
    , m_recents(std::make_unique<ZEVRecentURLs>())
{
    setUp();
    buildMenu();
}

ZEVURLPopUpButton::~ZEVURLPopUpButton() = default;

void ZEVURLPopUpButton::setUp()
{
    auto *items = new QMenu(this);
    items->setToolTipsVisible(true);
    setMenu(items);
    // What has gone, or come with a drive, since the menu was built is seen when it opens.
    ZEVMenuBuilder::setMenuBuilder(items, [this](QMenu *) { buildMenu(); });
    setAcceptDrops(true);
    setUpMenuItems();
}

void ZEVURLPopUpButton::setUpMenuItems()
{
    const auto makeItem = [this](const QString &key, const QByteArray &action) {
        return ZEVMenuItemBlockAdditions::itemWithTitle(ZEVGlobalHelper::localizedStringForKey(key), this,
                                                        action, this);
    };
    m_noneItem = makeItem(u"None"_s, "selectURL");
    m_lastUsedItem = ZEVMenuItemBlockAdditions::itemWithTitle(
        ZEVGlobalHelper::localizedStringForKey(u"Last Used"_s), this);
    m_lastUsedItem->setVisible(false);
    m_otherItem = makeItem(u"Choose…"_s, "browse");
    m_clearRecentsItem = makeItem(u"Clear Recents"_s, "clearRecents");
}

QString ZEVURLPopUpButton::recentURLsDefaultsKey() const
{
    return m_autosaveName ? *m_autosaveName + u".recentURLs"_s : QString();
}

const QList<QUrl> &ZEVURLPopUpButton::recentURLSet() const { return m_recents->urls(); }

const QHash<QUrl, QByteArray> &ZEVURLPopUpButton::bookmarksKeyedByURL() const
{
    return m_recents->bookmarks();
}

int ZEVURLPopUpButton::maximumRecentURLCount() const
{
    return m_maximumRecentURLCount == -1 ? kZEVURLPopUpButtonMaxRecentsDefault : m_maximumRecentURLCount;
}

void ZEVURLPopUpButton::setMaximumRecentURLCount(int count)
{
    m_maximumRecentURLCount = count < 0 ? -1 : std::min(count, LargestMaximum);
}

/// Kept: a name that goes leaves what was stored under it. Only where there was none either, the keys of no
/// name would be removed, of which there are none.
void ZEVURLPopUpButton::setAutosaveName(const std::optional<QString> &name)
{
    m_autosaveName = name;
    if (name)
        loadDefaults();
}

void ZEVURLPopUpButton::loadDefaults()
{
    if (!m_autosaveName)
        return;
    m_recents->load(defaults().objectForKey(recentURLsDefaultsKey()), m_keepsUnmountedURLs);
    const QUrl stored =
        QUrl::fromEncoded(defaults().objectForKey(selectedURLDefaultsKey()).toString().toLatin1());
    QUrl selected = ZEVRecentURLs::isThere(stored) ? ZEVFileReference::fileReferenceURL(stored) : QUrl();
    if (!selected.isValid() && m_keepsUnmountedURLs)
        selected = m_recents->unmountedLike(stored);
    if (!selected.isValid())
        defaults().removeObjectForKey(selectedURLDefaultsKey());
    const QUrl former =
        std::exchange(m_url, selected); // which is no use of it: the recents stay as they were
    buildMenu();
    if (m_url != former)
        Q_EMIT URLDidChange(selected);
}

void ZEVURLPopUpButton::setURL(const QUrl &url)
{
    const QUrl former = std::exchange(m_url, ZEVFileReference::fileReferenceURL(url));
    if (m_autosaveName)
        defaults().setObject(m_url.isValid() ? QString::fromLatin1(m_url.toEncoded()) : QVariant(),
                             selectedURLDefaultsKey());
    if (m_url.isValid())
        addRecentURL(m_url);
    buildMenu();
    if (m_url != former)
        Q_EMIT URLDidChange(QUrl(m_url));
}

void ZEVURLPopUpButton::addRecentURL(const QUrl &url)
{
    const QUrl reference = ZEVFileReference::fileReferenceURL(url);
    if (!reference.isValid())
        return;
    m_recents->add(reference, maximumRecentURLCount());
    if (m_autosaveName)
        saveBookmarks();
    buildMenu();
}

void ZEVURLPopUpButton::saveBookmarks()
{
    if (m_autosaveName)
        defaults().setObject(m_recents->stored(), recentURLsDefaultsKey());
}

void ZEVURLPopUpButton::clearRecents()
{
    m_recents->clear();
    if (m_autosaveName)
        defaults().removeObjectForKey(recentURLsDefaultsKey());
}

void ZEVURLPopUpButton::buildMenu()
{
    m_selectedItem = nullptr;
    ZEVMenuItemRemoveAllFollowing::removeAllItems(menu());
    unselectItem(m_noneItem);
    unselectItem(m_otherItem);
    m_recents->removeMissing(m_keepsUnmountedURLs);
    for (const QUrl &url : m_staticMenuOrder ? orderedByName(m_recents->urls()) : m_recents->urls())
        addItem(url);
    showFolderOfNamesakes();
    if (!menu()->isEmpty())
        menu()->addSeparator();
    menu()->addActions({m_noneItem, m_lastUsedItem, m_otherItem});
    selectItem(m_selectedItem ? m_selectedItem : m_noneItem);
}

void ZEVURLPopUpButton::addItem(const QUrl &url)
{
    QAction *item = makeItemWithURL(url);
    const bool isSelected = m_url.isValid() && ZEVRecentURLs::isSameItem(url, m_url);
    if (isSelected)
        m_selectedItem = item;
    QAction *first = menu()->actions().value(0);
    menu()->insertAction(isSelected && !m_staticMenuOrder ? first : nullptr, item);
}

QAction *ZEVURLPopUpButton::makeItemWithURL(const QUrl &url)
{
    QAction *item = ZEVMenuItemBlockAdditions::itemWithTitle({}, this, "selectURL", menu());
    ZEVMenuItem::setRepresentedObject(item, url);
    ZEVMenuRecents::setNameAndIcon(item, false);
    if (const auto unmounted = m_recents->unmounted(url)) {
        ZEVMenuItem::setTitle(item, unmounted->name);
        item->setIcon(QIcon::fromTheme(unmounted->iconName, item->icon()));
        item->setEnabled(false);
    }
    return item;
}

void ZEVURLPopUpButton::showFolderOfNamesakes()
{
    const QList<QAction *> items = menu()->actions();
    for (QAction *item : items) {
        const QString title = ZEVMenuItem::title(item);
        const auto isNamesake = [&](const QAction *other) { return ZEVMenuItem::title(other) == title; };
        if (std::ranges::count_if(items, isNamesake) > 1)
            ZEVMenuRecents::setNameAndIcon(item, true);
    }
}

QAction *ZEVURLPopUpButton::itemForURL(const QUrl &url) const
{
    for (QAction *item : menu()->actions()) {
        const QUrl itemURL = ZEVMenuItem::representedObject(item).toUrl();
        if (url.isValid() && itemURL.isValid() && ZEVRecentURLs::isSameItem(itemURL, url))
            return item;
    }
    return nullptr;
}

void ZEVURLPopUpButton::selectItem(QAction *item)
{
    if (m_selectedItem)
        unselectItem(m_selectedItem);
    m_selectedItem = item;
    ZEVMenuItem::setState(item, ZEVMenuItem::On);
    showSelectedItem();
}

/// An item that could be checked would keep an empty box.
void ZEVURLPopUpButton::unselectItem(QAction *item)
{
    ZEVMenuItem::setState(item, ZEVMenuItem::Off);
    item->setCheckable(false);
}

/// What stands on the button.
void ZEVURLPopUpButton::showSelectedItem()
{
    const auto attributedTitle = ZEVMenuItem::attributedTitle(m_selectedItem);
    const QString title = attributedTitle ? attributedTitle->string() : ZEVMenuItem::title(m_selectedItem);
    const int widest = fontMetrics().averageCharWidth() * WidestTitle;
    setText(fontMetrics().elidedText(title, Qt::ElideMiddle, widest).replace(u'&', u"&&"_s));
    setIcon(m_selectedItem->icon());
    setToolTip(m_url.isValid() ? m_selectedItem->toolTip() : QString());
}
