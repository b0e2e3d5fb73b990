// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/text/CapturePreviewModel.h>

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class ZEVPatternTokens;
class ZEVTokenField;

/// Asks for a pattern that takes texts of each track apart into its tags, and shows what comes of it meanwhile.
/// It changes nothing itself. Patterns can be saved in the field's menu.
class FillTagsDialog : public QDialog {
    Q_OBJECT

public:
    explicit FillTagsDialog(const QList<Track> &tracks, QWidget *parent = nullptr);

    QList<TextChange> changes() const { return m_model.changes(); }

    void accept() override;

private:
    void fillSources();
    void layOut();
    void useTokensOfSource();
    void updatePreview();
    TrackField source() const;

    CapturePreviewModel m_model;
    ZEVPatternTokens *m_tokens;
    QComboBox *m_source;
    ZEVTokenField *m_pattern;
    QLabel *m_count;
    QPushButton *m_fill;
};
