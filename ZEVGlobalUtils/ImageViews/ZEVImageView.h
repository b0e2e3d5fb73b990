// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QImage>
#include <QWidget>

/// Shows a picture in the middle of the widget, at its own size in points where that fits.
class ZEV_EXPORT ZEVImageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)

public:
    enum ImageScaling : int {
        ScaleProportionallyDown = 0,
        ScaleAxesIndependently = 1,
        ScaleNone = 2,
        ScaleProportionallyUpOrDown = 3,
    };

    explicit ZEVImageView(QWidget *parent = nullptr);

    /// Null for none.
    const QImage &image() const { return m_image; }
    void setImage(const QImage &image);

    ImageScaling imageScaling() const { return m_imageScaling; }
    void setImageScaling(ImageScaling scaling);

    /// Where the picture is drawn, in points; empty without one.
    QRectF drawingRectForBounds(const QRectF &bounds) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void imageChanged(const QImage &image);

protected:
    void paintEvent(QPaintEvent *event) override;
    void drawImage(QPainter &painter);

private:
    QSizeF fittedSize(QSizeF room) const;

    QImage m_image;
    ImageScaling m_imageScaling = ScaleProportionallyDown;
};
