// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QAction;

/// Finds the items of a menu by their titles, over and over as the user types. A title is folded once, and
/// again when its item has changed.
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
    void read(const QList<QAction *> &items);
    void watch();
    void joinTitles();
    QStringView title(std::size_t index) const;
    std::vector<std::size_t> indexesWithWords(const QStringList &words) const;

    QList<QAction *> m_items; ///< a copy, so that another list is told from this one by where it lies
    std::unique_ptr<QObject> m_watcher;
    std::vector<QString> m_folded; ///< by the place of the item; empty for a separator
    std::vector<std::size_t> m_changed; ///< the places whose titles are to be read
    std::vector<std::size_t> m_others; ///< the places of separators and submenus
    QString m_text; ///< all the folded titles, each with a line end behind it
    std::vector<qsizetype> m_begins; ///< where each begins, and where the last one ends
};
