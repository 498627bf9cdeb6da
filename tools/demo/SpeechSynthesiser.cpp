// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/SpeechSynthesiser.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace demo {
namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;
constexpr std::size_t kFormants = 3;

struct Vowel {
    std::array<double, kFormants> frequencies; // Hz
};

constexpr std::array<Vowel, 6> kVowels{{{{730, 1090, 2440}},
                                        {{530, 1840, 2480}},
                                        {{270, 2290, 3010}},
                                        {{570, 840, 2410}},
                                        {{300, 870, 2240}},
                                        {{490, 1350, 1690}}}};
constexpr std::array<double, kFormants> kBandwidths{90, 110, 170};
constexpr std::array<double, kFormants> kStrengths{1.0, 0.5, 0.25};

// A resonance of the vocal tract: a filter of second order.
class Resonator {
public:
    void tune(double frequency, double bandwidth) {
        const double radius = std::exp(-std::numbers::pi * bandwidth / kSampleRate);
        m_first = 2 * radius * std::cos(kTwoPi * frequency / kSampleRate);
        m_second = -radius * radius;
        m_gain = 1 - radius;
    }
    double next(double input) {
        const double output = m_gain * input + m_first * m_last + m_second * m_before;
        m_before = m_last;
        m_last = output;
        return output;
    }

private:
    double m_gain = 0, m_first = 0, m_second = 0, m_last = 0, m_before = 0;
};

class Voice {
public:
    explicit Voice(std::uint32_t seed) : m_random(seed), m_pitch(between(95, 210)) {}

    void addSyllable(std::vector<double>& samples) {
        const Vowel& vowel = kVowels[static_cast<std::size_t>(between(0, kVowels.size() - 0.01))];
        for (std::size_t i = 0; i < kFormants; ++i)
            m_resonators[i].tune(vowel.frequencies[i], kBandwidths[i]);
        const auto length = static_cast<std::size_t>(between(0.10, 0.24) * kSampleRate);
        const double pitch = m_pitch * between(0.9, 1.15);
        for (std::size_t i = 0; i < length; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(length);
            const double loudness = std::pow(std::sin(std::numbers::pi * part), 0.6);
            samples.push_back(loudness * voiced(pitch * (1.05 - 0.1 * part)));
        }
    }
    void addPause(std::vector<double>& samples) {
        const double seconds = between(0, 1) < 0.25 ? between(0.15, 0.4) : between(0.01, 0.05);
        samples.resize(samples.size() + static_cast<std::size_t>(seconds * kSampleRate));
    }

private:
    double between(double low, double high) { return std::uniform_real_distribution(low, high)(m_random); }
    // One sample of the vocal cords' pulses, shaped by the resonances.
    double voiced(double pitch) {
        m_phase += pitch / kSampleRate;
        const bool isPulse = m_phase >= 1;
        if (isPulse)
            m_phase -= 1;
        const double source = (isPulse ? 12.0 : 0.0) + between(-0.05, 0.05);
        double sum = 0;
        for (std::size_t i = 0; i < kFormants; ++i)
            sum += kStrengths[i] * m_resonators[i].next(source);
        return sum;
    }

    std::mt19937 m_random;
    double m_pitch;
    double m_phase = 0;
    std::array<Resonator, kFormants> m_resonators;
};

} // namespace

std::vector<std::int16_t> synthesiseSpeech(unsigned seconds, std::uint32_t seed) {
    const std::size_t count = std::size_t{seconds} * kSampleRate;
    std::vector<double> samples;
    samples.reserve(count + kSampleRate);
    Voice voice(seed);
    while (samples.size() < count) {
        voice.addSyllable(samples);
        voice.addPause(samples);
    }
    samples.resize(count);
    double loudest = 1e-9;
    for (const double sample : samples)
        loudest = std::max(loudest, std::abs(sample));
    std::vector<std::int16_t> result;
    result.reserve(count);
    for (const double sample : samples)
        result.push_back(static_cast<std::int16_t>(std::lround(sample / loudest * 20000)));
    return result;
}

} // namespace demo
