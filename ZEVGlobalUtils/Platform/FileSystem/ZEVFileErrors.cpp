// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileFailure_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

using ZEVFileErrors::Operation;

ZEVFileErrors::Code codeFor(int posixCode)
{
    switch (posixCode) {
    case ENOENT:
        return ZEVFileErrors::NoSuchFile;
    case EACCES:
    case EPERM:
        return ZEVFileErrors::FileWriteNoPermission;
    case EEXIST:
        return ZEVFileErrors::FileWriteFileExists;
    default:
        return ZEVFileErrors::FileWriteUnknown;
    }
}

QString reason(int posixCode)
{
    switch (posixCode) {
    case ENOENT:
        return localized(u"the item does not exist");
    case EACCES:
    case EPERM:
        return localized(u"you do not have permission");
    case EEXIST:
        return localized(u"an item with this name already exists");
    case ENOSPC:
    case EDQUOT:
        return localized(u"there is not enough room");
    case EROFS:
        return localized(u"the volume can only be read");
    case ECANCELED:
        return localized(u"it was cancelled");
    default:
        return QString::fromStdString(std::generic_category().message(posixCode));
    }
}

/// %1 is the name of the item to blame.
QString sentence(const ZEVFileFailure &failure)
{
    using Reason = ZEVFileFailure::Reason;
    const bool isForbidden = failure.code == EACCES || failure.code == EPERM;
    switch (failure.reason) {
    case Reason::System:
        return {};
    case Reason::Folder:
        if (failure.code == ENOENT)
            return localized(u"the folder “%1” does not exist");
        if (failure.code == ENOTDIR)
            return localized(u"“%1” is not a folder");
        return isForbidden ? localized(u"you do not have permission to change the folder “%1”") : QString();
    case Reason::Within:
        return isForbidden ? localized(u"you do not have permission to read “%1”") : QString();
    case Reason::Removal:
        return localized(u"“%1” may not be removed from where it is");
    case Reason::IntoItself:
        return localized(u"a folder cannot be put into itself");
    case Reason::Ancestor:
        return localized(u"it lies in the folder “%1”, whose place it would take");
    case Reason::Name:
        return localized(u"the volume does not allow the name “%1”");
    case Reason::Clash:
        return localized(u"the volume takes “%1” for the name of another item in the same folder");
    case Reason::Attributes:
        return localized(u"“%1” has more attributes than the volume can keep");
    case Reason::Kind:
        return localized(u"“%1” is a socket or a device");
    case Reason::NotHeld:
        return localized(u"“%1” is a link or a pipe, which the volume does not have");
    case Reason::Readable:
        return localized(u"others could read “%1” on the volume, which keeps no permissions");
    case Reason::Changed:
        return localized(u"“%1” has changed meanwhile, and was kept");
    }
    return {};
}

/// An item within is named also where only the system knows what is wrong with it.
QString reason(const ZEVFileFailure &failure)
{
    const QString name = ZEVFileURL::displayName(ZEVFileURL::withPath(failure.path));
    if (const QString text = sentence(failure); !text.isEmpty())
        return text.contains(u"%1") ? text.arg(name) : text;
    if (failure.reason == ZEVFileFailure::Reason::Within)
        return localized(u"“%1”: %2").arg(name, reason(failure.code));
    return reason(failure.code);
}

QString description(Operation operation)
{
    switch (operation) {
    case Operation::Move:
        return localized(u"“%1” could not be moved: %2.");
    case Operation::Copy:
        return localized(u"“%1” could not be copied: %2.");
    case Operation::Change:
        break;
    }
    return localized(u"“%1” could not be changed: %2.");
}

void insertVariant(QVariantMap &userInfo, Operation operation)
{
    if (operation != Operation::Change)
        userInfo.insert(ZEVFileErrors::UserStringVariantKey.toString(),
                        QStringList{operation == Operation::Move ? u"Move"_s : u"Copy"_s});
}

ZEVFileErrors::Code codeFor(const ZEVFileFailure &failure)
{
    using Reason = ZEVFileFailure::Reason;
    const ZEVFileErrors::Code code = codeFor(failure.code);
    const bool isAbout = failure.reason == Reason::System || failure.reason == Reason::Folder;
    const bool isRight = failure.reason == Reason::Within || failure.reason == Reason::Removal;
    return isAbout || (isRight && code == ZEVFileErrors::FileWriteNoPermission)
        ? code
        : ZEVFileErrors::FileWriteUnknown;
}

/// What the error is about.
QUrl itemOf(const ZEVFileFailure &failure, const QUrl &source, const QUrl &destination)
{
    if (failure.reason != ZEVFileFailure::Reason::System)
        return ZEVFileURL::withPath(failure.path);
    return failure.code == EEXIST && destination.isValid() ? destination : source;
}

} // namespace

ZEVError ZEVFileErrors::error(const ZEVFileFailure &failure, Operation operation, const QUrl &source,
                              const QUrl &destination)
{
    const Code code = codeFor(failure);
    const QUrl item = itemOf(failure, source, destination);
    const QUrl &named = failure.reason == ZEVFileFailure::Reason::System ? item : source;
    const ZEVError underlying(ZEVError::POSIXErrorDomain, failure.code);
    QVariantMap userInfo{
        {FilePathKey.toString(), QString::fromUtf8(ZEVFileURL::path(item))},
        {URLKey.toString(), item},
        {SourceURLKey.toString(), source},
        {ZEVError::UnderlyingErrorKey.toString(), QVariant::fromValue(underlying)},
        {ZEVError::LocalizedDescriptionKey.toString(),
         description(operation).arg(ZEVFileURL::displayName(named), reason(failure))},
    };
    if (destination.isValid())
        userInfo.insert(DestinationURLKey.toString(), destination);
    insertVariant(userInfo, operation);
    return ZEVError(ZEVError::CocoaErrorDomain, code, userInfo);
}

ZEVError ZEVFileErrors::error(int posixCode, Operation operation, const QUrl &source, const QUrl &destination)
{
    return error(ZEVFileFailure(posixCode), operation, source, destination);
}

/// The path goes first, but only the URL has a name that is no UTF-8.
QUrl ZEVFileErrors::itemURL(const ZEVError &error)
{
    const QString path = error.userInfo().value(FilePathKey.toString()).toString();
    const QUrl url = error.userInfo().value(URLKey.toString()).toUrl();
    const bool isSame = QString::fromUtf8(ZEVFileURL::path(url)) == path;
    return path.isEmpty() || isSame ? url : ZEVFileURL::withPath(path.toUtf8());
}

ZEVError ZEVFileErrors::withErrorBeneath(const ZEVError &error, const ZEVError &beneath)
{
    QVariantMap userInfo = error.userInfo();
    userInfo.insert(ZEVError::UnderlyingErrorKey.toString(), QVariant::fromValue(beneath));
    return ZEVError(error.domain(), error.code(), userInfo);
}

QString ZEVFileErrors::fullDescription(const ZEVError &error)
{
    QStringList texts;
    for (std::optional<ZEVError> each = error; each && each->domain() == ZEVError::CocoaErrorDomain;
         each = each->underlyingError()) {
        if (const QString text = each->localizedDescription(); !texts.contains(text))
            texts.append(text);
    }
    return texts.isEmpty() ? error.localizedDescription() : texts.join(u'\n');
}

int ZEVFileErrors::posixCode(const ZEVError &error)
{
    const auto underlying = error.underlyingError();
    if (!underlying)
        return 0;
    return underlying->domain() == ZEVError::POSIXErrorDomain ? int(underlying->code())
                                                              : posixCode(*underlying);
}
