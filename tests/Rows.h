// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include <memory>
#include <tuple>

inline QByteArray failedRow(const auto &row, const auto &actual)
{
    const std::unique_ptr<char[]> name(QTest::toString(row)), result(QTest::toString(actual));
    return QByteArray(name.get()).append(" came to ").append(result.get());
}

/// QCOMPARE for a slot that walks through the rows of a table: a failure names its row.
#define COMPARE_ROW(row, actual, expected)                                                                   \
    do {                                                                                                     \
        const auto result = actual;                                                                          \
        QVERIFY2(result == (expected), failedRow(row, result).constData());                                  \
    } while (false)
