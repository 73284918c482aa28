#pragma once

#include "Literals.h"
#include <QProcess>
#include <QTemporaryDir>
#include <vector>

/// A sound server of the test's own, with an output that nobody hears and everything records.
///
/// The environment leads the program's players to it for as long as it lives.
class SoundServer
{
public:
    static constexpr int Rate = 48000; ///< of what is recorded, Hz

    SoundServer();
    ~SoundServer();

    /// Whether it runs and records.
    bool isReady() const { return m_ready; }

    /// Ends the server as a crash would.
    void kill();

    /// What was played since the last call, two interleaved channels.
    std::vector<float> takeRecording();

    /// Where the players look for the server.
    QString socketPath() const { return m_folder.filePath(u"native"_qs); }

private:
    Q_DISABLE_COPY(SoundServer)
    QTemporaryDir m_folder;
    QProcess m_server;
    QProcess m_recorder;
    bool m_ready = false;
};
