// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>

#include <QList>

/// One match and what is to stand in its place.
struct ZEVTextReplacement {
    ZEVRange range; ///< in the client's whole text
    QString before;
    QString after;

    friend bool operator==(const ZEVTextReplacement &, const ZEVTextReplacement &) = default;
};

/// A searchable client whose text can be selected and replaced. It says more of its pieces than it must for a
/// search alone: stringAtIndex() answers for any index within a piece, and the range of a piece covers one
/// unit more than its text, so that a match of no length at its end has another place than one at the
/// beginning of the next.
class ZEV_EXPORT ZEVTextFinderEditableClient : public ZEVTextFinderClient {
public:
    /// Another number after every change of the text: matches found before it lie anywhere.
    virtual quint64 changeStamp() const = 0;

    /// In text order. A range of length 0 is a cursor.
    virtual QList<ZEVRange> selectedRanges() const = 0;
    virtual void setSelectedRanges(const QList<ZEVRange> &ranges) = 0;
    virtual void scrollSelectionToVisible() = 0;

    virtual bool isEditable(const ZEVRange &) const { return true; }

    /// As one step to undo, called \a undoText. The replacements stand in text order, do not overlap, and
    /// their ranges are those of the text before the first of them. What was selected stays so, with what was
    /// put in. False when the text stays as it was.
    virtual bool replace(const QList<ZEVTextReplacement> &replacements, const QString &undoText) = 0;
};
