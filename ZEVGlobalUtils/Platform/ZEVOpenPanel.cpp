// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVOpenPanel.h>

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>

namespace {

ZEVOpenPanel::Runner &hostRunner()
{
    static ZEVOpenPanel::Runner runner;
    return runner;
}

/// The desktop's own dialogs have no room for a message, Qt's has some above its rows.
void addMessage(QFileDialog &dialog, const QString &message)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    if (!grid)
        return;
    auto *label = new QLabel(message);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    grid->addWidget(label, grid->rowCount(), 0, 1, grid->columnCount());
}

void configure(QFileDialog &dialog, const ZEVOpenPanel &panel)
{
    const bool choosesFile = !panel.nameFilter.isEmpty();
    dialog.setFileMode(choosesFile ? QFileDialog::ExistingFile : QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly, !choosesFile);
    if (choosesFile)
        dialog.setNameFilter(panel.nameFilter);
    if (!panel.message.isEmpty())
        addMessage(dialog, panel.message);
    if (!panel.prompt.isEmpty())
        dialog.setLabelText(QFileDialog::Accept, panel.prompt);
    dialog.setDirectoryUrl(panel.directoryURL);
}

} // namespace

/// The window may go while the dialog is open, and takes it along.
int ZEVOpenPanel::runModal()
{
    if (const Runner runner = hostRunner())
        return runner(*this);
    const QPointer<QFileDialog> dialog =
        new QFileDialog(window ? window.data() : QApplication::activeWindow(), title);
    configure(*dialog, *this);
    if (window)
        dialog->setWindowModality(Qt::WindowModal);
    const int result = dialog->exec();
    if (!dialog)
        return CancelResponse;
    URL = dialog->selectedUrls().value(0);
    delete dialog;
    return result == QDialog::Accepted ? OKResponse : CancelResponse;
}

ZEVOpenPanel::Runner ZEVOpenPanel::setRunner(const Runner &runner)
{
    return std::exchange(hostRunner(), runner);
}
