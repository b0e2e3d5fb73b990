// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVByteCountFormatter.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QLocale>

#include <cmath>

namespace {

struct Unit {
    QStringView key;
    int fractionDigits;
    quint64 step; ///< bytes to one in the last digit that is written
};

constexpr Unit Units[] = {
    {u"%1 bytes", 0, 1},
    {u"%1 KB", 0, 1'000},
    {u"%1 MB", 1, 100'000},
    {u"%1 GB", 2, 10'000'000},
    {u"%1 TB", 2, 10'000'000'000},
    {u"%1 PB", 2, 10'000'000'000'000},
    {u"%1 EB", 2, 10'000'000'000'000'000},
};

/// A count in one unit: 123 with 2 fraction digits is 1.23.
struct Rounded {
    QStringView key;
    quint64 value = 0;
    int fractionDigits = 0;
};

quint64 powerOfTen(int exponent)
{
    quint64 power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

/// The smallest unit in which the count, rounded, stays below 1000.
Rounded rounded(quint64 byteCount)
{
    Rounded result;
    for (const Unit &unit : Units) {
        result = {unit.key, (byteCount + unit.step / 2) / unit.step, unit.fractionDigits};
        if (result.value < 1000 * powerOfTen(unit.fractionDigits))
            break;
    }
    return result;
}

void dropZerosAtEnd(Rounded &number)
{
    while (number.fractionDigits > 0 && number.value % 10 == 0) {
        number.value /= 10;
        --number.fractionDigits;
    }
}

} // namespace

QString ZEVByteCountFormatter::stringFromByteCount(qint64 byteCount) const
{
    if (byteCount == 0)
        return ZEVGlobalHelper::localizedStringForKey(u"Zero KB");
    if (byteCount == 1)
        return ZEVGlobalHelper::localizedStringForKey(u"1 byte");
    const bool isNegative = byteCount < 0;
    Rounded number = rounded(isNegative ? 0 - quint64(byteCount) : quint64(byteCount));
    if (!m_zeroPadsFractionDigits)
        dropZerosAtEnd(number);
    const double magnitude = double(number.value) / double(powerOfTen(number.fractionDigits));
    return ZEVGlobalHelper::localizedStringForKey(number.key)
        .arg(QLocale().toString(isNegative ? -magnitude : magnitude, 'f', number.fractionDigits));
}
