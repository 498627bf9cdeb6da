// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ListAndTabs.h"

#include "resources/Icons.h"
#include "resources/LocalText.h"

namespace app {
namespace {

using resources::localText;

forms::ImageList listImages() {
    forms::ImageList images;
    images.Set(resources::kCallWithMessage, resources::callIcon(resources::kCallWithMessage),
               localText(5014, "Call with a recorded message"));
    images.Set(resources::kCallWithoutMessage, resources::callIcon(resources::kCallWithoutMessage),
               localText(5015, "Call without a message"));
    return images;
}

forms::ImageList tabImages() {
    forms::ImageList images;
    images.Set(resources::kMailboxImage, resources::mailboxIcon(resources::kMailboxImage));
    return images;
}

} // namespace

void prepareListAndTabs(forms::ListView& list, forms::TabStrip& tabStrip) {
    tabStrip.setObjectName(QStringLiteral("TabStrip"));
    tabStrip.SetImages(tabImages());
    tabStrip.SetAccessibleName(localText(5011, "Mailboxes"));
    list.setObjectName(QStringLiteral("lsCalls"));
    list.SetSmallIcons(listImages());
    list.SetAccessibleName(localText(5010, "Call list"));
    list.SetMultiSelect(true);
    list.setFocus();
}

} // namespace app
