// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScore.h>

#include <QList>
#include <QStringList>

#include <memory>

/// One typed abbreviation made ready to be scored against any number of texts, with the scores of
/// ZEVStringScore. A copy shares what was made ready; reading is safe from any thread.
class ZEV_EXPORT ZEVStringScorer {
public:
    struct Match {
        double score = 0;
        QList<ZEVRange> ranges; ///< what was met in the text, accents included, joined, in text order
    };
    struct Ranked {
        qsizetype index = 0; ///< in the list as given
        double score = 0;
    };

    explicit ZEVStringScorer(QStringView abbreviation, std::optional<float> fuzziness = 1.0F,
                             ZEVStringScore::Options options = ZEVStringScore::None);

    double score(QStringView string) const;

    /// The score, and the ranges to highlight; none with a score of 0.
    Match match(QStringView string) const;

    /// All of \a candidates, each scored once: by falling score, and as given where that is the same.
    QList<Ranked> ranking(const QStringList &candidates) const;

    /// What of a text counts. A host that scores the same texts at every key press keeps this of each, and
    /// hands it to the others.
    static QString cleanedString(QStringView string);
    double scoreOfCleaned(QStringView cleaned) const;
    QList<Ranked> rankingOfCleaned(const QStringList &cleaned) const;

private:
    struct Private;
    std::shared_ptr<const Private> d;
};
