// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>

#include <QVariantList>

#include <memory>

/// Takes a text apart by a pattern of text and tokens of fields, such as "%track% - %title%".
class TagCapture {
public:
    /// \a pattern is a list of texts and items; see TagTokens::captureTokens().
    explicit TagCapture(const QVariantList &pattern);

    /// The texts of the fields in the pattern's order, without spaces around them; nil where the whole of
    /// \a text is no match.
    using Captured = QList<std::pair<TrackField, QString>>;
    std::optional<Captured> captured(const QString &text);

private:
    struct Group {
        TrackField field = TrackField::Title;
        int number = 0; ///< of the expression's group
    };

    std::vector<Group> m_groups;
    std::unique_ptr<ZEVRegularExpressionMatcher> m_matcher; ///< null where the pattern is none
};
