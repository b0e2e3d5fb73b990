// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTextDocumentLayout>
#include <QMap>

#include <optional>

class QTextLine;

/// Lays out a token field's text as the one line that it is, and draws it. Qt's own layout lays the colour of a
/// selection beneath and over inline objects, where the round ends of a token would show it; here tokens are
/// drawn after the text, on ground of their own.
class ZEVOneLineLayout : public QAbstractTextDocumentLayout {
    Q_OBJECT

public:
    explicit ZEVOneLineLayout(QTextDocument *document);

    /// In points. A text from right to left begins at the right end of it.
    void setAvailableWidth(qreal width);

    /// Where the character at \a position of the document stands: its neighbours may stand elsewhere. Empty
    /// outside the text.
    QRectF characterRect(qsizetype position);

    /// The position of the inline object at \a x; nil beside them.
    std::optional<qsizetype> objectAt(qreal x);

    /// The position in the document for one in its layout, which also holds what an input method is composing:
    /// -1 stands for that.
    qsizetype documentPosition(qsizetype layoutPosition) const;

    void draw(QPainter *painter, const PaintContext &context) override;
    int hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override { return m_size; }
    QRectF frameBoundingRect(QTextFrame *) const override { return {{0, 0}, m_size}; }
    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    void documentChanged(int from, int oldLength, int length) override;
    void drawInlineObject(QPainter *painter, const QRectF &rect, QTextInlineObject object, int position,
                          const QTextFormat &format) override;

private:
    struct Object {
        QRectF rect;
        QTextFormat format;
    };

    QPointF origin() const;
    void layOut(const QTextBlock &block) const;
    void measureObjects();
    QList<QTextLayout::FormatRange> selectedTexts(const PaintContext &context) const;
    void drawObjects(QPainter *painter, const QRectF &area);
    void drawCursor(QPainter *painter, int position) const;

    qreal m_availableWidth = 0;
    QSizeF m_size;
    QMap<int, Object> m_objects; ///< by their positions in the layout, once they are measured
    bool m_isMeasured = false;
};
