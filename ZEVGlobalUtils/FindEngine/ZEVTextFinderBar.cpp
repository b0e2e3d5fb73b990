// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindBarContainer.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextViewFindPboard.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QPointer>
#include <QWidget>

#include <stdexcept>

using namespace ZEVFindActionNumber;
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

QWidget *ZEVTextFinder::firstResponder() const
{
    const QWidget *window = m_findBarContainer ? m_findBarContainer->window() : nullptr;
    return window ? window->focusWidget() : nullptr;
}

QWidget *ZEVTextFinder::textViewInFocus() const { return textViewOf(firstResponder()); }

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
    const QWidget *textView = textViewInFocus();
    return !textView || (isFieldEditor(textView) && !isPlatformFindField(textView));
}

void ZEVTextFinder::tryToPerformTextFinderAction(QObject *sender)
{
    if (!sender)
        return;
    const qint64 action = sender->property("tag").toLongLong();
    if (canTakeTextFinderActionOwnerShip(action))
        performAction(action);
    else if (QWidget *textView = textViewInFocus())
        performTextFinderAction(textView, sender);
}

bool ZEVTextFinder::validateAction(qint64 action)
{
    if (action <= 0 || action > HideReplaceInterface)
        return false;
    if (isIn(NeedMatches, action))
        return !m_foundMatches.isEmpty();
    if (isIn(AlwaysEnabled, action))
        return true;
    const QWidget *textView = textViewInFocus();
    return textView && !isPlatformFindField(textView) && !isSecret(textView) && !findBarHasFocus();
}

void ZEVTextFinder::performAction(qint64 action)
{
    if (m_findBarContainer)
        m_findBarContainer->setFindBarView(textFinderViewController()->view());
    switch (action) {
    case SetSearchString:
        if (const QWidget *textView = textViewInFocus())
            placeEditorStringOnFindPasteboard(textView);
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
        leaveToHost(action);
        break;
    }
}

/// What is acted on are the matches of the pattern as it stands, in the text as it is.
void ZEVTextFinder::leaveToHost(qint64 action)
{
    const QPointer guard(this);
    const bool moves = action == NextMatch || action == PreviousMatch;
    if (ZEVTextFinderUserInterface *findInterface = currentInterface(); findInterface && moves)
        findInterface->searchIfChanged();
    if (guard && m_search && !isTextUnchanged())
        searchAgain();
    if (guard)
        Q_EMIT actionLeftToHost(action);
}

void ZEVTextFinder::hideFindBar()
{
    if (!m_findBarContainer)
        return;
    const QWidget *view = m_findBarContainer->findBarView();
    if (QWidget *superview = view ? view->parentWidget() : nullptr)
        superview->setFocus();
    m_findBarContainer->setFindBarVisible(false);
    setMarksMatches(false);
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
    if (m_request.expression && !isTextUnchanged()) // nobody has looked after it while the bar was hidden
        searchAgain();
    setMarksMatches(true);
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
