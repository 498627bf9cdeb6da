// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/UncPath.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/Utf8.h"

#include <algorithm>

namespace share {
namespace {

constexpr std::size_t kMaximumComponent = 255; // bytes; no file system behind a share takes longer names
constexpr std::size_t kMaximumPath = 4096;

[[noreturn]] void refuse(std::string_view what, std::string_view reason) {
    std::string text("not a network path: ");
    text.append(what.substr(0, kMaximumComponent)).append(": ").append(reason);
    std::replace(text.begin(), text.end(), '\0', ' ');
    throw basic::RuntimeError(basic::kPathNotFound, std::move(text));
}

bool isForbidden(char c) {
    constexpr std::string_view kForbidden = "\\/:\"<>|";
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F || kForbidden.find(c) != std::string_view::npos;
}

bool isWildcard(char c) {
    return c == '*' || c == '?';
}

// A server drops dots and blanks at the end of a name, so ".. " would mean "..".
bool isOnlyDotsAndBlanks(std::string_view component) {
    return component.find_first_not_of(". ") == std::string_view::npos;
}

void check(std::string_view component, bool wildcards) {
    if (component.empty())
        refuse(component, "an empty component");
    if (component.size() > kMaximumComponent)
        refuse(component, "a component that is too long");
    if (isOnlyDotsAndBlanks(component))
        refuse(component, "a component of dots or blanks only");
    if (std::any_of(component.begin(), component.end(), isForbidden))
        refuse(component, "a character that no file name can hold");
    if (!wildcards && std::any_of(component.begin(), component.end(), isWildcard))
        refuse(component, "a wildcard in a name");
    if (!basic::isValidUtf8(component))
        refuse("(unreadable)", "a component that is not valid UTF-8");
}

std::vector<std::string_view> split(std::string_view text) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find('\\', start);
        parts.push_back(text.substr(start, end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

} // namespace

UncPath::UncPath(std::string_view server, std::string_view share) : m_server(server), m_share(share) {
    check(server, false);
    check(share, false);
}

UncPath UncPath::parsed(std::string_view text, bool wildcards) {
    if (text.size() > kMaximumPath)
        refuse(text, "too long");
    if (!text.starts_with("\\\\"))
        refuse(text, "it does not begin with two backslashes");
    std::vector<std::string_view> parts = split(text.substr(2));
    if (parts.size() > 2 && parts.back().empty() && !wildcards)
        parts.pop_back();
    if (parts.size() < 2)
        refuse(text, "it names no share");
    UncPath path(parts[0], parts[1]);
    for (std::size_t i = 2; i < parts.size(); ++i) {
        check(parts[i], wildcards && i + 1 == parts.size());
        path.m_components.emplace_back(parts[i]);
    }
    return path;
}

UncPath UncPath::child(std::string_view component) const {
    check(component, false);
    UncPath path = *this;
    path.m_components.emplace_back(component);
    return path;
}

UncPath UncPath::parent() const {
    if (m_components.empty())
        refuse(text(), "a share has no folder above it");
    UncPath path = *this;
    path.m_components.pop_back();
    return path;
}

std::string UncPath::text() const {
    std::string text = "\\\\" + m_server + "\\" + m_share;
    for (const std::string& component : m_components)
        text.append("\\").append(component);
    return text;
}

} // namespace share
