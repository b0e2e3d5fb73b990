// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkTag.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <attachedpictureframe.h>
#include <fileref.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <mp4file.h>
#include <mpegfile.h>
#include <vorbisfile.h>
#include <xiphcomment.h>

#include <memory>

namespace {

using TagLib::FLAC::Picture;
using TagLib::ID3v2::AttachedPictureFrame;
using TagLib::MP4::CoverArt;
using TagLib::MP4::CoverArtList;

QByteArray bytesOf(const TagLib::ByteVector &data) { return {data.data(), qsizetype(data.size())}; }

TagLib::ByteVector vectorOf(const QByteArray &bytes) { return {bytes.constData(), unsigned(bytes.size())}; }

TagLib::String mimeType(const QByteArray &bytes)
{
    const QString type = ZEVImageIdentification::identificationWithData(bytes).mimeType();
    return {type.toStdString(), TagLib::String::UTF8};
}

/// Both kinds of tags number the types of pictures alike.
template <typename PictureList>
auto isArtwork(const PictureList &pictures)
{
    return [hasFrontCover = std::any_of(pictures.begin(), pictures.end(), [](const auto *picture) {
                return picture->type() == picture->FrontCover;
            })](const auto *picture) {
        return picture->type() == (hasFrontCover ? picture->FrontCover : picture->Other);
    };
}

std::vector<AttachedPictureFrame *> pictures(const TagLib::ID3v2::Tag &tag)
{
    std::vector<AttachedPictureFrame *> pictures;
    for (TagLib::ID3v2::Frame *frame : tag.frameList("APIC")) {
        if (auto *picture = dynamic_cast<AttachedPictureFrame *>(frame))
            pictures.push_back(picture);
    }
    return pictures;
}

template <typename PictureList>
auto *firstArtwork(const PictureList &pictures)
{
    const auto found = std::find_if(pictures.begin(), pictures.end(), isArtwork(pictures));
    return found == pictures.end() ? nullptr : *found;
}

/// A file without the tag has no artwork, and gets the tag when it gets some.
TagLib::ID3v2::Tag *tagOf(TagLib::MPEG::File &file, bool create)
{
    return create || file.hasID3v2Tag() ? file.ID3v2Tag(create) : nullptr;
}

QByteArray artworkOf(TagLib::MPEG::File &file)
{
    const auto *const tag = tagOf(file, false);
    const auto *const picture = tag ? firstArtwork(pictures(*tag)) : nullptr;
    return picture ? bytesOf(picture->picture()) : QByteArray();
}

void fill(AttachedPictureFrame &picture, const QByteArray &bytes)
{
    picture.setPicture(vectorOf(bytes));
    picture.setMimeType(mimeType(bytes));
}

void setArtworkOf(TagLib::MPEG::File &file, const QByteArray &bytes)
{
    auto *const tag = tagOf(file, !bytes.isEmpty());
    if (!tag)
        return;
    const auto all = pictures(*tag);
    if (bytes.isEmpty()) {
        const auto isGoing = isArtwork(all);
        for (auto *picture : all) {
            if (isGoing(picture))
                tag->removeFrame(picture);
        }
    } else if (auto *picture = firstArtwork(all)) {
        fill(*picture, bytes);
    } else {
        auto added = std::make_unique<AttachedPictureFrame>();
        added->setType(AttachedPictureFrame::FrontCover);
        fill(*added, bytes);
        tag->addFrame(added.release());
    }
}

void fill(Picture &picture, const QByteArray &bytes)
{
    const QSize size = ZEVImageIdentification::identificationWithData(bytes).pixelSize;
    picture.setData(vectorOf(bytes));
    picture.setMimeType(mimeType(bytes));
    picture.setWidth(std::max(size.width(), 0));
    picture.setHeight(std::max(size.height(), 0));
    picture.setColorDepth(0); // not known, and nobody asks
    picture.setNumColors(0);
}

/// The list itself may own the pictures, and a copy of it would delete them again.
template <typename Holder>
std::vector<Picture *> pictures(Holder &holder)
{
    const TagLib::List<Picture *> list = holder.pictureList();
    return {list.begin(), list.end()};
}

/// FLAC files and Ogg comments have the same pictures in the same list. A changed one has to be added anew.
template <typename Holder>
void setPicture(Holder &holder, const QByteArray &bytes)
{
    const std::vector<Picture *> before = pictures(holder);
    const Picture *const old = firstArtwork(before);
    if (!bytes.isEmpty()) {
        auto added = std::make_unique<Picture>();
        added->setType(old ? old->type() : Picture::FrontCover);
        added->setDescription(old ? old->description() : TagLib::String());
        fill(*added, bytes);
        holder.addPicture(added.release());
    }
    const auto isGoing = isArtwork(before);
    for (Picture *picture : before) {
        if (bytes.isEmpty() ? isGoing(picture) : picture == old)
            holder.removePicture(picture);
    }
}

template <typename Holder>
QByteArray pictureOf(Holder &holder)
{
    const Picture *const picture = firstArtwork(pictures(holder));
    return picture ? bytesOf(picture->data()) : QByteArray();
}

CoverArt::Format coverFormat(const QByteArray &bytes)
{
    switch (ZEVImageIdentification::identificationWithData(bytes).format) {
    case ZEVImageIdentification::JPEG:
        return CoverArt::JPEG;
    case ZEVImageIdentification::PNG:
        return CoverArt::PNG;
    case ZEVImageIdentification::BMP:
        return CoverArt::BMP;
    case ZEVImageIdentification::GIF:
        return CoverArt::GIF;
    default:
        return CoverArt::Unknown;
    }
}

/// Covers of MPEG-4 are of no kind; the first one is shown.
QByteArray artworkOf(const TagLib::MP4::Tag &tag)
{
    const CoverArtList covers = tag.item("covr").toCoverArtList();
    return covers.isEmpty() ? QByteArray() : bytesOf(covers.front().data());
}

void setArtworkOf(TagLib::MP4::Tag &tag, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return tag.removeItem("covr");
    CoverArtList covers;
    covers.append(CoverArt(coverFormat(bytes), vectorOf(bytes)));
    const CoverArtList before = tag.item("covr").toCoverArtList();
    for (auto cover = before.begin(); cover != before.end(); ++cover) {
        if (cover != before.begin())
            covers.append(*cover);
    }
    tag.setItem("covr", covers);
}

} // namespace

QByteArray ArtworkTag::artwork(TagLib::File &file)
{
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        return artworkOf(*mpeg);
    if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(&file))
        return pictureOf(*flac);
    if (auto *comment = dynamic_cast<TagLib::Ogg::XiphComment *>(file.tag()))
        return pictureOf(*comment);
    const auto *const mp4 = dynamic_cast<TagLib::MP4::Tag *>(file.tag());
    return mp4 ? artworkOf(*mp4) : QByteArray();
}

bool ArtworkTag::setArtwork(TagLib::File &file, const QByteArray &bytes)
{
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        setArtworkOf(*mpeg, bytes);
    else if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(&file))
        setPicture(*flac, bytes);
    else if (auto *comment = dynamic_cast<TagLib::Ogg::XiphComment *>(file.tag()))
        setPicture(*comment, bytes);
    else if (auto *mp4 = dynamic_cast<TagLib::MP4::Tag *>(file.tag()))
        setArtworkOf(*mp4, bytes);
    else
        return false;
    return true;
}

QByteArray ArtworkTag::read(const std::filesystem::path &path)
{
    const TagLib::FileRef reference(path.c_str(), false);
    TagLib::File *const file = reference.file();
    return file && file->isValid() ? artwork(*file) : QByteArray();
}
