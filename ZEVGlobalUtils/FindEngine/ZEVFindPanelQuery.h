// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariantList>

#include <memory>
#include <optional>

class ZEVAttributedString;
class ZEVError;
class ZEVFindPanelScope;
class ZEVKeyedArchiver;
class ZEVKeyedUnarchiver;
class ZEVRegularExpression;
struct ZEVOrvCaptureGroup;

/// The defaults key of the archive of the last query.
inline constexpr QStringView kZEVFindPanelLastQueryAutosaveName = u"kZEVFindPanelLastQueryAutosaveName";

/// The defaults key of the archive of the list of saved queries. Kept: its text says "Recents".
inline constexpr QStringView kZEVFindPanelSavedQueriesAutosaveName = u"kZEVFindPanelRecentsAutosaveName";

/// One search as the user set it up: a pattern, a matching type, a case option and an optional scope.
class ZEV_EXPORT ZEVFindPanelQuery {
public:
    /// The numbers stand in archives and menus.
    enum MatchingType : qint64 {
        Contains = 0,
        BeginsWith = 1,
        MatchesWord = 2,
        EndsWith = 3,
        RegularExpression = 4,
        MatchesContents = 5,
    };

    ZEVFindPanelQuery() = default;

    bool caseInsensitiveSearch() const { return m_caseInsensitiveSearch; }
    void setCaseInsensitiveSearch(bool insensitive) { m_caseInsensitiveSearch = insensitive; }

    /// What to search; null for the host's default.
    const std::shared_ptr<ZEVFindPanelScope> &scope() const { return m_scope; }
    void setScope(const std::shared_ptr<ZEVFindPanelScope> &scope) { m_scope = scope; }

    /// A list of QString and ZEVPatternItem, or nil.
    const std::optional<QVariantList> &searchPattern() const { return m_searchPattern; }
    void setSearchPattern(const std::optional<QVariantList> &pattern) { m_searchPattern = pattern; }
    bool hasPattern() const { return m_searchPattern && !m_searchPattern->isEmpty(); }

    qint64 matchingType() const { return m_matchingType; }
    void setMatchingType(qint64 matchingType) { m_matchingType = matchingType; }

    /// Nil for a type that is none.
    static std::optional<QString> titleForMatchingType(qint64 matchingType);

    /// The compiled expression; nil without a pattern, and for one that does not compile, whose error is
    /// presented to the user at every call. Main thread.
    std::optional<ZEVRegularExpression> searchExpression() const;

    /// The same without a word to the user: \a error, which may be null, is set for one that does not compile.
    std::optional<ZEVRegularExpression> searchExpression(ZEVError *error) const;

    /// Which group of the expression each item of the pattern captures with, in the pattern's order: the
    /// outer one of its fragment. Whatever groups the fragments and the user's own expression hold are
    /// counted. An item that captures nothing is left out: its fragment has no group, or a set or a quotation
    /// around it makes text of it. Empty when the expression does not compile.
    QList<ZEVOrvCaptureGroup> captureGroups() const;

    /// One line, such as: Library, Contains "abc", Case Sensitive.
    ZEVAttributedString attributedTitle() const;

    bool isEqualToQuery(const ZEVFindPanelQuery &other) const;
    size_t hash() const;

    /// A query of its own with a copy of the scope. Kept: so it is unequal to this one when there is a scope.
    /// (A plain C++ copy shares the scope and stays equal.)
    ZEVFindPanelQuery copy() const;

    /// Kept: the matching type is archived as a boolean made of its low byte, so every type but 0 comes back
    /// as 1; the scope is only written where the host's subclass of it is a ZEVKeyedCoding, whose registered
    /// maker answers a std::shared_ptr<ZEVFindPanelScope>.
    void encodeWithCoder(ZEVKeyedArchiver &archiver) const;
    explicit ZEVFindPanelQuery(ZEVKeyedUnarchiver &unarchiver);

    friend bool operator==(const ZEVFindPanelQuery &a, const ZEVFindPanelQuery &b)
    {
        return a.isEqualToQuery(b);
    }
    friend size_t qHash(const ZEVFindPanelQuery &query, size_t seed = 0) { return query.hash() ^ seed; }

private:
    QString expressionPattern() const;

    std::shared_ptr<ZEVFindPanelScope> m_scope;
    std::optional<QVariantList> m_searchPattern;
    qint64 m_matchingType = Contains;
    bool m_caseInsensitiveSearch = false;
};

Q_DECLARE_METATYPE(ZEVFindPanelQuery)
Q_DECLARE_METATYPE(std::shared_ptr<ZEVFindPanelScope>)
