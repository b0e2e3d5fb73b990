// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVControlSize.h>

#include <QFont>
#include <QRectF>
#include <QVariant>

class QPainter;
class QWidget;
class ZEVTextAttachment;

/// Draws an attachment in its text: this plain one its title, as it stands. Sizes are in points, y grows
/// downwards.
class ZEV_EXPORT ZEVTextAttachmentCell {
public:
    ZEVTextAttachmentCell();
    virtual ~ZEVTextAttachmentCell();
    Q_DISABLE_COPY_MOVE(ZEVTextAttachmentCell)

    /// The attachment that owns the cell; null while none does.
    ZEVTextAttachment *attachment() const { return m_attachment; }
    void setAttachment(ZEVTextAttachment *attachment) { m_attachment = attachment; }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    const QVariant &representedObject() const { return m_representedObject; }
    void setRepresentedObject(const QVariant &object) { m_representedObject = object; }

    const QFont &font() const { return m_font; }
    void setFont(const QFont &font) { m_font = font; }

    ZEVControlSize controlSize() const { return m_controlSize; }
    void setControlSize(ZEVControlSize size) { m_controlSize = size; }

    /// Drawn as pressed.
    bool isHighlighted() const { return m_highlighted; }
    void setHighlighted(bool highlighted) { m_highlighted = highlighted; }

    /// The room that the cell takes in its line.
    virtual QSizeF cellSize() const;

    /// Where the cell's lower left corner lies, from the baseline; here y grows upwards, so -3 is 3 below it.
    virtual QPointF cellBaselineOffset() const { return {}; }

    virtual QRectF titleRectForBounds(const QRectF &bounds) const { return bounds; }

    /// \a view is where the text stands, for its palette and whether its window is active; null is none.
    /// \a characterIndex is the attachment's place in the text.
    virtual void drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view,
                               qsizetype characterIndex);

protected:
    /// The title in the middle, shortened at its end where it finds no room.
    void drawTitle(QPainter *painter, const QRectF &frame, const QColor &color) const;

private:
    ZEVTextAttachment *m_attachment = nullptr;
    QString m_title;
    QVariant m_representedObject;
    QFont m_font;
    ZEVControlSize m_controlSize = ZEVControlSize::Regular;
    bool m_highlighted = false;
};
