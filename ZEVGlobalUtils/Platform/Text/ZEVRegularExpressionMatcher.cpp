// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

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

/// Two ways lead a text into ICU without a copy. An aliased string is the cheaper to begin with, by a seventh
/// of a search over short pieces, but ICU looks at it anew for every match, and it counts in 32 bits.
constexpr qsizetype LongestAlias = 4096;

/// Reading the clock costs more than many an attempt at a match, so it is read at every 256th.
constexpr unsigned AttemptsPerReading = 256;

/// A busy machine must not strike an honest search: only this thread's own time counts.
nanoseconds threadTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + nanoseconds(now.tv_nsec);
}

/// Possessive and atomic parts run over text without the steps that ICU counts, so that it does not ask from
/// within a match. That this also sees a few harmless patterns costs them a little speed.
bool runsUncounted(const QString &pattern)
{
    static constexpr QStringView marks[]{u"*+", u"++", u"?+", u"}+", u"(?>"};
    return std::any_of(std::begin(marks), std::end(marks),
                       [&pattern](QStringView mark) { return pattern.contains(mark); });
}

/// Times the matching of one text. ICU asks it from within a match, every few thousand steps; only when those
/// have taken a while is it asked for the position too, since that question comes at every character and
/// would double the time of a plain search.
class Watch {
public:
    Watch(icu::RegexMatcher &matcher, nanoseconds limit, bool alwaysAsksForPosition)
        : m_matcher(matcher)
        , m_limit(limit)
        , m_alwaysAsksForPosition(alwaysAsksForPosition)
    {
        UErrorCode code = U_ZERO_ERROR;
        m_matcher.setMatchCallback(goOnWithinMatch, this, code);
        askForPosition(alwaysAsksForPosition);
    }

    void restart(qint64 textLength)
    {
        m_textLength = textLength;
        m_running = false;
        m_wasInterrupted = false;
        beginStretch(0);
    }

    void setInterruption(const std::function<bool()> &asked) { m_isInterrupted = asked; }
    bool wasInterrupted() const { return m_wasInterrupted; }

    bool mayGoOn()
    {
        if (m_isInterrupted && m_isInterrupted()) {
            m_wasInterrupted = true;
            return false;
        }
        if (m_limit == 0ns)
            return true;
        const nanoseconds now = threadTime();
        if (!m_running) {
            m_running = true;
            m_textStart = m_stretchStart = now;
        }
        const nanoseconds spent = now - m_stretchStart;
        const nanoseconds limit = m_limit + m_limit * m_textLength / UnitsPerExtraLimit;
        if (spent >= limit / 2)
            askForPosition(true);
        return spent < limit;
    }

    bool mayGoOnFrom(qint64 position, unsigned attempts = 1)
    {
        m_attempts += attempts;
        if (m_attempts < AttemptsPerReading)
            return true;
        m_attempts = 0;
        if (position - m_stretchBegin < HonestStretch)
            return mayGoOn();
        beginStretch(position);
        return true;
    }

    /// Many short matches are as much a way through the text as failed attempts are.
    bool mayGoOnAfterMatch(qint64 end)
    {
        if (m_alwaysAsksForPosition)
            return mayGoOnFrom(end);
        if (end - m_stretchBegin >= HonestStretch)
            beginStretch(end);
        return true;
    }

    nanoseconds charge() const
    {
        const nanoseconds spent = m_running ? threadTime() - m_textStart : nanoseconds(0);
        return std::max(spent, LeastCharge);
    }

private:
    static Watch *from(const void *context) { return static_cast<Watch *>(const_cast<void *>(context)); }
    static UBool goOnWithinMatch(const void *context, int32_t) { return from(context)->mayGoOn(); }
    static UBool goOnFrom(const void *context, int64_t position)
    {
        return from(context)->mayGoOnFrom(position);
    }

    void beginStretch(qint64 position)
    {
        m_stretchBegin = position;
        if (m_running)
            m_stretchStart = threadTime();
        askForPosition(m_alwaysAsksForPosition);
    }

    /// ICU looks at its callback anew before every call, so it may be changed from within one.
    void askForPosition(bool ask)
    {
        if (ask == m_asksForPosition)
            return;
        UErrorCode code = U_ZERO_ERROR;
        m_matcher.setFindProgressCallback(ask ? goOnFrom : nullptr, this, code);
        m_asksForPosition = ask;
    }

    icu::RegexMatcher &m_matcher;
    const nanoseconds m_limit;
    const bool m_alwaysAsksForPosition;
    nanoseconds m_textStart{};
    nanoseconds m_stretchStart{};
    qint64 m_textLength = 0;
    qint64 m_stretchBegin = 0;
    unsigned m_attempts = 0;
    std::function<bool()> m_isInterrupted;
    bool m_wasInterrupted = false;
    bool m_running = false;
    bool m_asksForPosition = false;
};

