// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Deletes all rows of one table at once. Construction reads and checks; run() writes: first new, empty maps
// and index roots on free pages, then the first page of the definition, which is the switch from full to
// empty, then it empties the maps of long values and gives the old pages back. Each group is on the disk
// before the next begins, so whatever is lost in a crash, the table is full or empty, and no page has two
// users. What the definition says apart from that stays: columns, indexes, the next autonumber.
//
// Nobody else may write to the database from construction on: the caller has it to itself (SoleAccess). The
// file must outlive the object; one thread; run() at most once. See docs/jet4-format.md, "Emptying a table".

#include "platform/jet/DefinitionSwitch.h"
#include "platform/jet/PageUse.h"
#include "platform/jet/TableContents.h"

#include <functional>
#include <string>
#include <string_view>

namespace jet {

class TableEmptier {
public:
    // kProviderNoTable when there is no such table; kProviderReadOnly for a table of the system and an
    // encoded database; kProviderFailure when rows of other tables depend on it, or for damage.
    TableEmptier(share::File& file, std::string_view table);

    // There is nothing to write.
    bool isDone();
    // `announce` tells other programs that the database changes; it is called when the switch is made and
    // before the pages of the rows can be taken for anything else. An error leaves all rows or none; before
    // the switch it also takes back what was written inside of the old end of the file.
    void run(const std::function<void()>& announce);

private:
    TableEmptier(share::File& file, PageNumber definitionPage, std::string_view table);
    void refuseUnlessPlain() const;
    void refuseForeignPages() const;
    void refuseUsedPages() const;
    bool isKept(PageNumber page) const;
    bool isEmptyIndex(PageNumber root);
    TableDefinition emptied(PageAllocator& allocator);
    void writeNewPages();
    void writeSwitch(const DefinitionSwitch& change);
    std::vector<UsageMapRow> filledLongValueMaps();
    void empty(std::vector<UsageMapRow>& maps);
    std::vector<PageNumber> unusedMapPages();
    [[noreturn]] void fail(PageNumber page, const std::string& what) const;

    share::File& m_file;
    std::string m_name;
    WriteCache m_cache;
    TableDefinition m_table;
    TableContents m_contents;
    std::vector<PageNumber> m_mapPages;
    PageUse m_others;
};

} // namespace jet
