// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVSearchPlan_p.h>

#include <unicode/regex.h>

struct ZEVRegularExpression::Compiled {
    QString pattern;
    Options options;
    std::unique_ptr<const icu::RegexPattern> icuPattern;
    ZEVSearchPlan plan;
};
