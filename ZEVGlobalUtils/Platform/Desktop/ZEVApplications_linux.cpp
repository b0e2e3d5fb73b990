// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplications_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVStartupNotification_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QFile>
#include <QGuiApplication>

#include <array>
#include <memory>
#include <unistd.h>
#include <vector>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

using namespace Qt::StringLiterals;

namespace {

const QString EntrySuffix = u".desktop"_s;

/// What packagers write into entries: desktop entries have no key of their own for it.
constexpr std::array VersionKeys{"X-AppImage-Version", "X-GNOME-Bugzilla-Version", "X-KDE-Version"};

// Codes of Launch Services' kind, whose texts are logged with them.
constexpr int UnknownError = -10810;
constexpr int ApplicationNotFound = -10814;

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Object>
using Owned = std::unique_ptr<Object, Unref>;

struct Free {
    void operator()(gpointer memory) const { g_free(memory); }
};
using OwnedText = std::unique_ptr<char, Free>;

bool isEntry(const QUrl &application) { return application.path().endsWith(EntrySuffix); }

Owned<GDesktopAppInfo> entryAt(const QUrl &application)
{
    if (!isEntry(application))
        return nullptr;
    return Owned<GDesktopAppInfo>(
        g_desktop_app_info_new_from_filename(ZEVFileURL::path(application).constData()));
}

QUrl urlOfEntry(GAppInfo *info)
{
    const char *path = info && G_IS_DESKTOP_APP_INFO(info)
        ? g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(info))
        : nullptr;
    return path ? ZEVFileURL::withPath(path) : QUrl();
}

Owned<GFile> fileAt(const QUrl &url)
{
    const QByteArray path = ZEVFileURL::path(url);
    return Owned<GFile>(path.isEmpty() ? g_file_new_for_uri(url.toEncoded().constData())
                                       : g_file_new_for_path(path.constData()));
}

