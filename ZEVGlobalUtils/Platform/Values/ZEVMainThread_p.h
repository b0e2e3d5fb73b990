// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace ZEVMainThread {

bool isMainThread();

/// Runs \a work on the main thread and returns when it is done: at once when called there, else through the
/// main thread's events, so that it must not wait for the caller. False when \a work was not and will not be
/// run, because there is no application or it quits: nobody waits for a loop that has ended.
bool callAndWait(const std::function<void()> &work);

} // namespace ZEVMainThread
