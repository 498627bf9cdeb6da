// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every visible text by number, in English and German, from strings.tsv, compiled in. The language is chosen
// once at program start and stays for the run; texts are UTF-8. Read-only after setLanguage(), so any thread
// may read.

#include <cstdint>
#include <string>
#include <string_view>

namespace resources {

enum class Language : std::int32_t { English = 1033, German = 1031 };

// The language for a locale name such as "de_DE.UTF-8" or "de-AT": German for German, English otherwise.
Language languageOf(std::string_view localeName) noexcept;
// To be called before the first text is read.
void setLanguage(Language language) noexcept;
Language language() noexcept;

// The text with that number in the program's language; empty for a number that is not in the table. The
// second argument is the English text for the reader of the code and is not used.
std::string LoadLocalString(std::int32_t id, std::string_view englishForTheReader = {});

// The same for texts that stand in a table of the program.
struct TextEntry {
    std::int32_t id;
    std::string_view english;
};
std::string loadText(const TextEntry& entry);

} // namespace resources
