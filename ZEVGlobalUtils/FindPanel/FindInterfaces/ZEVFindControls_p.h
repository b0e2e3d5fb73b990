// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QPointer>

class ZEVTextFinderBorderlessPopUpButton;
class ZEVTokenField;

/// What a find interface's view holds, found once by the object names in its file. Any may be missing, and any
/// may go with the view.
struct ZEVFindControls {
    ZEVFindControls();
    explicit ZEVFindControls(const QWidget *view);

    QPointer<ZEVTokenField> findTokenField;
    QPointer<ZEVTokenField> replaceTokenField;
    QPointer<QComboBox> matchingTypeSelector;
    QPointer<QLabel> numberOfMatchesLabel;
    QPointer<QLabel> messageLabel;
    QPointer<QAbstractButton> findMenuButton;
    QPointer<QAbstractButton> replaceMenuButton;
    QPointer<QAbstractButton> findButton;
    QPointer<QAbstractButton> doneButton;
    QPointer<QAbstractButton> scopeButton;
    QPointer<QAbstractButton> caseSensitiveButton;
    QPointer<ZEVTextFinderBorderlessPopUpButton> interfaceModePopupButton;
    QPointer<QWidget> replaceContainerView;
    QList<QPointer<QAbstractButton>> actionButtons; ///< those with an action number as property "tag"
};

/// The action of a button or menu item; 0 for none and for null.
inline qint64 tagOf(const QObject *sender) { return sender ? sender->property("tag").toLongLong() : 0; }
