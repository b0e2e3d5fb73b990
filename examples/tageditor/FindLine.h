// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class MessageLabel;
class QMenu;
class TrackSearch;
class ZEVPatternTokens;
class ZEVTokenField;

/// Where the user says what to find: a line for the pattern, how it matches, and steps through the matches.
class FindLine : public QWidget {
    Q_OBJECT

public:
    explicit FindLine(TrackSearch *search, QWidget *parent = nullptr);

    void setPatternText(const QString &text);
    void setMatchingType(qint64 matchingType);
    void setCaseSensitive(bool sensitive);

    /// Puts the cursor into the line and selects what stands there.
    void beginEditing();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpPattern();
    QWidget *makeTokenButton();
    QWidget *makeStepButton(Qt::ArrowType arrow, const QString &name, int direction);
    void fillMatchingTypes();
    void layOut();
    void watchSearch();

    void submitQuery();
    void showGrowingCount();
    void showResult();
    QString resultText() const;
    QString countText() const;

    TrackSearch *m_search;
    ZEVPatternTokens *m_tokens;
    ZEVTokenField *m_pattern;
    QComboBox *m_matchingType;
    QCheckBox *m_caseSensitive;
    MessageLabel *m_message;
    QElapsedTimer m_sinceShown;
};
