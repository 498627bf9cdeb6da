// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/PositionAccess.h"

#include "audio/ctlAudio.h"
#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <cmath>

namespace audio {
namespace {

constexpr double kPercent = 100;
constexpr int kSecondsPerMinute = 60;

QString minutesAndSeconds(double seconds) {
    const int whole = static_cast<int>(seconds);
    return QStringLiteral("%1:%2")
        .arg(whole / kSecondsPerMinute)
        .arg(whole % kSecondsPerMinute, 2, 10, QLatin1Char('0'));
}

double percentOf(const ctlAudio& control) {
    return control.isActive() ? control.fraction() * kPercent : 0;
}

QAccessibleInterface* makeAccess(const QString&, QObject* object) {
    auto* control = qobject_cast<ctlAudio*>(object);
    return control == nullptr ? nullptr : new PositionAccess(*control);
}

} // namespace

PositionAccess::PositionAccess(ctlAudio& control)
    : QAccessibleWidget(&control, QAccessible::Slider), m_control(control) {}

void PositionAccess::install() {
    QAccessible::installFactory(makeAccess);
}

void PositionAccess::tellChange(ctlAudio& control) {
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(&control, percentOf(control));
    QAccessible::updateAccessibility(&event);
}

QString PositionAccess::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name)
        return forms::toQString(resources::LoadLocalString(5016, "Position"));
    if (kind == QAccessible::Value || kind == QAccessible::Description)
        return spokenPosition();
    return QAccessibleWidget::text(kind);
}

QString PositionAccess::spokenPosition() const {
    if (!m_control.isActive())
        return {};
    return forms::toQString(resources::LoadLocalString(5017, "%1 of %2"))
        .arg(minutesAndSeconds(m_control.positionSeconds()),
             minutesAndSeconds(std::round(m_control.lengthSeconds())));
}

void* PositionAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QVariant PositionAccess::currentValue() const {
    return percentOf(m_control);
}

void PositionAccess::setCurrentValue(const QVariant& value) {
    m_control.seek(value.toDouble() / kPercent);
}

} // namespace audio
