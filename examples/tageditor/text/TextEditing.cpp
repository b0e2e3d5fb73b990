// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TextEditing.h>

#include <tageditor/text/AllTagsDialog.h>
#include <tageditor/text/FillTagsDialog.h>
#include <tageditor/text/NumberingDialog.h>
#include <tageditor/text/TextCommand.h>
#include <tageditor/text/TransformDialog.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/ValueCommand.h>

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QTableView>

using namespace Qt::StringLiterals;

TextEditing::TextEditing(TrackTableModel *model, QTableView *table)
    : QObject(table)
    , m_model(model)
    , m_table(table)
{
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TextEditing::updateActions);
    connect(model, &TrackTableModel::modelReset, this, &TextEditing::updateActions);
    connect(model, &TrackTableModel::textEntered, this, [this](const TextChange &entered) {
        change(tr("Edit %1").arg(TrackTableModel::titleForField(entered.field)), {entered});
    });
}

void TextEditing::addUndoActions(QMenu *menu)
{
    m_undo = menu->addAction(QString(), &m_stack, &QUndoStack::undo);
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo = menu->addAction(QString(), &m_stack, &QUndoStack::redo);
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Redo);
    if (const QKeySequence usual(u"Ctrl+Shift+Z"_s); !keys.contains(usual))
        keys.append(usual);
    m_redo->setShortcuts(keys);
    connect(&m_stack, &QUndoStack::indexChanged, this, &TextEditing::updateUndoActions);
    updateUndoActions();
}

void TextEditing::setUndoBlocked(bool isBlocked)
{
    m_isUndoBlocked = isBlocked;
    updateUndoActions();
}

void TextEditing::updateUndoActions()
{
    if (!m_undo)
        return;
    m_undo->setText(m_stack.canUndo() ? tr("&Undo %1").arg(m_stack.undoText()) : tr("&Undo"));
    m_undo->setEnabled(m_stack.canUndo() && !m_isUndoBlocked);
    m_redo->setText(m_stack.canRedo() ? tr("Re&do %1").arg(m_stack.redoText()) : tr("Re&do"));
    m_redo->setEnabled(m_stack.canRedo() && !m_isUndoBlocked);
}

void TextEditing::addTransforms(QMenu *menu)
{
    const QList<TextTransform> &transforms = TextTransform::all();
    for (int n = 0; n < transforms.size(); ++n) {
        QAction *action = menu->addAction(tr("%1…").arg(transforms.at(n).name));
        connect(action, &QAction::triggered, this, [this, n] { askForTransform(n); });
        m_forCells.append(action);
    }
    menu->addSeparator();
    m_forCells.append(
        menu->addAction(tr("&Fill Tags…"), QKeySequence(u"Ctrl+T"_s), this, &TextEditing::askForPattern));
    m_forCells.append(menu->addAction(tr("Number Tracks…"), QKeySequence(u"Ctrl+Shift+N"_s), this,
                                      &TextEditing::askForNumbers));
    m_forCells.append(
        menu->addAction(tr("All Ta&gs…"), QKeySequence(u"Ctrl+I"_s), this, &TextEditing::askForAllTags));
    updateActions();
}

QList<Track> TextEditing::selectedTracks() const
{
    QList<Track> tracks;
    for (const int row : TableSelection::rows(*m_table->selectionModel())) {
        if (m_model->track(row).isReadable())
            tracks.append(m_model->track(row));
    }
    return tracks;
}

void TextEditing::askForPattern()
{
    auto *dialog = new FillTagsDialog(selectedTracks(), m_table->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { change(tr("Fill Tags"), dialog->changes()); });
    dialog->open();
}

void TextEditing::askForAllTags()
{
    const QList<Track> tracks = selectedTracks();
    QList<OtherTags> others;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // they are read from the files
    for (const Track &track : tracks) {
        const std::optional<OtherTags> changed = m_model->changedOtherTags(track.id);
        others.append(changed ? *changed : TagReader::readOthers(track.path));
    }
    QGuiApplication::restoreOverrideCursor();
    auto *dialog = new AllTagsDialog(tracks, others, m_table->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { changeTags(*dialog); });
    dialog->open();
}

void TextEditing::changeTags(const AllTagsDialog &dialog)
{
    const QList<OtherTagsChange> others = dialog.otherChanges();
    const QList<TextChange> texts = m_model->possibleChanges(dialog.textChanges());
    if (others.isEmpty() && texts.isEmpty())
        return;
    m_stack.beginMacro(tr("All Tags"));
    change(tr("All Tags"), texts);
    if (!others.isEmpty())
        m_stack.push(new OtherTagsCommand(tr("All Tags"), m_model, others));
    m_stack.endMacro();
}

void TextEditing::askForNumbers()
{
    auto *dialog = new NumberingDialog(m_table->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { change(tr("Number Tracks"), dialog->changes(selectedTracks())); });
    dialog->open();
}

void TextEditing::updateActions()
{
    const bool isPossible = TableSelection::hasEditableCell(*m_table->selectionModel(), *m_model);
    for (QAction *action : std::as_const(m_forCells))
        action->setEnabled(isPossible);
}

void TextEditing::askForTransform(int transform)
{
    auto *dialog = new TransformDialog(TableSelection::editableCells(*m_table->selectionModel(), *m_model),
                                       transform, m_table->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { perform(*dialog); });
    dialog->open();
}

void TextEditing::perform(const TransformDialog &dialog)
{
    const QString name = dialog.transform().plainName();
    if (!change(name, dialog.changes()))
        Q_EMIT nothingDone(tr("%1: nothing to change").arg(name));
}

bool TextEditing::change(const QString &name, const QList<TextChange> &changes)
{
    const QList<TextChange> possible = m_model->possibleChanges(changes);
    if (!possible.isEmpty())
        m_stack.push(new TextCommand(name, m_model, possible));
    return !possible.isEmpty();
}
