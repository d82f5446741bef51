// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/RecordingModel.h"

#include "core/forms/Words.h"

namespace tally::archive {

namespace {

// Pictures of what was shown before are kept as long as there is room for them.
constexpr std::size_t keptSparks = 5000;

const char* const captions[] = {"Circuit", "Station",     "Serial", "From", "To",
                                "Peak",    "Load factor", "Load",   "Notes"};

} // namespace

void RecordingModel::show(std::vector<Entry> entries) {
    beginResetModel();
    entries_ = std::move(entries);
    texts_.clear();
    for (const Entry& entry : entries_)
        texts_.push_back(textsOf(entry));
    if (sparks_.size() > keptSparks)
        sparks_.clear();
    endResetModel();
}

const Spark* RecordingModel::spark(int row) const {
    const auto found = sparks_.find(entry(row).id);
    return found == sparks_.end() ? nullptr : &found->second;
}

void RecordingModel::setSparks(std::unordered_map<Id, Spark> sparks) {
    sparks_.merge(sparks);
    if (!entries_.empty())
        Q_EMIT dataChanged(index(0, picture), index(rowCount() - 1, picture), {Qt::UserRole});
}

int RecordingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(entries_.size());
}

int RecordingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(columns);
}

QString RecordingModel::text(int row, int column) const {
    const EntryTexts& texts = texts_.at(std::size_t(row));
    switch (column) {
    case circuit:
        return words(texts.circuit);
    case station:
        return words(texts.station);
    case serial:
        return words(texts.serial);
    case from:
        return words(texts.from);
    case to:
        return words(texts.to);
    case peak:
        return words(texts.peak);
    case loadFactor:
        return words(texts.loadFactor);
    case notes:
        return words(texts.notes);
    default:
        return {};
    }
}

QVariant RecordingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole && (index.column() == peak || index.column() == loadFactor))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::AccessibleTextRole && index.column() == picture)
        return QStringLiteral("Picture of the load");
    return {};
}

QVariant RecordingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return QString::fromLatin1(captions[section]);
    return {};
}

} // namespace tally::archive
