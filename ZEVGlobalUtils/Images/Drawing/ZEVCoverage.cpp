// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Drawing/ZEVCoverage_p.h>

#include <QColor>

#include <cmath>

namespace {

int product(int one, int other) { return (one * other + 127) / 255; }

/// Half of a Gaussian, from its centre outwards; the whole adds up to 1.
std::vector<float> kernel(qreal sigma)
{
    std::vector<float> half(size_t(std::ceil(3 * sigma)) + 1);
    float sum = 0;
    for (size_t distance = 0; distance < half.size(); ++distance) {
        half[distance] = float(std::exp(-qreal(distance * distance) / (2 * sigma * sigma)));
        sum += distance == 0 ? half[distance] : 2 * half[distance];
    }
    for (float &weight : half)
        weight /= sum;
    return half;
}

/// Blurs \a count values that lie \a step apart; there is nothing beyond them.
void blurLine(const float *from, float *to, qsizetype count, qsizetype step, const std::vector<float> &half)
{
    const qsizetype reach = qsizetype(half.size()) - 1;
    for (qsizetype place = 0; place < count; ++place) {
        float sum = half[0] * from[place * step];
        for (qsizetype distance = std::min(reach, place); distance > 0; --distance)
            sum += half[size_t(distance)] * from[(place - distance) * step];
        for (qsizetype distance = std::min(reach, count - 1 - place); distance > 0; --distance)
            sum += half[size_t(distance)] * from[(place + distance) * step];
        to[place * step] = sum;
    }
}

/// A colour in the form that pixels are mixed in, without its alpha.
struct Paint {
    explicit Paint(const QColor &color)
        : red(255 * color.redF())
        , green(255 * color.greenF())
        , blue(255 * color.blueF())
    {
    }

    QRgb over(QRgb below, float alpha) const
    {
        const auto mixed = [alpha](float above, int under) {
            return int(std::lrint(above * alpha + float(under) * (1 - alpha)));
        };
        return qRgba(mixed(red, qRed(below)), mixed(green, qGreen(below)), mixed(blue, qBlue(below)),
                     mixed(255, qAlpha(below)));
    }

    float red, green, blue;
};

} // namespace

ZEVCoverage::ZEVCoverage(const QRect &rect, quint8 value)
    : m_rect(rect)
    , m_values(size_t(rect.width()) * size_t(rect.height()), value)
{
}

ZEVCoverage ZEVCoverage::ofMask(const QImage &mask, const QRect &rect)
{
    ZEVCoverage shape(rect);
    auto value = shape.m_values.begin();
    for (int y = 0; y < rect.height(); ++y) {
        const uchar *const samples =
            mask.constScanLine(int(((2LL * y + 1) * mask.height()) / (2LL * rect.height())));
        for (int x = 0; x < rect.width(); ++x)
            *value++ = quint8(255 - samples[((2LL * x + 1) * mask.width()) / (2LL * rect.width())]);
    }
    return shape;
}

ZEVCoverage ZEVCoverage::inverted() const
{
    ZEVCoverage outside = *this;
    for (quint8 &value : outside.m_values)
        value = quint8(255 - value);
    return outside;
}

ZEVCoverage ZEVCoverage::movedTo(QPoint topLeft) const
{
    ZEVCoverage moved = *this;
    moved.m_rect.moveTopLeft(topLeft);
    return moved;
}

ZEVCoverage ZEVCoverage::clippedTo(const ZEVCoverage &clip) const
{
    ZEVCoverage clipped(m_rect & clip.m_rect);
    const QRect &rect = clipped.m_rect;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            clipped.m_values[clipped.index(x, y)] = quint8(product(at(x, y), clip.at(x, y)));
    }
    return clipped;
}

ZEVCoverage ZEVCoverage::unitedWith(const ZEVCoverage &other) const
{
    ZEVCoverage united = *this;
    for (int y = m_rect.top(); y <= m_rect.bottom(); ++y) {
        for (int x = m_rect.left(); x <= m_rect.right(); ++x)
            united.m_values[index(x, y)] = quint8(255 - product(255 - at(x, y), 255 - other.at(x, y)));
    }
    return united;
}

ZEVCoverage ZEVCoverage::faded(qreal alpha) const
{
    ZEVCoverage faint = *this;
    for (quint8 &value : faint.m_values)
        value = quint8(std::lround(value * alpha));
    return faint;
}

ZEVCoverage ZEVCoverage::blurred(qreal sigma, const QRect &bounds) const
{
    const qsizetype width = bounds.width(), height = bounds.height();
    std::vector<float> values, between(size_t(width) * size_t(height));
    values.reserve(between.size());
    for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
        for (int x = bounds.left(); x <= bounds.right(); ++x)
            values.push_back(at(x, y));
    }
    const std::vector<float> half = kernel(std::min<qreal>(sigma, 1000)); // wider than any screen is as good
    for (qsizetype y = 0; y < height; ++y)
        blurLine(values.data() + y * width, between.data() + y * width, width, 1, half);
    for (qsizetype x = 0; x < width; ++x)
        blurLine(between.data() + x, values.data() + x, height, width, half);
    ZEVCoverage soft(bounds);
    std::ranges::transform(values, soft.m_values.begin(),
                           [](float value) { return quint8(std::lround(value)); });
    return soft;
}

void ZEVCoverage::paint(QImage &canvas, QPoint origin, const std::function<QColor(int y)> &color,
                        qreal alpha) const
{
    const QRect visible = m_rect & QRect(origin, canvas.size());
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        const QColor rowColor = color(y);
        const Paint paint(rowColor);
        const float opacity = float(alpha) * rowColor.alphaF() / 255;
        const quint8 *value = &m_values[index(visible.x(), y)];
        auto *pixel = reinterpret_cast<QRgb *>(canvas.scanLine(y - origin.y())) + (visible.x() - origin.x());
        for (int x = visible.left(); x <= visible.right(); ++x, ++pixel, ++value)
            *pixel = paint.over(*pixel, opacity * float(*value));
    }
}
