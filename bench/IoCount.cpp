// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/IoCount.h"

#include <fstream>
#include <map>
#include <string>

namespace bench {

IoCount readIoCount() {
    std::ifstream file("/proc/self/io");
    std::map<std::string, std::int64_t> values;
    std::string name;
    std::int64_t value = 0;
    while (file >> name >> value)
        values[name] = value;
    return {values["rchar:"], values["syscr:"], values["wchar:"], values["syscw:"]};
}

IoCount difference(const IoCount& before, const IoCount& after, const IoCount& ofLooking) {
    return {after.bytesRead - before.bytesRead - ofLooking.bytesRead,
            after.readCalls - before.readCalls - ofLooking.readCalls,
            after.bytesWritten - before.bytesWritten - ofLooking.bytesWritten,
            after.writeCalls - before.writeCalls - ofLooking.writeCalls};
}

} // namespace bench
