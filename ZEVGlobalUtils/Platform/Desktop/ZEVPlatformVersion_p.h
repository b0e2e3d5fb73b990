// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

/// The version of the desktop that the controls are drawn for. From 26 on some geometry differs; all that do
/// ask here.
constexpr int ZEVPlatformVersion = 15;
constexpr bool ZEVPlatformIs26OrLater = ZEVPlatformVersion >= 26;
