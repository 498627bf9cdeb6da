// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NetworkDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace shell {
namespace {

constexpr int kColumns = 48; // in average characters
constexpr int kRows = 12;

} // namespace

NetworkDialog::NetworkDialog(const NetworkTexts& texts, const QString& title, ComputerSources computers,
                             std::unique_ptr<ShareSource> shares)
    : m_texts(texts), m_computers(std::move(computers)), m_shares(std::move(shares)),
      m_tree(new NetworkTree(texts, m_shares != nullptr, this)), m_status(new QLabel(this)),
      m_progress(new QProgressBar(this)), m_ok(new QPushButton(texts.ok, this)),
      m_cancel(new QPushButton(texts.cancel, this)), m_searching(m_computers.size()) {
    setObjectName(QStringLiteral("NetworkBrowser"));
    setWindowTitle(texts.caption);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    layOut(title);
    connectSources();
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &NetworkDialog::showState);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, [this](const QTreeWidgetItem* item) {
        if (item->childCount() == 0 && picked())
            accept();
    });
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    showState();
}

void NetworkDialog::layOut(const QString& title) {
    auto* column = new QVBoxLayout(this);
    auto* line = new QLabel(title, this);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    line->setBuddy(m_tree);
    column->addWidget(line);
    m_tree->setMinimumSize(kColumns * fontMetrics().averageCharWidth(), kRows * fontMetrics().lineSpacing());
    column->addWidget(m_tree, 1);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_status->setTextFormat(Qt::PlainText);
    column->addWidget(m_status);
    m_progress->setRange(0, 0); // nobody knows how much there is
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(m_texts.searching);
    column->addWidget(m_progress);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    m_ok->setObjectName(QStringLiteral("OKButton"));
    m_ok->setDefault(true);
    m_cancel->setObjectName(QStringLiteral("CancelButton"));
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    column->addLayout(buttons);
    m_tree->setFocus();
}

void NetworkDialog::connectSources() {
    for (const auto& source : m_computers) {
        connect(source.get(), &ComputerSource::found, this,
                [this](const QString& name, const QString& remark) {
                    m_tree->addComputer(name, remark);
                    showState();
                });
        connect(source.get(), &ComputerSource::searched, this, [this] {
            --m_searching;
            showState();
        });
    }
    if (!m_shares)
        return;
    connect(m_tree, &NetworkTree::sharesWanted, m_shares.get(), &ShareSource::list);
    connect(m_shares.get(), &ShareSource::listed, m_tree, &NetworkTree::setShares);
    connect(m_shares.get(), &ShareSource::failed, m_tree, &NetworkTree::setNoShares);
}

void NetworkDialog::search() {
    for (const auto& source : m_computers)
        source->start();
}

void NetworkDialog::showState() {
    const bool isSearching = m_searching > 0;
    const int count = m_tree->computerCount();
    m_progress->setVisible(isSearching);
    m_status->setText(isSearching  ? m_texts.searching
                      : count == 0 ? m_texts.nothingFound
                                   : m_texts.found.arg(count));
    m_ok->setEnabled(picked().has_value());
}

} // namespace shell
