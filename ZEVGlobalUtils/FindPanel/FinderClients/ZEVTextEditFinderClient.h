// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderEditableClient.h>

#include <QPointer>
#include <QTextEdit>

class QPlainTextEdit;
class QTextDocument;
class ZEVTextFinder;

/// Lets a finder search the text of an editor, the QTextDocument that it has now, whose positions are those
/// of the ranges, and marks the matches that are in sight. It makes itself the finder's client, belongs to
/// the editor and goes with it, and takes itself away from the finder.
class ZEV_EXPORT ZEVTextEditFinderClient : public QObject, public ZEVTextFinderEditableClient {
    Q_OBJECT

public:
    /// What is searched as one. In a paragraph, "^" and "$" are the ends of a line as its reader sees it, and
    /// white space never takes in a line break; only in the whole text can a line break be found.
    enum class Piece { Paragraph, WholeText };

    ZEVTextEditFinderClient(QTextEdit *editor, ZEVTextFinder *finder, Piece piece = Piece::Paragraph);
    ZEVTextEditFinderClient(QPlainTextEdit *editor, ZEVTextFinder *finder, Piece piece = Piece::Paragraph);
    ~ZEVTextEditFinderClient() override;

    qsizetype stringLength() const override;
    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override;
    quint64 changeStamp() const override { return m_changeStamp; }

    /// The editor has one selection: of several ranges it takes the first.
    QList<ZEVRange> selectedRanges() const override;
    void setSelectedRanges(const QList<ZEVRange> &ranges) override;
    void scrollSelectionToVisible() override;

    bool isEditable(const ZEVRange &range) const override;

    /// A document's steps have no names, so \a undoText is not shown.
    bool replace(const QList<ZEVTextReplacement> &replacements, const QString &undoText) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void textChanged();

private:
    ZEVTextEditFinderClient(QAbstractScrollArea *editor, QTextDocument *document, ZEVTextFinder *finder,
                            Piece piece);
    void noteChange();
    void noteSearch();
    void markMatches();
    QList<QTextEdit::ExtraSelection> marksInSight(const QList<ZEVRange> &matches) const;
    ZEVRange rangeInSight() const;

    QAbstractScrollArea *m_editor; ///< the parent
    QPointer<QTextDocument> m_document;
    QPointer<ZEVTextFinder> m_finder;
    const Piece m_piece;
    quint64 m_changeStamp = 1;
    quint64 m_searchedStamp = 0;
};
