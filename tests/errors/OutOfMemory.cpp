// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/errors/OutOfMemory.h"

#include <cstdlib>
#include <new>

namespace {

enum class State { Idle, Armed, Failed };

thread_local State state = State::Idle;
thread_local std::size_t left = 0;

bool failsNow() {
    if (state != State::Armed || left-- > 0)
        return false;
    state = State::Failed;
    return true;
}

void* allocated(std::size_t size) {
    if (failsNow())
        throw std::bad_alloc();
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return allocated(size);
}
void* operator new[](std::size_t size) {
    return allocated(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace errors {

OutOfMemory::OutOfMemory(std::size_t after) {
    left = after;
    state = State::Armed;
}

OutOfMemory::~OutOfMemory() {
    state = State::Idle;
}

bool OutOfMemory::hasFailed() {
    return state == State::Failed;
}

} // namespace errors
