#include "KeptRoom.h"

#include <new>
#include <sys/mman.h>
#include <utility>

namespace {

constexpr qint64 mostBlocks = KeptRoom::Limit / KeptRoom::BlockBytes;

}

void KeptRoom::Unmap::operator()(char *bytes) const
{
    ::munmap(bytes, BlockBytes);
}

KeptRoom &KeptRoom::instance()
{
    // Never destroyed: a thread that reads ahead may outlive the end of main.
    static auto *const room = new KeptRoom;
    return *room;
}

bool KeptRoom::reserve()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_blocks >= mostBlocks) {
        return false;
    }
    ++m_blocks;
    return true;
}

void KeptRoom::release(qint64 blocks)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_blocks -= blocks;
    ++m_changes;
    m_changed.notify_all();
}

qint64 KeptRoom::bytes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_blocks * BlockBytes;
}

KeptRoom::Block KeptRoom::take()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_spare.empty()) {
            Block block = std::move(m_spare.back());
            m_spare.pop_back();
            return block;
        }
    }
    void *bytes
        = ::mmap(nullptr, BlockBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bytes == MAP_FAILED) {
        throw std::bad_alloc();
    }
    // The converter's process is made by a fork: without all these pages, which would have to be
    // shared and taken apart again each time.
    ::madvise(bytes, BlockBytes, MADV_DONTFORK);
    return Block(static_cast<char *>(bytes));
}

void KeptRoom::putBy(Block block)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_blocks + static_cast<qint64>(m_spare.size()) < mostBlocks) {
        try {
            m_spare.push_back(std::move(block));
        } catch (const std::bad_alloc &) { // then it is freed
        }
    }
}

void KeptRoom::freeSpare()
{
    std::vector<Block> spare;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_spare.swap(spare);
}

std::uint64_t KeptRoom::changes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_changes;
}

void KeptRoom::waitForChange(std::uint64_t seen)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this, seen] { return m_changes != seen; });
}

void KeptRoom::wake()
{
    release(0);
}
