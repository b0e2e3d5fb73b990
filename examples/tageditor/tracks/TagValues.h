// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// A tag may hold several values, such as two artists. A track's text has them one behind the other, with a
/// character between them that no text of a line has.
namespace TagValues {

inline constexpr QChar Separator = QChar::ParagraphSeparator;

/// What tables show for the separator, and what stands for it where a cell is edited.
inline constexpr QChar ShownSeparator = u'↵';

inline QStringList of(const QString &text) { return text.split(Separator); }
inline QString text(const QStringList &values) { return values.join(Separator); }

/// As one text, for names and other texts in which a tag is but a part.
inline QString joined(QString text) { return text.replace(Separator, QStringLiteral(", ")); }

} // namespace TagValues
