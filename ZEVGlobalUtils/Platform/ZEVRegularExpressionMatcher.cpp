// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVRegularExpressionMatcher.h>

#include <ZEVGlobalUtils/Platform/ZEVLog_p.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression_p.h>

#include <algorithm>
#include <chrono>
#include <new>

#include <time.h>

using namespace std::chrono_literals;
using std::chrono::nanoseconds;

namespace {

/// What the struck texts of one walk may cost together.
constexpr nanoseconds WalkAllowance = 1s;

/// The least that a struck text is charged: the clock is first read some time after the text was begun.
constexpr nanoseconds LeastCharge = 1ms;

/// A search that gets on by this many UTF-16 units within the limit is honest, however long its text.
constexpr qint64 HonestStretch = 65536;

/// One honest attempt may have to run to the end of its text and back, so a long text gets the limit once
/// more for every 4 Mi units of it: several times what such a run takes.
constexpr qint64 UnitsPerExtraLimit = qint64(4) << 20;

/// Reading the clock costs more than a failed attempt at a match, so it is read at every 256th.
constexpr unsigned AttemptsPerReading = 256;

/// A busy machine must not strike an honest search: only this thread's own time counts.
nanoseconds threadTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + nanoseconds(now.tv_nsec);
}

/// Times the matching of one text. ICU asks it from within a match (every few thousand steps) and after each
/// failed attempt, so that neither one endless attempt nor endlessly many short ones go unseen.
class Watch {
public:
    explicit Watch(nanoseconds limit)
        : m_limit(limit)
    {
    }

    void restart(qint64 textLength)
    {
        m_textLimit = m_limit + m_limit * textLength / UnitsPerExtraLimit;
        m_running = false;
        m_stretchBegin = 0;
        m_attempts = 0;
    }

    bool mayGoOn()
    {
        if (m_running)
            return threadTime() - m_stretchStart < m_textLimit;
        m_running = true;
        m_textStart = m_stretchStart = threadTime();
        return true;
    }

    bool mayGoOnFrom(qint64 position)
    {
        if (++m_attempts % AttemptsPerReading != 0)
            return true;
        if (position - m_stretchBegin >= HonestStretch) {
            m_stretchBegin = position;
            m_stretchStart = threadTime();
            return true;
        }
        return mayGoOn();
    }

    nanoseconds charge() const
    {
        const nanoseconds spent = m_running ? threadTime() - m_textStart : nanoseconds(0);
        return std::max(spent, LeastCharge);
    }

private:
    const nanoseconds m_limit;
    nanoseconds m_textLimit{};
    nanoseconds m_textStart{};
    nanoseconds m_stretchStart{};
    qint64 m_stretchBegin = 0;
    unsigned m_attempts = 0;
    bool m_running = false;
};

Watch *watchIn(const void *context) { return static_cast<Watch *>(const_cast<void *>(context)); }

UBool goOnWithinMatch(const void *context, int32_t) { return watchIn(context)->mayGoOn(); }

UBool goOnAfterAttempt(const void *context, int64_t position)
{
    return watchIn(context)->mayGoOnFrom(position);
}

} // namespace

struct ZEVRegularExpressionMatcher::Private {
    explicit Private(const ZEVRegularExpression &expression);
    ~Private() { utext_close(&text); }
    Q_DISABLE_COPY_MOVE(Private)

    void strike(UErrorCode code);

    ZEVRegularExpression expression; // keeps alive what the matcher runs
    std::unique_ptr<icu::RegexMatcher> matcher;
    UText text = UTEXT_INITIALIZER;
    Watch watch;
    nanoseconds charged{};
    bool limited = false;
    bool textStruck = false;
    bool anyStruck = false;
};

ZEVRegularExpressionMatcher::Private::Private(const ZEVRegularExpression &usedExpression)
    : expression(usedExpression)
    , watch(ZEVRegularExpression::timeLimit())
    , limited(ZEVRegularExpression::timeLimit() > 0ms)
{
    UErrorCode code = U_ZERO_ERROR;
    matcher.reset(expression.m_compiled->icuPattern->matcher(code));
    if (limited && U_SUCCESS(code)) {
        matcher->setMatchCallback(goOnWithinMatch, &watch, code);
        matcher->setFindProgressCallback(goOnAfterAttempt, &watch, code);
    }
    if (U_FAILURE(code))
        throw std::bad_alloc(); // an expression that compiled lacks nothing else
}

void ZEVRegularExpressionMatcher::Private::strike(UErrorCode code)
{
    charged += watch.charge();
    if (!anyStruck)
        qCWarning(zevLog) << "Matching was cut short:" << u_errorName(code) << expression.pattern();
    textStruck = true;
    anyStruck = true;
}

ZEVRegularExpressionMatcher::ZEVRegularExpressionMatcher(const ZEVRegularExpression &expression)
    : d(std::make_unique<Private>(expression))
{
}

ZEVRegularExpressionMatcher::~ZEVRegularExpressionMatcher() = default;

void ZEVRegularExpressionMatcher::setText(QStringView text)
{
    UErrorCode code = U_ZERO_ERROR;
    utext_openUChars(&d->text, text.utf16(), text.size(), &code);
    d->matcher->reset(&d->text);
    d->watch.restart(text.size());
    d->textStruck = false;
}

bool ZEVRegularExpressionMatcher::findNext()
{
    if (d->textStruck || isExhausted())
        return false;
    UErrorCode code = U_ZERO_ERROR;
    const bool found = d->matcher->find(code);
    if (U_FAILURE(code)) {
        d->strike(code);
        return false;
    }
    // Many short matches are as much a way through the text as failed attempts are.
    if (found && d->limited && !d->watch.mayGoOnFrom(d->matcher->end64(code)))
        d->strike(U_REGEX_TIME_OUT);
    return found;
}

ZEVRange ZEVRegularExpressionMatcher::matchedRange() const { return rangeOfGroup(0).value_or(ZEVRange()); }

std::optional<ZEVRange> ZEVRegularExpressionMatcher::rangeOfGroup(int group) const
{
    UErrorCode code = U_ZERO_ERROR;
    const qint64 start = d->matcher->start64(group, code);
    const qint64 end = d->matcher->end64(group, code);
    if (U_FAILURE(code) || start < 0)
        return std::nullopt;
    return ZEVRange{static_cast<qsizetype>(start), static_cast<qsizetype>(end - start)};
}

bool ZEVRegularExpressionMatcher::textReachedLimit() const { return d->textStruck; }

bool ZEVRegularExpressionMatcher::limitReached() const { return d->anyStruck; }

bool ZEVRegularExpressionMatcher::isExhausted() const { return d->limited && d->charged >= WalkAllowance; }
