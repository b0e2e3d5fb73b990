// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QColor>
#include <QLineEdit>
#include <QPointer>

class QLabel;
class QToolButton;
class ZEVFilterSearchFieldButtonCell;

/// The field in which a filter is typed, with a magnifier before the text and a button behind it that clears
/// it. Sizes are in points.
class ZEV_EXPORT ZEVFilterSearchFieldCell : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(bool roundedLook READ roundedLook WRITE setRoundedLook)
    Q_PROPERTY(QString observedStringValue READ observedStringValue WRITE setObservedStringValue NOTIFY
                   observedStringValueChanged)

public:
    explicit ZEVFilterSearchFieldCell(QWidget *parent = nullptr);

    /// Ends are half circles; otherwise corners have a radius of 8.
    bool roundedLook() const { return m_roundedLook; }
    void setRoundedLook(bool rounded);

    /// Whether something is filtered: the text has more than white space in it.
    bool isActive() const { return m_active; }
    void setActive(bool active);

    /// Shown by its owner when the filter leaves nothing; it gets its text here.
    QLabel *noResultsField() const;
    void setNoResultsField(QLabel *field);

    /// Taken from the named colours of the palette whenever that changes.
    QColor filterBackgroundColor() const { return m_filterBackgroundColor; }
    QColor filterBorderColor() const { return m_filterBorderColor; }
    QColor filterBorderColorSelected() const { return m_filterBorderColorSelected; }

    /// For whoever binds the field to a property of its own; nothing here reads it.
    const QString &observedStringValue() const { return m_observedStringValue; }
    void setObservedStringValue(const QString &value);

    static bool isCenteredLook() { return false; }
    QSizeF cellSizeForBounds(const QRectF &bounds) const;
    QRectF searchTextRectForBounds(const QRectF &bounds) const;
    QRectF searchButtonRectForBounds(const QRectF &bounds) const;
    QRectF cancelButtonRectForBounds(const QRectF &bounds) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void activeChanged(bool active);
    void observedStringValueChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setup();
    void addButtons();
    void takeColors();
    void layOutParts();
    bool looksIdle() const;
    void drawWithFrame(QPainter *painter, const QRectF &frame) const;

    QPointer<QLabel> m_noResultsField;
    ZEVFilterSearchFieldButtonCell *m_searchButton;
    QToolButton *m_cancelButton;
    QColor m_filterBackgroundColor;
    QColor m_filterBorderColor;
    QColor m_filterBorderColorSelected;
    QString m_observedStringValue;
    bool m_roundedLook = false;
    bool m_active = false;
};
