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

} // namespace

int ZEVOpenPanel::runModal()
{
    if (const Runner runner = hostRunner())
        return runner(*this);
    QFileDialog dialog(QApplication::activeWindow(), title);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (!message.isEmpty())
        addMessage(dialog, message);
    dialog.setLabelText(QFileDialog::Accept, prompt);
    dialog.setDirectoryUrl(directoryURL);
    if (dialog.exec() != QDialog::Accepted)
        return CancelResponse;
    URL = dialog.selectedUrls().value(0);
    return OKResponse;
}

ZEVOpenPanel::Runner ZEVOpenPanel::setRunner(const Runner &runner)
{
    return std::exchange(hostRunner(), runner);
}