std::unique_ptr<icu::RegexMatcher> makeMatcher(const icu::RegexPattern &pattern)
{
    UErrorCode code = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> matcher(pattern.matcher(code));
    if (U_FAILURE(code))
        throw std::bad_alloc(); // an expression that compiled lacks nothing else
    return matcher;
}

} // namespace

struct ZEVRegularExpressionMatcher::Private {
    explicit Private(const ZEVRegularExpression &expression);
    ~Private() { utext_close(&text); }
    Q_DISABLE_COPY_MOVE(Private)

    const ZEVSearchPlan &plan() const { return expression.m_compiled->plan; }
    bool wasInterrupted() const { return watch && watch->wasInterrupted(); }
    void setText(QStringView newText);
    void resetMatcher();
    void resetWithAlias();
    void resetWithUText();
    void strike(UErrorCode code);
    bool find();
    bool findByMatcher();
    bool findByPlan();
    bool askMatcher();
    void takeSpan(const ZEVSearchWalk::Span &span);
    void takeSpans(QList<ZEVRange> &ranges, qsizetype offset);
    bool mayGoOn();
    bool isMatchOfMatcher(bool found, UErrorCode code);
    std::optional<ZEVRange> rangeOfMatchersGroup(int group) const;

    const ZEVRegularExpression expression; // keeps alive what the matcher runs
    const std::unique_ptr<icu::RegexMatcher> matcher;
    ZEVSearchWalk walk;
    QStringView view;
    qsizetype begin = 0; // of the last match
    qsizetype end = 0;
    ZEVSearchWalk::State walkState = ZEVSearchWalk::State::IsOver;
    size_t nextSpan = 0; // of those that the walk has
    bool hasMatch = false;
    bool walkHasMatch = false; // else it is the matcher's
    bool matcherHasText = false;
    icu::UnicodeString alias;
    UText text = UTEXT_INITIALIZER;
    std::optional<Watch> watch;
    nanoseconds charged{};
    bool textStruck = false; // or never begun, when the walk is exhausted
    bool anyStruck = false;
};

ZEVRegularExpressionMatcher::Private::Private(const ZEVRegularExpression &usedExpression)
    : expression(usedExpression)
    , matcher(makeMatcher(*expression.m_compiled->icuPattern))
    , walk(expression.m_compiled->plan)
{
    const nanoseconds limit = ZEVRegularExpression::timeLimit();
    if (limit > 0ns)
        watch.emplace(*matcher, limit, runsUncounted(expression.pattern()));
}

void ZEVRegularExpressionMatcher::Private::setText(QStringView newText)
{
    view = newText;
    begin = end = 0;
    hasMatch = false;
    matcherHasText = false;
    if (plan().kind == ZEVSearchPlan::Kind::General)
        resetMatcher();
    else
        walk.setText(newText);
    walkState = ZEVSearchWalk::State::GoesOn;
    nextSpan = 0;
    if (watch)
        watch->restart(newText.size());
    textStruck = charged >= WalkAllowance;
}

/// Over short pieces this costs more than a search by a plan, which seldom needs the matcher.
void ZEVRegularExpressionMatcher::Private::resetMatcher()
{
    matcherHasText = true;
    if (view.size() <= LongestAlias)
        resetWithAlias();
    else
        resetWithUText();
}

void ZEVRegularExpressionMatcher::Private::resetWithAlias()
{
    alias.setTo(false, view.utf16(), static_cast<int32_t>(view.size()));
    matcher->reset(alias);
}

void ZEVRegularExpressionMatcher::Private::resetWithUText()
{
    UErrorCode code = U_ZERO_ERROR;
    utext_openUChars(&text, view.utf16(), view.size(), &code);
    matcher->reset(&text);
}

void ZEVRegularExpressionMatcher::Private::strike(UErrorCode code)
{
    charged += watch ? watch->charge() : 0ns;
    if (!anyStruck)
        qCWarning(zevLog) << "Matching was cut short:" << u_errorName(code) << expression.pattern();
    textStruck = true;
    anyStruck = true;
}

bool ZEVRegularExpressionMatcher::Private::find()
{
    if (textStruck || wasInterrupted())
        return false;
    return plan().kind == ZEVSearchPlan::Kind::General ? findByMatcher() : findByPlan();
}

bool ZEVRegularExpressionMatcher::Private::findByMatcher()
{
    UErrorCode code = U_ZERO_ERROR;
    const bool found = matcher->find(code);
    if (!isMatchOfMatcher(found, code))
        return false;
    if (watch && !watch->mayGoOnAfterMatch(end) && !wasInterrupted())
        strike(U_REGEX_TIME_OUT);
    return true;
}

