// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableHead.h"

#include "platform/jet/ByteView.h"

namespace jet {

namespace layout = format::definition;

TableHead TableHead::read(PageSource& source, PageNumber page, std::string_view table) {
    PageBuffer buffer;
    return parse(source.page(page, buffer), {source.name(), table, page});
}

TableHead TableHead::parse(std::span<const std::byte> bytes, const Place& place) {
    const ByteView view(bytes, place);
    if (view.u8(format::page::kType) != format::page::kDefinition)
        view.fail("a table definition is expected, the type is " +
                  std::to_string(view.u8(format::page::kType)));
    if (view.u32(layout::kMarker) != layout::kMarkerValue)
        view.fail("this is not the first page of a table definition");
    TableHead head;
    head.page = place.page;
    head.nextPage = view.u32(layout::kNextPage);
    head.length = view.u32(layout::kLength);
    head.rowCount = view.u32(layout::kRowCount);
    head.lastAutonumber = view.u32(layout::kLastAutonumber);
    head.tableType = view.u8(layout::kTableType);
    head.ownedMap = RowPointer::fromStored(view.u32(layout::kOwnedMap));
    head.freeMap = RowPointer::fromStored(view.u32(layout::kFreeMap));
    return head;
}

} // namespace jet
