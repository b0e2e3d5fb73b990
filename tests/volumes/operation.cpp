// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

// One operation on files, for scripts that look at what is left when it fails or is killed:
//   operation <name> <source> <destination>

#include <ZEVGlobalUtils/Files/ZEVDataUniqueFileWriting.h>
#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <cstdio>
#include <unistd.h>

namespace {

bool perform(const QByteArray &name, const QUrl &source, const QUrl &destination, ZEVError *error)
{
    ZEVFileManager manager;
    if (name.endsWith("-beside"))
        manager.setFileExistsRecovery(ZEVFileExistsRecoveryKeepBoth);
    if (name.endsWith("-replacing"))
        manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
    if (name == "write")
        return ZEVDataUniqueFileWriting::writeToURLSansOverwrite("written", destination, nullptr, error);
    if (name == "copy-atomic")
        return ZEVFileManagerHelpers::atomicCopyItemAtURL(manager, source, destination, error);
    return name.startsWith("copy") ? manager.copyItemAtURL(source, destination, error)
                                   : manager.moveItemAtURL(source, destination, error);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4)
        return 2;
    [[maybe_unused]] const int marked = access("/zev-begin", F_OK); // what comes before it is the loader's
    ZEVError error;
    if (perform(argv[1], ZEVFileURL::withPath(argv[2]), ZEVFileURL::withPath(argv[3]), &error))
        return 0;
    puts(ZEVFileErrors::fullDescription(error).toUtf8().constData());
    return 1;
}
