// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The key colour of the dialogs' pictures: what is pure green in them stands for the foreground colour of the
// box that they are drawn in, so that a picture follows the theme.

#include "platform/forms/Pixels.h"

namespace dialogs {

// Walks over every pixel up to and including the box's inner width and height, that is one beyond each edge.
void replaceKeyColour(forms::Pixels& box);

} // namespace dialogs
