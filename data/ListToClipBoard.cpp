// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/ListToClipBoard.h"

#include "errors/Procedure.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace data {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void appendField(std::string& line, std::string_view text) {
    const auto from = static_cast<std::ptrdiff_t>(line.size());
    line.append(text).push_back('\t');
    std::replace(line.begin() + from, line.end() - 1, '\t', ' ');
}

std::string withoutLineEnds(std::string_view text) {
    std::string result(text);
    for (auto at = result.find(kLineEnd); at != std::string::npos; at = result.find(kLineEnd, at))
        result.replace(at, kLineEnd.size(), 1, ' ');
    return result;
}

std::string headerLine(forms::ListView& list) {
    std::string line;
    for (int column = 1; column <= list.ColumnHeaders().Count(); ++column)
        appendField(line, list.ColumnHeaders().Item(column).Text);
    return line.append(kLineEnd).append(kLineEnd);
}

void appendRow(std::string& text, const forms::ListItem& item, int columns) {
    appendField(text, withoutLineEnds(item.Text()));
    for (int column = 1; column < columns; ++column)
        appendField(text, item.SubItems(column));
    text.append(kLineEnd);
}

} // namespace

bool ListToClipBoard(errors::ErrorHandler& errorHandler, forms::ListView& list, forms::Clipboard& clipboard) {
    errors::Procedure proc{errorHandler, "basCommon", "ListToClipBoard"};
    std::string text;
    if (!proc.value(false, [&] { return list.HideColumnHeaders(); }))
        proc.step([&] { text += headerLine(list); });
    const int columns = proc.value(0, [&] { return list.ColumnHeaders().Count(); });
    const int count = proc.value(0, [&] { return list.ListItems().Count(); });
    for (int index = 1; index <= count && proc.running(); ++index)
        proc.step([&] {
            const forms::ListItem item = list.ListItems().Item(index);
            if (item.Selected())
                appendRow(text, item, columns);
        });
    proc.step([&] { clipboard.Clear(); });
    proc.step([&] { clipboard.SetText(text); });
    return proc.finish();
}

} // namespace data
