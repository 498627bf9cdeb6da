// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/ErrorNumbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace basic {
namespace {

using Entry = std::pair<std::int32_t, std::string_view>;

constexpr std::array kTexts{
    Entry{kInvalidProcedureCall, "Invalid procedure call or argument"},
    Entry{kOverflow, "Overflow"},
    Entry{kOutOfMemory, "Out of memory"},
    Entry{kSubscriptOutOfRange, "Subscript out of range"},
    Entry{kTypeMismatch, "Type mismatch"},
    Entry{kInternalError, "Internal error"},
    Entry{kFileNotFound, "File not found"},
    Entry{kFileAlreadyOpen, "File already open"},
    Entry{kDeviceIoError, "Device I/O error"},
    Entry{kDiskFull, "Disk full"},
    Entry{kPermissionDenied, "Permission denied"},
    Entry{kPathFileAccess, "Path/File access error"},
    Entry{kPathNotFound, "Path not found"},
    Entry{kObjectNotSet, "Object variable or With block variable not set"},
    Entry{kInvalidUseOfNull, "Invalid use of Null"},
    Entry{kInvalidPropertyValue, "Invalid property value"},
    Entry{kNonModalWhileModal, "Can't show non-modal form when modal form is displayed"},
    Entry{kNoSuchMember, "Object doesn't support this property or method"},
    Entry{kCannotCreateObject, "ActiveX component can't create object"},
    Entry{kKeyInUse, "This key is already associated with an element of this collection"},
    Entry{kElementNotFound, "Element not found"},
    Entry{kKeyNotUnique, "Key is not unique in collection"},
    Entry{kNoCurrentRecord, "Either BOF or EOF is True, or the current record has been deleted"},
    Entry{kItemNotInCollection, "Item cannot be found in the collection"},
    Entry{kInTransaction, "The connection cannot be closed while in a transaction"},
    Entry{kObjectClosed, "Operation is not allowed when the object is closed"},
    Entry{kObjectOpen, "Operation is not allowed when the object is open"},
    Entry{kProviderNotFound, "Provider cannot be found. It may not be properly installed"},
    Entry{kProviderFailure, "Unspecified error"},
    Entry{kProviderSyntax, "Syntax error in the statement"},
    Entry{kProviderNoTable, "The database cannot find the table"},
    Entry{kProviderNoValue, "No value given for one or more required parameters"},
    Entry{kProviderIntegrity, "The change would create duplicate values in an index or primary key"},
    Entry{kProviderMismatch, "Data type mismatch in criteria expression"},
    Entry{kProviderReadOnly, "The database is read-only"},
    Entry{kMediaStillRunning, "Operation aborted"},
    Entry{kMediaWrongState, "The operation could not be performed because the filter graph is not running"},
    Entry{kMediaCannotConnect,
          "No combination of intermediate filters could be found to make the connection"},
    Entry{kMediaBadFormat, "The file format is invalid"},
    Entry{kMediaUnsupported, "Cannot play the file: the audio format is not supported"},
    Entry{kMediaNoHardware, "Cannot play audio: no audio hardware is available"},
    Entry{kMediaTimeout, "A time-out has expired"},
};

} // namespace

std::string_view errorText(std::int32_t number) noexcept {
    const auto* found =
        std::find_if(kTexts.begin(), kTexts.end(), [number](const Entry& e) { return e.first == number; });
    return found == kTexts.end() ? "Application-defined or object-defined error" : found->second;
}

} // namespace basic
