#pragma once

#include <atomic>

namespace PlatformVersionDetail {
inline std::atomic_int version {16};
}

/// The system's version as its callers compare it: the minor number of the desktop platform's
/// version plus two. 16 stands for a system on which FLAC decodes, sharing works and a review can
/// be requested.
inline int platformVersion()
{
    return PlatformVersionDetail::version;
}

/// Takes another version for the rest of the process; for the tests of what depends on it.
inline void setPlatformVersion(int nVersion)
{
    PlatformVersionDetail::version = nVersion;
}
