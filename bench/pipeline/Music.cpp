#include "Music.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double turn = 6.283185307179586;
constexpr int subdivisions = 4; // sixteenths

}

Music::Music(int sampleRate, unsigned seed)
    : m_sampleRate(sampleRate)
    , m_random(seed * 7919 + 1)
    , m_beatFrames(sampleRate * 60 / static_cast<int>(84 + m_random() % 60) / subdivisions)
    , m_key(static_cast<int>(m_random() % 12))
    , m_echo(static_cast<std::size_t>(sampleRate) * 2 * 31 / 100, 0.0F)
{
}

double Music::noise()
{
    return static_cast<double>(m_random()) / static_cast<double>(std::minstd_rand::max()) * 2 - 1;
}

double Music::noteFrequency(int semitone) const
{
    return 55.0 * std::pow(2.0, (semitone + m_key) / 12.0);
}

void Music::strike(
    int semitone, double level, double seconds, double pan, int overtones, double vibrato)
{
    Note note;
    const double frequency = noteFrequency(semitone);
    note.step = frequency / m_sampleRate;
    note.level = level;
    note.decay = std::pow(0.001, 1.0 / (seconds * m_sampleRate));
    note.pan = pan;
    note.overtones = std::clamp(static_cast<int>(0.45 * m_sampleRate / frequency), 1, overtones);
    note.vibrato = vibrato;
    m_notes.push_back(note);
}

void Music::startBeat()
{
    static constexpr std::array<std::array<int, 4>, 6> chords {{{0, 4, 7, 11}, {9, 12, 16, 19},
        {5, 9, 12, 16}, {7, 11, 14, 17}, {2, 5, 9, 12}, {4, 7, 11, 14}}};
    const int bar = m_beat / (4 * subdivisions);
    const int step = m_beat % (4 * subdivisions);
    if (step == 0 && bar % 4 == 0) {
        // Parts: intro, verse, chorus, break.
        static constexpr std::array<double, 6> parts {0.08, 0.4, 1.0, 0.03, 0.6, 1.0};
        m_loudness = parts[bar / 4 % parts.size()];
    }
    const auto &chord = chords[(bar + m_random() % 2) % chords.size()];
    if (step % 8 == 0) {
        for (std::size_t i = 0; i < chord.size(); ++i) {
            strike(24 + chord[i], 0.07, 2.5, 0.2 + 0.2 * static_cast<double>(i), 14, 0);
        }
    }
    if (step % 4 == 0 || m_random() % 5 == 0) {
        strike(chord[0], 0.16, 0.9, 0.5, 8, 0);
    }
    if (step % 2 == 0 && m_random() % 3 != 0) {
        strike(36 + chord[m_random() % 4], 0.09, 0.7, 0.35 + 0.3 * (m_random() % 2), 10, 0.004);
    }
    m_kick = step % 8 == 0 || (step == 10 && m_random() % 2 == 0) ? 0.5 : m_kick;
    m_kickPhase = m_kick == 0.5 ? 0 : m_kickPhase;
    m_snare = step % 8 == 4 ? 0.35 : m_snare;
    m_hat = step % 2 == 0 ? 0.12 : m_hat;
    m_notes.erase(std::remove_if(m_notes.begin(), m_notes.end(),
                      [](const Note &note) { return note.level < 1e-5; }),
        m_notes.end());
    ++m_beat;
}

double Music::drums()
{
    const double second = m_sampleRate;
    m_kickPhase += (45 + 400 * m_kick * m_kick) / second;
    const double white = noise();
    const double bright = white - m_lastNoise;
    m_lastNoise = white;
    const double value
        = m_kick * std::sin(turn * m_kickPhase) + m_snare * white * 0.6 + m_hat * bright * 0.5;
    m_kick *= 1 - 9 / second;
    m_snare *= 1 - 22 / second;
    m_hat *= 1 - 70 / second;
    return value;
}

std::vector<float> Music::next(int frames)
{
    std::vector<float> samples;
    samples.reserve(static_cast<std::size_t>(frames) * 2);
    for (int i = 0; i < frames; ++i, ++m_frame) {
        if (m_frame % m_beatFrames == 0) {
            startBeat();
        }
        double left = drums();
        double right = left;
        const double wobble = std::sin(turn * 5.5 * static_cast<double>(m_frame) / m_sampleRate);
        for (Note &note : m_notes) {
            note.phase += note.step * (1 + note.vibrato * wobble);
            // Overtones by the recurrence of the sine, falling with their number.
            const double angle = turn * note.phase;
            const double twice = 2 * std::cos(angle);
            double before = 0, current = std::sin(angle), value = current;
            for (int overtone = 2; overtone <= note.overtones; ++overtone) {
                const double after = twice * current - before;
                before = current;
                current = after;
                value += current / overtone;
            }
            left += value * note.level * (1 - note.pan);
            right += value * note.level * note.pan;
            note.level *= note.decay;
        }
        const double hiss = noise() * 0.0005;
        float *echo = &m_echo[m_echoPosition];
        m_echoPosition = (m_echoPosition + 2) % (m_echo.size() / 2 * 2);
        const auto outLeft = static_cast<float>(left * m_loudness + hiss) + 0.35F * echo[1];
        const auto outRight = static_cast<float>(right * m_loudness - hiss) + 0.35F * echo[0];
        echo[0] = outLeft;
        echo[1] = outRight;
        samples.push_back(std::clamp(outLeft * 0.8F, -1.0F, 1.0F));
        samples.push_back(std::clamp(outRight * 0.8F, -1.0F, 1.0F));
    }
    return samples;
}
