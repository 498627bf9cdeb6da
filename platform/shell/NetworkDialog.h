// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The network browser's window: computers as they are found, what the search is doing, OK and Cancel, which
// works at any time. Everything can be done by keyboard. Lives for one showing, and its sources with it. The
// texts must outlive it; user-interface thread.

#include "platform/shell/ComputerSource.h"
#include "platform/shell/NetworkTree.h"
#include "platform/shell/ShareSource.h"

#include <QDialog>

#include <memory>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;

namespace shell {

class NetworkDialog final : public QDialog {
    Q_OBJECT
public:
    using ComputerSources = std::vector<std::unique_ptr<ComputerSource>>;

    // `shares` is null where only computers are wanted.
    NetworkDialog(const NetworkTexts& texts, const QString& title, ComputerSources computers,
                  std::unique_ptr<ShareSource> shares);

    // Starts the search; the dialog is shown by whoever made it.
    void search();
    std::optional<ItemIdList> picked() const { return m_tree->picked(); }

private:
    void layOut(const QString& title);
    void connectSources();
    void showState();

    const NetworkTexts& m_texts;
    ComputerSources m_computers;
    std::unique_ptr<ShareSource> m_shares;
    NetworkTree* m_tree;
    QLabel* m_status;
    QProgressBar* m_progress;
    QPushButton* m_ok;
    QPushButton* m_cancel;
    std::size_t m_searching; // sources that have not told everything yet
};

} // namespace shell
