// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

#include <QApplication>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QLabel>
#include <QMimeDatabase>
#include <QSortFilterProxyModel>

#include <algorithm>

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

QStringList patternsOfTypes(const QStringList &types)
{
    const auto isAny = [](const QString &allowed) {
        return ZEVUniformType::conformsTo(u"application/octet-stream", allowed);
    };
    if (std::ranges::any_of(types, isAny)) // a file of whatever name
        return {};
    QStringList patterns;
    for (const QMimeType &type : QMimeDatabase().allMimeTypes()) {
        const auto isAllowed = [&](const QString &allowed) {
            return ZEVUniformType::conformsTo(type.name(), allowed);
        };
        if (std::ranges::any_of(types, isAllowed))
            patterns += type.globPatterns();
    }
    patterns.removeDuplicates();
    return patterns;
}

/// Folders stay, to go on into.
class ExecutablesModel : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        const auto *files = static_cast<const QFileSystemModel *>(sourceModel());
        const QFileInfo info = files->fileInfo(files->index(row, 0, parent));
        return info.isDir() || info.isExecutable();
    }
};

void setUpForFolders(QFileDialog &dialog)
{
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
}

void setUpForFiles(QFileDialog &dialog, const ZEVOpenPanel &panel)
{
    dialog.setFileMode(QFileDialog::ExistingFile);
    const QStringList patterns = patternsOfTypes(panel.allowedContentTypes);
    if (!patterns.isEmpty())
        dialog.setNameFilter(panel.allowedFilesName + u'(' + patterns.join(u' ') + u')');
    if (!panel.onlyExecutables)
        return;
    dialog.setOption(QFileDialog::DontUseNativeDialog); // which has no such filter
    dialog.setProxyModel(new ExecutablesModel(&dialog));
}

void configure(QFileDialog &dialog, const ZEVOpenPanel &panel)
{
    if (panel.canChooseFiles)
        setUpForFiles(dialog, panel);
    else
        setUpForFolders(dialog);
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
