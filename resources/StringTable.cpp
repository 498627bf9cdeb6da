// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringTable.h"

#include <algorithm>
#include <array>
#include <atomic>

namespace resources {
namespace {

struct StringEntry {
    std::int32_t id;
    std::string_view english;
    std::string_view german;
};

constexpr std::array kEntries{
#include "resources/StringEntries.inc"
};

constexpr bool ascends(const StringEntry& left, const StringEntry& right) {
    return left.id < right.id;
}
static_assert(std::adjacent_find(kEntries.begin(), kEntries.end(),
                                 [](const auto& left, const auto& right) { return !ascends(left, right); }) ==
                  kEntries.end(),
              "the look-up needs the numbers ascending, each once");

std::atomic<Language>& chosen() noexcept {
    static std::atomic<Language> language{Language::English};
    return language;
}

char lower(char letter) noexcept {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

Language languageOf(std::string_view localeName) noexcept {
    constexpr std::string_view kSeparators = "_-.@";
    const bool german = localeName.size() >= 2 && lower(localeName[0]) == 'd' &&
                        lower(localeName[1]) == 'e' &&
                        (localeName.size() == 2 || kSeparators.find(localeName[2]) != kSeparators.npos);
    return german ? Language::German : Language::English;
}

void setLanguage(Language language) noexcept {
    chosen().store(language, std::memory_order_relaxed);
}

Language language() noexcept {
    return chosen().load(std::memory_order_relaxed);
}

std::string LoadLocalString(std::int32_t id, std::string_view /*englishForTheReader*/) {
    const auto* const found =
        std::lower_bound(kEntries.begin(), kEntries.end(), StringEntry{id, {}, {}}, ascends);
    if (found == kEntries.end() || found->id != id)
        return {};
    return std::string(language() == Language::German ? found->german : found->english);
}

std::string loadText(const TextEntry& entry) {
    return LoadLocalString(entry.id, entry.english);
}

} // namespace resources
