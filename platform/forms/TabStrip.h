// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's tab strip: a row of tabs above a client area that the program covers with a control of its
// own. The first tab added is selected, without an event; a strip with tabs has a selected one unless the
// program takes the selection away. Without tabs it draws nothing and the client area is all of it. Indexes
// count from 1; an unknown index or key raises 35601, a key that is there already 35602. Captions are plain
// text, "&" is shown as it is. Events come from the user only. User-interface thread; a QObject parent
// destroys it.

#include "platform/basic/Twips.h"
#include "platform/forms/ImageList.h"

#include <QWidget>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

class TabRow;
class TabStrip;

// One tab as it is at the time of asking.
struct Tab {
    int Index = 0;
    std::string Key;
    std::string Caption;
    int Image = 0;
    // Left edge within the strip.
    basic::Twips Left;
};

class TabCollection {
public:
    explicit TabCollection(TabStrip& strip) : m_strip(strip) {}

    int Count() const;
    void Clear();
    // `image` is an index into the strip's image list, 0 for none.
    void Add(std::string_view key, std::string_view caption, int image = 0);
    Tab Item(int index) const;
    Tab Item(std::string_view key) const;

private:
    TabStrip& m_strip;
};

class TabStrip : public QWidget {
    Q_OBJECT
public:
    explicit TabStrip(QWidget* parent = nullptr);

    TabCollection& Tabs() { return m_tabs; }
    std::optional<Tab> SelectedItem() const;
    // 0 leaves no tab selected.
    void SetSelectedItem(int index);
    void SetImages(const ImageList& images) { m_images = images; }
    void SetAccessibleName(const QString& name);

    // The client area, relative to the strip: whoever covers it is best a child of the strip.
    basic::Twips ClientLeft() const;
    basic::Twips ClientTop() const;
    basic::Twips ClientWidth() const;
    basic::Twips ClientHeight() const;

Q_SIGNALS:
    // The user selected a tab that was not, by mouse or keyboard.
    void Click();
    // The strip or its row of tabs has a new size.
    void resized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class TabCollection;
    struct Caption {
        std::string key;
        std::string text;
        int image = 0;
    };

    Tab tabAt(int position) const;
    void placeBar();
    QRect clientArea() const;

    TabCollection m_tabs;
    TabRow* m_bar;
    ImageList m_images;
    std::vector<Caption> m_captions;
};

} // namespace forms
