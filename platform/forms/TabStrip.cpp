// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TabStrip.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/TabRow.h"
#include "platform/forms/Text.h"

#include <QEvent>
#include <QResizeEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace forms {

int TabCollection::Count() const {
    return static_cast<int>(m_strip.m_captions.size());
}

void TabCollection::Clear() {
    const QSignalBlocker quiet(m_strip.m_bar);
    m_strip.m_captions.clear();
    while (m_strip.m_bar->count() > 0)
        m_strip.m_bar->removeTab(m_strip.m_bar->count() - 1);
    m_strip.m_bar->select(0);
    m_strip.placeBar();
}

void TabCollection::Add(std::string_view key, std::string_view caption, int image) {
    auto& captions = m_strip.m_captions;
    const auto sameKey = [&](const TabStrip::Caption& tab) { return tab.key == key; };
    if (!key.empty() && std::any_of(captions.begin(), captions.end(), sameKey))
        throw basic::RuntimeError(basic::kKeyNotUnique);
    captions.push_back({std::string(key), std::string(caption), image});
    const ImageList::Image* picture = m_strip.m_images.find(image);
    const QSignalBlocker quiet(m_strip.m_bar);
    m_strip.m_bar->addTab(picture == nullptr ? QIcon() : picture->icon, withoutAccessKeys(caption));
    m_strip.placeBar();
}

Tab TabCollection::Item(int index) const {
    if (index < 1 || index > Count())
        throw basic::RuntimeError(basic::kElementNotFound);
    return m_strip.tabAt(index - 1);
}

Tab TabCollection::Item(std::string_view key) const {
    const auto& captions = m_strip.m_captions;
    const auto found = std::find_if(captions.begin(), captions.end(),
                                    [&](const TabStrip::Caption& tab) { return tab.key == key; });
    if (key.empty() || found == captions.end())
        throw basic::RuntimeError(basic::kElementNotFound);
    return m_strip.tabAt(static_cast<int>(found - captions.begin()));
}

TabStrip::TabStrip(QWidget* parent) : QWidget(parent), m_tabs(*this), m_bar(new TabRow(this)) {
    m_bar->setDrawBase(false);
    m_bar->setExpanding(false);
    m_bar->setUsesScrollButtons(true);
    m_bar->setElideMode(Qt::ElideNone);
    m_bar->installEventFilter(this);
    setFocusProxy(m_bar);
    connect(m_bar, &TabRow::chosen, this, &TabStrip::Click);
    placeBar();
}

std::optional<Tab> TabStrip::SelectedItem() const {
    return m_bar->selected() < 0 ? std::nullopt : std::optional(tabAt(m_bar->selected()));
}

void TabStrip::SetSelectedItem(int index) {
    m_bar->select(index == 0 ? -1 : m_tabs.Item(index).Index - 1);
}

void TabStrip::SetAccessibleName(const QString& name) {
    setAccessibleName(name);
    m_bar->setAccessibleName(name);
}

basic::Twips TabStrip::ClientLeft() const {
    return basic::fromPixels(clientArea().left());
}
basic::Twips TabStrip::ClientTop() const {
    return basic::fromPixels(clientArea().top());
}
basic::Twips TabStrip::ClientWidth() const {
    return basic::fromPixels(clientArea().width());
}
basic::Twips TabStrip::ClientHeight() const {
    return basic::fromPixels(clientArea().height());
}

void TabStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeBar();
    Q_EMIT resized();
}

// A bigger font or another style makes the row of tabs higher, and so the client area smaller.
bool TabStrip::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_bar && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        QMetaObject::invokeMethod(
            this,
            [this] {
                placeBar();
                Q_EMIT resized();
            },
            Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

Tab TabStrip::tabAt(int position) const {
    const Caption& caption = m_captions[static_cast<std::size_t>(position)];
    const int left = m_bar->x() + m_bar->tabRect(position).left();
    return {position + 1, caption.key, caption.text, caption.image, basic::fromPixels(left)};
}

void TabStrip::placeBar() {
    m_bar->setVisible(!m_captions.empty());
    m_bar->setGeometry(0, 0, width(), m_captions.empty() ? 0 : m_bar->sizeHint().height());
}

QRect TabStrip::clientArea() const {
    return rect().adjusted(0, m_captions.empty() ? 0 : m_bar->height(), 0, 0);
}

} // namespace forms
