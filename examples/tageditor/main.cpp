// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/FindInterfaces.h>
#include <tageditor/find/TrackFind.h>
#include <tageditor/gallery/GalleryWindow.h>
#include <tageditor/window/AutomatedRun.h>
#include <tageditor/window/DarkPalette.h>
#include <tageditor/window/MainWindow.h>
#include <tageditor/window/Translations.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QApplication>
#include <QIcon>
#include <QStyle>
#include <QStyleFactory>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void describe(QApplication &application)
{
    application.setOrganizationName(u"zevglobalutils"_s);
    application.setApplicationName(u"tageditor"_s);
    application.setApplicationDisplayName(QCoreApplication::translate("main", "Tag Editor"));
    application.setApplicationVersion(u"1.0"_s);
    const QString id = u"org.zevglobalutils.TagEditor"_s;
    application.setDesktopFileName(id);
    QIcon icon;
    for (const QString &size : {u"48"_s, u"128"_s})
        icon.addFile(u":/tageditor/"_s + id + u'-' + size + u".png"_s);
    application.setWindowIcon(QIcon::fromTheme(id, icon));
}

/// Styles that draw in the desktop's own colours would ignore the palette.
void goDark(QApplication &application)
{
    if (application.style()->name() != u"fusion")
        application.setStyle(QStyleFactory::create(u"Fusion"_s));
    application.setPalette(darkPalette());
}

/// The text is a pattern, as the find field shows it.
ZEVFindPanelQuery queryOf(const CommandLine &commandLine, ZEVTextFinderViewController &bar)
{
    bar.view();
    ZEVFindPanelQuery query;
    query.setSearchPattern(bar.findTokenField()->conversionPatternForPatternString(commandLine.findText));
    query.setMatchingType(commandLine.matchingType);
    query.setCaseInsensitiveSearch(!commandLine.isCaseSensitive);
    return query;
}

QStringList filesToOpen(const CommandLine &commandLine)
{
    if (!commandLine.files.isEmpty())
        return commandLine.files;
    const QString last = MainWindow::lastFolder();
    return {last.isEmpty() || commandLine.quits ? CommandLine::sampleFolder() : last};
}

int runGallery(const CommandLine &commandLine)
{
    GalleryWindow window(galleryPages());
    QWidget other;
    window.show();
    if (commandLine.isInactive) {
        other.show();
        other.activateWindow();
    }
    if (!commandLine.screenshotFile.isEmpty() && !window.saveScreenshots(commandLine.screenshotFile)) {
        std::fprintf(stderr, "%s\n",
                     qPrintable(QCoreApplication::translate("main", "A screenshot could not be saved.")));
        return 1;
    }
    return commandLine.quits ? 0 : QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Translations::install();
    describe(application);
    const CommandLine commandLine = CommandLine::parsed(application);
    if (commandLine.isDark)
        goDark(application);
    if (commandLine.showsGallery)
        return runGallery(commandLine);

    MainWindow window;
    const AutomatedRun run(&window, commandLine);
    if (!commandLine.findText.isEmpty()) // before anything is seen, so that the bar does not slide in
        window.find().find(queryOf(commandLine, window.find().bar()));
    window.show();
    window.open(filesToOpen(commandLine));
    return application.exec();
}
