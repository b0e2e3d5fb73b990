// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVArtworkPreview_p.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPanel.h>

namespace {

ZEVPreviewPanel::Items items(const ZEVArtworkPreview::Artwork &artwork)
{
    return artwork ? ZEVPreviewPanel::Items{artwork} : ZEVPreviewPanel::Items();
}

} // namespace

void ZEVArtworkPreview::toggle(const Artwork &artwork)
{
    ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
    if (!artwork && !panel->isVisible())
        return;
    panel->setPreviewItems(items(artwork));
    panel->toggle();
}

void ZEVArtworkPreview::follow(const ZEVImageDescription *previous, const Artwork &artwork)
{
    if (!ZEVPreviewPanel::sharedPreviewPanelExists())
        return;
    ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
    const ZEVPreviewPanel::Items &shown = panel->previewItems();
    m_isFollowed = previous ? shown.size() == 1 && shown.front().get() == previous : m_isFollowed;
    if (m_isFollowed)
        panel->setPreviewItems(items(artwork));
}
