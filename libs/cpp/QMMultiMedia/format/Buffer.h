#pragma once

#include "AudioIO.h"
#include <algorithm>
#include <cstddef>
#include <memory>

namespace QMMultiMedia {

/// An array of elements with a stream's format; owned, not cleared when it is made.
template <typename T> class Buffer : public AudioIO
{
public:
    /// size counts elements; below 1 the buffer is empty and has no array.
    explicit Buffer(int size)
        : m_nSize(std::max(size, 0))
        , m_pData(allocated(m_nSize))
    {
    }
    /// A deep copy; the copy's format is the default one.
    Buffer(const Buffer &other)
        : Buffer(other.m_nSize)
    {
        std::copy_n(other.m_pData.get(), m_nSize, m_pData.get());
    }
    /// A deep copy of the elements; the format stays.
    Buffer &operator=(const Buffer &other) // NOLINT(bugprone-unhandled-self-assignment): handled
    {
        if (this != &other) {
            if (m_nSize != other.m_nSize) {
                m_pData = allocated(other.m_nSize);
                m_nSize = other.m_nSize;
            }
            std::copy_n(other.m_pData.get(), m_nSize, m_pData.get());
        }
        return *this;
    }

    /// In elements.
    int size() const { return m_nSize; }
    /// The array, or null if the buffer is empty; it stays the buffer's.
    T *data() { return m_pData.get(); }
    const T *data() const { return m_pData.get(); }

private:
    static std::unique_ptr<T[]> allocated(int size)
    {
        return std::unique_ptr<T[]>(size > 0 ? new T[static_cast<std::size_t>(size)] : nullptr);
    }

    int m_nSize = 0;
    std::unique_ptr<T[]> m_pData;
};

}
