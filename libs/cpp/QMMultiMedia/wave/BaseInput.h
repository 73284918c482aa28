#pragma once

#include "AudioIO.h"

namespace QMMultiMedia {

/// Base of everything that samples are read from.
class BaseInput : public AudioIO
{
public:
    /// In Hz.
    unsigned int sampleRate() const { return settings().sampleRate(); }
    short channels() const { return settings().channels(); }
    short bitsPerSample() const { return settings().bitsPerSample(); }
    /// One of Settings::Format.
    virtual short fmt() const;
    const char *name() const override;
};

}
