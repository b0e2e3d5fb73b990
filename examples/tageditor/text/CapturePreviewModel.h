// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/text/PreviewModel.h>
#include <tageditor/text/TagCapture.h>
#include <tageditor/tracks/TrackTableModel.h>

/// What a pattern makes of the names of files, or of one of their tags: a row for each track.
class CapturePreviewModel : public PreviewModel {
    Q_OBJECT

public:
    enum Column { Before, After };

    explicit CapturePreviewModel(QList<Track> tracks, QObject *parent = nullptr);

    /// The name stands without its extension, and with as many folders before it as \a pattern has slashes.
    void set(TrackField source, const QVariantList &pattern);

    QList<TextChange> changes() const;
    int numberOfMatches() const { return m_numberOfMatches; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Row {
        QString text;
        std::optional<TagCapture::Captured> captured;
    };

    QList<Track> m_tracks;
    QList<Row> m_rows; ///< one of each track
    int m_numberOfMatches = 0;
};
