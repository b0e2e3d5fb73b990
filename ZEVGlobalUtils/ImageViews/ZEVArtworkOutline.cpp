// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkOutline_p.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

namespace {

/// As the beginning of a label.
QString capitalized(const QString &text) { return text.left(1).toUpper() + text.mid(1); }

bool hasUnseenArtwork(const ZEVDragImageView &well)
{
    return well.imageDescription() && !well.imageDescription()->isShown();
}

/// What is wrong with it and, where that is known, how large it is.
QString labelOf(const ZEVImageDescription &artwork)
{
    const QString name = ZEVImageIdentification::identificationWithData(artwork.bitmapData()).formatName();
    const QString size = artwork.size().isEmpty() ? QString() : u'\n' + artwork.dimensions() + u", " + name;
    return capitalized(artwork.remark()) + size;
}

} // namespace

ZEVArtworkOutline::ZEVArtworkOutline(ZEVDragImageView *well)
    : QObject(well)
    , m_well(well)
{
    connect(well->dashView(), &ZEVDashView::highlightedChanged, this, &ZEVArtworkOutline::update);
    connect(well->imageView(), &ZEVImageView::imageChanged, this, &ZEVArtworkOutline::update);
    updateLabel();
}

bool ZEVArtworkOutline::isDrawn() const
{
    const uint rule = m_well->dashDisplayRule();
    if (!m_well->isEditable() || rule == ZEVDragImageView::DashesNever)
        return false;
    return rule == ZEVDragImageView::DashesAlways || m_well->dashView()->isHighlighted()
        || m_well->imageView()->image().isNull();
}

void ZEVArtworkOutline::update()
{
    const bool draws = isDrawn();
    const bool isEmpty = !m_well->imageDescription();
    m_well->dashView()->setDrawLabel(hasUnseenArtwork(*m_well) || (isEmpty && m_well->isEditable()));
    m_well->dashView()->setDrawDashes(draws);
    if (std::exchange(m_wasDrawn, draws) != draws)
        Q_EMIT drawnChanged(draws);
}

/// Artwork that cannot be shown says so, and does not look like none.
void ZEVArtworkOutline::updateLabel()
{
    m_well->dashView()->setLabel(hasUnseenArtwork(*m_well)
                                     ? labelOf(*m_well->imageDescription())
                                     : ZEVGlobalHelper::localizedStringForKey(u"Drop Image Here"));
}
