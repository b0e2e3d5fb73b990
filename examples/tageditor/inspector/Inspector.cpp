// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/inspector/Inspector.h>

#include <tageditor/find/FindInterfaces.h>
#include <tageditor/find/TagTokens.h>
#include <tageditor/inspector/FieldUndo.h>
#include <tageditor/inspector/TagField.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVShortDateFormatter.h>

#include <QApplication>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

/// A line each; a number has its total beside it.
constexpr TrackField LineFields[]{
    TrackField::Title, TrackField::Artist, TrackField::Album,  TrackField::AlbumArtist, TrackField::Composer,
    TrackField::Genre, TrackField::Year,   TrackField::Number, TrackField::Disc,
};

/// The least that is to be seen of a comment, in lines.
constexpr int CommentLines = 3;

constexpr qint64 NanosecondsPerMillisecond = 1'000'000;

/// A line between two values of a comment, which may have lines of its own.
const QString ValueRule = QStringLiteral("\n⸻\n");

} // namespace

Inspector::Inspector(TrackTableModel *model, const QItemSelectionModel *selection, TextEditing *editing,
                     QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_selection(selection)
    , m_editing(editing)
    , m_tokens(new ZEVPatternTokens({TagTokens::fieldTokens(), {TagTokens::nextValue()}}, this))
    , m_comment(new QPlainTextEdit)
    , m_commentFind(new ZEVFindPlace(m_comment, std::make_unique<FindBar>()))
    , m_files(new QLabel)
{
    layOut();
    m_commentFind->setKeysEnabled(false); // the window's menu has them
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *before, const QWidget *now) {
        if (now && m_commentFind->isAncestorOf(before) && !m_commentFind->isAncestorOf(now))
            commitComment();
    });
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Inspector::showTracks);
    const auto showSoon = [this] { m_timer.start(0); };
    connect(selection, &QItemSelectionModel::selectionChanged, this, [this, showSoon] {
        commit(); // for the tracks that were shown
        showSoon();
    });
    connect(model, &QAbstractItemModel::dataChanged, this, showSoon);
    connect(model, &QAbstractItemModel::modelReset, this, &Inspector::showTracks);
    showTracks();
}

Inspector::~Inspector() = default;

void Inspector::layOut()
{
    auto *rows = new QVBoxLayout(this);
    auto *grid = new QGridLayout;
    addFields(grid);
    rows->setSpacing(grid->verticalSpacing());
    auto *label = new QLabel(tr("&Comment:"));
    label->setBuddy(m_comment);
    m_comment->setAccessibleName(TrackTableModel::titleForField(TrackField::Comment));
    m_comment->setTabChangesFocus(true);
    m_comment->installEventFilter(this);
    m_comment->setMinimumHeight(CommentLines * fontMetrics().lineSpacing());
    rows->addLayout(grid);
    rows->addWidget(label);
    rows->addWidget(m_commentFind, 1);
    m_files->setTextFormat(Qt::PlainText);
    m_files->setWordWrap(true);
    rows->addWidget(m_files);
}

bool Inspector::eventFilter(QObject *watched, QEvent *event)
{
    const bool isComments = watched == m_comment;
    if (isComments && FieldUndo::passesOn(event, *m_comment->document()))
        return true;
    if (isComments && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape && putCommentBack())
            return true;
        const bool isUntouched = m_comment->document()->isEmpty() && m_shownComment.isEmpty();
        if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && isUntouched)
            emptyMixed(TrackField::Comment);
    }
    return QWidget::eventFilter(watched, event);
}

/// Labels with letters for the keyboard, as far as the menus leave some in every language.
QString Inspector::label(TrackField field)
{
    switch (field) {
    case TrackField::Title:
        return tr("T&itle:");
    case TrackField::Artist:
        return tr("Artist:");
    case TrackField::Album:
        return tr("A&lbum:");
    case TrackField::AlbumArtist:
        return tr("Album ar&tist:");
    case TrackField::Composer:
        return tr("Com&poser:");
    case TrackField::Genre:
        return tr("Genre:");
    case TrackField::Year:
        return tr("&Year:");
    case TrackField::Number:
        return tr("Track:");
    case TrackField::Disc:
        return tr("&Disc:");
    default:
        return {};
    }
}

