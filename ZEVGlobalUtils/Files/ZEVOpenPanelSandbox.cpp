// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVOpenPanelSandbox.h>

#include <ZEVGlobalUtils/Files/ZEVURLCommonAncestor.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QDir>

namespace {

bool isInHomeFolder(const QByteArray &path)
{
    const bool isInHome = path.startsWith(QByteArray("/Users/" + ZEVFileOperations::userName() + '/'))
        || path.startsWith(QByteArray(QDir::homePath().toUtf8() + '/'));
    return isInHome && !path.startsWith("/Volumes");
}

} // namespace

ZEVOpenPanel ZEVOpenPanelSandbox::sandboxAccessPanelForURL(const QUrl &url)
{
    ZEVOpenPanel panel;
    panel.directoryURL = ZEVURLCommonAncestor::firstExistingAncestorURL(url);
    panel.title = ZEVGlobalHelper::localizedStringForKey(u"Allow Access");
    panel.prompt = panel.title;
    panel.message = ZEVGlobalHelper::localizedStringForKey(u"-SandboxExceptionKey-");
    if (isInHomeFolder(ZEVFileURL::path(url)))
        panel.message += u'\n' + ZEVGlobalHelper::localizedStringForKey(u"-SandboxSuggestion-");
    return panel;
}
