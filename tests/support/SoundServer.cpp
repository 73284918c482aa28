#include "SoundServer.h"

#include "MediaMaker.h"
#include <cstring>
#include <QDir>
#include <QFile>

// The server's own command line can't take a blank in a path.
SoundServer::SoundServer()
    : m_folder(QDir::tempPath() + u"/sound-XXXXXX"_qs)
{
    qputenv("SDL_AUDIODRIVER", "pulseaudio");
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socketPath()));
    qputenv("PULSE_RUNTIME_PATH", QFile::encodeName(m_folder.path()));
    qputenv("PULSE_STATE_PATH", QFile::encodeName(m_folder.path()));
    qputenv("PULSE_COOKIE", QFile::encodeName(m_folder.filePath(u"cookie"_qs)));
    m_server.setStandardOutputFile(QProcess::nullDevice());
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(u"pulseaudio"_qs,
        {u"-n"_qs, u"--daemonize=no"_qs, u"--exit-idle-time=-1"_qs, u"--disable-shm"_qs,
            u"--use-pid-file=no"_qs, u"-L"_qs,
            u"module-null-sink sink_name=out format=float32le rate=48000 channels=2 norewinds=1"_qs,
            u"-L"_qs, u"module-native-protocol-unix auth-anonymous=1 socket="_qs + socketPath()});
    if (!m_server.waitForStarted()
        || !MediaMaker::waitFor([this] { return QFile::exists(socketPath()); })) {
        return;
    }
    m_recorder.setStandardErrorFile(QProcess::nullDevice());
    m_recorder.start(u"parec"_qs,
        {u"-d"_qs, u"out.monitor"_qs, u"--format=float32le"_qs, u"--rate=48000"_qs,
            u"--channels=2"_qs, u"--raw"_qs, u"--latency-msec=10"_qs});
    m_ready = m_recorder.waitForStarted()
        && MediaMaker::waitFor([this] { return m_recorder.bytesAvailable() > 0; });
}

SoundServer::~SoundServer()
{
    m_recorder.kill();
    m_recorder.waitForFinished();
    kill();
}

void SoundServer::kill()
{
    m_server.kill();
    m_server.waitForFinished();
}

std::vector<float> SoundServer::takeRecording()
{
    const QByteArray bytes = m_recorder.read(m_recorder.bytesAvailable() / 8 * 8);
    std::vector<float> samples(static_cast<std::size_t>(bytes.size()) / sizeof(float));
    if (!samples.empty()) {
        std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
    }
    return samples;
}
