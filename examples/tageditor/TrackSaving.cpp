// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/TrackSaving.h>

#include <tageditor/TagWriter.h>
#include <tageditor/TrackTableModel.h>

#include <QMessageBox>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace {

/// As many problems as a message box can show; the rest is a number.
constexpr qsizetype ShownProblems = 10;

} // namespace

bool TrackSaving::save(TrackTableModel *model, QWidget *window)
{
    const QStringList problems = saveTracks(model, window);
    if (!problems.isEmpty())
        showProblems(problems, window);
    return !model->hasChanges();
}

QStringList TrackSaving::saveTracks(TrackTableModel *model, QWidget *window)
{
    const QList<int> trackIds = model->changedTracks();
    QProgressDialog progress(tr("Saving…"), tr("Cancel"), 0, int(trackIds.size()), window);
    progress.setWindowModality(Qt::WindowModal);
    QStringList problems;
    for (const int id : trackIds) {
        if (progress.wasCanceled())
            break;
        const Track &track = model->track(model->rowOfTrack(id));
        const QString problem =
            TagWriter::write(track.path, model->changedTexts(id), model->changedArtwork(id));
        if (problem.isEmpty())
            model->setSaved(id);
        else
            problems.append(displayedPath(track.path.filename()) + u": "_s + problem);
        progress.setValue(progress.value() + 1);
    }
    return problems;
}

void TrackSaving::showProblems(const QStringList &problems, QWidget *window)
{
    QMessageBox message(QMessageBox::Warning, tr("Save"),
                        tr("Some files could not be saved. They are as they were."), QMessageBox::Ok, window);
    message.setTextFormat(Qt::PlainText);
    QStringList shown = problems.first(qMin(ShownProblems, problems.size()));
    if (problems.size() > shown.size())
        shown.append(tr("… and %L1 more").arg(problems.size() - shown.size()));
    message.setInformativeText(shown.join(u'\n'));
    message.exec();
}
