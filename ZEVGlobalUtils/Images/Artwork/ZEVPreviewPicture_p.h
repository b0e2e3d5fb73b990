// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QWidget>

/// Shows a picture in the middle: scaled down to fit, never enlarged.
class ZEVPreviewPicture : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void setImage(const QImage &image);

    QSize sizeHint() const override { return {640, 480}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSizeF fittedSize() const;

    QImage m_image;
    QImage m_scaled; ///< kept for the next paint event: scaling a large picture takes its time
};
