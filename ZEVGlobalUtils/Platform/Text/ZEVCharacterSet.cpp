// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>

#include <unicode/uniset.h>

struct ZEVCharacterSet::Private {
    /// Freezing makes look-ups fast and safe from any thread.
    explicit Private(const icu::UnicodeSet &characters)
        : set(characters)
    {
        set.freeze();
    }

    static ZEVCharacterSet withPattern(const char16_t *pattern)
    {
        UErrorCode code = U_ZERO_ERROR;
        const icu::UnicodeSet set(icu::UnicodeString(pattern), code);
        Q_ASSERT(U_SUCCESS(code));
        return ZEVCharacterSet(std::make_shared<const Private>(set));
    }

    icu::UnicodeSet set;
};

ZEVCharacterSet::ZEVCharacterSet(std::shared_ptr<const Private> members)
    : d(std::move(members))
{
    for (char32_t character = 0; character < 0x80; ++character)
        m_ascii[character / 64] |= quint64(isMember(character)) << (character % 64);
}

ZEVCharacterSet ZEVCharacterSet::charactersInString(QStringView characters)
{
    icu::UnicodeSet set;
    const auto length = static_cast<int32_t>(characters.size());
    set.addAll(icu::UnicodeString(false, characters.utf16(), length));
    return ZEVCharacterSet(std::make_shared<const Private>(set));
}

const ZEVCharacterSet &ZEVCharacterSet::whitespace()
{
    static const ZEVCharacterSet set = Private::withPattern(u"[\\p{Zs}\\t]");
    return set;
}

const ZEVCharacterSet &ZEVCharacterSet::letters()
{
    static const ZEVCharacterSet set = Private::withPattern(u"[\\p{L}\\p{M}]");
    return set;
}

const ZEVCharacterSet &ZEVCharacterSet::decimalDigits()
{
    static const ZEVCharacterSet set = Private::withPattern(u"\\p{Nd}");
    return set;
}

ZEVCharacterSet ZEVCharacterSet::inverted() const
{
    const std::unique_ptr<icu::UnicodeSet> set(d->set.cloneAsThawed());
    set->complement();
    return ZEVCharacterSet(std::make_shared<const Private>(*set));
}

bool ZEVCharacterSet::isMember(char32_t character) const
{
    return d->set.contains(static_cast<UChar32>(character));
}
