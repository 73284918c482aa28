#pragma once

#include <memory>
#include <QUrl>

class PlayerEngine;

/// Plays one sound or the sound of one video.
///
/// Opened at once, on any thread and without an event loop; the sound device is opened by play() on
/// a thread of its own, so that a sound server that doesn't answer holds nobody up. Times are
/// seconds. One thread at a time may use an object.
class AVAudioPlayer
{
public:
    /// A player for the local file; null if it isn't a sound that can be decoded.
    static std::unique_ptr<AVAudioPlayer> initWithContentsOfURL(const QUrl &url);

    /// Ends the sound; doesn't wait for a device that hangs.
    ~AVAudioPlayer();

    /// Starts or goes on; false if the sound is known not to be playable. Doesn't wait for the
    /// device: isPlaying() is true from here on, and turns false if the device can't be had.
    bool play();

    /// Halts; play() goes on from here.
    void pause();

    /// Halts and lets go of the device; the position stays.
    void stop();

    /// True from play() until pause(), stop(), the sound's end or the loss of the device.
    bool isPlaying() const;

    /// The place of what is heard.
    double currentTime() const;

    /// Moves to the place, limited to the sound.
    void setCurrentTime(double seconds);

    double duration() const;
    int numberOfChannels() const;

    /// 0.0 to 1.0; heard at once.
    void setVolume(float volume);

    /// -1.0 (left only) to 1.0 (right only); heard at once.
    void setPan(float pan);

    /// How often the sound begins again at its end: 0 plays once, below 0 without end.
    void setNumberOfLoops(int loops);

private:
    explicit AVAudioPlayer(std::shared_ptr<PlayerEngine> engine);
    Q_DISABLE_COPY(AVAudioPlayer)

    std::shared_ptr<PlayerEngine> m_engine;
};
