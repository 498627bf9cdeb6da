// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Rc4.h"

#include <array>
#include <numeric>
#include <utility>

namespace jet {
namespace {

using State = std::array<std::uint8_t, 256>;

State scheduled(std::span<const std::uint8_t> key) {
    State state;
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    return state;
}

} // namespace

void applyRc4(std::span<const std::uint8_t> key, std::span<std::byte> data) {
    State state = scheduled(key);
    std::uint8_t i = 0;
    std::uint8_t j = 0;
    for (std::byte& byte : data) {
        j = static_cast<std::uint8_t>(j + state[++i]);
        std::swap(state[i], state[j]);
        byte ^= std::byte{state[static_cast<std::uint8_t>(state[i] + state[j])]};
    }
}

} // namespace jet
