// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantList>

#include <functional>
#include <optional>

/// Between a pattern and its flat text, in which a token stands as its editing string between percent signs
/// and a literal percent sign is doubled.
namespace ZEVPatternConversion {

/// Nil for an object that has none.
using EditingString = std::function<std::optional<QString>(const QVariant &object)>;
/// Invalid for an editing string that stands for nothing.
using RepresentedObject = std::function<QVariant(const QString &editingString)>;

/// Tokens without an editing string are left out.
QString patternString(const QVariantList &pattern, const EditingString &editingString);

enum class Fidelity {
    /// Unknown tokens are dropped. Kept: so is the text before a last "%%" with no token behind it.
    AsDescribed,
    /// Whatever is no token is text, a single percent sign too.
    Lossless,
};
QVariantList pattern(const QString &patternString, const RepresentedObject &representedObject,
                     Fidelity fidelity);

/// A value, and where the caret stands in it.
struct Edited {
    QVariantList objects;
    qsizetype caret;
};

/// \a pattern with \a token in place of the \a length characters at \a location. Text that is the editing
/// string of a token becomes that token on the way. Kept: unless lossless, each character of the text goes
/// through an 8-bit conversion, its low byte read as Latin-1.
Edited insertedToken(const QVariant &token, const QVariantList &pattern, qsizetype location, qsizetype length,
                     const RepresentedObject &representedObject, Fidelity fidelity);

} // namespace ZEVPatternConversion
