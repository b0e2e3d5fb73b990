// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// The text to find, which all programs of the user share. It lives in a small file of the user's own, in the
/// runtime directory; a damaged file is an empty pasteboard. Main thread.
class ZEVFindPasteboard {
public:
    /// The shared one; nil where the user has no runtime directory.
    static std::optional<ZEVFindPasteboard> findPasteboard();

    /// Grows with every writing, whoever writes; 0 while nobody has.
    qint64 changeCount() const { return contents().changeCount; }

    /// Nil when the pasteboard has no text.
    std::optional<QString> string() const { return contents().string; }

    /// Replaces what is there; nil leaves the pasteboard empty. False when the file cannot be written.
    bool setString(const std::optional<QString> &string);

private:
    struct Contents {
        qint64 changeCount = 0;
        std::optional<QString> string;
    };

    explicit ZEVFindPasteboard(const QString &file)
        : m_file(file)
    {
    }
    Contents contents() const;

    QString m_file;
};
