// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/find/FindInterfaces.h>
#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>

class FindPanelDialog;
class QTableView;
class TextEditing;
class TrackTableModel;

/// Find and replace in the table of tracks, by the bar above it or by a panel of its own.
class TrackFind : public ZEVFindPlace {
    Q_OBJECT

public:
    TrackFind(TrackTableModel *model, QTableView *table, TextEditing *editing);
    ~TrackFind() override;

    /// A match and where it stands.
    struct Match {
        int row = 0;
        TrackField field = TrackField::FileName;
        ZEVRange range; ///< in the field's text
    };

    /// Of the last query in the texts as they are.
    QList<Match> matches();

    void showPanel();

    /// Lets the user choose among the replacements before they are made.
    void reviewReplacements();

private:
    void searchColumnsOfScope();
    bool write(const QList<ZEVItemModelFinderClient::CellChange> &changes, const QString &name);
    std::optional<ZEVOrvCaptureMatch> valueOf(const ZEVPatternItem &item, const ZEVRange &match) const;

    TrackTableModel *m_model;
    TextEditing *m_editing;
    ZEVItemModelFinderClient *m_client;
    FindPanelDialog *m_panel = nullptr; ///< made when it is first shown
};
