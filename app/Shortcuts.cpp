// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Shortcuts.h"

#include "app/CommandBarLayout.h"

namespace app {

// "Delete all entries" has none: nobody should come upon it by accident.
void addShortcuts(forms::CommandBar& ab, QWidget& list) {
    ab.Bands(kBandFile).Tools("miFHide").SetShortcuts({Qt::CTRL | Qt::Key_W});
    ab.Bands(kBandFile).Tools("miFExit").SetShortcuts({Qt::CTRL | Qt::Key_Q});
    ab.Bands(kBandEdit).Tools("miECopy").SetShortcuts({Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_Insert});
    ab.Bands(kBandEdit).Tools("miESelectAll").SetShortcuts({Qt::CTRL | Qt::Key_A});
    ab.Bands(kBandTools).Tools("miSPlay").SetShortcuts({Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}, &list);
    ab.Bands(kBandTools)
        .Tools("miEDetails")
        .SetShortcuts({Qt::ALT | Qt::Key_Return, Qt::ALT | Qt::Key_Enter});
    ab.Bands(kBandTools).Tools("miVOptions").SetShortcuts({Qt::CTRL | Qt::Key_Comma});
    ab.Bands(kBandHelp).Tools("miHContents").SetShortcuts({Qt::Key_F1});
}

} // namespace app
