// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The pictures that a control draws by index, counted from 1 with gaps allowed. Each has a name for those who
// hear the list instead of seeing it. Copied into the control that shows it.

#include <QIcon>
#include <QString>

#include <map>

namespace forms {

class ImageList {
public:
    struct Image {
        QIcon icon;
        QString accessibleName;
    };

    // Replaces what was at the index.
    void Set(int index, const QIcon& icon, const QString& accessibleName = {}) {
        m_images[index] = {icon, accessibleName};
    }
    // Null for an index without a picture.
    const Image* find(int index) const {
        const auto found = m_images.find(index);
        return found == m_images.end() ? nullptr : &found->second;
    }

private:
    std::map<int, Image> m_images;
};

} // namespace forms
