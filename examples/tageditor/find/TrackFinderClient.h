// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>

/// Lets a finder search the values of a tag each on its own, so that none is matched or replaced together with
/// its neighbour.
class TrackFinderClient : public ZEVItemModelFinderClient {
    Q_OBJECT

public:
    using ZEVItemModelFinderClient::ZEVItemModelFinderClient;

    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override;
};
