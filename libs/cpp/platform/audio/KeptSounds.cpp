#include "KeptSounds.h"

#include <algorithm>

KeptSounds &KeptSounds::instance()
{
    // Never destroyed: a thread that reads ahead may outlive the end of main.
    static auto *const sounds = new KeptSounds;
    return *sounds;
}

std::shared_ptr<SoundReading> KeptSounds::attach(const FileKey &key, const ClientFormat &format)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Entry &entry : m_entries) {
        if (!entry.inUse && entry.passesLeft > 0 && entry.reading->matches(key, format)
            && entry.reading->beginPass(entry.passesLeft == 1)) {
            entry.inUse = true;
            entry.hintUrl.clear();
            --entry.passesLeft;
            return entry.reading;
        }
    }
    return nullptr;
}

void KeptSounds::add(const std::shared_ptr<SoundReading> &reading, const QUrl &url)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    removeHints([&url](const Entry &entry) { return entry.hintUrl == url; });
    m_entries.push_back({reading, {}, 1, true});
}

void KeptSounds::detach(const std::shared_ptr<SoundReading> &reading)
{
    if (!reading->isWhole()) {
        reading->cancel();
    }
    // While it still is in use: the next user would join the same thread.
    reading->join();
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
        [&](const Entry &entry) { return entry.reading == reading; });
    if (found != m_entries.end() && found->passesLeft > 0 && reading->isWhole()) {
        found->inUse = false;
    } else if (found != m_entries.end()) {
        m_entries.erase(found);
    }
}

bool KeptSounds::provesReadable(const FileKey &key) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::any_of(m_entries.begin(), m_entries.end(),
        [&](const Entry &entry) { return !entry.inUse && entry.reading->provesReadable(key); });
}

void KeptSounds::hint(const QUrl &url, const ClientFormat &format)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool known = std::any_of(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
        return entry.hintUrl == url && entry.reading->format() == format
            && !entry.reading->isUseless();
    });
    if (!known) {
        removeHints([](const Entry &) { return true; });
        m_entries.push_back({SoundReading::startHint(url, format), url, 2, false});
    }
}

void KeptSounds::dropHints()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    removeHints([](const Entry &) { return true; });
}

template <typename Condition> void KeptSounds::removeHints(Condition condition)
{
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        if (!entry->hintUrl.isEmpty() && condition(*entry)) {
            entry->reading->cancel();
            entry = m_entries.erase(entry);
        } else {
            ++entry;
        }
    }
}

void KeptSounds::forgetAll()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    KeptRoom::instance().freeSpare();
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        if (entry->inUse) {
            entry->passesLeft = 0;
            entry->reading->stopKeeping();
            ++entry;
        } else {
            entry->reading->cancel();
            entry = m_entries.erase(entry);
        }
    }
}

bool KeptSounds::forgetOldest()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
        [](const Entry &entry) { return !entry.inUse && entry.hintUrl.isEmpty(); });
    if (found == m_entries.end()) {
        return false;
    }
    m_entries.erase(found);
    return true;
}
