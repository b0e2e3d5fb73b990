// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextObjectInterface>

class OEXTokenField;

/// Gives a field's tokens their room in the line, and draws them. A token that undo has brought back may be of
/// an earlier font and size, so each takes the field's whenever it is asked.
class ZEVTokenTextObject : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit ZEVTokenTextObject(OEXTokenField *field);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    OEXTokenField *m_field;
};
