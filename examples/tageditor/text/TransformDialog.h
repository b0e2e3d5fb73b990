// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/text/TransformPreviewModel.h>

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

/// Asks which transform to apply to texts, and by which rules, and shows what becomes of them meanwhile.
/// It changes nothing itself.
class TransformDialog : public QDialog {
    Q_OBJECT

public:
    /// \a cells holds each cell's present text; \a transform is an index of TextTransform::all().
    TransformDialog(QList<TextChange> cells, int transform, QWidget *parent = nullptr);

    /// Of an accepted dialog, all of them.
    QList<TextChange> changes() const { return m_model.changes(); }
    const TextTransform &transform() const;

    void accept() override;

private:
    void fillChoices(int transform);
    void layOut();
    void restoreRules();
    void rememberRules() const;

    ZEVCaseRules rules() const;
    void updatePreview();
    void showCount();

    TransformPreviewModel m_model;
    QComboBox *m_transform;
    QComboBox *m_language;
    QLineEdit *m_untouched;
    QLabel *m_count;
};
