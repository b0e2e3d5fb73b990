// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir desk; // two folders, each with a "Track.mp3"
    for (const QString &name : {u"from"_s, u"to"_s}) {
        QDir(desk.path()).mkdir(name);
        QFile file(desk.filePath(name + u"/Track.mp3"_s));
        if (file.open(QFile::WriteOnly))
            file.write(name.toUtf8());
    }

    QPushButton window(u"&Copy"_s);
    ZEVFileManager manager;
    manager.setShowsConflictDetails(true);
    manager.setFileExistsPolicy([&](const ZEVError &error, const QUrl &, const QUrl &) {
        return manager.userRequestedRecoveryForFileExistsError(error, true);
    });
    QObject::connect(&window, &QPushButton::clicked, [&] {
        const auto track = [&](const QString &in) {
            return QUrl::fromLocalFile(desk.filePath(in + u"/Track.mp3"_s));
        };
        ZEVError error;
        const bool isDone = manager.copyItemAtURL(track(u"from"_s), track(u"to"_s), &error);
        window.setWindowTitle(isDone ? QDir(desk.filePath(u"to"_s)).entryList(QDir::Files).join(u", ")
                                     : ZEVFileErrors::fullDescription(error));
    });
    window.show();
    return application.exec();
}
