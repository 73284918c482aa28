#pragma once

#include <QProcess>
#include <vector>

/// A sound server of the test's own, with an output that nobody hears and everything records. One
/// lives at a time.
class SoundServer
{
public:
    static constexpr int Rate = 48000; ///< of what is recorded, Hz

    /// Leads every player of this process to our servers, and to no other sound system; while none
    /// lives they find nothing. Call it before the first player: their threads read the
    /// environment.
    static void setEnvironment();

    SoundServer();
    ~SoundServer();

    /// Whether it runs and records.
    bool isReady() const { return m_ready; }

    /// Ends the server as a crash would.
    void kill();

    /// What was played since the last call, two interleaved channels.
    std::vector<float> takeRecording();

private:
    Q_DISABLE_COPY(SoundServer)
    QProcess m_server;
    QProcess m_recorder;
    bool m_ready = false;
};
