// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QWidget>

class QLabel;
class QPropertyAnimation;
class ZEVDashDrawingView;
class ZEVViewEffect;

/// A dashed outline with a label in the middle that says what may be dropped there: half transparent at
/// rest, opaque while it is highlighted. In a dark appearance it has a shadow.
class ZEV_EXPORT ZEVDashView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool drawLabel READ drawLabel WRITE setDrawLabel)
    Q_PROPERTY(bool drawDashes READ drawDashes WRITE setDrawDashes)
    Q_PROPERTY(bool highlighted READ isHighlighted WRITE setHighlighted NOTIFY highlightedChanged)
    Q_PROPERTY(QString label READ label WRITE setLabel)
    Q_PROPERTY(qreal alpha READ alpha WRITE setAlpha)

public:
    explicit ZEVDashView(QWidget *parent = nullptr);

    bool drawLabel() const { return m_drawLabel; }
    void setDrawLabel(bool draw);
    bool drawDashes() const { return m_drawDashes; }
    void setDrawDashes(bool draw);

    bool isHighlighted() const { return m_highlighted; }
    void setHighlighted(bool highlighted) { setHighlighted(highlighted, true); }
    void setHighlighted(bool highlighted, bool animated);

    /// Of one line, or more where there is room for them.
    const QString &label() const { return m_label; }
    void setLabel(const QString &label);

    /// The opacity of all of it, 0.5 at rest, 1 highlighted, and in between on the way.
    qreal alpha() const;
    void setAlpha(qreal alpha);

    ZEVDashDrawingView *dashView() const { return m_dashView; }
    QLabel *labelField() const { return m_labelField; }

Q_SIGNALS:
    void highlightedChanged(bool highlighted);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void udpateShadow(); // kept: spelled so
    void setUpLabelField();
    void elideLabel();

    bool m_drawLabel = true;
    bool m_drawDashes = false;
    bool m_highlighted = false;
    QString m_label;
    ZEVDashDrawingView *m_dashView;
    QLabel *m_labelField;
    ZEVViewEffect *m_effect;
    QPropertyAnimation *m_alphaAnimation;
};
