// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QUrl;
class ZEVOpenPanel;

namespace ZEVOpenPanelSandbox {

/// Asks for access to the folder of \a url; begins at the nearest folder that exists.
ZEV_EXPORT ZEVOpenPanel sandboxAccessPanelForURL(const QUrl &url);

} // namespace ZEVOpenPanelSandbox
