// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/ImagePages.h>

#include <ZEVGlobalUtils/Images/Drawing/ZEVDrawingTrait.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageDrawingTraits.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageInsets.h>

#include <QGridLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QPainterPath>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

using Painting = std::function<void(QPainter &)>;

/// A fixed size of something painted.
class Sample : public QWidget {
public:
    Sample(QSize size, Painting painting)
        : m_painting(std::move(painting))
    {
        setFixedSize(size);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_painting(painter);
    }

private:
    Painting m_painting;
};

/// Two quavers, black on nothing, large enough for any scale factor.
QImage notes()
{
    QImage image(128, 128, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addEllipse(16, 84, 36, 28);
    path.addEllipse(72, 74, 36, 28);
    path.addRect(42, 28, 10, 70);
    path.addRect(98, 18, 10, 70);
    path.addPolygon(QPolygonF({{42, 22}, {108, 10}, {108, 32}, {42, 44}, {42, 22}}));
    painter.fillPath(path, Qt::black);
    return image;
}

struct NamedTrait {
    QString name;
    ZEVDrawingTrait trait;
    bool respectFlipped = true;
};

QList<NamedTrait> namedTraits()
{
    ZEVDrawingTrait clipped = ZEVDrawingTrait::blueHighlightedTrait();
    clipped.dropShadowOffset = {3, 3};
    clipped.clipsShadow = true;
    return {
        {u"A new trait"_s, ZEVDrawingTrait()},
        {u"Default"_s, ZEVDrawingTrait::defaultTrait()},
        {u"Default, not flipped"_s, ZEVDrawingTrait::defaultTrait(), false},
        {u"Highlighted"_s, ZEVDrawingTrait::defaultHighlightedTrait()},
        {u"White"_s, ZEVDrawingTrait::defaultWhiteTrait()},
        {u"Blue"_s, ZEVDrawingTrait::blueHighlightedTrait()},
        {u"Blue, wide clipped shadow"_s, clipped},
    };
}

void drawStencil(QPainter &painter, const NamedTrait &named, QPointF at, qreal size)
{
    static const QImage image = notes();
    painter.save();
    painter.translate(at);
    ZEVImageDrawingTraits::drawInRect(image, painter, QRectF(0, 0, size, size), {}, named.trait,
                                      QPainter::CompositionMode_SourceOver, 1, named.respectFlipped,
                                      QPainter::SmoothPixmapTransform);
    painter.restore();
}

QWidget *stencilSample(const NamedTrait &named, const QColor &ground)
{
    return new Sample({200, 72}, [named, ground](QPainter &painter) {
        painter.fillRect(0, 0, 200, 72, ground);
        drawStencil(painter, named, {12, 4}, 64);
        drawStencil(painter, named, {96, 20}, 32);
        drawStencil(painter, named, {152, 28}, 16);
    });
}

/// Rings around the middle, and a corner of its own colour each.
QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor(250, 200, 60));
    ground.setColorAt(1, QColor(190, 30, 90));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), ground);
    painter.setPen(QPen(Qt::white, 6));
    for (int radius = 20; radius < std::max(size.width(), size.height()); radius += 30)
        painter.drawEllipse(image.rect().center(), radius, radius);
    const int corner = std::min(size.width(), size.height()) / 6;
    painter.fillRect(0, 0, corner, corner, Qt::darkGreen);
    painter.fillRect(size.width() - corner, size.height() - corner, corner, corner, Qt::darkBlue);
    return image;
}

QWidget *fittedSample(const QImage &image, ZEVImageCrop::FitMethod method)
{
    return new Sample({104, 104}, [image, method](QPainter &painter) {
        const QRectF frame(4, 4, 96, 96);
        painter.fillRect(frame, QColor(128, 128, 128, 64));
        ZEVImageCrop::drawInRect(image, painter, frame, QPainter::CompositionMode_SourceOver, 1, method);
    });
}

/// A framed button with round corners.
QImage button()
{
    QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, 0, 30);
    ground.setColorAt(0, QColor(120, 170, 250));
    ground.setColorAt(1, QColor(20, 70, 190));
    painter.setPen(QPen(QColor(10, 30, 90), 2));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(1, 1, 28, 28), 9, 9);
    return image;
}

QWidget *threePartSample(QSize size, bool upright)
{
    return new Sample(size, [size, upright](QPainter &painter) {
        ZEVImageInsets::drawAsThreePartImageInRect(button(), painter, QRectF({}, size), {}, 11,
                                                   QPainter::CompositionMode_SourceOver, 1, upright);
    });
}

QWidget *ninePartSample(QSize size, bool upright)
{
    return new Sample(size, [size, upright](QPainter &painter) {
        ZEVImageInsets::drawAsNinePartImageInRect(button(), painter, QRectF({}, size), {}, 11, 11,
                                                  QPainter::CompositionMode_SourceOver, 1, upright);
    });
}

void addRow(QGridLayout *grid, const QString &name, const QList<QWidget *> &samples)
{
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(name), row, 0);
    for (int column = 0; column < samples.size(); ++column)
        grid->addWidget(samples.at(column), row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
}

/// Leaves what is free below and beside the samples.
QGridLayout *pageGrid(QWidget *page)
{
    auto *const column = new QVBoxLayout(page);
    auto *const grid = new QGridLayout;
    column->addLayout(grid);
    column->addStretch();
    grid->setColumnStretch(9, 1);
    return grid;
}

} // namespace

QWidget *stencilsPage(QWidget *parent)
{
    auto *const page = new QWidget(parent);
    QGridLayout *const grid = pageGrid(page);
    for (const NamedTrait &named : namedTraits())
        addRow(grid, named.name,
               {stencilSample(named, QColor(236, 236, 236)), stencilSample(named, QColor(40, 40, 40))});
    return page;
}

QWidget *pictureFittingPage(QWidget *parent)
{
    using namespace ZEVImageCrop;
    auto *const page = new QWidget(parent);
    QGridLayout *const grid = pageGrid(page);
    addRow(grid, {},
           {new QLabel(u"Centre"_s), new QLabel(u"Left, top"_s), new QLabel(u"Right, bottom"_s),
            new QLabel(u"Fit"_s)});
    const std::pair<QString, QSize> pictures[] = {
        {u"Wide"_s, {600, 300}}, {u"Tall"_s, {300, 600}}, {u"Small"_s, {60, 50}}};
    for (const auto &[name, size] : pictures) {
        QList<QWidget *> samples;
        for (FitMethod method : {FillCentre, FillLeftTop, FillRightBottom, Fit})
            samples.append(fittedSample(picture(size), method));
        addRow(grid, name, samples);
    }
    addRow(grid, u"Three parts"_s,
           {threePartSample({40, 30}, true), threePartSample({100, 30}, true),
            threePartSample({100, 30}, false)});
    addRow(
        grid, u"Nine parts"_s,
        {ninePartSample({40, 30}, true), ninePartSample({100, 70}, true), ninePartSample({100, 70}, false)});
    return page;
}
