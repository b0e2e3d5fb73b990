// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/CommandLine.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>

#include <QCommandLineParser>
#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// For those who work on the library, so the help keeps silent about it.
void describeGallery(QCommandLineParser &parser)
{
    for (const QString &name : {u"gallery"_s, u"inactive"_s}) {
        QCommandLineOption option(name);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(CommandLine::tr("Shows the tags of the audio files in a folder."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        CommandLine::tr("FOLDER"),
        CommandLine::tr(
            "The folder to open, or files to select in theirs; else the last one, or the sample."),
        u'[' + CommandLine::tr("FOLDER") + u']');
    parser.addOptions({
        {u"find"_s, CommandLine::tr("Find PATTERN."), CommandLine::tr("PATTERN")},
        {u"matching-type"_s, CommandLine::tr("How to match, from 0 (contains) to 5."), u"N"_s, u"0"_s},
        {u"case-sensitive"_s, CommandLine::tr("Tell upper case from lower case.")},
        {u"report"_s, CommandLine::tr("Write the matches to the standard output.")},
        {u"screenshot"_s, CommandLine::tr("Save a picture of the window as PNG in FILE."),
         CommandLine::tr("FILE")},
        {u"quit"_s, CommandLine::tr("Leave once all that is done.")},
        {u"dark"_s, CommandLine::tr("Draw light on dark.")},
    });
    describeGallery(parser);
}

qint64 matchingType(const QCommandLineParser &parser)
{
    bool isNumber = false;
    const qint64 type = parser.value(u"matching-type"_s).toLongLong(&isNumber);
    if (isNumber && ZEVFindPanelQuery::titleForMatchingType(type))
        return type;
    std::fprintf(stderr, "%s\n", qPrintable(CommandLine::tr("--matching-type takes a number from 0 to 5.")));
    std::exit(2);
}

} // namespace

CommandLine CommandLine::parsed(const QCoreApplication &application)
{
    QCommandLineParser parser;
    describe(parser);
    parser.process(application);
    return {
        .files = parser.positionalArguments(),
        .findText = parser.value(u"find"_s),
        .matchingType = ::matchingType(parser),
        .isCaseSensitive = parser.isSet(u"case-sensitive"_s),
        .writesReport = parser.isSet(u"report"_s),
        .quits = parser.isSet(u"quit"_s),
        .isDark = parser.isSet(u"dark"_s),
        .screenshotFile = parser.value(u"screenshot"_s),
        .showsGallery = parser.isSet(u"gallery"_s),
        .isInactive = parser.isSet(u"inactive"_s),
    };
}

QString CommandLine::sampleFolder()
{
    const QDir installed(QCoreApplication::applicationDirPath() + u"/../share/tageditor/sample"_s);
    return installed.exists() ? installed.canonicalPath() : QStringLiteral(TAGEDITOR_SAMPLE);
}
