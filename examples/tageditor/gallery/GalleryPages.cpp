// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/GalleryPages.h>

#include <tageditor/gallery/FindInterfacesPage.h>
#include <tageditor/gallery/ImagePages.h>
#include <tageditor/gallery/ImageViewPages.h>
#include <tageditor/gallery/LayoutPage.h>
#include <tageditor/gallery/MenuItemsPage.h>
#include <tageditor/gallery/TextTransformsPage.h>
#include <tageditor/gallery/TokenFieldsPage.h>
#include <tageditor/gallery/UprightPage.h>

using namespace Qt::StringLiterals;

QList<GalleryPage> galleryPages()
{
    return {
        {u"Find interfaces"_s, &findInterfacesPage},
        {u"Token fields"_s, &tokenFieldsPage},
        {u"Menu items"_s, &menuItemsPage},
        {u"Layout"_s, &layoutPage},
        {u"Stencils"_s, &stencilsPage},
        {u"Picture fitting"_s, &pictureFittingPage},
        {u"Artwork well"_s, &artworkWellPage},
        {u"Upright and in its colours"_s, &uprightPage},
        {u"Artwork views"_s, &artworkViewsPage},
        {u"Text transforms"_s, &textTransformsPage},
    };
}
