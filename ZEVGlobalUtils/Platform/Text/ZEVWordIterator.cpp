// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVWordIterator_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <unicode/brkiter.h>
#include <unicode/utext.h>

#include <algorithm>
#include <limits>
#include <vector>

struct ZEVWordIterator::Breaker {
    explicit Breaker(const QByteArray &localeIdentifier);
    ~Breaker() { utext_close(&text); }
    Q_DISABLE_COPY_MOVE(Breaker)

    void setText(QStringView newString);
    bool isWordAt(qsizetype begin) const;

    QByteArray locale;
    std::unique_ptr<icu::BreakIterator> words;
    UText text = UTEXT_INITIALIZER;
    QStringView string;
};

ZEVWordIterator::Breaker::Breaker(const QByteArray &localeIdentifier)
    : locale(localeIdentifier)
{
    UErrorCode code = U_ZERO_ERROR;
    words.reset(icu::BreakIterator::createWordInstance(icu::Locale(locale.constData()), code));
    if (U_FAILURE(code)) {
        qCWarning(zevLog) << "No word breaks:" << u_errorName(code) << locale;
        words.reset();
    }
}

/// ICU counts in 32 bits: what a text has beyond them counts as no word.
void ZEVWordIterator::Breaker::setText(QStringView newString)
{
    string = newString;
    const qsizetype length = std::min<qsizetype>(string.size(), std::numeric_limits<int32_t>::max());
    UErrorCode code = U_ZERO_ERROR;
    utext_openUChars(&text, string.utf16(), length, &code);
    if (words)
        words->setText(&text, code);
}

/// Whether the piece that the breaker has just passed is a word. ICU is slow to tell, and of a piece that
/// begins in ASCII its first character tells: only after "_" it depends on what follows.
bool ZEVWordIterator::Breaker::isWordAt(qsizetype begin) const
{
    const char16_t first = string[begin].unicode();
    if (first < 0x80 && first != u'_')
        return QChar::isLetterOrNumber(first);
    return words->getRuleStatus() >= UBRK_WORD_NONE_LIMIT;
}

/// Making a breaker costs as much as breaking hundreds of titles, so each thread keeps those that it made. A
/// walk takes one out, so that walks of one thread may overlap.
struct ZEVWordIterator::Pool {
    static constexpr std::size_t MostKept = 4;

    static Pool &ofThisThread()
    {
        thread_local Pool pool;
        return pool;
    }

    std::unique_ptr<Breaker> take(const QByteArray &locale)
    {
        const auto fits = [&](const auto &breaker) { return breaker->locale == locale; };
        const auto found = std::ranges::find_if(breakers, fits);
        if (found == breakers.end())
            return std::make_unique<Breaker>(locale);
        std::unique_ptr<Breaker> breaker = std::move(*found);
        breakers.erase(found);
        return breaker;
    }

    void giveBack(std::unique_ptr<Breaker> breaker)
    {
        if (breakers.size() == MostKept)
            breakers.erase(breakers.begin());
        breakers.push_back(std::move(breaker));
    }

    std::vector<std::unique_ptr<Breaker>> breakers;
};

ZEVWordIterator::ZEVWordIterator(QStringView text, const QByteArray &localeIdentifier)
    : m_breaker(Pool::ofThisThread().take(localeIdentifier))
{
    m_breaker->setText(text);
}

ZEVWordIterator::~ZEVWordIterator() { Pool::ofThisThread().giveBack(std::move(m_breaker)); }

std::optional<ZEVRange> ZEVWordIterator::next()
{
    if (!m_breaker->words)
        return std::nullopt;
    for (int32_t end = m_breaker->words->next(); end != icu::BreakIterator::DONE;
         end = m_breaker->words->next()) {
        const ZEVRange piece{m_position, end - m_position};
        m_position = end;
        if (m_breaker->isWordAt(piece.location))
            return piece;
    }
    return std::nullopt;
}
