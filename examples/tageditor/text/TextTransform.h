// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Texts/ZEVCaseRules.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <functional>

/// One way to re-write a text, as the Text menu offers it.
struct TextTransform {
    QString name; ///< with the menu's mnemonic
    std::function<QString(QStringView, const ZEVCaseRules &)> apply;
    bool goesByRules = false; ///< whether the caller's rules make a difference

    /// The name without a mnemonic.
    QString plainName() const;

    /// Made in the language that is set at the first call.
    static const QList<TextTransform> &all();

    Q_DECLARE_TR_FUNCTIONS(TextTransform)
};
