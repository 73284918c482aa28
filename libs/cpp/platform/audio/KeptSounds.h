#pragma once

#include "SoundReading.h"
#include <list>
#include <memory>
#include <mutex>

/// The readings of the process: those in use, those kept for a second pass, and the hint.
///
/// A sound that was read to its end is kept for one more pass; one that was read ahead on a hint,
/// for two. All functions can be called from any thread, and none waits for a file.
class KeptSounds
{
public:
    static KeptSounds &instance();

    /// A reading of this state of the file that nobody uses, at its beginning; null if there is
    /// none.
    std::shared_ptr<SoundReading> attach(const FileKey &key, const ClientFormat &format);

    /// Takes in a new reading that its caller uses; a hint for the same file is needless then.
    void add(const std::shared_ptr<SoundReading> &reading, const QUrl &url);

    /// The caller's pass is over: keeps the reading or ends it.
    void detach(const std::shared_ptr<SoundReading> &reading);

    /// Whether a kept reading shows that this state of the file can be decoded.
    bool provesReadable(const FileKey &key) const;

    /// Starts reading ahead; an earlier hint that nobody uses is dropped.
    void hint(const QUrl &url, const ClientFormat &format);
    void dropHints();
    void forgetAll();

    /// Forgets the oldest sound that waits for its second pass; false if there is none.
    bool forgetOldest();

private:
    struct Entry
    {
        std::shared_ptr<SoundReading> reading;
        QUrl hintUrl; ///< of a reading ahead that nobody has used yet; else empty
        int passesLeft = 0; ///< after the one at hand
        bool inUse = false;
    };

    KeptSounds() = default;
    template <typename Condition> void removeHints(Condition condition);

    mutable std::mutex m_mutex;
    std::list<Entry> m_entries;
};
