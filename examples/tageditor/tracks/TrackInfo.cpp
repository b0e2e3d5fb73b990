// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TrackInfo.h>

#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVShortDateFormatter.h>

#include <QDateTime>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 NanosecondsPerMillisecond = 1'000'000;
constexpr int SecondsPerMinute = 60;
constexpr int MinutesPerHour = 60;

/// Whole seconds, and hours only where there are some.
QString duration(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 500) / 1000;
    const qint64 minutes = seconds / SecondsPerMinute;
    const QString rest = u":%1"_s.arg(seconds % SecondsPerMinute, 2, 10, QChar(u'0'));
    if (minutes < MinutesPerHour)
        return QString::number(minutes) + rest;
    return u"%1:%2"_s.arg(minutes / MinutesPerHour).arg(minutes % MinutesPerHour, 2, 10, QChar(u'0')) + rest;
}

QString date(qint64 nanoseconds)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(nanoseconds / NanosecondsPerMillisecond);
    return ZEVShortDateFormatter::sharedInstance().stringFromDate(time);
}

} // namespace

QString TrackInfo::title(TrackFact fact)
{
    switch (fact) {
    case TrackFact::Folder:
        return tr("Folder");
    case TrackFact::Duration:
        return tr("Duration");
    case TrackFact::BitRate:
        return tr("Bit Rate");
    case TrackFact::SampleRate:
        return tr("Sample Rate");
    case TrackFact::Channels:
        return tr("Channels");
    case TrackFact::Format:
        return tr("Format");
    case TrackFact::Size:
        return tr("Size");
    case TrackFact::Modified:
        return tr("Modified");
    }
    return {};
}

std::optional<qint64> TrackInfo::number(const Track &track, TrackFact fact)
{
    switch (fact) {
    case TrackFact::Duration:
        return track.audio.milliseconds;
    case TrackFact::BitRate:
        return track.audio.bitRate;
    case TrackFact::SampleRate:
        return track.audio.sampleRate;
    case TrackFact::Channels:
        return track.audio.channels;
    case TrackFact::Size:
        return track.fileSize;
    case TrackFact::Modified:
        return track.stamp ? track.stamp->modified : 0;
    case TrackFact::Folder:
    case TrackFact::Format:
        break;
    }
    return std::nullopt;
}

QString TrackInfo::text(const Track &track, TrackFact fact)
{
    const std::optional<qint64> number = TrackInfo::number(track, fact);
    if (number == 0)
        return {};
    const QLocale locale;
    switch (fact) {
    case TrackFact::Folder:
        return displayedPath(track.path.parent_path());
    case TrackFact::Duration:
        return duration(*number);
    case TrackFact::BitRate:
        return tr("%1 kbit/s").arg(locale.toString(*number));
    case TrackFact::SampleRate:
        return tr("%1 Hz").arg(locale.toString(*number));
    case TrackFact::Channels:
        return locale.toString(*number);
    case TrackFact::Format:
        return displayedPath(track.path.extension()).mid(1).toUpper();
    case TrackFact::Size:
        return FileSizeTransformer().transformedValue(*number).toString();
    case TrackFact::Modified:
        return date(*number);
    }
    return {};
}
