#pragma once

#include <memory>
#include <QtGlobal>

/// The system's sound output: two channels of floats, asked for by a callback on a thread of its
/// own.
///
/// Opening and closing can block for as long as the sound server likes: never on a thread that
/// somebody waits for.
class SoundDevice
{
public:
    /// Gives the samples that are played next.
    class Client
    {
    public:
        virtual ~Client() = default;

        /// Fills frames of two interleaved floats; on the device's thread.
        virtual void fill(float *samples, int frames) = 0;
    };

    /// Opens the default output at this rate (Hz); null if there is none. The client must live
    /// until the device is closed.
    static std::unique_ptr<SoundDevice> open(int rate, Client *client);

    /// Closes it.
    ~SoundDevice();

    /// Frames that were asked for and not yet heard, at most.
    int latencyFrames() const { return m_latencyFrames; }

    /// While paused the client isn't asked.
    void setPaused(bool paused) const;

    /// Whether the device went away.
    bool isLost() const;

private:
    SoundDevice() = default;
    Q_DISABLE_COPY(SoundDevice)

    unsigned m_id = 0;
    int m_latencyFrames = 0;
};
