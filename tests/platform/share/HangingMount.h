// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A folder that counts as a mounted share of the server "srv" and can hang: as long as it does, a call into
// it that is made on another thread than the test's own does not get past the table of mounts, which is
// looked into on the way to a file and before a lock.

#include "platform/share/ShareResolver.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace share::testing {

class HangingMount {
public:
    HangingMount() { m_state->text = "41 22 0:40 / " + folder.path() + " rw - cifs //srv/Quillamar_0$ rw\n"; }
    HangingMount(const HangingMount&) = delete;
    HangingMount& operator=(const HangingMount&) = delete;
    ~HangingMount() { goOn(); }

    void hang() {
        const std::scoped_lock lock(m_state->mutex);
        m_state->isHanging = true;
    }
    // Returns when every call that hung got on.
    void goOn() {
        std::unique_lock lock(m_state->mutex);
        m_state->isHanging = false;
        m_state->changed.notify_all();
        m_state->changed.wait(lock, [this] { return m_state->calls == 0; });
    }
    void awaitHangingCall() {
        std::unique_lock lock(m_state->mutex);
        m_state->changed.wait(lock, [this] { return m_state->calls > 0; });
    }
    int hangingCalls() const {
        const std::scoped_lock lock(m_state->mutex);
        return m_state->calls;
    }
    ShareResolver resolver() const {
        return {nullptr, [state = m_state] { return state->look(); }};
    }

    TemporaryFolder folder;

private:
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        std::thread::id test = std::this_thread::get_id();
        bool isHanging = false;
        int calls = 0;
        std::string text;

        std::string look() {
            std::unique_lock lock(mutex);
            if (std::this_thread::get_id() != test) {
                ++calls;
                changed.notify_all();
                changed.wait(lock, [this] { return !isHanging; });
                --calls;
                changed.notify_all();
            }
            return text;
        }
    };

    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace share::testing
