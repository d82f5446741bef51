// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/EntryTexts.h"
#include "archive/Spark.h"

#include <QAbstractTableModel>

#include <unordered_map>
#include <vector>

namespace tally::archive {

// The recordings that a search found, as rows.
class RecordingModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { circuit, station, serial, from, to, peak, loadFactor, picture, notes, columns };

    using QAbstractTableModel::QAbstractTableModel;

    void show(std::vector<Entry> entries);
    const Entry& entry(int row) const { return entries_.at(std::size_t(row)); }
    const std::vector<Entry>& entries() const { return entries_; }

    // Pictures come when rows are seen.
    const Spark* spark(int row) const;
    void setSparks(std::unordered_map<Id, Spark> sparks);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(int row, int column) const;

    std::vector<Entry> entries_;
    std::vector<EntryTexts> texts_;
    std::unordered_map<Id, Spark> sparks_;
};

} // namespace tally::archive
