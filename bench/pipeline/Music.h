#pragma once

#include <cstdint>
#include <random>
#include <vector>

/// Music-like stereo sound, made on the spot: chords and a bass with decaying overtones, a lead
/// with vibrato, drums, echoes, and parts of different loudness from near silence to a full mix.
class Music
{
public:
    /// Two pieces with different seeds differ in tempo, key, harmony and drums.
    Music(int sampleRate, unsigned seed);

    /// The next frames, interleaved left and right, full scale being 1.
    std::vector<float> next(int frames);

private:
    struct Note
    {
        double phase = 0;
        double step = 0; ///< turns per frame
        double level = 0;
        double decay = 1; ///< factor per frame
        double pan = 0.5;
        int overtones = 1;
        double vibrato = 0;
    };

    void startBeat();
    void strike(
        int semitone, double level, double seconds, double pan, int overtones, double vibrato);
    double noteFrequency(int semitone) const;
    double drums();
    double noise();

    int m_sampleRate;
    std::minstd_rand m_random;
    int m_beatFrames;
    int m_key;
    std::int64_t m_frame = 0;
    int m_beat = 0;
    double m_loudness = 0.1;
    double m_kick = 0, m_kickPhase = 0, m_snare = 0, m_hat = 0, m_lastNoise = 0;
    std::vector<Note> m_notes;
    std::vector<float> m_echo;
    std::size_t m_echoPosition = 0;
};
