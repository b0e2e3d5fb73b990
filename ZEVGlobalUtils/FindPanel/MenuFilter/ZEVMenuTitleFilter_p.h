// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <vector>

class QAction;

/// Finds the items of a menu by their titles, over and over as the user types. A title is folded once, and
/// again when it is another one.
class ZEVMenuTitleFilter {
public:
    /// Whether the words of \a string lie in one line themselves.
    static bool isOneLine(const QString &string);

    /// The titles that have the words between the spaces of \a string, in their order and within one line,
    /// whatever the case. \a string is one line.
    QList<QAction *> itemsWithWords(const QList<QAction *> &items, const QString &string);

    using Test = std::function<bool(const QString &title)>;
    static QList<QAction *> itemsPassing(const QList<QAction *> &items, const Test &test);

private:
    struct Title {
        QString title;
        QString folded;
        bool isOneLine = true;
    };
    const Title &folded(qsizetype index, const QAction *item);

    std::vector<Title> m_titles; ///< by the place of the item in the list
};
