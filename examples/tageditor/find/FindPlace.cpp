// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/FindPlace.h>

#include <tageditor/find/FindInterfaces.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>

using namespace std::chrono_literals;

namespace {

/// A search gives way to the user after this long.
constexpr auto Slice = 30ms;

} // namespace

FindPlace::FindPlace(QWidget *content, QWidget *parent)
    : ZEVFindBarContainerView(content, parent)
    , m_actor(&m_finder)
{
    m_finder.setFindBarContainer(this);
    m_finder.setSliceDuration(Slice);
    m_finder.setTextFinderViewController(std::make_unique<FindBar>());
    m_actor.setQuerySource([this] { return bar().query(); });
    connect(&bar(), &FindBar::wrapAroundChanged, &m_actor,
            [this] { m_actor.setWrapsAround(bar().wrapAround()); });
}

FindPlace::~FindPlace() { m_finder.setFindBarContainer(nullptr); }

FindBar &FindPlace::bar() { return *static_cast<FindBar *>(m_finder.textFinderViewController()); }

bool FindPlace::hasFocusWithin() const
{
    const QWidget *focus = QWidget::window()->focusWidget();
    return focus && isAncestorOf(focus);
}

void FindPlace::find(const ZEVFindPanelQuery &query)
{
    m_finder.performAction(ZEVTextFinderAction::ShowFindInterface);
    bar().applyQuery(query);
    bar().performSearch();
}
