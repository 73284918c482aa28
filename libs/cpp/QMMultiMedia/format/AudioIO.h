#pragma once

#include "Settings.h"

namespace QMMultiMedia {

/// Base of everything that holds a stream's format; 48 kHz, two channels, 16 bits at first.
class AudioIO
{
public:
    AudioIO() = default;
    AudioIO(const AudioIO &) = default;
    AudioIO &operator=(const AudioIO &) = default;
    virtual ~AudioIO() = default;

    virtual const Settings &settings() const;
    virtual void setSettings(const Settings &settings);
    /// Logs the name.
    virtual void dump() const;
    virtual const char *name() const;

protected:
    Settings m_settings {48000, 2, 1, 16};
};

}
