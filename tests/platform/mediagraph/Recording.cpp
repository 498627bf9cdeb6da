// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/mediagraph/Recording.h"

#include "tests/platform/mediagraph/TestSounds.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>

namespace mediagraph::testing {
namespace {

constexpr int kThreshold = 400;

// The message's left channel at the recording's rate.
std::vector<double> stretchOf(const Samples& message, double from, std::size_t frames) {
    std::vector<double> values(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const double at = (from + static_cast<double>(i) / Recording::kRate) * message.rate;
        const auto before = static_cast<std::size_t>(std::max(at, 0.0));
        if (before + 1 >= message.frames())
            break;
        const double part = at - static_cast<double>(before);
        values[i] = (1 - part) * message.values[before * message.channels] +
                    part * message.values[(before + 1) * message.channels];
    }
    return values;
}

double likenessOf(const std::vector<std::int16_t>& heard, std::size_t first,
                  const std::vector<double>& sound) {
    double product = 0;
    double heardPower = 0;
    double soundPower = 0;
    for (std::size_t i = 0; i < sound.size() && first + i < heard.size(); ++i) {
        const double value = heard[first + i];
        product += value * sound[i];
        heardPower += value * value;
        soundPower += sound[i] * sound[i];
    }
    return heardPower > 0 && soundPower > 0 ? product / std::sqrt(heardPower * soundPower) : 0;
}

// Where a function of whole numbers is greatest.
template <typename Function>
int bestOf(int begin, int end, int step, const Function& function) {
    int best = begin;
    double greatest = function(begin);
    for (int i = begin + step; i <= end; i += step) {
        const double value = function(i);
        if (value > greatest) {
            greatest = value;
            best = i;
        }
    }
    return best;
}

} // namespace

Recording::Recording(const std::string& sink, const std::string& file)
    : m_file(file), m_process({"parec", "--raw", "-d", sink + ".monitor", "--format=s16le", "--rate=48000",
                               "--channels=2", "--latency-msec=20"},
                              file) {
    EXPECT_TRUE(waitUntil([this] { return secondsSoFar() > 0; })) << "parec records nothing";
}

Recording::Recording(const std::vector<std::string>& command, const std::string& file, std::size_t headerSize)
    : m_file(file), m_headerSize(headerSize), m_process(command) {
    EXPECT_TRUE(waitUntil([this] { return secondsSoFar() > 0; })) << command.front() << " records nothing";
}

double Recording::secondsSoFar() const {
    std::error_code none;
    const auto size = std::filesystem::file_size(m_file, none);
    return none || size < m_headerSize
               ? 0
               : static_cast<double>(size - m_headerSize) / (2 * sizeof(std::int16_t) * kRate);
}

void Recording::finish(double seconds) {
    const double end = secondsSoFar() + seconds;
    EXPECT_TRUE(waitUntil([&] { return secondsSoFar() >= end || !m_process.isRunning(); }));
    m_process.end();
    const auto bytes = bytesOf(m_file);
    m_heard.resize((bytes.size() - m_headerSize) / 4);
    for (std::size_t i = 0; i < m_heard.size(); ++i)
        std::memcpy(&m_heard[i], bytes.data() + m_headerSize + 4 * i, sizeof(std::int16_t));
}

std::vector<Stretch> Recording::stretches(double pause) const {
    std::vector<Stretch> found;
    for (std::size_t i = 0; i < m_heard.size(); ++i) {
        if (std::abs(m_heard[i]) < kThreshold)
            continue;
        const double now = static_cast<double>(i) / kRate;
        if (found.empty() || now - found.back().end > pause)
            found.push_back({now, now});
        found.back().end = now + 1.0 / kRate;
    }
    return found;
}

double Recording::likeness(double begin, const Samples& message, double from, double length) const {
    constexpr int kShift = kRate / 100;
    constexpr int kStep = 8;
    const auto sound = stretchOf(message, from, static_cast<std::size_t>(length * kRate));
    const auto at = [&](int first) {
        return likenessOf(m_heard, static_cast<std::size_t>(std::max(0, first)), sound);
    };
    const auto first = static_cast<int>(begin * kRate);
    const int about = bestOf(first - kShift, first + kShift, kStep, at);
    return at(bestOf(about - kStep, about + kStep, 1, at));
}

double Recording::momentAt(double at, const Samples& message, double expected) const {
    constexpr double kAround = 0.4;
    constexpr double kStep = 0.0005;
    constexpr double kWindow = 0.15;
    double best = 0;
    double moment = -1;
    for (double from = std::max(0.0, expected - kAround); from < expected + kAround; from += kStep) {
        const auto sound = stretchOf(message, from, static_cast<std::size_t>(kWindow * kRate));
        const double found = likenessOf(m_heard, static_cast<std::size_t>(at * kRate), sound);
        if (found > best) {
            best = found;
            moment = from;
        }
    }
    return moment;
}

} // namespace mediagraph::testing
