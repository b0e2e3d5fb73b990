// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>

#include <optional>

/// The tokens that the window's find interfaces offer.
namespace TagTokens {

/// Kinds of text to look for.
ZEVPatternTokens::Groups findTokens();

/// What may be put in a match's place: a tab, what was found by a token, the track's own tags.
ZEVPatternTokens::Groups replaceTokens();

/// For the fields of a track.
QList<ZEVPatternItem> fieldTokens();

/// The same to look for, but for the file's name: a number where a field has one, else as few characters as fit,
/// of which \a excluded is none.
QList<ZEVPatternItem> captureTokens(const QString &excluded);

/// Stands between two values of a tag.
ZEVPatternItem nextValue();

/// What a field shows for \a text: its values, with a token between each two.
QVariantList pattern(const QString &text);

/// A tag as a part of another text.
QString textOf(TrackField field, const Track &track);

/// The texts of \a pattern, and for its tokens the texts of the fields.
QString filledIn(const QVariantList &pattern, const Track &track);

/// Nil for an item that stands for no field.
std::optional<TrackField> fieldOf(const ZEVPatternItem &item);

} // namespace TagTokens
