// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/MessageLabel.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>

#include <QPainter>
#include <QStyle>

MessageLabel::MessageLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void MessageLabel::showMessage(const QString &message, bool isError)
{
    m_isError = isError;
    setText(message);
    setToolTip(message.isEmpty() ? QString() : Qt::convertFromPlainText(message, Qt::WhiteSpaceNormal));
    update();
}

void MessageLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_isError ? ZEVMatchColors::errorText(palette()) : palette().color(foregroundRole()));
    const QString line = QString(text()).replace(u'\n', u' ');
    const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(contentsRect(), int(side) | Qt::TextSingleLine, shown);
}
