// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderEditableClient.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVCellMatches.h>

#include <QItemSelection>
#include <QPersistentModelIndex>
#include <QPointer>

#include <functional>
#include <memory>

class ZEVItemModelText;
class QAbstractItemView;
class ZEVTextFinder;

/// Lets a finder search the cells of any item model, each a piece, row by row and with the children behind
/// their parent; rows that the model has not fetched yet are not searched. It makes itself the finder's
/// client and takes itself away when it goes.
class ZEV_EXPORT ZEVItemModelFinderClient : public QObject, public ZEVTextFinderEditableClient {
    Q_OBJECT

public:
    struct CellChange {
        QPersistentModelIndex index;
        QString before;
        QString after;
    };

    /// Changes the cells as one step to undo, called \a undoText. False when nothing has changed.
    using Writer = std::function<bool(const QList<CellChange> &changes, const QString &undoText)>;

    /// The matches are selected in \a view, which shows \a model itself and may be null. The client belongs
    /// to the view or, without one, to the model.
    ZEVItemModelFinderClient(QAbstractItemModel *model, QAbstractItemView *view, ZEVTextFinder *finder);
    ~ZEVItemModelFinderClient() override;

    /// Null once it has gone.
    QAbstractItemModel *model() const { return m_model; }

    /// Which columns are searched, and in which order; empty, as at first, for all in their own order.
    void setColumns(const QList<int> &columns);

    /// Whose text is searched; Qt::DisplayRole at first.
    void setTextRole(int role);

    /// By default the cells are set one by one by the model's setData(), which nobody can undo.
    void setWriter(const Writer &writer) { m_writer = writer; }

    qsizetype stringLength() const override;
    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override;
    quint64 changeStamp() const override { return m_changeStamp; }

    /// The selected match or, once the user has selected anything else, the selected cells, which is the
    /// beginning of the current one when there are none.
    QList<ZEVRange> selectedRanges() const override;

    /// Selects the cells of the ranges.
    void setSelectedRanges(const QList<ZEVRange> &ranges) override;
    void scrollSelectionToVisible() override;

    /// A cell that shows another text than the one that is edited is not replaced.
    bool isEditable(const ZEVRange &range) const override;
    bool replace(const QList<ZEVTextReplacement> &replacements, const QString &undoText) override;

    /// The cell in which \a range lies, and its range there. An index that is not valid where there is none.
    QModelIndex cellOfRange(const ZEVRange &range, ZEVRange *rangeInCell = nullptr) const;

    /// None once the text has changed, until it has been searched again, nor while the finder has none marked.
    ZEVCellMatches matchesInCell(const QModelIndex &index) const;

Q_SIGNALS:
    void textChanged();

private:
    void watchModel();
    void noteChange();
    void noteRows(const QModelIndex &parent, int first, int last);
    void noteDataChange(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles);
    void noteSearch();
    QItemSelectionModel *selectionModel() const;
    bool viewKeepsSelection() const;
    bool selectionIsOurs() const;
    void followSelection();
    void selectCells(QItemSelectionModel &model);
    QList<CellChange> cellChanges(const QList<ZEVTextReplacement> &replacements) const;
    bool write(const QList<CellChange> &changes, const QString &undoText);
    void repaint();

    QPointer<QAbstractItemModel> m_model;
    QPointer<QAbstractItemView> m_view;
    QPointer<ZEVTextFinder> m_finder;
    std::unique_ptr<ZEVItemModelText> m_text;
    Writer m_writer;
    quint64 m_changeStamp = 1;
    quint64 m_searchedStamp = 0; ///< of the text that the matches hold for

    QList<ZEVRange> m_selectedRanges; ///< as they were set last, with what that made of the view's selection
    QItemSelection m_selection;
    QPersistentModelIndex m_currentCell;
    QString m_selectedText; ///< of that cell
    qsizetype m_locationInCell = 0; ///< of the first range
    quint64 m_selectionStamp = 0;
};
