// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVLocalizedStandardCompare_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVTextLocale.h>

#include <unicode/coll.h>

#include <memory>

namespace {

std::unique_ptr<icu::Collator> makeCollator(const QByteArray &locale)
{
    UErrorCode code = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale(locale.constData()), code));
    if (collator)
        collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, code);
    return U_SUCCESS(code) ? std::move(collator) : nullptr;
}

/// Dear to make, so each thread keeps the one of its last locale.
const icu::Collator *collator()
{
    thread_local QByteArray lastLocale;
    thread_local std::unique_ptr<icu::Collator> last;
    const QByteArray &locale = ZEVTextLocale::userIdentifier();
    if (!last || locale != lastLocale) {
        last = makeCollator(locale);
        lastLocale = locale;
    }
    return last.get();
}

} // namespace

int ZEVLocalizedStandardCompare(QStringView one, QStringView other)
{
    const icu::Collator *names = collator();
    if (!names)
        return one.compare(other, Qt::CaseInsensitive);
    UErrorCode code = U_ZERO_ERROR;
    return names->compare(one.utf16(), int32_t(one.size()), other.utf16(), int32_t(other.size()), code);
}
