// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDragRequest_p.h>

std::unique_ptr<ZEVDragRequest> ZEVDragRequest::ask(WId, QStringView, qint64) { return nullptr; }
