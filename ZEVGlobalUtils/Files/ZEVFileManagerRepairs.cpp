// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManagerRepairs_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <utility>

namespace {

thread_local void *innermost = nullptr;

} // namespace

ZEVFileManager::Repairs::Repairs(const ZEVFileManager *manager)
    : m_manager(manager)
    , m_outer(static_cast<Repairs *>(innermost))
    , m_isWithinAnother(ofManager(manager) != nullptr)
{
    innermost = this;
}

ZEVFileManager::Repairs::~Repairs() { innermost = m_outer; }

/// The outermost one of the manager.
ZEVFileManager::Repairs *ZEVFileManager::Repairs::ofManager(const ZEVFileManager *manager)
{
    Repairs *repairs = static_cast<Repairs *>(innermost);
    while (repairs && (repairs->m_manager != manager || repairs->m_isWithinAnother))
        repairs = repairs->m_outer;
    return repairs;
}

bool ZEVFileManager::Repairs::begin(const ZEVFileManager *manager, Kind kind, const QUrl &url)
{
    Repairs *repairs = ofManager(manager);
    const std::pair<int, QByteArray> repair(kind, ZEVFileURL::path(url));
    if (!repairs)
        return true; // a host repairs by itself
    if (repairs->m_tried.contains(repair))
        return false;
    repairs->m_tried.insert(repair);
    return true;
}
