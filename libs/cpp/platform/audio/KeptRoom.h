#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <QtGlobal>
#include <vector>

/// The memory for the sounds that are kept: what of it is in use, and blocks to be used again, so
/// that one sound is read into the memory that another one leaves. All functions can be called from
/// any thread.
class KeptRoom
{
public:
    struct Unmap
    {
        void operator()(char *bytes) const;
    };
    using Block = std::unique_ptr<char[], Unmap>;

    /// All that is kept at one time, in bytes.
    static constexpr qint64 Limit = qint64(128) * 1024 * 1024;
    /// A multiple of every frame's size.
    static constexpr int BlockBytes = 24 * 5461;

    static KeptRoom &instance();

    /// Counts a block as kept; false if there is no room for it.
    bool reserve();
    /// Takes blocks off the count again.
    void release(qint64 blocks = 1);
    /// Bytes that are kept.
    qint64 bytes() const;

    /// A block with any content. Throws std::bad_alloc.
    Block take();
    /// Puts a block by for the next take(), as far as there is room.
    void putBy(Block block);
    /// Frees the blocks that are put by.
    void freeSpare();

    /// A number that becomes another one with every release() and wake().
    std::uint64_t changes() const;
    /// Waits until changes() isn't what the caller has seen any more.
    void waitForChange(std::uint64_t seen);
    void wake();

private:
    KeptRoom() = default;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::uint64_t m_changes = 0;
    qint64 m_blocks = 0; ///< that are kept
    std::vector<Block> m_spare;
};
