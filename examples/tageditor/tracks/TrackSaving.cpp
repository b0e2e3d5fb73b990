// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TrackSaving.h>

#include <tageditor/tracks/FileWriting.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <QEventLoop>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// As many problems as a message box can show; the rest is a number.
constexpr qsizetype ShownLines = 10;

/// After so many milliseconds the progress is shown.
constexpr int Patience = 400;

} // namespace

QString TrackSaving::shortened(const QStringList &lines)
{
    QStringList shown = lines.first(qMin(ShownLines, lines.size()));
    if (lines.size() > shown.size())
        shown.append(tr("… and %Ln more", nullptr, int(lines.size() - shown.size())));
    return shown.join(u'\n');
}

bool TrackSaving::save(TrackTableModel *model, QWidget *window)
{
    const QList<int> trackIds = settleForeignChanges(model, window);
    const QStringList problems = saveTracks(model, trackIds, window);
    if (!problems.isEmpty())
        showProblems(problems, window);
    return !model->hasChanges();
}

/// The tracks that are to be saved then. A file that has gone is left to the saving, which says so.
QList<int> TrackSaving::settleForeignChanges(TrackTableModel *model, QWidget *window)
{
    QList<int> own = model->changedTracks();
    QList<int> foreign;
    QStringList names;
    for (const int id : std::as_const(own)) {
        const Track &track = model->trackWithId(id);
        const std::optional<FileStamp> stamp = FileStamp::of(track.path);
        if (!stamp || stamp == track.stamp)
            continue;
        foreign.append(id);
        names.append(displayedPath(track.path.filename()));
    }
    const Foreign answer = foreign.isEmpty() ? Foreign::Overwrite : askAbout(names, window);
    if (answer == Foreign::Overwrite)
        return own;
    own.removeIf([&foreign](int id) { return foreign.contains(id); });
    for (const int id : std::as_const(foreign)) {
        if (answer == Foreign::Reload)
            model->setReverted(id, TagReader::read(model->trackWithId(id).path));
    }
    return own;
}

TrackSaving::Foreign TrackSaving::askAbout(const QStringList &names, QWidget *window)
{
    QMessageBox question(QMessageBox::Warning, tr("Save"),
                         tr("Files were changed by another program since they were read."),
                         QMessageBox::NoButton, window);
    question.setTextFormat(Qt::PlainText);
    question.setInformativeText(shortened(names) + u"\n\n"_s
                                + tr("Overwriting changes only the tags that you have changed. "
                                     "Reloading drops your changes to these files."));
    const QAbstractButton *overwrite = question.addButton(tr("&Overwrite"), QMessageBox::AcceptRole);
    const QAbstractButton *reload = question.addButton(tr("&Reload"), QMessageBox::DestructiveRole);
    question.setDefaultButton(question.addButton(tr("&Leave"), QMessageBox::RejectRole));
    question.exec();
    if (question.clickedButton() == overwrite)
        return Foreign::Overwrite;
    return question.clickedButton() == reload ? Foreign::Reload : Foreign::Leave;
}

QStringList TrackSaving::saveTracks(TrackTableModel *model, const QList<int> &trackIds, QWidget *window)
{
    if (trackIds.isEmpty())
        return {};
    QList<FileWriting::Job> jobs;
    for (const int id : trackIds)
        jobs.append({id, model->trackWithId(id).path, model->changes(id)});
    QMap<qsizetype, QString> problems; // in the order of the rows
    FileWriting writing(jobs);
    QObject::connect(
        &writing, &FileWriting::written, window, [&](qsizetype n, const TagWriter::Result &result) {
            if (result.problem.isEmpty())
                model->setSaved(jobs.at(n).trackId, result.track);
            else
                problems.insert(n, displayedPath(jobs.at(n).path.filename()) + u": "_s + result.problem);
        });
    run(writing, window);
    return problems.values();
}

/// What takes but a moment shows no dialog; meanwhile the keys wait.
void TrackSaving::run(FileWriting &writing, QWidget *window)
{
    QEventLoop loop;
    QProgressDialog progress(tr("Saving…"), tr("Cancel"), 0, 0, window);
    progress.setWindowTitle(tr("Save"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(std::numeric_limits<int>::max()); // it is shown below
    auto *bar = new QProgressBar; // the dialog's own would let events in at every step
    bar->setRange(0, int(writing.numberOfJobs()));
    progress.setBar(bar);
    QObject::connect(&progress, &QProgressDialog::canceled, &writing, &FileWriting::cancel);
    QObject::connect(&writing, &FileWriting::written, bar, [bar] { bar->setValue(bar->value() + 1); });
    QObject::connect(&writing, &FileWriting::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(Patience, &loop, &QEventLoop::quit);
    writing.start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!writing.isRunning())
        return;
    progress.show();
    while (writing.isRunning())
        loop.exec();
}

void TrackSaving::showProblems(const QStringList &problems, QWidget *window)
{
    QMessageBox message(QMessageBox::Warning, tr("Save"),
                        tr("Some files could not be saved. They are as they were."), QMessageBox::Ok, window);
    message.setTextFormat(Qt::PlainText);
    message.setInformativeText(shortened(problems));
    message.exec();
}
