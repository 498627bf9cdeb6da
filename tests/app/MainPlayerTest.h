// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A main window whose calls have messages, over sound that is written down.

#include "tests/app/MainWorld.h"
#include "tests/app/PlayerButtons.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace app {

class MainPlayerTest : public MainWorld {
protected:
    using MainWorld::MainWorld;
    // A window over mailbox 12 with a call C1 that has a message, and C2 that has none.
    void loadOne() {
        configure({12});
        mailbox(12).append({"C1", "Anna", 7});
        mailbox(12).append({"C2", "Ben", 0});
        makeSound(12, "C1.wav");
        load();
        sound.takeLog();
    }
    void loadTwo() {
        configure({15, 12});
        for (const int id : {15, 12}) {
            mailbox(id).append({"C1", "Anna", 7});
            makeSound(id, "C1.wav");
        }
        load();
        sound.takeLog();
    }
    void select(const char* key) { list().SetSelectedItem(list().ListItems().Item(key)); }
    void play() {
        select("KC1");
        window->ab_ToolClick("miSPlay");
    }
    std::string buttons() { return playerButtons(window->ab()); }
    // The only place where the message is played from, as the engine got it.
    std::string played() {
        std::string file;
        for (const std::string& call : sound.takeLog())
            if (call.starts_with("Filename "))
                file = call.substr(9);
        return file;
    }
    std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (const auto& box : messageBoxes.boxes)
            texts.push_back(box.text);
        return texts;
    }
};

} // namespace app
