// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/RenameDialog.h>

#include <tageditor/files/FileNamePattern.h>
#include <tageditor/text/PreviewTable.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString PatternKey = u"RenamePattern"_s;

} // namespace

RenameDialog::RenameDialog(const QList<Track> &tracks, const QString &folder, QWidget *parent)
    : QDialog(parent)
    , m_model(tracks, folder)
    , m_pattern(new QLineEdit)
    , m_count(new QLabel)
    , m_rename(new QPushButton(tr("&Rename")))
{
    setWindowTitle(tr("Rename Files"));
    layOut();
    m_pattern->setToolTip(tr("“/” makes folders, such as %albumartist%/%album%/%track% - %title%"));
    connect(m_pattern, &QLineEdit::textChanged, this, &RenameDialog::updatePreview);
    const QString last = ZEVUserDefaults::standardUserDefaults()->objectForKey(PatternKey).toString();
    m_pattern->setText(last.isEmpty() ? u"%track% - %title%"_s : last);
    m_pattern->selectAll();
}

void RenameDialog::layOut()
{
    auto *label = new QLabel(tr("&Pattern:"));
    label->setBuddy(m_pattern);
    auto *choices = new QHBoxLayout;
    choices->addWidget(label);
    choices->addWidget(m_pattern, 1);
    choices->addWidget(makePlaceholderButton());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(m_rename, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &RenameDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RenameDialog::reject);
    m_count->setWordWrap(true);

    auto *rows = new QVBoxLayout(this);
    rows->addLayout(choices);
    rows->addWidget(makePreviewTable(&m_model), 1);
    rows->addWidget(m_count);
    rows->addWidget(buttons);
    m_rename->setDefault(true);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 28);
}

/// For those who do not know them by heart.
QWidget *RenameDialog::makePlaceholderButton()
{
    auto *menu = new QMenu(this);
    for (const QString &placeholder : FileNamePattern::placeholders())
        menu->addAction(placeholder, this, [this, placeholder] { m_pattern->insert(placeholder); });
    auto *button = new QToolButton;
    button->setText(tr("&Insert"));
    button->setToolTip(tr("Insert a placeholder for a tag"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(menu);
    return button;
}

void RenameDialog::updatePreview()
{
    m_model.setPattern(m_pattern->text());
    const qsizetype count = m_model.changes().size();
    QString text = tr("%L1 of %Ln files will be renamed", nullptr, m_model.rowCount()).arg(count);
    if (m_model.numberOfConflicts() > 0)
        text += tr("; %Ln names are taken", nullptr, m_model.numberOfConflicts());
    m_count->setText(text);
    m_rename->setEnabled(count > 0);
}

void RenameDialog::accept()
{
    if (!m_rename->isEnabled())
        return;
    ZEVUserDefaults::standardUserDefaults()->setObject(m_pattern->text(), PatternKey);
    QDialog::accept();
}
