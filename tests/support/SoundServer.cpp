#include "SoundServer.h"

#include "Literals.h"
#include "MediaMaker.h"
#include <cstring>
#include <QDir>
#include <QFile>

namespace {

/// Of the server's socket and state. Its command line can't take a blank in a path.
QString folder()
{
    return QFile::decodeName(qgetenv("XDG_RUNTIME_DIR")) + u"/sound"_qs;
}

QString socketPath()
{
    return folder() + u"/native"_qs;
}

}

void SoundServer::setEnvironment()
{
    QDir().mkpath(folder());
    qputenv("SDL_AUDIODRIVER", "pulseaudio");
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socketPath()));
    qputenv("PULSE_RUNTIME_PATH", QFile::encodeName(folder()));
    qputenv("PULSE_STATE_PATH", QFile::encodeName(folder()));
    qputenv("PULSE_COOKIE", QFile::encodeName(folder() + u"/cookie"_qs));
}

SoundServer::SoundServer()
{
    QFile::remove(socketPath()); // of one that was killed
    m_server.setStandardOutputFile(QProcess::nullDevice());
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(u"pulseaudio"_qs,
        {u"-n"_qs, u"--daemonize=no"_qs, u"--exit-idle-time=-1"_qs, u"--disable-shm"_qs,
            u"--use-pid-file=no"_qs, u"-L"_qs,
            u"module-null-sink sink_name=out format=float32le rate=48000 channels=2 norewinds=1"_qs,
            u"-L"_qs, u"module-native-protocol-unix auth-anonymous=1 socket="_qs + socketPath()});
    if (!m_server.waitForStarted()
        || !MediaMaker::waitFor([] { return QFile::exists(socketPath()); })) {
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
