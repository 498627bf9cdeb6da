// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SystemTables.h"

namespace jet::systemTables {
namespace {

using basic::Binary;
using basic::Date;
using basic::Null;

constexpr std::int32_t kRoot = 0x0F000000;
constexpr std::int32_t kTables = format::catalog::kTablesContainer;
constexpr std::int32_t kDatabases = 0x0F000002;
constexpr std::int32_t kRelationships = 0x0F000003;
constexpr std::int32_t kDatabaseObject = 0x10000000;
constexpr std::int16_t kTypeDatabase = 2;
constexpr std::int16_t kTypeContainer = 3;
constexpr auto kSystemObject = static_cast<std::int32_t>(0x80000000U);
constexpr std::int32_t kAllRights = 0xFFFFF;

// Security identifiers, scrambled with the key of kBuild and kCreationStamp.
const Binary kAdmin{0xA6, 0x33};
const Binary kUsers{0xA7, 0x33};
const Binary kEngine{0xA7, 0x31};
const Binary kCreator{0xA7, 0x36};

struct Object {
    std::int32_t id;
    std::int32_t parent;
    std::string name;
    std::int16_t type;
    std::int32_t flags;
};

Row objectRow(const Object& object, const Binary& owner, const Date& created) {
    Row row{object.id, object.parent, object.name, object.type, created, created, owner, object.flags};
    row.resize(17, Null{});
    return row;
}

Row permission(std::int32_t object, std::int32_t rights, const Binary& who, bool isInherited = false) {
    return {object, who, rights, isInherited};
}

} // namespace

std::vector<Row> firstObjects(const Date& created) {
    std::vector<Row> rows{
        objectRow({kTables, kRoot, "Tables", kTypeContainer, kSystemObject}, kEngine, created),
        objectRow({kDatabases, kRoot, "Databases", kTypeContainer, kSystemObject}, kEngine, created),
        objectRow({kRelationships, kRoot, "Relationships", kTypeContainer, kSystemObject}, kEngine, created),
        objectRow({kDatabaseObject, kDatabases, "MSysDb", kTypeDatabase, kSystemObject}, kAdmin, created)};
    for (std::size_t i = 0; i < kNames.size(); ++i)
        rows.push_back(objectRow({static_cast<std::int32_t>(kFirstPage + i), kTables, kNames[i],
                                  format::catalog::kTypeTable, kSystemObject},
                                 kEngine, created));
    return rows;
}

std::vector<Row> firstPermissions() {
    return {permission(2, 0x60000, kAdmin),
            permission(3, 0x60000, kAdmin),
            permission(4, 0x60000, kAdmin),
            permission(5, 0xE0000, kAdmin),
            permission(kTables, 0xF00FE, kCreator, true),
            permission(kTables, 0x60001, kAdmin),
            permission(kTables, 0xFFEFF, kUsers, true),
            permission(kRelationships, 0xF00FE, kCreator, true),
            permission(kRelationships, 0x60001, kAdmin),
            permission(kRelationships, kAllRights, kUsers, true),
            permission(kDatabases, 0x60000, kAdmin),
            permission(kDatabaseObject, 0x6000E, kAdmin),
            permission(kDatabaseObject, 0x0000E, kUsers),
            permission(2, 0x14, kUsers),
            permission(4, 0x14, kUsers),
            permission(5, 0x14, kUsers)};
}

Row tableObject(PageNumber definitionPage, const std::string& name, const Date& created) {
    return objectRow(
        {static_cast<std::int32_t>(definitionPage), kTables, name, format::catalog::kTypeTable, 0}, kAdmin,
        created);
}

std::vector<Row> tablePermissions(PageNumber definitionPage) {
    const auto id = static_cast<std::int32_t>(definitionPage);
    return {permission(id, kAllRights, kAdmin), permission(id, kAllRights, kUsers)};
}

} // namespace jet::systemTables
