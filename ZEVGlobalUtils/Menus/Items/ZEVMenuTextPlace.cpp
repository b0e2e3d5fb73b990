// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <QMenu>
#include <QPaintEngine>
#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;
using ZEVMenuTitleDrawing::TextPlace;

namespace {

/// Draws nothing and notes where text would stand: no style says where it puts an item's text.
class TextRecorder : public QPaintEngine {
public:
    TextRecorder()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override { }
    void drawTiledPixmap(const QRectF &, const QPixmap &, const QPointF &) override { }
    void drawPath(const QPainterPath &) override { }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
    Type type() const override { return User; }

    /// The last one counts: styles that etch disabled text draw its shadow first.
    void drawTextItem(const QPointF &baseline, const QTextItem &item) override
    {
        place = {baseline, item.font(), painter()->pen()};
        right = baseline.x() + item.width();
    }

    std::optional<TextPlace> place;
    qreal right = 0;
};

/// As large and as fine as the menu, so that the style measures alike.
class RecordingDevice : public QPaintDevice {
public:
    explicit RecordingDevice(const QMenu &menu)
        : m_menu(menu)
    {
    }

    QPaintEngine *paintEngine() const override { return &recorder; }

    mutable TextRecorder recorder;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_menu.width();
        case PdmHeight:
            return m_menu.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_menu.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_menu.logicalDpiY();
        case PdmDevicePixelRatio:
            return qCeil(m_menu.devicePixelRatioF());
        case PdmDevicePixelRatioScaled:
            return qRound(m_menu.devicePixelRatioF() * devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QMenu &m_menu;
};

} // namespace

std::optional<TextPlace> ZEVMenuTitleDrawing::textPlace(const QMenu &menu, QStyleOptionMenuItem option)
{
    option.text = u"x"_s;
    RecordingDevice device(menu);
    QPainter painter(&device);
    painter.setLayoutDirection(option.direction);
    menu.style()->drawControl(QStyle::CE_MenuItem, &option, &painter, &menu);
    painter.end();
    auto place = device.recorder.place;
    if (place && option.direction == Qt::RightToLeft)
        place->baseline.setX(device.recorder.right);
    return place;
}
