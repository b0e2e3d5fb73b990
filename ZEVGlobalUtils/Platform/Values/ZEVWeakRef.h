// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

#include <concepts>
#include <cstddef>

/// A reference to a delegate that neither keeps it alive nor outlives it: null once the object has gone. The
/// object is any QObject that implements \a Protocol too; it needs no base class of ours.
template <typename Protocol>
class ZEVWeakRef {
public:
    ZEVWeakRef() = default;
    ZEVWeakRef(std::nullptr_t) { }

    template <typename Object>
    requires std::derived_from<Object, QObject> && std::derived_from<Object, Protocol>
    ZEVWeakRef(Object *object)
        : m_guard(object)
        , m_protocol(object)
    {
    }

    Protocol *get() const { return m_guard ? m_protocol : nullptr; }
    Protocol *operator->() const { return get(); }
    explicit operator bool() const { return get() != nullptr; }

private:
    QPointer<QObject> m_guard;
    Protocol *m_protocol = nullptr;
};
