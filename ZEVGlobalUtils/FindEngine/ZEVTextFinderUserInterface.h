// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>

class QMenu;
class QObject;
class QWidget;
class ZEVRegularExpression;
class ZEVTextFinderUserInterface;
template <typename Protocol>
class ZEVWeakRef;

/// Who runs what a find interface is asked for.
class ZEV_EXPORT ZEVTextFinderUserInterfaceDelegate {
public:
    virtual ~ZEVTextFinderUserInterfaceDelegate();

    /// A number of ZEVTextFinderAction.
    virtual void performAction(qint64 action) = 0;

    /// Nil for a query that is none.
    virtual void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression) = 0;

    /// Optional: may change the menu of the find field before it is shown.
    virtual void customizeFindMenuBeforeDisplay(ZEVTextFinderUserInterface *findInterface, QMenu *menu);
};

/// The find interface as its finder sees it.
class ZEV_EXPORT ZEVTextFinderUserInterface {
public:
    virtual ~ZEVTextFinderUserInterface();

    virtual QWidget *view() = 0;
    virtual void setDelegate(ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> delegate) = 0;

    /// Whether one of its fields is being edited.
    virtual bool hasFocus() const = 0;

    virtual void setShowReplace(bool show) = 0;

    /// Gives the focus to the field that belongs to \a action.
    virtual void focusFieldForAction(qint64 action) = 0;

    /// The count of the last search, and whether the search had to leave something out.
    virtual void setNumberOfMatches(std::optional<qsizetype> number) = 0;
    virtual void setSearchLimitReached(bool reached) = 0;

    /// The pattern to replace matches with.
    virtual QVariantList replacePattern() const = 0;

    /// How finders make their interface. The library's find bar enters itself here.
    using Maker = std::function<std::unique_ptr<ZEVTextFinderUserInterface>()>;
    static Maker &maker();
};