void Inspector::addFields(QGridLayout *grid)
{
    for (const TrackField field : LineFields) {
        const int row = grid->rowCount();
        auto *label = new QLabel(Inspector::label(field));
        TagField *editor = addField(field);
        label->setBuddy(editor);
        grid->addWidget(label, row, 0);
        const std::optional<TrackField> total = totalOf(field);
        grid->addWidget(editor, row, 1, 1, total ? 1 : 3);
        if (!total)
            continue;
        grid->addWidget(new QLabel(tr("of", "between a track's number and the number of tracks")), row, 2);
        grid->addWidget(addField(*total), row, 3);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
}

TagField *Inspector::addField(TrackField field)
{
    auto *editor = new TagField(m_tokens);
    editor->setAccessibleName(TrackTableModel::titleForField(field));
    const size_t row = m_fields.size();
    m_fields.push_back({field, editor, {}});
    connect(editor, &TagField::editingFinished, this, [this, row] { commitField(m_fields.at(row)); });
    connect(editor, &TagField::cancelled, this, [this, row] { putBack(m_fields.at(row)); });
    connect(editor, &TagField::emptied, this, [this, field] { emptyMixed(field); });
    return editor;
}

/// Unreadable tracks have no tags to show.
void Inspector::showTracks()
{
    m_timer.stop();
    m_trackIds.clear();
    for (const int row : TableSelection::rows(*m_selection)) {
        if (m_model->track(row).isReadable())
            m_trackIds.append(m_model->track(row).id);
    }
    for (Row &row : m_fields)
        showField(row);
    showComment();
    showFiles();
    setEnabled(!m_trackIds.isEmpty());
}

/// Nil where the tracks differ.
std::optional<QString> Inspector::commonText(TrackField field) const
{
    std::optional<QString> common;
    for (const int id : m_trackIds) {
        const QString &text = m_model->trackWithId(id).text(field);
        if (common && *common != text)
            return std::nullopt;
        common = text;
    }
    return common.value_or(QString());
}

void Inspector::putBack(Row &row)
{
    row.editor->setObjectValue(row.shown);
    row.editor->textStorage()->clearUndoRedoStacks();
    row.editor->selectAll();
}

/// False where nothing was typed.
bool Inspector::putCommentBack()
{
    if (m_comment->toPlainText() == m_shownComment)
        return false;
    m_comment->setPlainText(m_shownComment);
    return true;
}

/// What the tracks differ in is emptied for all of them.
void Inspector::emptyMixed(TrackField field)
{
    if (!commonText(field))
        change(field, {});
}

/// What is being typed stays.
void Inspector::showField(Row &row)
{
    const std::optional<QString> text = commonText(row.field);
    const QVariantList shown = TagTokens::pattern(text.value_or(QString()));
    row.editor->setPlaceholderText(text ? QString() : tr("Mixed"));
    row.editor->setToolTip(text ? QString()
                                : tr("The tracks differ. The Delete key empties this tag of all."));
    const bool isBeingTyped = row.editor->hasFocus() && row.editor->objectValue() != row.shown;
    if (!isBeingTyped) {
        row.editor->setObjectValue(shown);
        row.editor->textStorage()->clearUndoRedoStacks(); // also where the tracks before had the same text
    }
    row.shown = isBeingTyped ? shown : row.editor->objectValue();
}

void Inspector::showComment()
{
    const std::optional<QString> text = commonText(TrackField::Comment);
    m_comment->setPlaceholderText(text ? QString() : tr("Mixed"));
    m_comment->setToolTip(text ? QString()
                               : tr("The tracks differ. The Delete key empties this tag of all."));
    const bool isBeingTyped = m_commentFind->hasFocusWithin() && m_comment->toPlainText() != m_shownComment;
    const QString shown = text.value_or(QString()).replace(TagValues::Separator, ValueRule);
    if (!isBeingTyped && m_comment->toPlainText() != shown) // else the cursor stays
        m_comment->setPlainText(shown);
    if (!isBeingTyped)
        m_comment->document()->clearUndoRedoStacks();
    m_shownComment = isBeingTyped ? shown : m_comment->toPlainText();
}

void Inspector::showFiles()
{
    QVariantList sizes;
    qint64 modified = 0;
    for (const int id : std::as_const(m_trackIds)) {
        const Track &track = m_model->trackWithId(id);
        sizes.append(track.fileSize);
        modified = std::max(modified, track.stamp.value_or(FileStamp()).modified);
    }
    if (sizes.isEmpty())
        return m_files->clear();
    const QString size = FileSizeTransformer().transformedValue(sizes).toString();
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(modified / NanosecondsPerMillisecond);
    m_files->setText(
        tr("%1, changed %2").arg(size, ZEVShortDateFormatter::sharedInstance().stringFromDate(date)));
}

void Inspector::commit()
{
    for (Row &row : m_fields)
        commitField(row);
    commitComment();
}

void Inspector::commitField(Row &row)
{
    const QVariantList typed = row.editor->objectValue();
    if (typed == row.shown)
        return;
    row.shown = typed;
    change(row.field, typed);
}

void Inspector::commitComment()
{
    const QString typed = m_comment->toPlainText();
    if (typed == m_shownComment)
        return;
    m_shownComment = typed;
    change(TrackField::Comment, {QString(typed).replace(ValueRule, TagValues::Separator)});
}

void Inspector::change(TrackField field, const QVariantList &pattern)
{
    QList<TextChange> changes;
    for (const int id : std::as_const(m_trackIds)) {
        if (m_model->hasTrack(id))
            changes.append({id, field, TagTokens::filledIn(pattern, m_model->trackWithId(id))});
    }
    m_editing->change(tr("Edit %1").arg(TrackTableModel::titleForField(field)), changes);
    m_timer.start(0); // also where nothing was changed: the field shows what the tracks hold
}