bool ZEVRegularExpressionMatcher::Private::findByPlan()
{
    for (;;) {
        if (nextSpan < walk.spanCount()) {
            takeSpan(walk.span(nextSpan++));
            return true;
        }
        if (walkState == ZEVSearchWalk::State::IsOver)
            return false;
        if (walkState == ZEVSearchWalk::State::AsksMatcher && askMatcher())
            return true;
        if (walk.reached() > 0 && !mayGoOn()) // which a short text never comes to
            return false;
        walkState = walk.goOn();
        nextSpan = 0;
    }
}

/// What a plan finds is never empty, so that the next match begins where the last one ended or later.
bool ZEVRegularExpressionMatcher::Private::askMatcher()
{
    if (!matcherHasText)
        resetMatcher();
    UErrorCode code = U_ZERO_ERROR;
    const bool found = isMatchOfMatcher(matcher->lookingAt(walk.position(), code), code);
    walkHasMatch = false;
    walkState = ZEVSearchWalk::State::GoesOn;
    walk.goOnFrom(found ? end : walk.position() + 1);
    return found;
}

void ZEVRegularExpressionMatcher::Private::takeSpan(const ZEVSearchWalk::Span &span)
{
    walkHasMatch = true;
    begin = span.begin;
    end = span.end;
}

void ZEVRegularExpressionMatcher::Private::takeSpans(QList<ZEVRange> &ranges, qsizetype offset)
{
    const qsizetype count = ranges.size();
    ranges.resize(count + qsizetype(walk.spanCount() - nextSpan));
    for (ZEVRange *range = ranges.data() + count; nextSpan < walk.spanCount(); ++range, ++nextSpan) {
        const ZEVSearchWalk::Span span = walk.span(nextSpan);
        *range = {offset + span.begin, span.end - span.begin};
    }
}

bool ZEVRegularExpressionMatcher::Private::mayGoOn()
{
    if (watch && !watch->mayGoOnFrom(walk.reached(), walk.attempts()) && !textStruck && !wasInterrupted())
        strike(U_REGEX_TIME_OUT);
    return !textStruck && !wasInterrupted();
}

bool ZEVRegularExpressionMatcher::Private::isMatchOfMatcher(bool found, UErrorCode code)
{
    if (U_FAILURE(code) && !wasInterrupted())
        strike(code);
    if (!found || U_FAILURE(code))
        return false;
    begin = static_cast<qsizetype>(matcher->start64(0, code));
    end = static_cast<qsizetype>(matcher->end64(0, code));
    return true;
}

std::optional<ZEVRange> ZEVRegularExpressionMatcher::Private::rangeOfMatchersGroup(int group) const
{
    UErrorCode code = U_ZERO_ERROR;
    const auto groupBegin = static_cast<qsizetype>(matcher->start64(group, code));
    const auto groupEnd = static_cast<qsizetype>(matcher->end64(group, code));
    if (U_FAILURE(code) || groupBegin < 0)
        return std::nullopt;
    return ZEVRange{groupBegin, groupEnd - groupBegin};
}

ZEVRegularExpressionMatcher::ZEVRegularExpressionMatcher(const ZEVRegularExpression &expression)
    : d(std::make_unique<Private>(expression))
{
}

ZEVRegularExpressionMatcher::~ZEVRegularExpressionMatcher() = default;

void ZEVRegularExpressionMatcher::setInterruption(const std::function<bool()> &asked)
{
    if (!d->watch)
        d->watch.emplace(*d->matcher, 0ns, runsUncounted(d->expression.pattern()));
    d->watch->setInterruption(asked);
}

bool ZEVRegularExpressionMatcher::wasInterrupted() const { return d->wasInterrupted(); }

void ZEVRegularExpressionMatcher::setText(QStringView text) { d->setText(text); }

std::optional<ZEVRange> ZEVRegularExpressionMatcher::findNext()
{
    d->hasMatch = d->find();
    if (!d->hasMatch)
        return std::nullopt;
    return ZEVRange{d->begin, d->end - d->begin};
}

bool ZEVRegularExpressionMatcher::findSome(QList<ZEVRange> &ranges, qsizetype offset)
{
    d->hasMatch = false;
    if (!d->find())
        return false;
    ranges.append({offset + d->begin, d->end - d->begin});
    d->takeSpans(ranges, offset);
    return true;
}

std::optional<ZEVRange> ZEVRegularExpressionMatcher::rangeOfGroup(int group) const
{
    if (!d->hasMatch)
        return std::nullopt;
    if (!d->walkHasMatch)
        return d->rangeOfMatchersGroup(group);
    if (group == 0)
        return ZEVRange{d->begin, d->end - d->begin};
    return d->walk.group(group, {d->begin, d->end});
}

int ZEVRegularExpressionMatcher::numberOfCaptureGroups() const { return d->matcher->groupCount(); }

bool ZEVRegularExpressionMatcher::textReachedLimit() const { return d->textStruck; }

bool ZEVRegularExpressionMatcher::limitReached() const { return d->anyStruck; }

bool ZEVRegularExpressionMatcher::isExhausted() const { return d->charged >= WalkAllowance; }
