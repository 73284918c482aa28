#include "SoundDevice.h"

#include <mutex>
#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace {

/// The library's start and end, and how many devices are open, belong together.
struct Output
{
    std::mutex mutex;
    int openDevices = 0;
    bool isReady = false;
};

Output &output()
{
    // Never destroyed: a thread that hangs in a sound server may outlive the end of main.
    static auto *const instance = new Output;
    return *instance;
}

bool prepare(Output &out)
{
    if (!out.isReady) {
        SDL_SetMainReady();
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        SDL_SetHint(SDL_HINT_APP_NAME, "Calderin M4A");
        SDL_SetHint(SDL_HINT_AUDIO_RESAMPLING_MODE, "medium");
        out.isReady = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    }
    return out.isReady;
}

/// About 20 ms, as a power of two.
Uint16 bufferFrames(int rate)
{
    Uint16 frames = 256;
    while (frames < 8192 && frames * 50 < rate) {
        frames = static_cast<Uint16>(frames * 2);
    }
    return frames;
}

void fillFromClient(void *client, Uint8 *stream, int bytes)
{
    static_cast<SoundDevice::Client *>(client)->fill(
        reinterpret_cast<float *>(stream), bytes / static_cast<int>(2 * sizeof(float)));
}

}

std::unique_ptr<SoundDevice> SoundDevice::open(int rate, Client *client)
{
    SDL_AudioSpec wanted {};
    wanted.freq = rate;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = 2;
    wanted.samples = bufferFrames(rate);
    wanted.callback = fillFromClient;
    wanted.userdata = client;
    SDL_AudioSpec got {};
    std::unique_ptr<SoundDevice> device(new SoundDevice);

    Output &out = output();
    const std::lock_guard<std::mutex> lock(out.mutex);
    if (prepare(out)) {
        device->m_id = SDL_OpenAudioDevice(nullptr, 0, &wanted, &got, 0);
    }
    if (device->m_id == 0 && out.openDevices == 0 && out.isReady) {
        // The server may have gone and come again since: the library keeps its old connection.
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        out.isReady = false;
        if (prepare(out)) {
            device->m_id = SDL_OpenAudioDevice(nullptr, 0, &wanted, &got, 0);
        }
    }
    if (device->m_id == 0) {
        return nullptr;
    }
    ++out.openDevices;
    device->m_latencyFrames = 2 * got.samples;
    return device;
}

SoundDevice::~SoundDevice()
{
    if (m_id != 0) {
        Output &out = output();
        const std::lock_guard<std::mutex> lock(out.mutex);
        SDL_CloseAudioDevice(m_id);
        --out.openDevices;
    }
}

void SoundDevice::setPaused(bool paused) const
{
    SDL_PauseAudioDevice(m_id, paused ? 1 : 0);
}

bool SoundDevice::isLost() const
{
    return SDL_GetAudioDeviceStatus(m_id) == SDL_AUDIO_STOPPED;
}
