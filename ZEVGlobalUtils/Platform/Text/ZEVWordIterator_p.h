// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QByteArray>
#include <QStringView>

#include <memory>
#include <optional>

/// Walks the words of a text (Unicode Standard Annex #29, with the dictionaries of the scripts that are
/// written without spaces); white space, punctuation and symbols between them are none. What breaks the words
/// is kept by each thread for its next walk, so a walk is cheap to begin. One thread at a time.
class ZEVWordIterator {
public:
    /// The characters of \a text must stay where they are. \a localeIdentifier is one of ZEVTextLocale.
    ZEVWordIterator(QStringView text, const QByteArray &localeIdentifier);
    ~ZEVWordIterator();
    Q_DISABLE_COPY_MOVE(ZEVWordIterator)

    /// Nil after the last word.
    std::optional<ZEVRange> next();

private:
    struct Breaker;
    struct Pool;
    std::unique_ptr<Breaker> m_breaker;
    qsizetype m_position = 0;
};