/// By its contents, as file managers tell it; by its name where it has none or cannot be read.
QByteArray contentType(const QUrl &url)
{
    const Owned<GFileInfo> info(g_file_query_info(
        fileAt(url).get(), G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE "," G_FILE_ATTRIBUTE_STANDARD_SIZE,
        G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    const char *known = info ? g_file_info_get_content_type(info.get()) : nullptr;
    if (known && g_file_info_get_size(info.get()) > 0)
        return known;
    const OwnedText type(
        g_content_type_guess(ZEVFileURL::lastPathComponent(url).constData(), nullptr, 0, nullptr));
    return type.get();
}

/// Takes the list and what it holds.
template <typename Filter>
QList<QUrl> urlsOfEntries(GList *infos, Filter isWanted)
{
    QList<QUrl> urls;
    for (const GList *entry = infos; entry; entry = entry->next) {
        auto *info = static_cast<GAppInfo *>(entry->data);
        const QUrl url = urlOfEntry(info);
        if (url.isValid() && isWanted(info))
            urls.append(url);
    }
    g_list_free_full(infos, g_object_unref);
    return urls;
}

char *beginStartup(GAppLaunchContext *, GAppInfo *info, GList *)
{
    GIcon *icon = g_app_info_get_icon(info);
    const OwnedText iconName(icon ? g_icon_to_string(icon) : nullptr);
    const QByteArray identifier = ZEVStartupNotification::begin(g_app_info_get_name(info), iconName.get(),
                                                                g_app_info_get_executable(info));
    return identifier.isNull() ? nullptr : g_strdup(identifier.constData());
}

void cancelStartup(GAppLaunchContext *, const char *identifier)
{
    ZEVStartupNotification::cancel(identifier);
}

void setUpContextClass(gpointer contextClass, gpointer)
{
    auto *functions = static_cast<GAppLaunchContextClass *>(contextClass);
    functions->get_startup_notify_id = &beginStartup;
    functions->launch_failed = &cancelStartup;
}

/// GIO asks it for the identifier of an application whose entry says that it knows what to do with it.
Owned<GAppLaunchContext> makeLaunchContext()
{
    static const GType type = g_type_register_static_simple(
        G_TYPE_APP_LAUNCH_CONTEXT, "ZEVAppLaunchContext", sizeof(GAppLaunchContextClass), &setUpContextClass,
        sizeof(GAppLaunchContext), nullptr, GTypeFlags(0));
    return Owned<GAppLaunchContext>(static_cast<GAppLaunchContext *>(g_object_new(type, nullptr)));
}

using ZEVApplications::LaunchFailure;

std::optional<LaunchFailure> launch(GDesktopAppInfo *info, const QList<QUrl> &urls)
{
    std::vector<Owned<GFile>> files;
    GList *list = nullptr;
    for (const QUrl &url : urls) {
        files.push_back(fileAt(url));
        list = g_list_append(list, files.back().get());
    }
    GError *error = nullptr;
    g_app_info_launch(G_APP_INFO(info), list, makeLaunchContext().get(), &error);
    g_list_free(list);
    if (!error)
        return std::nullopt;
    LaunchFailure failure{UnknownError, QString::fromUtf8(error->message)};
    g_error_free(error);
    return failure;
}

bool isExecutable(const QByteArray &path)
{
    const auto status = ZEVFileOperations::status(path);
    return status && !status->isDirectory && access(path.constData(), X_OK) == 0;
}

std::optional<LaunchFailure> runExecutable(const QList<QUrl> &urls, const QUrl &application)
{
    // Bytes, as the names of files are, which QProcess would take for text.
    QByteArrayList arguments{ZEVFileURL::path(application)};
    for (const QUrl &url : urls)
        arguments.append(url.isLocalFile() ? ZEVFileURL::path(url) : url.toEncoded());
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    GError *error = nullptr;
    if (g_spawn_async(nullptr, pointers.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, &error))
        return std::nullopt;
    LaunchFailure failure{UnknownError, QString::fromUtf8(error->message)};
    g_error_free(error);
    return failure;
}

} // namespace

QUrl ZEVApplications::URLForApplicationToOpenURL(const QUrl &url)
{
    const Owned<GAppInfo> info(g_app_info_get_default_for_type(contentType(url).constData(), false));
    return urlOfEntry(info.get());
}

QList<QUrl> ZEVApplications::applicationURLsForURL(const QUrl &url)
{
    return urlsOfEntries(g_app_info_get_all_for_type(contentType(url).constData()),
                         [](GAppInfo *) { return true; });
}

QList<QUrl> ZEVApplications::applicationURLs()
{
    return urlsOfEntries(g_app_info_get_all(), &g_app_info_should_show);
}

QUrl ZEVApplications::mainApplicationURL()
{
    QString name = QGuiApplication::desktopFileName();
    if (name.isEmpty())
        return {};
    if (!name.endsWith(EntrySuffix))
        name += EntrySuffix;
    const Owned<GDesktopAppInfo> info(g_desktop_app_info_new(name.toUtf8().constData()));
    return info ? urlOfEntry(G_APP_INFO(info.get())) : QUrl();
}

QString ZEVApplications::displayName(const QUrl &application)
{
    const auto info = entryAt(application);
    return info ? QString::fromUtf8(g_app_info_get_display_name(G_APP_INFO(info.get())))
                : ZEVFileURL::displayName(application);
}

QString ZEVApplications::version(const QUrl &application)
{
    const auto info = entryAt(application);
    for (const char *key : VersionKeys) {
        const OwnedText version(info ? g_desktop_app_info_get_string(info.get(), key) : nullptr);
        if (version)
            return QString::fromUtf8(version.get());
    }
    return {};
}

QIcon ZEVApplications::icon(const QUrl &application)
{
    QIcon ordinary = QIcon::fromTheme(u"application-x-executable"_s, ZEVWorkspace::iconForFile(application));
    const auto info = entryAt(application);
    GIcon *icon = info ? g_app_info_get_icon(G_APP_INFO(info.get())) : nullptr;
    if (icon && G_IS_FILE_ICON(icon)) {
        const OwnedText path(g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
        return path ? QIcon(QFile::decodeName(path.get())) : ordinary;
    }
    if (!icon || !G_IS_THEMED_ICON(icon))
        return ordinary;
    const char *const *names = g_themed_icon_get_names(G_THEMED_ICON(icon));
    return names && *names ? QIcon::fromTheme(QString::fromUtf8(*names), ordinary) : ordinary;
}

std::optional<LaunchFailure> ZEVApplications::open(const QList<QUrl> &urls, const QUrl &application)
{
    if (const auto info = entryAt(application))
        return launch(info.get(), urls);
    if (isEntry(application) || !isExecutable(ZEVFileURL::path(application)))
        return LaunchFailure{ApplicationNotFound, u"no such application"_s};
    return runExecutable(urls, application);
}
