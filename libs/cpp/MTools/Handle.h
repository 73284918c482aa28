#pragma once

#include "Error.h"
#include "Literals.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace MTools {

/// A shared holder of an object of its own, counted by a plain number.
///
/// The count isn't atomic: a handle and its copies belong to one thread. A null handle has no
/// control record; dereferencing it throws Error("Null handle"). The last handle deletes the object
/// through its (virtual) destructor.
template <typename T> class Handle
{
public:
    Handle() = default;
    Handle(std::nullptr_t) { } // NOLINT(google-explicit-constructor): null is a handle
    /// Takes the object over; null gives a null handle.
    explicit Handle(T *object)
    {
        if (object != nullptr) {
            std::unique_ptr<T> owner(object);
            m_pControl = std::make_unique<Control>(Control {1, std::move(owner)}).release();
        }
    }
    Handle(const Handle &other)
        : m_pControl(other.m_pControl)
    {
        if (m_pControl != nullptr) {
            ++m_pControl->count;
        }
    }
    Handle(Handle &&other) noexcept
        : m_pControl(std::exchange(other.m_pControl, nullptr))
    {
    }
    Handle &operator=(const Handle &other)
    {
        if (this != &other) {
            Handle copy(other);
            std::swap(m_pControl, copy.m_pControl);
        }
        return *this;
    }
    Handle &operator=(Handle &&other) noexcept
    {
        std::swap(m_pControl, other.m_pControl);
        return *this;
    }
    ~Handle()
    {
        if (m_pControl != nullptr && --m_pControl->count == 0) {
            const std::unique_ptr<Control> last(m_pControl);
        }
    }

    bool isNull() const { return m_pControl == nullptr; }
    explicit operator bool() const { return m_pControl != nullptr; }
    /// The object, or null; it stays this handle's.
    T *get() const { return m_pControl != nullptr ? m_pControl->object.get() : nullptr; }
    /// The number of handles on the object; 0 for a null handle.
    std::int64_t count() const { return m_pControl != nullptr ? m_pControl->count : 0; }

    T *operator->() const { return checked(); }
    T &operator*() const { return *checked(); }

    bool operator==(const Handle &other) const { return m_pControl == other.m_pControl; }
    bool operator!=(const Handle &other) const { return m_pControl != other.m_pControl; }

private:
    struct Control
    {
        std::int64_t count;
        std::unique_ptr<T> object;
    };

    T *checked() const
    {
        if (m_pControl == nullptr) {
            throw Error(u"Null handle"_qs);
        }
        return m_pControl->object.get();
    }

    Control *m_pControl = nullptr;
};

}
