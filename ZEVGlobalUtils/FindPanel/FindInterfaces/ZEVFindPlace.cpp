// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchHighlightDelegate.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVTextEditFinderClient.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderMenu.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVWidgetSpot_p.h>

#include <QAction>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>

using namespace std::chrono_literals;

namespace {

/// A search gives way to the user after this long.
constexpr auto Slice = 30ms;

bool hasPlainDelegate(const QAbstractItemView *view)
{
    const QAbstractItemDelegate *delegate = view->itemDelegate();
    return delegate && delegate->metaObject() == &QStyledItemDelegate::staticMetaObject;
}

} // namespace

ZEVFindPlace::ZEVFindPlace(const ZEVWidgetSpot &spot, QWidget *content, Bar bar)
    : ZEVFindBarContainerView(content)
    , m_actor(&m_finder)
    , m_menu(new QMenu(this))
{
    m_finder.setFindBarContainer(this);
    m_finder.setSliceDuration(Slice);
    if (bar)
        m_finder.setTextFinderViewController(std::move(bar));
    setUpKeys();
    spot.put(this);
}

ZEVFindPlace::ZEVFindPlace(QWidget *content, Bar bar)
    : ZEVFindPlace(ZEVWidgetSpot(content), content, std::move(bar))
{
}

ZEVFindPlace::ZEVFindPlace(QTextEdit *editor, Bar bar)
    : ZEVFindPlace(ZEVWidgetSpot(editor), editor, std::move(bar))
{
    searchEditor(editor);
}

ZEVFindPlace::ZEVFindPlace(QPlainTextEdit *editor, Bar bar)
    : ZEVFindPlace(ZEVWidgetSpot(editor), editor, std::move(bar))
{
    searchEditor(editor);
}

ZEVFindPlace::ZEVFindPlace(QAbstractItemView *view, Bar bar)
    : ZEVFindPlace(ZEVWidgetSpot(view), view, std::move(bar))
{
    searchView(view);
    connect(&m_finder, &ZEVTextFinder::searchBegins, view, [this, view] { searchView(view); });
}

ZEVFindPlace::~ZEVFindPlace() { m_finder.setFindBarContainer(nullptr); }

template <typename Editor>
void ZEVFindPlace::searchEditor(Editor *editor)
{
    const auto *client = new ZEVTextEditFinderClient(editor, &m_finder);
    connect(client, &ZEVTextEditFinderClient::textChanged, &m_actor, [this] { searchWhileShown(); });
}

/// Qt does not tell when a view gets another model, so that is looked at before every search.
void ZEVFindPlace::searchView(QAbstractItemView *view)
{
    auto *client = dynamic_cast<ZEVItemModelFinderClient *>(m_finder.client());
    if (!view->model() || (client && client->model() == view->model()))
        return;
    delete client;
    client = new ZEVItemModelFinderClient(view->model(), view, &m_finder);
    if (const auto *list = qobject_cast<QListView *>(view))
        client->setColumns({list->modelColumn()});
    connect(client, &ZEVItemModelFinderClient::textChanged, &m_actor, [this] { searchWhileShown(); });
    if (hasPlainDelegate(view) || qobject_cast<ZEVMatchHighlightDelegate *>(view->itemDelegate()))
        view->setItemDelegate(new ZEVMatchHighlightDelegate(client, client));
}

/// Connected by way of the actor, which goes before the view does: that tells of its text's end, too.
void ZEVFindPlace::searchWhileShown()
{
    if (m_finder.marksMatches())
        m_actor.searchAgainSoon();
}

void ZEVFindPlace::setUpKeys()
{
    ZEVTextFinderMenu::addItems(m_menu, [this] { return &m_finder; });
    for (QAction *item : m_menu->actions()) {
        item->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(item);
    }
}

void ZEVFindPlace::setKeysEnabled(bool enabled)
{
    for (QAction *item : m_menu->actions()) {
        removeAction(item);
        if (enabled)
            addAction(item);
    }
}

QList<QAction *> ZEVFindPlace::menuActions() const { return m_menu->actions(); }

ZEVTextFinderViewController &ZEVFindPlace::bar()
{
    return *static_cast<ZEVTextFinderViewController *>(m_finder.textFinderViewController());
}

bool ZEVFindPlace::hasFocusWithin() const
{
    const QWidget *focus = QWidget::window()->focusWidget();
    return focus && isAncestorOf(focus);
}

void ZEVFindPlace::find(const ZEVFindPanelQuery &query)
{
    m_finder.performAction(ZEVFindActionNumber::ShowFindInterface);
    bar().applyQuery(query);
    bar().performSearch();
}
