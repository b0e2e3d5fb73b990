// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVProgress.h>

#include <utility>

namespace {

ZEVProgress *current = nullptr;

} // namespace

ZEVProgress::ZEVProgress(const QString &localizedDescription)
    : m_localizedDescription(localizedDescription)
    , m_outer(std::exchange(current, this))
{
}

ZEVProgress::~ZEVProgress() { current = m_outer; }

const ZEVProgress *ZEVProgress::currentProgress() { return current; }
