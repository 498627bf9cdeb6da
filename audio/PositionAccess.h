// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The player to assistive programs: a slider from 0 to 100 percent of the message with a name, spoken as
// position and length, that can be set. Made and kept by the toolkit once a control asked for it by
// install(); it must not outlive the control, which the toolkit sees to. User-interface thread.

#include <QAccessibleWidget>

namespace audio {

class ctlAudio;

class PositionAccess final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit PositionAccess(ctlAudio& control);

    // From now on the toolkit finds this class for every player; more than once is the same as once.
    static void install();
    // Tells listening programs the position that there is now.
    static void tellChange(ctlAudio& control);

    QString text(QAccessible::Text kind) const override;
    int childCount() const override { return 0; }
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 10; }

private:
    QString spokenPosition() const;

    ctlAudio& m_control;
};

} // namespace audio
