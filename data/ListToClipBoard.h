// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Copies the selected rows of a list view to the clipboard as plain text. Every field, the last one of a line
// and the empty icon column included, is followed by a TAB, every line ends in CR LF, and an empty line parts
// the headers from the rows: other programs rely on this layout. Part of basCommon: failures are reported
// under the module "basCommon", procedure "ListToClipBoard". User-interface thread.

#include "errors/ErrorHandler.h"
#include "platform/forms/Clipboard.h"
#include "platform/forms/ListView.h"

namespace data {

// True on completion.
bool ListToClipBoard(errors::ErrorHandler& errorHandler, forms::ListView& list, forms::Clipboard& clipboard);

} // namespace data
