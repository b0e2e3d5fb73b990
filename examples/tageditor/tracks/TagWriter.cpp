// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TagWriter.h>

#include <tageditor/artwork/ArtworkTag.h>
#include <tageditor/tracks/TagFields.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagValues.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <fileref.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <tag.h>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// An MP3 keeps the kinds of tags that it has, in the version that other programs have given them.
bool save(TagLib::File &file)
{
    auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file);
    if (!mpeg)
        return file.save();
    const int version = mpeg->hasID3v2Tag() ? int(mpeg->ID3v2Tag()->header()->majorVersion()) : 4;
    int tags = TagLib::MPEG::File::ID3v2;
    if (mpeg->hasID3v1Tag())
        tags |= TagLib::MPEG::File::ID3v1;
    if (mpeg->hasAPETag())
        tags |= TagLib::MPEG::File::APE;
    return mpeg->save(tags, TagLib::File::StripNone, version < 4 ? TagLib::ID3v2::v3 : TagLib::ID3v2::v4,
                      TagLib::File::DoNotDuplicate);
}

/// A folder for the new file, gone with everything that is still in it.
class WorkFolder {
public:
/// Some tags have numbers where others have texts: there "07" is 7.
bool isHeld(TrackField field, const QString &wanted, const QString &written)
{
    bool isNumber = false;
    const uint number = wanted.toUInt(&isNumber);
    const bool hasNumber = field == TrackField::Year || field == TrackField::Number;
    return written == wanted || (hasNumber && isNumber && written == QString::number(number));
}

    explicit WorkFolder(const QUrl &file, ZEVError *error)
        : m_url(ZEVPlainFileManager::defaultManager()->itemReplacementDirectory(file, error))
    {
    }
    ~WorkFolder()
    {
        if (m_url)
            ZEVPlainFileManager::defaultManager()->removeItemAtURL(*m_url);
    }
    Q_DISABLE_COPY_MOVE(WorkFolder)

    const std::optional<QUrl> &url() const { return m_url; }

private:
    std::optional<QUrl> m_url;
};

std::filesystem::path pathOf(const QUrl &url) { return ZEVFileURL::path(url).toStdString(); }

} // namespace

QString TagWriter::write(const std::filesystem::path &path, const Texts &texts, const Artwork &artwork)
{
    std::error_code failure;
    const std::filesystem::path target = std::filesystem::canonical(path, failure);
    if (failure)
        return QString::fromStdString(failure.message());
    ZEVPlainFileManager &files = *ZEVPlainFileManager::defaultManager();
    const QUrl original = ZEVFileURL::withPath(QByteArray::fromStdString(target.string()));
    ZEVError error;
    const WorkFolder folder(original, &error);
    if (!folder.url())
        return error.localizedDescription();
    const QUrl copy =
        ZEVFileURL::byAppendingPathComponent(*folder.url(), ZEVFileURL::lastPathComponent(original));
    if (!files.copyItemAtURL(original, copy, &error))
        return error.localizedDescription();
    if (QString problem = writeInto(pathOf(copy), texts, artwork); !problem.isEmpty())
        return problem;
    if (!files.replaceItemAtURL(original, copy, nullptr, &error))
        return error.localizedDescription();
    return {};
}

QString TagWriter::writeInto(const std::filesystem::path &path, const Texts &texts, const Artwork &artwork)
{
    {
        const TagLib::FileRef reference(path.c_str(), true, TagLib::AudioProperties::Fast);
        TagLib::File *file = reference.file();
        if (!file || !file->isValid() || !file->tag())
            return tr("No audio found: damaged or cut off");
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            TagFields::write(*file, text.key(), TagValues::of(text.value()));
        if (artwork && !ArtworkTag::setArtwork(*file, *artwork))
            return tr("The tags of this file cannot hold artwork");
        if (!save(*file))
            return tr("The tags could not be written");
    }
    return readBack(path, texts, artwork);
}

/// A full disk, or a kind of tag that cannot hold a text, shows here at the latest.
QString TagWriter::readBack(const std::filesystem::path &path, const Texts &texts, const Artwork &artwork)
{
    const Track written = TagReader::read(path);
    if (!written.isReadable())
        return written.error;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        if (!isHeld(text.key(), text.value(), written.text(text.key())))
            return tr("The tags of this file cannot hold “%1”").arg(TagValues::joined(text.value()));
    }
    if (artwork && ArtworkTag::read(path) != *artwork)
        return tr("The tags of this file cannot hold the artwork");
    return {};
}
