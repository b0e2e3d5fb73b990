// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindControls_p.h>

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

ZEVFindControls::ZEVFindControls() = default;

ZEVFindControls::ZEVFindControls(const QWidget *view)
{
    const auto find = [view](auto &control, const char *name) {
        using Control = std::remove_pointer_t<decltype(control.data())>;
        control = view->findChild<Control *>(QLatin1StringView(name));
    };
    find(findTokenField, "findTokenField");
    find(replaceTokenField, "replaceTokenField");
    find(matchingTypeSelector, "matchingTypeSelector");
    find(numberOfMatchesLabel, "numberOfMatchesLabel");
    find(messageLabel, "messageLabel");
    find(findMenuButton, "findMenuButton");
    find(replaceMenuButton, "replaceMenuButton");
    find(findButton, "findButton");
    find(doneButton, "doneButton");
    find(scopeButton, "scopeButton");
    find(caseSensitiveButton, "caseSensitiveButton");
    find(interfaceModePopupButton, "interfaceModePopupButton");
    find(replaceContainerView, "replaceContainerView");
    for (QAbstractButton *button : view->findChildren<QAbstractButton *>())
        if (tagOf(button) != 0)
            actionButtons.append(button);
}
