// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>

#include <ZEVGlobalUtils/Images/Drawing/ZEVSmoothDrawing_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGeometry.h>

#include <QColorSpace>

#include <cmath>

namespace {

/// Sizes count in single precision, as they are rounded in it.
struct FloatSize {
    explicit FloatSize(QSizeF size)
        : width(float(size.width()))
        , height(float(size.height()))
    {
    }

    FloatSize(float w, float h)
        : width(w)
        , height(h)
    {
    }

    bool isEmpty() const
    {
        return !(width > 0 && height > 0 && std::isfinite(width) && std::isfinite(height));
    }
    float aspect() const { return width / height; }

    float width;
    float height;
};

/// The size of the whole picture once it is scaled to fit or to fill.
FloatSize fittedSize(FloatSize picture, FloatSize rect, ZEVImageCrop::FitMethod method)
{
    const bool isNarrower = picture.aspect() <= rect.aspect();
    if ((method == ZEVImageCrop::Fit) == isNarrower)
        return {std::round(picture.aspect() * rect.height), rect.height};
    return {rect.width, std::round(rect.width / picture.aspect())};
}

/// Where the visible part begins in the fitted picture, counted from its left and its bottom.
QPointF visibleOrigin(FloatSize fitted, FloatSize rect, bool isTooTall, ZEVImageCrop::FitMethod method)
{
    const double across = double(fitted.width - rect.width), up = double(fitted.height - rect.height);
    switch (method) {
    case ZEVImageCrop::FillCentre:
        return {std::round(across * 0.5), std::round(up * 0.5)};
    case ZEVImageCrop::FillLeftTop:
        return isTooTall ? QPointF(std::round(across * 0.5), std::round(up)) : QPointF(0, 0);
    case ZEVImageCrop::FillRightBottom:
        return isTooTall ? QPointF(0, 0) : QPointF(std::round(across), std::round(up * 0.5));
    default:
        return {0, 0};
    }
}

/// The visible part of the picture in its own points, from its left and its top.
QRectF visiblePart(FloatSize picture, FloatSize rect, ZEVImageCrop::FitMethod method)
{
    const FloatSize fitted = fittedSize(picture, rect, method);
    const QPointF origin = visibleOrigin(fitted, rect, picture.aspect() <= rect.aspect(), method);
    const float scale = fitted.height / picture.height;
    const double height = double(rect.height / scale);
    const double bottom = origin.y() / double(scale);
    return {origin.x() / double(scale), double(picture.height) - bottom - height, double(rect.width / scale),
            height};
}

QRectF centredRect(const QRectF &rect, FloatSize fitted)
{
    const FloatSize outer(rect.size());
    return {rect.x() + double((outer.width - fitted.width) / 2),
            rect.y() + double((outer.height - fitted.height) / 2), double(fitted.width),
            double(fitted.height)};
}

/// A picture that is a line is seen as one, however thin it would be.
QRectF visible(QRectF rect)
{
    const QPointF center = rect.center();
    rect.setSize(rect.size().expandedTo({1, 1}));
    rect.moveCenter(center);
    return rect;
}

} // namespace

void ZEVImageCrop::drawInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                              QPainter::CompositionMode operation, float fraction, FitMethod method)
{
    const FloatSize picture(image.deviceIndependentSize()), outer(rect.size());
    if (picture.isEmpty() || outer.isEmpty())
        return;
    const bool fits = method == Fit;
    const QRectF target = fits ? visible(centredRect(rect, fittedSize(picture, outer, Fit))) : rect;
    const QRectF points =
        fits ? QRectF(QPointF(), image.deviceIndependentSize()) : visiblePart(picture, outer, method);
    const qreal ratio = image.devicePixelRatio();
    painter.save();
    painter.setCompositionMode(operation);
    painter.setOpacity(painter.opacity() * double(fraction));
    ZEVSmoothDrawing::drawImage(painter, target, image,
                                QRectF(points.topLeft() * ratio, points.size() * ratio));
    painter.restore();
}

QImage ZEVImageCrop::imageToFitSize(const QImage &image, QSizeF size, FitMethod method,
                                    qreal devicePixelRatio)
{
    const QSizeF pixels = size * devicePixelRatio;
    constexpr qreal Longest = 32767; // of what a painter draws on
    if (!(pixels.width() > 0 && pixels.height() > 0 && pixels.width() <= Longest
          && pixels.height() <= Longest))
        return {};
    QImage fitted(int(std::ceil(pixels.width())), int(std::ceil(pixels.height())),
                  QImage::Format_ARGB32_Premultiplied);
    if (fitted.isNull())
        return {};
    fitted.setDevicePixelRatio(devicePixelRatio);
    fitted.setColorSpace(image.colorSpace());
    fitted.fill(Qt::transparent);
    QPainter painter(&fitted);
    drawInRect(image, painter, ZEVRectFromSize(size), QPainter::CompositionMode_SourceOver, 1, method);
    return fitted;
}

QImage ZEVImageCrop::imageCroppedToFitSize(const QImage &image, QSizeF size, qreal devicePixelRatio)
{
    return imageToFitSize(image, size, FillCentre, devicePixelRatio);
}

QImage ZEVImageCrop::imageScaledToFitSize(const QImage &image, QSizeF size, qreal devicePixelRatio)
{
    return imageToFitSize(image, size, Fit, devicePixelRatio);
}
