// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

#include <QVariantList>

#include <functional>
#include <optional>
#include <variant>
#include <vector>

class ZEVRegularExpressionMatcher;
struct ZEVOrvCaptureGroup;
struct ZEVOrvCaptureMatch;

/// What matches are replaced with, made of a replace pattern:
///
/// - Text stands for itself under every matching type, "$" and "\" included. Kept so under "Regular
///   Expression", too: a captured text is a token, whose number nobody has to count.
/// - A tab or line break gives its character. A wildcard with a template of its own gives what that says: in
///   it "$n" is the n-th group, with as many digits as still name a group, and "\" makes the next character
///   literal.
/// - Any other item gives what was captured by its equals in the search pattern, the n-th one's text to the
///   n-th one here; further ones take that of the last.
/// - A placeholder that the search pattern lacks gives the host's value, through the item's value
///   transformer; a wildcard gives no text.
class ZEV_EXPORT ZEVReplacementTemplate {
public:
    /// The host's value for a placeholder at the match in question; nil gives no text. Its item names the
    /// transformer.
    using PlaceholderValue = std::function<std::optional<ZEVOrvCaptureMatch>(const ZEVPatternItem &)>;

    /// \a captureGroups are those of the query that was searched for.
    ZEVReplacementTemplate(const QVariantList &replacePattern,
                           const QList<ZEVOrvCaptureGroup> &captureGroups);

    /// For the last match that \a matcher found in \a text.
    QString replacement(const ZEVRegularExpressionMatcher &matcher, QStringView text,
                        const PlaceholderValue &placeholderValue = {}) const;

private:
    /// The digits behind a "$".
    struct Reference {
        QString digits;
    };
    using Part = std::variant<QString, int, Reference, ZEVPatternItem>; ///< a number is that of a group

    void appendText(QStringView text);
    void appendTemplate(QStringView regexTemplate);

    std::vector<Part> m_parts;
};
