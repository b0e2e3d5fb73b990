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

#include <QFile>
#include <QTemporaryDir>

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

/// Some tags have numbers where others have texts: there "07" is 7.
bool isHeld(TrackField field, const QString &wanted, const QString &written)
{
    bool hasNumber = false;
    const uint number = wanted.toUInt(&hasNumber);
    return written == wanted || (isNumber(field) && hasNumber && written == QString::number(number));
}

/// A folder for the new file, gone with everything that is still in it.
class WorkFolder {
public:
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

/// A file by the bytes of its name.
bool open(QFile &file, const std::filesystem::path &path, QFile::OpenMode mode)
{
    const int flags = mode.testFlag(QFile::WriteOnly) ? O_RDWR : O_RDONLY;
    const int handle = ::open(path.c_str(), flags | O_CLOEXEC);
    return handle >= 0 && file.open(handle, mode | QFile::Unbuffered, QFile::AutoCloseHandle);
}

bool setBytes(QFile &file, const QByteArray &bytes)
{
    return file.seek(0) && file.write(bytes) == bytes.size() && file.resize(bytes.size())
        && ::fsync(file.handle()) == 0;
}

/// The room is taken first, so that a full disk shows before a byte is changed; after another failure the old
/// bytes are put back.
QString copyBytes(const std::filesystem::path &from, const std::filesystem::path &to)
{
    QFile source;
    QFile target;
    if (!open(source, from, QFile::ReadOnly) || !open(target, to, QFile::ReadWrite))
        return QString::fromStdString(std::generic_category().message(errno));
    const QByteArray before = target.readAll();
    const QByteArray after = source.readAll();
    const int failure = ::posix_fallocate(target.handle(), 0, after.size());
    if (failure == 0 && setBytes(target, after))
        return {};
    QString problem = failure == 0 ? target.errorString()
                                   : QString::fromStdString(std::generic_category().message(failure));
    setBytes(target, before);
    return problem;
}

std::filesystem::path pathOf(const QUrl &url) { return ZEVFileURL::path(url).toStdString(); }

} // namespace

TagWriter::Result TagWriter::write(const std::filesystem::path &path, const TagChanges &changes)
{
    std::error_code failure;
    const std::filesystem::path target = std::filesystem::canonical(path, failure);
    if (failure)
        return {QString::fromStdString(failure.message()), {}};
    const QUrl original = ZEVFileURL::withPath(QByteArray::fromStdString(target.string()));
    const bool mayReplace = ::access(target.parent_path().c_str(), W_OK | X_OK) == 0;
    Result result = mayReplace ? replace(original, changes) : overwrite(original, changes);
    TagReader::setPath(result.track, path);
    return result;
}

TagWriter::Result TagWriter::replace(const QUrl &original, const TagChanges &changes)
{
    ZEVPlainFileManager &files = *ZEVPlainFileManager::defaultManager();
    ZEVError error;
    const WorkFolder folder(original, &error);
    if (!folder.url())
        return {error.localizedDescription(), {}};
    const QUrl copy =
        ZEVFileURL::byAppendingPathComponent(*folder.url(), ZEVFileURL::lastPathComponent(original));
    if (!files.copyItemAtURL(original, copy, &error))
        return {error.localizedDescription(), {}};
    Result result = writeInto(pathOf(copy), changes);
    if (result.problem.isEmpty() && !files.replaceItemAtURL(original, copy, nullptr, &error))
        result.problem = error.localizedDescription();
    return result;
}

/// Where no other file may be put beside it, the file itself takes the bytes of one that is whole.
TagWriter::Result TagWriter::overwrite(const QUrl &original, const TagChanges &changes)
{
    QTemporaryDir folder;
    if (!folder.isValid())
        return {folder.errorString(), {}};
    const QUrl copy = ZEVFileURL::byAppendingPathComponent(
        ZEVFileURL::withPath(QFile::encodeName(folder.path())), ZEVFileURL::lastPathComponent(original));
    ZEVError error;
    if (!ZEVPlainFileManager::defaultManager()->copyItemAtURL(original, copy, &error))
        return {error.localizedDescription(), {}};
    Result result = writeInto(pathOf(copy), changes);
    if (result.problem.isEmpty())
        result.problem = copyBytes(pathOf(copy), pathOf(original));
    return result.problem.isEmpty() ? readBack(pathOf(original), changes) : result;
}

TagWriter::Result TagWriter::writeInto(const std::filesystem::path &path, const TagChanges &changes)
{
    {
        const TagLib::FileRef reference(path.c_str(), true, TagLib::AudioProperties::Fast);
        TagLib::File *file = reference.file();
        if (!file || !file->isValid() || !file->tag())
            return {tr("No audio found: damaged or cut off"), {}};
        for (auto text = changes.texts.cbegin(); text != changes.texts.cend(); ++text)
            TagFields::write(*file, text.key(), TagValues::of(text.value()));
        for (auto tag = changes.others.cbegin(); tag != changes.others.cend(); ++tag)
            TagFields::writeOther(*file, tag.key(), TagValues::of(tag.value()));
        if (changes.artwork && !ArtworkTag::setArtwork(*file, *changes.artwork))
            return {tr("The tags of this file cannot hold artwork"), {}};
        if (!save(*file))
            return {tr("The tags could not be written"), {}};
    }
    return readBack(path, changes);
}

/// A full disk, or a kind of tag that cannot hold a text, shows here at the latest.
TagWriter::Result TagWriter::readBack(const std::filesystem::path &path, const TagChanges &changes)
{
    Track written = TagReader::read(path);
    if (!written.isReadable())
        return {written.error, {}};
    for (auto text = changes.texts.cbegin(); text != changes.texts.cend(); ++text) {
        if (!isHeld(text.key(), text.value(), written.text(text.key())))
            return {tr("The tags of this file cannot hold “%1”").arg(TagValues::joined(text.value())), {}};
    }
    const OtherTags others = changes.others.isEmpty() ? OtherTags() : TagReader::readOthers(path);
    for (auto tag = changes.others.cbegin(); tag != changes.others.cend(); ++tag) {
        if (others.value(tag.key()) != tag.value())
            return {tr("The tags of this file cannot hold “%1”").arg(tag.key()), {}};
    }
    if (changes.artwork && ArtworkTag::read(path) != *changes.artwork)
        return {tr("The tags of this file cannot hold the artwork"), {}};
    return {{}, written};
}
