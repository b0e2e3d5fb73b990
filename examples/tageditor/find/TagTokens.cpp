// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TagTokens.h>

#include <tageditor/tracks/TrackTableModel.h>

using namespace Qt::StringLiterals;

namespace {

/// The names of the fields in patterns and archives, whatever the user's language.
constexpr std::array<QStringView, TrackFieldCount> KeyPaths{u"file", u"title", u"artist", u"album",
                                                            u"year", u"track", u"genre",  u"comment"};

ZEVPatternItem tokenOf(TrackField field)
{
    const QString title = TrackTableModel::titleForField(field);
    const QString keyPath = KeyPaths.at(size_t(field)).toString();
    ZEVPatternItem item = ZEVPatternItem::itemWithTitle(title, title, keyPath, std::nullopt);
    item.setMetadataKeyPath(keyPath);
    return item;
}

} // namespace

QList<ZEVPatternItem> TagTokens::fieldTokens()
{
    QList<ZEVPatternItem> items;
    for (int field = 0; field < TrackFieldCount; ++field)
        items.append(tokenOf(TrackField(field)));
    return items;
}

ZEVPatternTokens::Groups TagTokens::findTokens()
{
    return {ZEVPatternItem::escapeItems(),
            {ZEVPatternItem::tab(), ZEVPatternItem::lineBreak()},
            {ZEVPatternItem::email(), ZEVPatternItem::webAddress()}};
}

ZEVPatternTokens::Groups TagTokens::replaceTokens()
{
    return ZEVPatternTokens::Groups{fieldTokens()} + findTokens();
}

std::optional<TrackField> TagTokens::fieldOf(const ZEVPatternItem &item)
{
    const auto *keyPath = std::ranges::find(KeyPaths, item.metadataKeyPath().value_or(QString()));
    if (keyPath == KeyPaths.end())
        return std::nullopt;
    return TrackField(keyPath - KeyPaths.begin());
}

QString TagTokens::filledIn(const QVariantList &pattern, const Track &track)
{
    QString text;
    for (const QVariant &part : pattern) {
        if (!part.canConvert<ZEVPatternItem>())
            text += part.toString();
        else if (const auto field = fieldOf(part.value<ZEVPatternItem>()))
            text += track.text(*field);
    }
    return text;
}
