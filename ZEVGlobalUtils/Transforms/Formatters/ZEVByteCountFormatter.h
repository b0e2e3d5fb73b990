// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

/// Writes counts of bytes as file managers do: in decimal units (1 KB is 1000 bytes), bytes and KB whole, MB
/// with one digit, GB and above with two. Reading is safe from any thread.
class ZEV_EXPORT ZEVByteCountFormatter {
public:
    /// Whether zeros at the end of the fraction stay ("1.0 MB"); false at first.
    bool zeroPadsFractionDigits() const { return m_zeroPadsFractionDigits; }
    void setZeroPadsFractionDigits(bool zeroPads) { m_zeroPadsFractionDigits = zeroPads; }

    /// With the numbers of QLocale(). Halves are rounded away from 0, and what is rounded to 1000 of a unit
    /// is written as 1 of the next.
    QString stringFromByteCount(qint64 byteCount) const;

private:
    bool m_zeroPadsFractionDigits = false;
};
