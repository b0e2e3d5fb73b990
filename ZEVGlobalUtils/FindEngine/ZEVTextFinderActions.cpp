// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindBarContainer.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextViewFindPboard.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QWidget>

#include <stdexcept>

using namespace ZEVTextFinderAction;
using namespace ZEVTextViewFindPboard;

namespace {

// A bit for every action number.
constexpr unsigned NeedMatches = 380; // 2, 3, 4, 5, 6, 8
constexpr unsigned AlwaysEnabled = 15874; // 1, 9, 10, 11, 12, 13

bool isIn(unsigned actions, qint64 action) { return (actions >> action & 1U) != 0; }

/// The find field of the platform's own find panel, where there is such a thing.
bool isPlatformFindField(const QWidget *widget) { return widget->inherits("NSFindPatternFieldEditor"); }

} // namespace

ZEVFindBarContainer::~ZEVFindBarContainer() = default;
ZEVTextFinderUserInterface::~ZEVTextFinderUserInterface() = default;
ZEVTextFinderUserInterfaceDelegate::~ZEVTextFinderUserInterfaceDelegate() = default;
void ZEVTextFinderUserInterfaceDelegate::customizeFindMenuBeforeDisplay(ZEVTextFinderUserInterface *, QMenu *)
{
}

ZEVTextFinderUserInterface::Maker &ZEVTextFinderUserInterface::maker()
{
    static Maker maker;
    return maker;
}

ZEVTextFinderUserInterface *ZEVTextFinder::textFinderViewController()
{
    if (!m_textFinderViewController)
        setTextFinderViewController(ZEVTextFinderUserInterface::maker()());
    return m_textFinderViewController.get();
}

void ZEVTextFinder::setTextFinderViewController(std::unique_ptr<ZEVTextFinderUserInterface> controller)
{
    m_textFinderViewController = std::move(controller);
    m_textFinderViewController->setDelegate(this);
    m_textFinderViewController->setNumberOfMatches(m_numberOfMatches);
}

QWidget *ZEVTextFinder::firstResponder() const
{
    return m_findBarContainer ? m_findBarContainer->window()->focusWidget() : nullptr;
}

bool ZEVTextFinder::findBarHasFocus()
{
    return m_findBarContainer && m_findBarContainer->isFindBarVisible() && m_textFinderViewController
        && m_textFinderViewController->hasFocus();
}

/// So a text view of several lines that has the focus keeps its own ways, and so does a find field of the
/// platform's.
bool ZEVTextFinder::canTakeTextFinderActionOwnerShip(qint64 action)
{
    if (action == SetSearchString || findBarHasFocus())
        return true;
    const QWidget *responder = firstResponder();
    return !responder || !isTextView(responder)
        || (isFieldEditor(responder) && !isPlatformFindField(responder));
}

void ZEVTextFinder::tryToPerformTextFinderAction(QObject *sender)
{
    const qint64 action = sender->property("tag").toLongLong();
    if (canTakeTextFinderActionOwnerShip(action))
        performAction(action);
    else if (QWidget *responder = firstResponder(); responder && isTextView(responder))
        performTextFinderAction(responder, sender);
}

bool ZEVTextFinder::validateAction(qint64 action)
{
    if (action <= 0 || action > HideReplaceInterface)
        return false;
    if (isIn(NeedMatches, action))
        return !m_foundMatches.isEmpty();
    if (isIn(AlwaysEnabled, action))
        return true;
    const QWidget *responder = firstResponder();
    return responder && isTextView(responder) && !isPlatformFindField(responder) && !findBarHasFocus();
}

void ZEVTextFinder::performAction(qint64 action)
{
    if (m_findBarContainer)
        m_findBarContainer->setFindBarView(textFinderViewController()->view());
    switch (action) {
    case SetSearchString:
        if (const QWidget *responder = firstResponder(); responder && isTextView(responder))
            placeEditorStringOnFindPasteboard(responder);
        break;
    case HideFindInterface:
        hideFindBar();
        break;
    case ShowFindInterface:
    case ShowReplaceInterface:
    case HideReplaceInterface:
        showFindBar(action);
        break;
    default:
        Q_EMIT actionLeftToHost(action);
        break;
    }
}

void ZEVTextFinder::hideFindBar()
{
    if (!m_findBarContainer)
        return;
    if (QWidget *superview = m_findBarContainer->findBarView()->parentWidget())
        superview->setFocus();
    m_findBarContainer->setFindBarVisible(false);
}

void ZEVTextFinder::showFindBar(qint64 action)
{
    if (!m_findBarContainer)
        return;
    const bool wasVisible = m_findBarContainer->isFindBarVisible();
    if (action != ShowFindInterface || !wasVisible)
        m_textFinderViewController->setShowReplace(action == ShowReplaceInterface);
    QWidget *view = m_textFinderViewController->view();
    view->resize(view->width(), view->sizeHint().height());
    // Kept: a bar that comes up for replacing begins with what to find.
    if (action == ShowReplaceInterface && !wasVisible)
        action = ShowFindInterface;
    m_findBarContainer->findBarViewDidChangeHeight();
    m_findBarContainer->setFindBarVisible(true);
    m_textFinderViewController->focusFieldForAction(action);
}

QString ZEVTextFinder::localizedNameForAction(qint64 action)
{
    switch (action) {
    case ReplaceAll:
        return ZEVGlobalHelper::localizedStringForKey(u"Replace All");
    case Replace:
        return ZEVGlobalHelper::localizedStringForKey(u"Replace");
    default:
        throw std::logic_error("Unhandled action " + std::to_string(action));
    }
}
