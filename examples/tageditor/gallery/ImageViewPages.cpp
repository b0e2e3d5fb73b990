// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/ImageViewPages.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtBarSeparatorView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtBarToolTipView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtBarView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtFocusView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVExportImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>

#include <QBuffer>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

QImage cover(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor(40, 90, 160));
    ground.setColorAt(1, QColor(240, 170, 70));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), ground);
    painter.setPen(QPen(QColor(255, 255, 255, 120), 4));
    for (int radius = 12; radius < size.width() / 2; radius += 16)
        painter.drawEllipse(image.rect().center(), radius, radius);
    return image;
}

QByteArray encodedCover(QSize size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    cover(size).save(&buffer, "PNG");
    return bytes;
}

ZEVDragImageView *well(QSize artwork = {})
{
    auto *const well = new ZEVDragImageView;
    well->setFixedSize(200, 200);
    if (!artwork.isEmpty())
        well->setBitmapData(encodedCover(artwork));
    return well;
}

/// As it is while a drag hovers over it.
ZEVDragImageView *hovered(ZEVDragImageView *well)
{
    well->dashView()->setHighlighted(true, false);
    well->imageView()->setOpacity(0.55);
    return well;
}

ZEVDragImageView *ruled(ZEVDragImageView *well, ZEVDragImageView::DashDisplayRule rule)
{
    well->setDashDisplayRule(rule);
    return well;
}

ZEVDragImageView *fixedWell(ZEVDragImageView *well)
{
    well->setEditable(false);
    return well;
}

QWidget *titled(const QString &title, QWidget *view)
{
    auto *const box = new QWidget;
    auto *const rows = new QVBoxLayout(box);
    rows->addWidget(new QLabel(title));
    rows->addWidget(view);
    rows->addStretch();
    return box;
}

/// Gives out what it shows.
class Exporter : public QObject, public ZEVExportImageViewDelegate {
public:
    using QObject::QObject;

    std::shared_ptr<ZEVPasteboardWriting> pasteboardWriterForExport(ZEVExportImageView *) override
    {
        auto writer = std::make_shared<ZEVPboardImageWriter>();
        writer->setBitmapData(encodedCover({300, 200}));
        writer->setFileName(u"Exported cover"_s);
        return writer;
    }
};

QWidget *exportView()
{
    auto *const view = new ZEVExportImageView;
    view->setFixedSize(200, 160);
    view->setImage(cover({300, 200}));
    view->setDelegate(new Exporter(view));
    return view;
}

/// A few buttons, with a hairline between them.
ZEVArtBarView *bar()
{
    auto *const bar = new ZEVArtBarView;
    auto *const row = new QHBoxLayout(bar);
    for (const QString &title : {u"Back"_s, u"Forward"_s}) {
        auto *const button = new QToolButton;
        button->setText(title);
        button->setAutoRaise(true);
        if (row->count() > 0)
            row->addWidget(new ZEVArtBarSeparatorView);
        row->addWidget(button);
    }
    return bar;
}

QWidget *withOverlay(QWidget *overlay)
{
    auto *const picture = new ZEVImageView;
    picture->setFixedSize(240, 160);
    picture->setImage(cover({240, 160}));
    auto *const rows = new QVBoxLayout(picture);
    rows->addStretch();
    rows->addWidget(overlay, 0, Qt::AlignHCenter);
    return picture;
}

QWidget *toolTip()
{
    auto *const toolTip = new ZEVArtBarToolTipView;
    auto *const row = new QHBoxLayout(toolTip);
    row->addWidget(new QLabel(u"240 × 160 px, dark everywhere"_s));
    return withOverlay(toolTip);
}

QWidget *focusView()
{
    ZEVArtBarView *const toolbar = bar();
    QWidget *const picture = withOverlay(toolbar);
    auto *const focus = new ZEVArtFocusView(picture);
    focus->setGeometry(0, 0, 240, 160);
    focus->lower();
    focus->setToolbarView(toolbar);
    focus->setHidesToolbarView(true);
    return picture;
}

QGridLayout *pageGrid(QWidget *page)
{
    auto *const grid = new QGridLayout(page);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(2, 1);
    return grid;
}

} // namespace

QWidget *artworkWellPage(QWidget *parent)
{
    auto *const page = new QWidget(parent);
    QGridLayout *const grid = pageGrid(page);
    grid->addWidget(titled(u"Empty"_s, well()), 0, 0);
    grid->addWidget(titled(u"Empty, under a drag"_s, hovered(well())), 0, 1);
    grid->addWidget(titled(u"Empty, not editable"_s, fixedWell(well())), 0, 2);
    grid->addWidget(titled(u"Filled"_s, well({300, 200})), 1, 0);
    grid->addWidget(titled(u"Filled, under a drag"_s, hovered(well({300, 200}))), 1, 1);
    grid->addWidget(titled(u"Outline always"_s, ruled(well({120, 200}), ZEVDragImageView::DashesAlways)), 1,
                    2);
    return page;
}

QWidget *artworkViewsPage(QWidget *parent)
{
    auto *const page = new QWidget(parent);
    QGridLayout *const grid = pageGrid(page);
    grid->addWidget(titled(u"To be dragged out"_s, exportView()), 0, 0);
    grid->addWidget(titled(u"Bar"_s, withOverlay(bar())), 0, 1);
    grid->addWidget(titled(u"Tool tip"_s, toolTip()), 1, 0);
    grid->addWidget(titled(u"Bar while the mouse is over it"_s, focusView()), 1, 1);
    return page;
}
